#include <QLabel>
#include <QtTest>

#include "common/CallBox.h"
#include "common/Recipients.h"
#include "shared/SmsLength.h"

class TestSiblingParts : public QObject
{
    Q_OBJECT

private slots:
    void recipientsOfALine_data();
    void recipientsOfALine();
    void whatANumberIs_data();
    void whatANumberIs();
    void lengthOfAText_data();
    void lengthOfAText();
    void nothingIsCutAtASeam_data();
    void nothingIsCutAtASeam();
    void durations();
    void aCallShowsHowLongItHasLasted();
};

void TestSiblingParts::recipientsOfALine_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("numbers");
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("one") << "123"
                         << "123";
    QTest::newRow("two, as the phonebook sends them") << "123;456"
                                                      << "123|456";
    QTest::newRow("with blanks") << " 123 ; 456 "
                                 << "123|456";
    QTest::newRow("with commas") << "123,456"
                                 << "123|456";
    QTest::newRow("empty parts") << ";;123; ;"
                                 << "123";
    QTest::newRow("the same twice") << "123;123"
                                    << "123|123";
}

void TestSiblingParts::recipientsOfALine()
{
    QFETCH(QString, line);
    QFETCH(QString, numbers);
    const QStringList lstNumbers = Recipients::Split(line);
    QCOMPARE(lstNumbers.join('|'), numbers);
    QCOMPARE(Recipients::Split(Recipients::Join(lstNumbers)), lstNumbers);
}

void TestSiblingParts::whatANumberIs_data()
{
    QTest::addColumn<bool>("number");
    QTest::newRow("123") << true;
    QTest::newRow("+49 170 1234") << true;
    QTest::newRow("(030) 12-34/5") << true;
    QTest::newRow("*100#") << true;
    QTest::newRow("") << false;
    QTest::newRow("+") << false;
    QTest::newRow("()") << false;
    QTest::newRow("Anna") << false;
    QTest::newRow("12a") << false;
    QTest::newRow("1+2") << false;
}

void TestSiblingParts::whatANumberIs()
{
    QFETCH(bool, number);
    QCOMPARE(Recipients::IsNumber(QTest::currentDataTag()), number);
}

void TestSiblingParts::lengthOfAText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("units");
    QTest::addColumn<int>("messages");
    QTest::addColumn<bool>("unicode");
    QTest::newRow("empty") << QString() << 0 << 1 << false;
    QTest::newRow("plain") << "Hello" << 5 << 1 << false;
    QTest::newRow("extension") << QString::fromUtf8("€[]") << 6 << 1 << false;
    QTest::newRow("default alphabet") << QString::fromUtf8("àÅΔ¿\n") << 5 << 1 << false;
    QTest::newRow("160") << QString(160, 'a') << 160 << 1 << false;
    QTest::newRow("161") << QString(161, 'a') << 161 << 2 << false;
    QTest::newRow("306") << QString(306, 'a') << 306 << 2 << false;
    QTest::newRow("307") << QString(307, 'a') << 307 << 3 << false;
    QTest::newRow("Cyrillic") << QString(70, QChar(0x430)) << 70 << 1 << true;
    QTest::newRow("Cyrillic, 71") << QString(71, QChar(0x430)) << 71 << 2 << true;
    QTest::newRow("Cyrillic, 135") << QString(135, QChar(0x430)) << 135 << 3 << true;
    QTest::newRow("emoji") << QString::fromUtf8("a🎉") << 3 << 1 << true;
    QTest::newRow("backquote") << "`" << 1 << 1 << true;
}

void TestSiblingParts::lengthOfAText()
{
    QFETCH(QString, text);
    const SmsLength length = SmsLength::Of(text);
    QTEST(length.iUnits, "units");
    QTEST(length.iMessages, "messages");
    QTEST(length.bUnicode, "unicode");
}

void TestSiblingParts::nothingIsCutAtASeam_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("messages");
    const QString strEuro = QString::fromUtf8("\u20ac");
    const QString strFace = QString::fromUtf8("\U0001f600");
    const QString strUnicode = QString::fromUtf8("\u4e2d"); // makes every unit one of UTF-16
    QTest::newRow("escape on the seam") << QString(152, 'a') + strEuro + QString(152, 'a') << 3;
    QTest::newRow("escape before the seam") << QString(151, 'a') + strEuro + QString(153, 'a') << 2;
    QTest::newRow("escape behind the seam") << QString(153, 'a') + strEuro + QString(151, 'a') << 2;
    QTest::newRow("escapes alone") << strEuro.repeated(153) << 3; // 76 of them a part
    QTest::newRow("one short message") << QString(158, 'a') + strEuro << 1;
    QTest::newRow("pair on the seam") << strUnicode.repeated(66) + strFace + strUnicode.repeated(66) << 3;
    QTest::newRow("pair before the seam") << strUnicode.repeated(65) + strFace + strUnicode.repeated(67) << 2;
    QTest::newRow("pairs alone") << strFace.repeated(67) << 3; // 33 of them a part
    QTest::newRow("one short message of pairs") << strFace.repeated(35) << 1;
}

void TestSiblingParts::nothingIsCutAtASeam()
{
    QFETCH(QString, text);
    QTEST(SmsLength::Of(text).iMessages, "messages");
}

void TestSiblingParts::aCallShowsHowLongItHasLasted()
{
    CallBox box(QStringLiteral("VoiceCallPlugin"));
    const QLabel* pDuration = box.findChild<QLabel*>(QStringLiteral("VoiceCallPlugin_labelDuration"));
    QVERIFY(pDuration != nullptr);
    box.Start(QStringLiteral("+491700000001"));
    QCOMPARE(pDuration->text(), QStringLiteral("0:00"));
    QTRY_VERIFY(pDuration->text() > QStringLiteral("0:00"));
    QTRY_COMPARE(pDuration->text(), CallBox::DurationText(box.Seconds()));
    // The next begins anew.
    box.Start(QStringLiteral("+491700000002"));
    QCOMPARE(pDuration->text(), QStringLiteral("0:00"));
}

void TestSiblingParts::durations()
{
    QCOMPARE(CallBox::DurationText(0), QStringLiteral("0:00"));
    QCOMPARE(CallBox::DurationText(59), QStringLiteral("0:59"));
    QCOMPARE(CallBox::DurationText(61), QStringLiteral("1:01"));
    QCOMPARE(CallBox::DurationText(3600), QStringLiteral("60:00"));
    // In the digits of the language.
    QLocale::setDefault(QLocale("ar"));
    const QString strArabic = CallBox::DurationText(125);
    QLocale::setDefault(QLocale::system());
    QCOMPARE(strArabic, QString::fromUtf8("٢:٠٥"));
}

QTEST_MAIN(TestSiblingParts)
#include "test_sibling_parts.moc"
