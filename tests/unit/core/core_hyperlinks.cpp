#include <QElapsedTimer>
#include <QTextBlock>
#include <QTextDocument>
#include <QtTest>

#include "linkhand/core/CommonUtils.h"

namespace
{

QString link(const QString& strAddress, const QString& strText)
{
    return "<a href=\"" + strAddress + "\">" + strText + "</a>";
}

// What a reader of the rich text sees.
QString visible(const QString& strRich)
{
    QTextDocument document;
    document.setHtml(strRich);
    return document.toPlainText();
}

QStringList addresses(const QString& strRich)
{
    QTextDocument document;
    document.setHtml(strRich);
    QStringList lstResult;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (QTextBlock::iterator it = block.begin(); !it.atEnd(); ++it) {
            if (it.fragment().charFormat().isAnchor())
                lstResult.append(it.fragment().charFormat().anchorHref());
        }
    }
    return lstResult;
}

QString escaped(QString strText)
{
    return strText.replace('<', "&lt;").replace('>', "&gt;");
}

} // namespace

class CoreHyperLinks : public QObject
{
    Q_OBJECT

private slots:
    void links_data();
    void links();
    void nothingToLink_data();
    void nothingToLink();
    void addressIsWhatTheReaderSees();
    void mixturesKeepTheirVisibleText();
    void timeGrowsWithLength_data();
    void timeGrowsWithLength();
};

void CoreHyperLinks::links_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* szName, const char* szText, const QString& strExpected) {
        QTest::newRow(szName) << QString::fromUtf8(szText) << strExpected;
    };
    row("web", "http://example.org", link("http://example.org", "http://example.org"));
    row("secure web", "https://example.org/a?b=c#d",
        link("https://example.org/a?b=c#d", "https://example.org/a?b=c#d"));
    row("upper case", "HTTP://Example.org", link("HTTP://Example.org", "HTTP://Example.org"));
    row("ftp", "ftp://example.org/file", link("ftp://example.org/file", "ftp://example.org/file"));
    row("without scheme", "www.example.org", link("http://www.example.org", "www.example.org"));
    row("IPv6 host", "http://[::1]/x", link("http://[::1]/x", "http://[::1]/x"));
    row("in a sentence", "see http://example.org/a, please.",
        "see " + link("http://example.org/a", "http://example.org/a") + ", please.");
    row("in parentheses", "(http://example.org)", "(" + link("http://example.org", "http://example.org") + ")");
    row("own parentheses", "http://example.org/a_(b)", link("http://example.org/a_(b)", "http://example.org/a_(b)"));
    row("after a word", "web:http://example.org", "web:" + link("http://example.org", "http://example.org"));
    row("in escaped angles", "&lt;http://example.org&gt;",
        "&lt;" + link("http://example.org", "http://example.org") + "&gt;");
    row("bare ampersand", "http://example.org/?a=1&b=2",
        link("http://example.org/?a=1&amp;b=2", "http://example.org/?a=1&b=2"));
    row("escaped ampersand", "http://example.org/?a=1&amp;b=2",
        link("http://example.org/?a=1&amp;b=2", "http://example.org/?a=1&amp;b=2"));
    row("escaped ampersand at the end", "http://example.org/?a&amp;",
        link("http://example.org/?a", "http://example.org/?a") + "&amp;");
    row("quote ends it", "http://example.org\"onclick=x",
        link("http://example.org", "http://example.org") + "\"onclick=x");
    row("escaped quote ends it", "http://example.org&quot;x",
        link("http://example.org", "http://example.org") + "&quot;x");
    row("next line", "http://a.example\nhttp://b.example",
        link("http://a.example", "http://a.example") + "\n" + link("http://b.example", "http://b.example"));
    row("other alphabet", "http://bücher.example/ü",
        link(QString::fromUtf8("http://bücher.example/ü"), QString::fromUtf8("http://bücher.example/ü")));
    row("mail", "ann@example.org", link("mailto:ann@example.org", "ann@example.org"));
    row("mail with signs", "o'brien+tag@mail.example.org",
        link("mailto:o'brien+tag@mail.example.org", "o'brien+tag@mail.example.org"));
    row("mail in a sentence", "to ann@example.org.", "to " + link("mailto:ann@example.org", "ann@example.org") + ".");
    row("mail list", "a@example.org;b@example.org, c@example.org",
        link("mailto:a@example.org", "a@example.org") + ";" + link("mailto:b@example.org", "b@example.org") + ", " +
            link("mailto:c@example.org", "c@example.org"));
    row("mail in angles", "Ann &lt;ann@example.org&gt;",
        "Ann &lt;" + link("mailto:ann@example.org", "ann@example.org") + "&gt;");
    row("mail with a query", "a?b%c@example.org", link("mailto:a%3Fb%25c@example.org", "a?b%c@example.org"));
    row("mail and web", "ann@example.org,http://example.org",
        link("mailto:ann@example.org", "ann@example.org") + "," + link("http://example.org", "http://example.org"));
    row("number alone", "017012345", link("tel:017012345", "017012345"));
    row("international number", "+4930123456", link("tel:+4930123456", "+4930123456"));
    row("number in a text", "call +49 (30) 123-456 now",
        "call " + link("tel:+4930123456", "+49 (30) 123-456") + " now");
    row("two numbers", "+49 30 1234567 +44 20 7654321",
        link("tel:+49301234567", "+49 30 1234567") + " " + link("tel:+44207654321", "+44 20 7654321"));
    row("number with scheme", "tel:030-123456", "tel:" + link("tel:030123456", "030-123456"));
}

