#include <QTemporaryDir>
#include <QtTest>

#include <ctime>

#include "device/ContactBook.h"
#include "device/ContactIndex.h"
#include "linkhand/QtCompat.h"
#include "orva/orva_care.h"
#include "orva/orva_sim.h"

// Names and numbers of contacts, found while somebody types.
class TestHostContactIndex : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void whatBeginsSoIsFound_data();
    void whatBeginsSoIsFound();
    void noMoreThanAskedForAreGiven();
    void theFirstContactWithANumberHasIt();
    void manyContactsAreFoundAtOnce();
    void theBookReadsWhatIsThereAndSaysSo();
    void aBookThatGoesWhileItReadsWaitsForNothing();

private:
    QTemporaryDir m_folder;
};

namespace
{

double processorMs()
{
    timespec at = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &at);
    return double(at.tv_sec) * 1e3 + double(at.tv_nsec) / 1e6;
}

// The least processor time of several goes, which other work on the machine disturbs least.
template <class Work>
double leastMs(Work work)
{
    double dLeast = 0;
    for (int i = 0; i < 5; ++i) {
        const double dStart = processorMs();
        work();
        const double dTook = processorMs() - dStart;
        dLeast = i == 0 ? dTook : qMin(dLeast, dTook);
    }
    return dLeast;
}

void addContact(const QString& strName, const QString& strNumber)
{
    void* pRecord = nullptr;
    int iId = 0;
    QCOMPARE(ORVA_PBSrv_CreateAddrRecord(ORVA_MEMORY_LOCAL, &pRecord), long(ORVA_OK));
    ORVA_PBSrv_AddrRecord_SetValue(pRecord, "Name", strName.utf16());
    ORVA_PBSrv_AddrRecord_SetValue(pRecord, "Mobile", strNumber.utf16());
    QCOMPARE(ORVA_PBSrv_AddAddrRec(pRecord, &iId), long(ORVA_OK));
    ORVA_PBSrv_AddrRecord_Release(pRecord);
}

QStringList found(const ContactIndex& index, const QString& strText, int iAtMost = 12)
{
    QStringList lstFound;
    foreach (const HostContact& contact, index.Complete(strText, iAtMost)) {
        lstFound << contact.strName + "=" + contact.strNumber;
    }
    return lstFound;
}

ContactIndex few()
{
    ContactIndex index;
    index.Add("Anna Berger", "01715551234", "+491715551234");
    index.Add("Anna Berger", "030998877", "+4930998877");
    index.Add(QString::fromUtf8("Jörg Müller-Änne"), "+491601111111", "+491601111111");
    index.Add(QString::fromUtf8("Дмитрий"), "110", "110");
    index.Add("", "+12025550123", "+12025550123");
    index.Sort();
    return index;
}

} // namespace

void TestHostContactIndex::initTestCase()
{
    QCOMPARE(ORVA_Sim_Reset(m_folder.path().toUtf8().constData()), long(ORVA_OK));
    QCOMPARE(ORVA_Care_SetRegion("DE"), long(ORVA_OK));
}

void TestHostContactIndex::whatBeginsSoIsFound_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("numbers");
    const QString strMobile = "Anna Berger=01715551234";
    const QString strHome = "Anna Berger=030998877";
    const QString strJoerg = QString::fromUtf8("Jörg Müller-Änne=+491601111111");
    QTest::newRow("a name, with all its numbers") << "anna" << QStringList({strMobile, strHome});
    QTest::newRow("its second word") << "BERG" << QStringList({strMobile, strHome});
    QTest::newRow("both in another order") << "berger an" << QStringList({strMobile, strHome});
    QTest::newRow("without accents") << "jorg mull" << QStringList(strJoerg);
    QTest::newRow("with accents") << QString::fromUtf8("MÜLL") << QStringList(strJoerg);
    QTest::newRow("behind a hyphen") << QString::fromUtf8("änne") << QStringList(strJoerg);
    QTest::newRow("another script") << QString::fromUtf8("дм") << QStringList(QString::fromUtf8("Дмитрий=110"));
    QTest::newRow("the middle of a word") << "nna" << QStringList();
    QTest::newRow("as it is stored") << "0171 555" << QStringList(strMobile);
    QTest::newRow("from abroad") << "+49 171" << QStringList(strMobile);
    QTest::newRow("from abroad, by digits") << "0049171" << QStringList(strMobile);
    QTest::newRow("stored from abroad, typed as at home") << "0160" << QStringList(strJoerg);
    QTest::newRow("one without a name") << "+1 202" << QStringList("=+12025550123");
    QTest::newRow("a short one") << "11" << QStringList(QString::fromUtf8("Дмитрий=110"));
    QTest::newRow("the middle of a number") << "5551" << QStringList();
}

