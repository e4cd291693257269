#include <QtTest>

#include <random>

#include "logic/CaselessText.h"

// The search's comparison against Qt's own, which defines it.
class TestCaseless : public QObject
{
    Q_OBJECT

    static bool agree(const QString& whole, const QString& text)
    {
        return CaselessText(text).IsIn(whole) == whole.contains(text, Qt::CaseInsensitive);
    }

private slots:
    void caseDoesNotCount_data()
    {
        QTest::addColumn<QString>("whole");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("found");
        QTest::newRow("lower in upper") << "ANNA MEYER"
                                        << "meyer" << true;
        QTest::newRow("upper in lower") << "anna meyer"
                                        << "ANNA" << true;
        QTest::newRow("at the end") << "anna"
                                    << "NA" << true;
        QTest::newRow("begun twice") << "aanna"
                                     << "ANNA" << true;
        QTest::newRow("longer than all") << "ann"
                                         << "anna" << false;
        QTest::newRow("not there") << "anna"
                                   << "b" << false;
        QTest::newRow("empty in empty") << ""
                                        << "" << true;
        QTest::newRow("empty in null") << QString() << "" << true;
        QTest::newRow("something in empty") << ""
                                            << "a" << false;
        QTest::newRow("signs beside the letters") << "a[b"
                                                  << "A{B" << false;
        QTest::newRow("an at sign and a grave accent") << "@"
                                                       << "`" << false;
        QTest::newRow("the sign of Kelvin is a k") << QString::fromUtf8("273 \xE2\x84\xAA") << "k" << true;
        QTest::newRow("and a k is that sign") << "k" << QString::fromUtf8("\xE2\x84\xAA") << true;
        QTest::newRow("a long s is an s") << QString::fromUtf8("Wa\xC5\xBF\xC5\xBF"
                                                               "er")
                                          << "WASSER" << true;
        QTest::newRow("behind another alphabet") << QString::fromUtf8("\xD0\x96 anna") << "Anna" << true;
        QTest::newRow("of another alphabet")
            << QString::fromUtf8("\xD0\x96uk") << QString::fromUtf8("\xD0\xB6UK") << true;
    }
    void caseDoesNotCount()
    {
        QFETCH(QString, whole);
        QFETCH(QString, text);
        QFETCH(bool, found);
        QCOMPARE(CaselessText(text).IsIn(whole), found);
        QVERIFY(agree(whole, text));
    }

    // Of an alphabet that is small enough to meet itself often.
    void whateverTheTextsTheAnswerIsThatOfQt()
    {
        const ushort units[] = {'a',  'A',   'k',   'K',   's',    '@',  '[',  '`',    ' ',    0x7F,  0x80,
                                0xDF, 0x130, 0x131, 0x17F, 0x212A, 0xE9, 0xC9, 0xD801, 0xDC00, 0xDC28};
        std::mt19937 random(7);
        const auto made = [&](unsigned longest, unsigned kinds) {
            QString text;
            for (unsigned left = random() % (longest + 1); left > 0; --left)
                text += QChar(units[random() % kinds]);
            return text;
        };
        const unsigned all = sizeof(units) / sizeof(units[0]);
        for (int i = 0; i < 200000; ++i) {
            const QString whole = made(8, i % 2 == 0 ? 10 : all);
            const QString text = made(3, i % 4 < 2 ? 10 : all);
            QVERIFY2(agree(whole, text), qPrintable(whole.toUtf8().toHex() + " in it " + text.toUtf8().toHex()));
        }
    }
};

QTEST_GUILESS_MAIN(TestCaseless)
#include "tst_caseless.moc"
