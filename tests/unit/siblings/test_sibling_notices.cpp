#include <QSignalSpy>
#include <QtTest>

#include "FakeLink.h"
#include "linkhand/plugin/Codes.h"
#include "notify/ChangeNotices.h"

namespace
{

// A host that knows who it was.
class KnowingLink : public FakeLink
{
public:
    QString ChangedContact(unsigned int, unsigned int, unsigned int uiNumber) override
    {
        ++iAsked;
        return uiNumber == 0 ? QString() : strName;
    }

    QString strName;
    int iAsked = 0;
};

} // namespace

// How many notices become of the phonebook's messages.
class TestSiblingNotices : public QObject
{
    Q_OBJECT

private slots:
    void messagesOfOneContactAreOneNotice();
    void manyContactsAreOneNotice();
    void anotherKindOfChangeIsANoticeOfItsOwn();
    void withoutAHostNobodyIsNamed();
};

void TestSiblingNotices::messagesOfOneContactAreOneNotice()
{
    KnowingLink link;
    link.strName = "Ada Hartley";
    ChangeNotices notices;
    QSignalSpy due(&notices, SIGNAL(due(unsigned int, bool, QString)));
    notices.Note(PHONEBOOK_CONTACT_ADDED, 4, 0); // a plus sign in front
    notices.Note(PHONEBOOK_CONTACT_ADDED, 4, 222);
    notices.Note(PHONEBOOK_CONTACT_ADDED, 4, 333);
    QCOMPARE(due.count(), 0);
    QTRY_COMPARE(due.count(), 1);
    QCOMPARE(due.first(), QVariantList() << uint(PHONEBOOK_CONTACT_ADDED) << false << "Ada Hartley");
    QCOMPARE(link.iAsked, 2); // until it is known
    // And the next contact is another one.
    link.strName = "Bob";
    notices.Note(PHONEBOOK_CONTACT_ADDED, 4, 444);
    QTRY_COMPARE(due.count(), 2);
    QCOMPARE(due.last(), QVariantList() << uint(PHONEBOOK_CONTACT_ADDED) << false << "Bob");
}

void TestSiblingNotices::manyContactsAreOneNotice()
{
    KnowingLink link;
    link.strName = "Ada Hartley";
    ChangeNotices notices;
    QSignalSpy due(&notices, SIGNAL(due(unsigned int, bool, QString)));
    for (int i = 0; i < 50; ++i) {
        notices.Note(PHONEBOOK_CONTACT_DELETED, 4, 1);
        notices.Note(PHONEBOOK_CONTACT_DELETED, 4, 2);
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE(due.count(), 1);
    QCOMPARE(due.first().at(1).toBool(), true);
    QCOMPARE(link.iAsked, 1); // the whole phonebook is read for it
}

void TestSiblingNotices::anotherKindOfChangeIsANoticeOfItsOwn()
{
    KnowingLink link;
    link.strName = "Ada Hartley";
    ChangeNotices notices;
    QSignalSpy due(&notices, SIGNAL(due(unsigned int, bool, QString)));
    notices.Note(PHONEBOOK_CONTACT_ADDED, 4, 1);
    notices.Note(PHONEBOOK_CONTACT_CHANGED, 4, 1);
    QCOMPARE(due.count(), 1);
    QCOMPARE(due.first().first().toUInt(), uint(PHONEBOOK_CONTACT_ADDED));
    notices.Flush();
    QCOMPARE(due.count(), 2);
    QCOMPARE(due.last().first().toUInt(), uint(PHONEBOOK_CONTACT_CHANGED));
}

void TestSiblingNotices::withoutAHostNobodyIsNamed()
{
    ChangeNotices notices;
    QSignalSpy due(&notices, SIGNAL(due(unsigned int, bool, QString)));
    notices.Note(PHONEBOOK_CONTACT_CHANGED, 4, 1);
    notices.Flush();
    QCOMPARE(due.first(), QVariantList() << uint(PHONEBOOK_CONTACT_CHANGED) << false << "");
    notices.Flush();
    QCOMPARE(due.count(), 1);
}

QTEST_GUILESS_MAIN(TestSiblingNotices)
#include "test_sibling_notices.moc"
