#include <QDir>
#include <QRegExp>
#include <QtTest>

#include "app/CommandLine.h"
#include "requests/ContactUri.h"
#include "requests/Request.h"

namespace
{

// clang-format off
const char* const BAD[] = {
    "", ":", "tel", "tel:", "tel:+", "tel:-", "tel:abc", "tel:A1", "tel:1+2", "tel:++1", "tel:+*1",
    "tel://+49171", "tel:+49171/5", "tel:+49171?body=x", "tel:%", "tel:%4", "tel:%zz", "tel:1%00", "tel:1%0a2",
    "tel:1\n2", "tel:1p2", "tel:1,2", "tel:1w2", "tel:1;", "tel:1;=x", "tel:1;a b=c", "tel:1;ext=", "tel:1;ext=x",
    "tel:1;ext=12345678901", "tel:1;a=%0a", "tel:1;a=<", "tel:\xD9\xA1", "tel:%D9%A1", "tel:%EF%BC%91",
    "tel:%E2%80%AE1", " tel:1", "tel: ", "tell:1", "xtel:1", "sms", "sms:", "sms:,", "sms:1,", "sms:,1",
    "sms:abc", "sms:?", "sms:?body=", "sms:1?", "sms:1?body", "sms:1?=x", "sms:1?body=a&body=b", "sms:1?body=a&",
    "sms:1?body=%", "sms:1?body=%f", "sms:1?body=%00", "sms:1?body=%1b", "sms:1?body=%7f", "sms:1?body=%C2%85",
    "sms:1?body=%ff", "sms:1?body=%C3", "sms:1?body=%C0%80", "sms:1?body=%ED%A0%80", "sms:1?body=a%0Db",
    "sms://1", "smsto:1", "mms:1", "mailto:a@example.org", "http://example.org", "javascript:1", "data:,1",
    "file:///etc/passwd", "facetime:1", "callto:1",
};
// clang-format on

} // namespace

// What arguments, links and drops ask for, told from what they must not be taken for.
class TestHostRequests : public QObject
{
    Q_OBJECT

private slots:
    void aNumberToCall_data();
    void aNumberToCall();
    void aMessageToWrite_data();
    void aMessageToWrite();
    void aCodeIsNoNumber_data();
    void aCodeIsNoNumber();
    void whatIsBadIsNothing_data();
    void whatIsBadIsNothing();
    void noPieceOfAUriIsTakenForMoreThanItSays();
    void aFileIsKnownByItsName_data();
    void aFileIsKnownByItsName();
    void aFileMeansTheSameFromAnotherFolder();
    void argumentsAreOpenedInTheirOrder();
};

void TestHostRequests::aNumberToCall_data()
{
    QTest::addColumn<QByteArray>("uri");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("extension");
    QTest::newRow("international") << QByteArray("tel:+491711234567") << "+491711234567"
                                   << "";
    QTest::newRow("separated") << QByteArray("tel:+1-201-(555).0123") << "+12015550123"
                               << "";
    QTest::newRow("national") << QByteArray("tel:0171-55;phone-context=+49") << "017155"
                              << "";
    QTest::newRow("without its context") << QByteArray("tel:112") << "112"
                                         << "";
    QTest::newRow("capitals") << QByteArray("TEL:+49171") << "+49171"
                              << "";
    QTest::newRow("encoded plus") << QByteArray("tel:%2B49171") << "+49171"
                                  << "";
    QTest::newRow("encoded blanks") << QByteArray("tel:+49%20171%2055") << "+4917155"
                                    << "";
    QTest::newRow("extension") << QByteArray("tel:+4930123;ext=4-2") << "+4930123"
                               << "42";
    QTest::newRow("other parameters") << QByteArray("tel:+49171;isub=1%32;foo;bar=a") << "+49171"
                                      << "";
    QTest::newRow("longest") << "tel:" + QByteArray(40, '1') << QString(40, '1') << "";
}

void TestHostRequests::aNumberToCall()
{
    QFETCH(QByteArray, uri);
    const ContactUri result = ContactUri::Of(uri);
    QCOMPARE(int(result.enKind), int(ContactUri::CALL));
    QTEST(result.lstNumbers.join("|"), "number");
    QTEST(result.strExtension, "extension");
    QCOMPARE(result.strText, QString());
}

