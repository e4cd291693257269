#include <QApplication>
#include <QGlyphRun>
#include <QRegExp>
#include <QTextLayout>
#include <QtTest>

#include "linkhand/core/CommonUtils.h"

namespace
{

// The letters of a text as they stand on screen from left to right in a right-to-left paragraph, brackets mirrored as
// they are drawn, marks left out.
QString asSeen(const QString& strText)
{
    QTextLayout layout(strText);
    QTextOption option;
    option.setTextDirection(Qt::RightToLeft);
    layout.setTextOption(option);
    layout.setCacheEnabled(true);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(10000);
    layout.endLayout();
    QVector<QPair<qreal, QString>> seen;
    for (int i = 0; i < strText.length(); ++i) {
        const QChar c = strText.at(i);
        if (c == QChar(0x200e) || c == QChar(0x200f))
            continue;
        // Where it is drawn, not where a cursor would stand, which between two directions may be elsewhere.
        const QList<QGlyphRun> runs = line.glyphRuns(i, 1);
        if (runs.isEmpty())
            continue;
        QChar drawn = c;
        if (runs.first().isRightToLeft() && c.hasMirrored())
            drawn = c.mirroredChar();
        seen.append(qMakePair(runs.first().positions().constFirst().x(), QString(drawn)));
    }
    std::stable_sort(seen.begin(), seen.end(),
                     [](const QPair<qreal, QString>& a, const QPair<qreal, QString>& b) { return a.first < b.first; });
    QString strResult;
    for (const QPair<qreal, QString>& one : qAsConst(seen))
        strResult += one.second;
    return strResult;
}

QString corrected(QString strText)
{
    CommonUtils::ParanthesisCorrectionForHeAndAr(strText);
    return strText;
}

} // namespace

class CoreParentheses : public QObject
{
    Q_OBJECT

private slots:
    void init() { QApplication::setLayoutDirection(Qt::RightToLeft); }
    void cleanup() { QApplication::setLayoutDirection(Qt::LeftToRight); }

    void leftToRightLayoutLeavesAllAsItIs();
    void parenthesesShowRight_data();
    void parenthesesShowRight();
    void nameInFrontOfACountStaysTheName();
    void secondCallChangesNothing();
    void textWithoutParenthesesStays();
};

void CoreParentheses::leftToRightLayoutLeavesAllAsItIs()
{
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(corrected("Friends(3)"), QString("Friends(3)"));
}

void CoreParentheses::parenthesesShowRight_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("seen"); // from left to right
    QTest::newRow("latin name") << "Friends(3)"
                                << "(3)Friends";
    QTest::newRow("latin name, used and total") << "SIM card(3/250)"
                                                << "(3/250)SIM card";
    QTest::newRow("hebrew name") << QString::fromUtf8("חברים(3)") << QString::fromUtf8("(3)םירבח");
    QTest::newRow("number as name") << "2024(3)"
                                    << "(3)2024";
    QTest::newRow("name with parentheses") << "Team (A)"
                                           << "Team (A)";
    QTest::newRow("parentheses in front") << "(old) Anna"
                                          << "(old) Anna";
    QTest::newRow("area code") << "(030) 1234"
                               << "(030) 1234";
    QTest::newRow("hebrew with parentheses") << QString::fromUtf8("אבג (דה)") << QString::fromUtf8("(הד) גבא");
}

void CoreParentheses::parenthesesShowRight()
{
    QFETCH(QString, text);
    QFETCH(QString, seen);
    const QString strCorrected = corrected(text);
    QCOMPARE(asSeen(strCorrected), seen);
    QString strBare = strCorrected;
    strBare.remove(QChar(0x200e)).remove(QChar(0x200f));
    QCOMPARE(strBare, text);
}

void CoreParentheses::nameInFrontOfACountStaysTheName()
{
    // A rename cuts the text at the last parenthesis.
    for (const char* szName : {"Friends", "Team (A)", "2024", "(x)"}) {
        const QString strName = QLatin1String(szName);
        const QString strText = corrected(strName + "(12)");
        QCOMPARE(strText.left(QRegExp("[(](.)*[)]").lastIndexIn(strText)), strName);
    }
}

void CoreParentheses::secondCallChangesNothing()
{
    for (const char* szText : {"Friends(3)", "Team (A)", "(030) 1234", "(", ")", "()"}) {
        const QString strOnce = corrected(QLatin1String(szText));
        QCOMPARE(corrected(strOnce), strOnce);
    }
}

void CoreParentheses::textWithoutParenthesesStays()
{
    for (const char* szText : {"", "Anna", "1234", "a/b", "אבג"})
        QCOMPARE(corrected(QString::fromUtf8(szText)), QString::fromUtf8(szText));
}

QTEST_MAIN(CoreParentheses)
#include "core_parentheses.moc"
