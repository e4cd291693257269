#include <QSignalSpy>
#include <QtTest>

#include "FakeLink.h"
#include "linkhand/plugin/Codes.h"
#include "notify/ChangeNotices.h"

namespace
{

// A host that knows who it was, and answers by itself unless it is slow.
class KnowingLink : public FakeLink
{
public:
    bool AskChangedContact(unsigned int, unsigned int, unsigned int uiNumber, QObject* pAsker, int iTicket) override
    {
        m_listQuestions.append({pAsker, iTicket, uiNumber == 0 ? QString() : strName});
        if (!bSlow) {
            Answer(Asked() - 1, Qt::QueuedConnection);
        }
        return true;
    }
    int Asked() const { return int(m_listQuestions.size()); }
    void Answer(int iQuestion, Qt::ConnectionType enType = Qt::DirectConnection)
    {
        const Question& question = m_listQuestions.at(iQuestion);
        QMetaObject::invokeMethod(question.pAsker, "OnContactNamed", enType, Q_ARG(int, question.iTicket),
                                  Q_ARG(QString, question.strAnswer));
    }

    QString strName;
    bool bSlow = false;

private:
    struct Question {
        QObject* pAsker;
        int iTicket;
        QString strAnswer;
    };
    QList<Question> m_listQuestions;
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
    void aNoticeWaitsForTheName();
    void aNameThatComesTooLateIsGivenToNobodyElse();
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
    QCOMPARE(link.Asked(), 2); // until it is known
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
    QCOMPARE(link.Asked(), 1); // the whole phonebook is read for it
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

void TestSiblingNotices::aNoticeWaitsForTheName()
{
    KnowingLink link;
    link.strName = "Ada Hartley";
    link.bSlow = true;
    ChangeNotices notices;
    QSignalSpy due(&notices, SIGNAL(due(unsigned int, bool, QString)));
    notices.Note(PHONEBOOK_CONTACT_ADDED, 4, 1);
    QMetaObject::invokeMethod(&notices, "OnQuiet"); // nothing followed
    QCOMPARE(due.count(), 0);
    link.Answer(0);
    QCOMPARE(due.count(), 1);
    QCOMPARE(due.first().last().toString(), QString("Ada Hartley"));
    // Of several contacts none is named: nothing is waited for.
    notices.Note(PHONEBOOK_CONTACT_ADDED, 4, 1);
    QCoreApplication::processEvents();
    notices.Note(PHONEBOOK_CONTACT_ADDED, 4, 2);
    QMetaObject::invokeMethod(&notices, "OnQuiet");
    QCOMPARE(due.count(), 2);
    QCOMPARE(due.last().at(1).toBool(), true);
}

// By the time of an answer somebody else may be the newest.
void TestSiblingNotices::aNameThatComesTooLateIsGivenToNobodyElse()
{
    KnowingLink link;
    link.strName = "Ada Hartley";
    link.bSlow = true;
    ChangeNotices notices;
    QSignalSpy due(&notices, SIGNAL(due(unsigned int, bool, QString)));
    notices.Note(PHONEBOOK_CONTACT_ADDED, 4, 1);
    notices.Note(PHONEBOOK_CONTACT_DELETED, 4, 1);
    QCOMPARE(due.count(), 1);
    QCOMPARE(due.first().last().toString(), QString());
    link.Answer(0);
    notices.Flush();
    QCOMPARE(due.count(), 2);
    QCOMPARE(due.last().last().toString(), QString());
}

QTEST_GUILESS_MAIN(TestSiblingNotices)
#include "test_sibling_notices.moc"