void TestHostRequests::aMessageToWrite_data()
{
    QTest::addColumn<QByteArray>("uri");
    QTest::addColumn<QString>("numbers");
    QTest::addColumn<QString>("text");
    QTest::newRow("number") << QByteArray("sms:+49171") << "+49171"
                            << "";
    QTest::newRow("several") << QByteArray("sms:+49171,0172-5") << "+49171|01725"
                             << "";
    QTest::newRow("text") << QByteArray("sms:+49171?body=Hello%20there") << "+49171"
                          << "Hello there";
    QTest::newRow("a plus is a plus") << QByteArray("sms:1?body=1+1") << "1"
                                      << "1+1";
    QTest::newRow("beyond ASCII") << QByteArray("sms:1?body=%C3%A4%E7%8E%8B") << "1"
                                  << QString::fromUtf8("\xC3\xA4\xE7\x8E\x8B");
    QTest::newRow("lines") << QByteArray("sms:1?body=a%0D%0Ab%0Ac") << "1"
                           << "a\nb\nc";
    QTest::newRow("marks") << QByteArray("sms:1?body=%3Cb%3E%26amp;") << "1"
                           << "<b>&amp;";
    QTest::newRow("other fields") << QByteArray("sms:1?x=y&BODY=z") << "1"
                                  << "z";
    QTest::newRow("text alone") << QByteArray("sms:?body=z") << ""
                                << "z";
    QTest::newRow("parameters") << QByteArray("sms:+49171;ext=5,+49172;foo=1?body=z") << "+49171|+49172"
                                << "z";
    QTest::newRow("codes in the text") << QByteArray("sms:1?body=*%2306%23") << "1"
                                       << "*#06#";
}

void TestHostRequests::aMessageToWrite()
{
    QFETCH(QByteArray, uri);
    const ContactUri result = ContactUri::Of(uri);
    QCOMPARE(int(result.enKind), int(ContactUri::MESSAGE));
    QTEST(result.lstNumbers.join("|"), "numbers");
    QTEST(result.strText, "text");
}

void TestHostRequests::aCodeIsNoNumber_data()
{
    QTest::addColumn<QByteArray>("uri");
    QTest::addColumn<QString>("code");
    QTest::newRow("encoded") << QByteArray("tel:*%2306%23") << "*#06#";
    QTest::newRow("plain") << QByteArray("tel:*#06#") << "*#06#";
    QTest::newRow("star alone") << QByteArray("tel:*100") << "*100";
    QTest::newRow("encoded star") << QByteArray("tel:%2a21%2A") << "*21*";
    QTest::newRow("behind a number") << QByteArray("tel:0171%23") << "0171#";
    QTest::newRow("between separators") << QByteArray("tel:(*)-100") << "*100";
    QTest::newRow("one of several recipients") << QByteArray("sms:0171,*100") << "0171|*100";
}

void TestHostRequests::aCodeIsNoNumber()
{
    QFETCH(QByteArray, uri);
    const ContactUri result = ContactUri::Of(uri);
    QCOMPARE(int(result.enKind), int(ContactUri::CODE));
    QTEST(result.lstNumbers.join("|"), "code");
    QCOMPARE(int(Request::Of(QString::fromLatin1(uri)).enKind), int(Request::CODE));
}

void TestHostRequests::whatIsBadIsNothing_data()
{
    QTest::addColumn<QByteArray>("uri");
    for (const char* pszBad : BAD) {
        const QByteArray bad(pszBad);
        QTest::newRow(bad.isEmpty() ? "empty" : bad.toPercentEncoding(":;,?=&+*/").constData()) << bad;
    }
    QTest::newRow("too long a number") << "tel:" + QByteArray(41, '1');
    QTest::newRow("too long a text") << "sms:1?body=" + QByteArray(4001, 'a');
    QTest::newRow("too long") << "tel:1;a=" + QByteArray(9000, 'a');
    QTest::newRow("too many numbers") << "sms:1" + QByteArray(",1").repeated(50);
}

void TestHostRequests::whatIsBadIsNothing()
{
    QFETCH(QByteArray, uri);
    const ContactUri result = ContactUri::Of(uri);
    QCOMPARE(int(result.enKind), int(ContactUri::NONE));
    QVERIFY(result.lstNumbers.isEmpty() && result.strText.isEmpty() && result.strExtension.isEmpty());
    QCOMPARE(int(Request::Of(QString::fromUtf8(uri)).enKind), int(Request::NONE));
}

