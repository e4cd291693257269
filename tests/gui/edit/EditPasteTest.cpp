#include "EditSupport.h"

#include <QClipboard>
#include <QMimeData>

#include "base/NumberText.h"
#include "linkhand/QtCompat.h"
#include "orva/orva_care.h"

namespace
{

unsigned short* bufferOf(const std::u16string& text)
{
    auto* const buffer = new unsigned short[text.size() + 1];
    std::copy(text.begin(), text.end(), buffer);
    buffer[text.size()] = 0;
    return buffer;
}

} // namespace

// The SDK's own cleaner beside the scripted SDK.
long ORVA_Care_CleanNumber(int memory, const unsigned short* text, unsigned short** number, unsigned short** extension)
{
    const std::u16string given = QtCompat::fromUtf16(text).toStdU16String();
    const std::optional<orva::NumberText> read =
        orva::readNumber(given, memory == 4 ? orva::Pauses::No : orva::Pauses::Yes);
    if (!read || (extension == nullptr && !read->extension.empty()))
        return ORVA_E_NUMBER;
    *number = bufferOf(read->number);
    if (extension != nullptr)
        *extension = bufferOf(read->extension);
    return ORVA_OK;
}

// Numbers that are pasted and dropped as other programs show them. Middle clicks have a clipboard on a display alone.
class EditPasteTest : public DialogTest
{
    Q_OBJECT

    // As the window system sends it: QTest would give the key a printable text.
    static void paste(QWidget* edit, const QString& text, int key = Qt::Key_V,
                      Qt::KeyboardModifier modifier = Qt::ControlModifier)
    {
        QApplication::clipboard()->setText(text);
        QKeyEvent event(QEvent::KeyPress, key, modifier, key == Qt::Key_V ? QString("\x16") : QString());
        QApplication::sendEvent(edit, &event);
    }

    static bool drop(QWidget* edit, const QString& text)
    {
        QMimeData data;
        data.setText(text);
        QDragEnterEvent enter(QPoint(2, 2), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(edit, &enter);
        QDropEvent event(QPoint(2, 2), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        event.setAccepted(false);
        QApplication::sendEvent(edit, &event);
        return event.isAccepted();
    }

private slots:
    void aPastedNumberIsCleaned_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("number");
        QTest::newRow("separators") << "+49 (30) 1234-5678"
                                    << "+493012345678";
        QTest::newRow("a zero that is not dialled from abroad") << "+49 (0)171 5551234"
                                                                << "+491715551234";
        QTest::newRow("a link") << "tel:+49-171-555"
                                << "+49171555";
        QTest::newRow("no plus") << "0049 171/555"
                                 << "0049171555";
        QTest::newRow("another script") << QString::fromUtf8("\xd9\xa0\xd9\xa1\xd9\xa9") << "019";
        QTest::newRow("invisible marks") << QString(QChar(0x202d)) + "0171" + QChar(0x00a0) + "555" + QChar(0x202c)
                                         << "0171555";
        QTest::newRow("a line end") << "0171555\n"
                                    << "0171555";
        QTest::newRow("clean as it is") << "+49171"
                                        << "+49171";
        QTest::newRow("no number") << "abc"
                                   << "";
        QTest::newRow("a spreadsheet's number") << "4.9E+11"
                                                << "";
    }
    void aPastedNumberIsCleaned()
    {
        QFETCH(QString, text);
        QFETCH(QString, number);
        for (const int field : {1, 2, 3}) {
            EditForm form(4);
            form.dialog.setRegEx();
            paste(form.input(field), text);
            QCOMPARE(form.text(field), number);
            form.setText(field, QString());
            paste(form.input(field), text, Qt::Key_Insert, Qt::ShiftModifier);
            QCOMPARE(form.text(field), number);
        }
    }

    void aDroppedNumberIsCleaned()
    {
        EditForm form(4);
        form.dialog.setRegEx();
        QVERIFY(drop(form.input(1), "+49 (0)171 5551234"));
        QCOMPARE(form.text(1), QString("+491715551234"));
        QVERIFY(drop(form.input(2), "0171"));
        QCOMPARE(form.text(2), QString("0171"));
        drop(form.input(3), "nobody");
        QCOMPARE(form.text(3), QString());
        QVERIFY(form.access.ok()->isEnabled());
    }

    void separatorsDoNotCount()
    {
        EditForm form(4);
        form.dialog.setRegEx();
        const int length = FakeSdk::fields(4).at(1).maxLength;
        paste(form.input(1), QString("1 - ").repeated(length));
        QCOMPARE(form.text(1), QString(length, '1'));
    }

    void aPasteGoesWhereTheCaretIsAndReplacesWhatIsSelected()
    {
        EditForm form(4);
        form.dialog.setRegEx();
        form.setText(1, "123456");
        form.access.mobile()->setSelection(2, 2);
        paste(form.input(1), "(0 0)");
        QCOMPARE(form.text(1), QString("120056"));
        QCOMPARE(form.access.mobile()->cursorPosition(), 4);
        form.access.mobile()->setSelection(0, 2);
        paste(form.input(1), " - ");
        QCOMPARE(form.text(1), QString("120056")); // blanks take nothing away
    }

    void otherInputsTakeTheTextAsItIs()
    {
        EditForm form(4);
        form.dialog.setRegEx();
        for (const int field : {0, 4}) {
            paste(form.input(field), "+49 (30) 1");
            QCOMPARE(form.text(field), QString("+49 (30) 1"));
        }
        form.access.mobile()->setReadOnly(true);
        paste(form.input(1), "1 2");
        drop(form.input(1), "1 2");
        QCOMPARE(form.text(1), QString());
    }

    void aCardTakesPausesAndThePcDoesNot()
    {
        QList<FakeSdk::Field> fields = FakeSdk::cardFields();
        fields[1].accepted = "0123456789+*#pw";
        FakeSdk::setFields(0, fields);
        EditForm card(0);
        card.dialog.setRegEx();
        paste(card.input(1), "0171 555 P 12");
        QCOMPARE(card.text(1), QString("0171555p12"));
        EditForm local(4);
        local.dialog.setRegEx();
        paste(local.input(1), "0171 555 P 12");
        QCOMPARE(local.text(1), QString());
    }

    void anExtensionGoesToTheRemarks()
    {
        EditForm form(4);
        form.dialog.setRegEx();
        paste(form.input(1), "030 1234 ext. 12");
        QCOMPARE(form.text(1), QString("0301234"));
        QCOMPARE(form.text(5), QString("0301234 ext. 12"));
        drop(form.input(2), "030 99 x5");
        QCOMPARE(form.text(2), QString("03099"));
        QCOMPARE(form.text(5), QString("0301234 ext. 12\n03099 ext. 5"));
        // What the number's input refuses leaves no note either.
        paste(form.input(1), "+1 x5");
        QCOMPARE(form.text(1), QString("0301234"));
        QCOMPARE(form.text(5), QString("0301234 ext. 12\n03099 ext. 5"));
    }

    void anExtensionWithoutRoomForItKeepsTheNumberOut()
    {
        EditForm form(4);
        form.dialog.setRegEx();
        form.setText(5, QString(FakeSdk::fields(4).at(5).maxLength - 10, 'x'));
        paste(form.input(1), "030 1234 ext. 12");
        QCOMPARE(form.text(1), QString());
        EditForm card(0); // has no note
        card.dialog.setRegEx();
        paste(card.input(1), "030 1234 ext. 12");
        QCOMPARE(card.text(1), QString());
    }
};

QTEST_MAIN(EditPasteTest)
#include "EditPasteTest.moc"
