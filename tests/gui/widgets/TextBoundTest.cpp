#include <QtTest>

#include "linkhand/QtCompat.h"
#include "widgets/TextBound.h"

class TextBoundTest : public QObject
{
    Q_OBJECT

private slots:
    void noTextIsWiderThanItsBound()
    {
        const QStringList texts = {"",
                                   "Mobile +447000001",
                                   "AVAVAVAV.T.Yo",
                                   "WWWWWWW",
                                   "iiiiiiiiiiii",
                                   "ffi ffl f)",
                                   QString::fromUtf8("Žofie Müller-Ångström"),
                                   "(020) 123 456"};
        for (const int size : {7, 9, 13, 30}) {
            QFont font;
            font.setPointSize(size);
            const QFontMetrics metrics(font);
            TextBound bound(metrics);
            for (const QString& text : texts) {
                QVERIFY2(bound.Most(metrics, text) >= QtCompat::textWidth(metrics, text), qPrintable(text));
                QVERIFY(bound.Most(metrics, text) <= 2 * QtCompat::textWidth(metrics, text) + 2 * text.size());
            }
        }
    }

    void textsThatOnlyALayoutCanMeasureHaveNone()
    {
        const QFontMetrics metrics((QFont()));
        TextBound bound(metrics);
        QCOMPARE(bound.Most(metrics, QString::fromUtf8("أمينة")), -1);
        QCOMPARE(bound.Most(metrics, QString::fromUtf8("e\xcc\x81")), -1);
        QCOMPARE(bound.Most(metrics, QString("a\tb")), -1);
    }

    void anotherFontIsAskedAnew()
    {
        QFont font;
        font.setPointSize(9);
        const QFontMetrics few(font);
        TextBound bound(few);
        const int before = bound.Most(few, "Contact");
        font.setPointSize(30);
        const QFontMetrics many(font);
        QVERIFY(bound.Most(many, "Contact") > before);
        QCOMPARE(bound.Most(few, "Contact"), before);
    }
};

QTEST_MAIN(TextBoundTest)
#include "TextBoundTest.moc"