void TestHostContactIndex::whatBeginsSoIsFound()
{
    QFETCH(QString, text);
    QStringList lstFound = found(few(), text);
    lstFound.sort();
    QTEST(lstFound, "numbers");
}

void TestHostContactIndex::noMoreThanAskedForAreGiven()
{
    QCOMPARE(found(few(), "anna", 1).size(), 1);
    // Whoever has no name is behind nobody in the list of all.
    QCOMPARE(found(few(), "").size(), 4);
    QCOMPARE(found(ContactIndex(), "anna").size(), 0);
}

void TestHostContactIndex::theFirstContactWithANumberHasIt()
{
    ContactIndex index;
    index.Add("", "0407777777", "+49407777777");
    index.Add("First", "+49407777777", "+49407777777");
    index.Add("Second", "0407777777", "+49407777777");
    index.Add("Short", "110", "110");
    index.Sort();
    QCOMPARE(index.NameOf("040 7777777"), QString("First"));
    QCOMPARE(index.NameOf("+49407777777"), QString("First"));
    QCOMPARE(index.NameOf("110"), QString("Short"));
    QCOMPARE(index.NameOf("000110"), QString("Short"));
    QCOMPARE(index.NameOf("110000110"), QString());
    QCOMPARE(index.NameOf("Anna"), QString());
    QCOMPARE(index.NameOf(""), QString());
}

void TestHostContactIndex::manyContactsAreFoundAtOnce()
{
    ContactIndex index;
    const double dStart = processorMs();
    for (int i = 0; i < 50000; ++i) {
        const QString strNumber = QString("+49171%1").arg(1000000 + i);
        index.Add(QString("Contact number %1").arg(i), strNumber, strNumber);
    }
    index.Sort();
    const double dMaking = processorMs() - dStart;
    for (const char* pszText : {"c", "contact", "contact number 49999", "number 7", "0171", "+4917110", "4999 con"}) {
        const QString strText = QLatin1String(pszText);
        QVERIFY2(!index.Complete(strText, 12).isEmpty(), pszText);
        // A keystroke is far from looking through all of them anew.
        const double dTook = leastMs([&] { return index.Complete(strText, 12).size(); });
        QVERIFY2(dTook * 10 <= dMaking, qPrintable(QString("%1: %2 of %3 ms").arg(strText).arg(dTook).arg(dMaking)));
    }
}

void TestHostContactIndex::theBookReadsWhatIsThereAndSaysSo()
{
    addContact("Carla", "+49301234567");
    ContactBook book;
    const QSignalSpy read(&book, SIGNAL(contactsRead()));
    QCOMPARE(book.Index().NameOf("0301234567"), QString());
    book.Read(false);
    // Nothing of it happens on this thread.
    QCOMPARE(book.Index().NameOf("0301234567"), QString());
    QTRY_COMPARE(read.count(), 1);
    QCOMPARE(book.Index().NameOf("0301234567"), QString("Carla"));
    addContact("Dora", "+49307654321");
    book.Read(true);
    QTRY_COMPARE(book.Index().NameOf("0307654321"), QString("Dora"));
    QVERIFY(book.Index().Complete("dor", 5).size() == 1);
}

void TestHostContactIndex::aBookThatGoesWhileItReadsWaitsForNothing()
{
    for (int i = 0; i < 20; ++i) {
        ContactBook book;
        book.Read(true);
    }
}

QTEST_GUILESS_MAIN(TestHostContactIndex)
#include "test_host_contactindex.moc"
