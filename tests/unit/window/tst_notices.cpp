#include <QtTest>

#include "fakecore/FakeCore.h"
#include "linkhand/plugin/Codes.h"
#include "window/Notices.h"

class NoticesTest : public QObject
{
    Q_OBJECT

private:
    static AddrBookRecord record(int id, const QStringList& values)
    {
        AddrBookRecord made;
        made.iID = id;
        made.lstValues = values;
        return made;
    }
    static AddrBookField field(const char* type)
    {
        AddrBookField made;
        made.strType = QLatin1String(type);
        return made;
    }

private slots:
    void init() { FakeCore::reset(); }

    void onlyFilledPhoneFieldsAreKept()
    {
        const QList<AddrBookField> fields = {field("Name"), field("Mobile"), field("Number"), field("Email")};
        const QList<AddrBookRecord> numbers =
            Notices::numbersOf({record(4, {"Anna", "123", "", "a@b"}), record(5, {"Bert"})}, fields);
        QCOMPARE(numbers.size(), 2);
        QCOMPARE(numbers.at(0).iID, 4);
        QCOMPARE(numbers.at(0).lstValues, QList<QString>{"123"});
        QCOMPARE(numbers.at(1).lstValues, QList<QString>());
    }

    void numbersThatDoNotFitArriveAsNothing()
    {
        QCOMPARE(Notices::numberIn("123"), 123);
        QCOMPARE(Notices::numberIn("2147483647"), 2147483647);
        QCOMPARE(Notices::numberIn("2147483648"), 0);
        QCOMPARE(Notices::numberIn("+49"), 0);
        QCOMPARE(Notices::numberIn(" +49"), 0);
        QCOMPARE(Notices::numberIn("12 34"), 0);
        QCOMPARE(Notices::numberIn(""), 0);
    }

    void eachNumberOfTheIdentifierIsTold()
    {
        QList<AddrBookRecord> waiting = {record(1, {"11"}), record(2, {"21", "22"}), record(1, {"12"})};
        Notices::announce(waiting, PB_MEM_ME, 1, PHONEBOOK_CONTACT_CHANGED);
        QCOMPARE(waiting.size(), 1);
        QCOMPARE(waiting.first().iID, 2);
        const QList<FakeCore::Notice> told = FakeCore::notices();
        QCOMPARE(told.size(), 2);
        QCOMPARE(told.at(0).message, unsigned(PHONEBOOK_CONTACT_CHANGED));
        QCOMPARE(told.at(0).param1, unsigned(PB_MEM_ME));
        QCOMPARE(told.at(0).param2, 11u);
        QCOMPARE(told.at(1).param2, 12u);
    }

    void withoutTheServiceNobodyIsTold()
    {
        FakeCore::setSibling(FakeCore::NotifyId, false);
        Notices::push(PHONEBOOK_CONTACT_ADDED, 4, 1);
        Notices::broadcast(nullptr, PHONEBOOK_CARD_NODE, 1, 0);
        QObject stranger;
        Notices::broadcast(&stranger, PHONEBOOK_CARD_NODE, 1, 0);
        FakeCore::setContainerPresent(false);
        Notices::push(PHONEBOOK_CONTACT_ADDED, 4, 1);
        QCOMPARE(FakeCore::notices().size(), 0);
    }
};

QTEST_MAIN(NoticesTest)
#include "tst_notices.moc"