// Whatever is cut off, doubled or exchanged: what is to be called holds digits, and a plus sign at most before them.
void TestHostRequests::noPieceOfAUriIsTakenForMoreThanItSays()
{
    const QList<QByteArray> listSeeds = {"tel:+49-171-(55).5;ext=12;phone-context=example.com", "tel:*%2306%23",
                                         "sms:+49171,0172;a=b?body=Hi%20%C3%A4%0A&x=y"};
    const QByteArray octets("\0\n\x7f\x80\xff%+*#;,?=&:/<>a0 ", 21);
    int iTaken = 0;
    const auto look = [&iTaken](const QByteArray& uri) {
        const ContactUri result = ContactUri::Of(uri);
        iTaken += result.enKind != ContactUri::NONE;
        const QRegExp allowed(result.enKind == ContactUri::CODE ? "\\+?[0-9*#]+" : "\\+?[0-9]+");
        foreach (const QString& strNumber, result.lstNumbers) {
            QVERIFY2(allowed.exactMatch(strNumber), uri.toPercentEncoding().constData());
        }
        foreach (const QChar c, result.strText) {
            QVERIFY2(c.unicode() >= 0x20 || c == '\n' || c == '\t', uri.toPercentEncoding().constData());
        }
    };
    foreach (const QByteArray& seed, listSeeds) {
        for (int i = 0; i <= seed.size(); ++i) {
            look(seed.left(i));
            look(seed.mid(i));
            look(seed.left(i) + seed);
            for (int j = 0; j < octets.size(); ++j) {
                look(QByteArray(seed).insert(i, octets.at(j)));
                look(QByteArray(seed).replace(i, 1, octets.mid(j, 1)));
            }
        }
    }
    QVERIFY(iTaken > 100);
}

void TestHostRequests::aFileIsKnownByItsName_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("file");
    QTest::newRow("cards") << "/a/b.vcf"
                           << "/a/b.vcf";
    QTest::newRow("capitals") << "/a/B.VCF"
                              << "/a/B.VCF";
    QTest::newRow("long ending") << "/a/b.vcard"
                                 << "/a/b.vcard";
    QTest::newRow("table") << "/a/b.csv"
                           << "/a/b.csv";
    QTest::newRow("in the folder") << "b.vcf" << QDir::current().filePath("b.vcf");
    QTest::newRow("above") << "/a/../b.vcf"
                           << "/b.vcf";
    QTest::newRow("URL") << "file:///a/b%20c.vcf"
                         << "/a/b c.vcf";
    QTest::newRow("URL of this computer") << "file://localhost/a.csv"
                                          << "/a.csv";
    QTest::newRow("a percent sign in a path") << "/a%20b.vcf"
                                              << "/a%20b.vcf";
    QTest::newRow("another's URL") << "file://server/a.vcf"
                                   << "";
    QTest::newRow("URL without a path") << "file:a.vcf"
                                        << "";
    QTest::newRow("other scheme") << "http://example.org/a.vcf"
                                  << "";
    QTest::newRow("zero") << "file:///a%00.vcf"
                          << "";
    QTest::newRow("other ending") << "/etc/passwd"
                                  << "";
    QTest::newRow("no ending") << "vcf"
                               << "";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("too long") << "/" + QString(5000, 'a') + ".vcf"
                              << "";
}

void TestHostRequests::aFileIsKnownByItsName()
{
    QFETCH(QString, text);
    QFETCH(QString, file);
    const Request request = Request::Of(text);
    QCOMPARE(int(request.enKind), int(file.isEmpty() ? Request::NONE : Request::CARDS));
    QCOMPARE(request.strFile, file);
}

void TestHostRequests::aFileMeansTheSameFromAnotherFolder()
{
    const QString strHere = QDir::currentPath();
    const QString strPortable = Request::Portable("b.vcf");
    QVERIFY(QDir::setCurrent("/"));
    const QString strFile = Request::Of(strPortable).strFile;
    QVERIFY(QDir::setCurrent(strHere));
    QCOMPARE(strFile, QDir(strHere).filePath("b.vcf"));
    QCOMPARE(Request::Portable("tel:+49171"), QString("tel:+49171"));
}

void TestHostRequests::argumentsAreOpenedInTheirOrder()
{
    const CommandLine line =
        CommandLine::Parse({"tel:+49171", "--data-dir", "/x", "/a.vcf", "--", "sms:1", "--not-an-option.csv"});
    QCOMPARE(line.strError, QString());
    QCOMPARE(line.strDataDir, QString("/x"));
    QCOMPARE(line.lstOpened,
             QStringList({"tel:+49171", "/a.vcf", "sms:1", QDir::current().filePath("--not-an-option.csv")}));
    QCOMPARE(CommandLine::Parse({"tel:+49171", "mailto:a@example.org"}).strError,
             QString("unknown argument mailto:a@example.org"));
}

QTEST_MAIN(TestHostRequests)
#include "test_host_requests.moc"
