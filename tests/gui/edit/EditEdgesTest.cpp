#include "EditSupport.h"

// Characters at the edge of what an input takes.
class EditEdgesTest : public DialogTest
{
    Q_OBJECT

private slots:
    void aRefusedLetterRefusesNoOtherCase()
    {
        EditForm form(4);
        QVERIFY(!form.access.passes("a", "abcABC", "a", 5));
        QVERIFY(form.access.passes("A", "abcABC", "a", 5));
        QVERIFY(form.access.passes("bcABC", "abcABC", "a", 5));
        QVERIFY(form.access.passes("b", "null", "B", 5));
        QCOMPARE(form.access.pattern("abcABC", "a", 5), QString("[+]{0,1}[bcABC]{0,5}"));
    }

    void halfAPairAtTheEndOfALongNameGoesAlone()
    {
        EditForm form(0);
        const QString letters("ABCDEFGHIJKLM");
        form.setText(0, letters + QChar(0xdc00));
        QCOMPARE(form.text(0), letters);
    }

    void aWholePairAtTheEndOfALongNameGoesTogether()
    {
        EditForm form(0);
        const QString letters("ABCDEFGHIJKL");
        form.setText(0, letters + QChar(0xd83c) + QChar(0xdf89));
        QCOMPARE(form.text(0), letters);
    }
};

QTEST_MAIN(EditEdgesTest)
#include "EditEdgesTest.moc"