void CoreHyperLinks::links()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    const QString strResult = CommonUtils::ParseAndCreateHyperLinks(text);
    QCOMPARE(strResult, expected);
    QCOMPARE(visible(strResult), visible(text));
}

void CoreHyperLinks::nothingToLink_data()
{
    QTest::addColumn<QString>("text");
    for (const char* szText : {"",
                               " ",
                               "plain text",
                               "a@b",
                               "@example.org",
                               "ann@",
                               "ann@example",
                               "a@b@example.org",
                               "ann@-example.org",
                               "ann@example..org",
                               "http://",
                               "http:// x",
                               "www.",
                               "://x",
                               "javascript:alert(1)",
                               "file:///etc/passwd",
                               "data:text/html,x",
                               "vbscript:x",
                               "xhttp://example.org",
                               "*#06#",
                               "12",
                               "2024-01-15",
                               "12.05.2024",
                               "+49",
                               "+1 2 3",
                               "1234567890123456789",
                               "&lt;b&gt;",
                               "&amp;",
                               "&",
                               "a & b",
                               "&#64;",
                               "x&a@example.org",
                               "&amp;a@example.org",
                               "<b>bold</b>",
                               "<a href=\"http://example.org\">",
                               "<http://a.example",
                               "...",
                               "((((",
                               "'\"'"})
        QTest::newRow(szText) << QString::fromUtf8(szText);
}

void CoreHyperLinks::nothingToLink()
{
    QFETCH(QString, text);
    QCOMPARE(CommonUtils::ParseAndCreateHyperLinks(text), text);
}

void CoreHyperLinks::addressIsWhatTheReaderSees()
{
    const QString strRich =
        CommonUtils::ParseAndCreateHyperLinks("http://example.org/?a=1&b=2&amp;c=3 a'b@example.org");
    QCOMPARE(addresses(strRich), QStringList() << "http://example.org/?a=1&b=2&c=3"
                                               << "mailto:a'b@example.org");
}

// All strings of a few telling pieces: what is seen never changes, no mark-up but links appears, and no address is
// other than web, mail or phone.
void CoreHyperLinks::mixturesKeepTheirVisibleText()
{
    const QStringList pieces = {"http://", "www.", "a", "@",   ".de",     "&",          "amp;",    "<",
                                ">",       "\"",   "'", "lt;", "mailto:", "+49",        "3012345", " ",
                                ";",       "(",    ")", "\n",  "#",       "javascript:"};
    int iPieces = 0;
    for (int n = 0; n < pieces.size() * pieces.size() * pieces.size() * 4; ++n) {
        QString strText;
        for (int i = n, j = 0; j < 4; ++j, i /= pieces.size()) {
            strText += pieces.at(i % pieces.size());
            strText += pieces.at((i * 7 + j * 5) % pieces.size());
        }
        const QString strRich = CommonUtils::ParseAndCreateHyperLinks(escaped(strText));
        QString strBare = strRich;
        strBare.remove("</a>");
        strBare.remove(QRegularExpression("<a href=\"[^\"<>]*\">"));
        QCOMPARE(strBare, escaped(strText));
        if (n % 41 != 0)
            continue; // the rich text engine is slow
        ++iPieces;
        QCOMPARE(visible(strRich), visible(escaped(strText)));
        for (const QString& strAddress : addresses(strRich))
            QVERIFY2(QRegularExpression("^(https?://|ftp://|mailto:|tel:\\+?\\d+$)").match(strAddress).hasMatch(),
                     qPrintable(strAddress));
    }
    QVERIFY(iPieces > 500);
}

void CoreHyperLinks::timeGrowsWithLength_data()
{
    QTest::addColumn<QString>("piece");
    for (const char* szPiece :
         {"a", "@",  "a@", "a@b.de", "a@b.de;", "http://",    "http://a", "://", "www.", "&", "&amp;", "&lt;",
          "<", "<>", "(",  ")",      "+1",      "+49 30 123", "1",        "1 ",  ".",    "'", "\""})
        QTest::newRow(szPiece) << QString::fromUtf8(szPiece);
}

void CoreHyperLinks::timeGrowsWithLength()
{
    QFETCH(QString, piece);
    // A quadratic pass over two million characters would take minutes.
    const QString strText = piece.repeated(2000000 / piece.length());
    QElapsedTimer timer;
    timer.start();
    const QString strRich = CommonUtils::ParseAndCreateHyperLinks(strText);
    QVERIFY(strRich.length() >= strText.length());
    QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
}

QTEST_MAIN(CoreHyperLinks)
#include "core_hyperlinks.moc"
