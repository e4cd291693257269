#include "EditSupport.h"

#include <QClipboard>

// What is typed and pasted: lengths, the name on a card, the remarks, OK, and input of every kind.
class EditInputTest : public DialogTest
{
    Q_OBJECT

    static void paste(QWidget* edit, const QString& text)
    {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
    }

private slots:
    // ---- The name on a card --------------------------------------------------------------------------------------

    void oneMoreCharacterAtTheLimitRestoresTheText()
    {
        // Every character above ASCII costs two: the limit of 14 is met with seven of them.
        FakeSdk::setCoding([](const QString& text, bool, bool) {
            int length = 0;
            for (const QChar c : text)
                length += c.unicode() > 127 ? 2 : 1;
            return length;
        });
        EditForm form(0);
        const QString name = QString(7, QChar(0x4e2d));
        form.setText(0, name);
        QCOMPARE(form.text(0), name);
        QCOMPARE(form.access.prevName(), name);
        QTest::keyClick(form.access.name(), Qt::Key_Home);
        QTest::keyClicks(form.access.name(), "x");
        QCOMPARE(form.text(0), name);
        QCOMPARE(form.access.name()->cursorPosition(), 7); // the caret goes where setText puts it
    }

    void aNameOfPlainCharactersAtTheLimitTakesNoMore()
    {
        EditForm form(0);
        QTest::keyClicks(form.access.name(), "12345678901234");
        QTest::keyClicks(form.access.name(), "5");
        QCOMPARE(form.text(0), QString("12345678901234"));
    }

    void anOverLongPasteIntoAnEmptyNameIsCutFromItsEnd()
    {
        EditForm form(0); // text outside ASCII: 1 + 2 a character
        paste(form.access.name(), QString(12, QChar(0xe9)));
        QCOMPARE(form.text(0), QString(6, QChar(0xe9)));
        QCOMPARE(form.access.prevName(), QString(6, QChar(0xe9)));
        QVERIFY(form.access.ok()->isEnabled());
    }

    void anOverLongPasteIntoAFilledNameIsUndone()
    {
        EditForm form(0);
        QTest::keyClicks(form.access.name(), "Ada");
        paste(form.access.name(), QString(8, QChar(0xe9)));
        QCOMPARE(form.text(0), QString("Ada"));
    }

    void anOverLongLoadedNameIsCut()
    {
        const int id = FakeSdk::addRecord(0, {QString(9, QChar(0xe9)), "1"});
        EditForm form(0, ADDRBOOK_OP_EDIT);
        form.load(0, id);
        QCOMPARE(form.text(0), QString(6, QChar(0xe9)));
        QVERIFY(!form.access.ok()->isEnabled());
    }

    void cuttingTakesBothHalvesOfACharacterOutsideTheBasicPlane()
    {
        FakeSdk::setCoding([](const QString& text, bool, bool) { return int(text.size() * 4); });
        EditForm form(0);
        paste(form.access.name(), QString::fromUtf8("ab\xf0\x9f\x98\x80")); // 16 units, limit 14
        QCOMPARE(form.text(0), QString("ab"));
    }

    void elsewhereANameHasNoEncodedLength()
    {
        for (const int memory : {1, 4}) {
            FakeSdk::clearCalls();
            EditForm form(memory);
            paste(form.access.name(), QString(14, QChar(0x4e2d)));
            QCOMPARE(form.text(0).size(), 14);
            QCOMPARE(FakeSdk::count("PBContentCodingJudge"), 0);
        }
    }

    void theCodingCallGetsTheTextItsCountAndTheSetting()
    {
        QList<bool> flags;
        QList<bool> notUim;
        FakeSdk::setCoding([&](const QString& text, bool isNotUim, bool all) {
            flags << all;
            notUim << isNotUim;
            return int(text.size());
        });
        FakeSdk::setProductType(1); // plays no part here
        EditForm form(0);
        QVERIFY(!form.access.overLong("Ada"));
        FakeCore::setSetting("customize", "pbnamecode", " all ");
        QVERIFY(!form.access.overLong("Ada"));
        FakeCore::setSetting("customize", "pbnamecode", "ALL");
        QVERIFY(form.access.overLong(QString(15, 'x')));
        QCOMPARE(flags, (QList<bool>{false, true, false}));
        QCOMPARE(notUim, (QList<bool>{true, true, true}));
    }

    void aCodingCallThatFailsLeavesTheCount()
    {
        FakeSdk::failAlways("PBContentCodingJudge");
        EditForm form(0);
        QVERIFY(!form.access.overLong(QString(14, QChar(0x4e2d))));
        QVERIFY(form.access.overLong(QString(15, 'x')));
        paste(form.access.name(), QString(200, QChar(0x4e2d)));
        QCOMPARE(form.text(0).size(), 14);
    }

    void aCodingCallThatAnswersNonsenseEndsTheShortening()
    {
        FakeSdk::setCoding([](const QString&, bool, bool) { return 1000; });
        EditForm form(0);
        paste(form.access.name(), "Ada");
        QCOMPARE(form.text(0), QString());
        QTest::keyClicks(form.access.name(), "x");
        QCOMPARE(form.text(0), QString());
    }

    void aTextBeyondTheCountersRangeIsOverLong()
    {
        EditForm form(0);
        QVERIFY(form.access.overLong(QString(100000, 'x')));
        QVERIFY(form.access.overLong(QString(65536, 'x')));
    }

    // ---- Remarks -------------------------------------------------------------------------------------------------

    void remarksThatOvershootAreUndoneWhole()
    {
        EditForm form(4);
        NewContactTextEdit* edit = form.access.remarks();
        paste(edit, QString(195, 'x'));
        edit->moveCursor(QTextCursor::Start);
        paste(edit, "123456");
        QCOMPARE(edit->toPlainText(), QString(195, 'x'));
        QCOMPARE(edit->textCursor().position(), 195);
        paste(edit, "12345");
        QCOMPARE(edit->toPlainText(), QString(195, 'x') + "12345");
    }

    void remarksCountPlainCharacters()
    {
        EditForm form(4);
        paste(form.access.remarks(), QString(200, QChar(0x4e2d)));
        QCOMPARE(form.access.remarks()->toPlainText().size(), 200);
        paste(form.access.remarks(), QString("x"));
        QCOMPARE(form.access.remarks()->toPlainText().size(), 200);
    }

    void overLongLoadedRemarksAreDropped()
    {
        EditForm form(4, ADDRBOOK_OP_EDIT);
        AddrBookRecord record;
        record.iID = 1;
        record.lstValues = QList<QString>{"", "", "", "", "", QString(201, 'x')};
        form.dialog.SetEditCotactDetails(record);
        QCOMPARE(form.text(5), QString());
    }

    void aNegativeLimitOfRemarksEnds()
    {
        FakeSdk::setFields(4, {editField("remark", -1, "Remaik", "ID_STR_NOTES")});
        EditForm form(4);
        paste(form.access.remarks(), "x");
        QCOMPARE(form.access.remarks()->toPlainText(), QString());
    }

    // ---- OK ------------------------------------------------------------------------------------------------------

    void blanksAloneLeaveOkOff()
    {
        EditForm form(4);
        for (int i = 0; i < 6; ++i) {
            form.setText(i, "  ");
            QVERIFY2(!form.access.ok()->isEnabled(), qPrintable(QString::number(i)));
        }
        QTest::keyClicks(form.access.name(), "x");
        QVERIFY(form.access.ok()->isEnabled());
    }

    void eachInputAloneTurnsOkOn()
    {
        EditForm form(4);
        for (int i = 0; i < 6; ++i) {
            form.setText(i, "1");
            QVERIFY2(form.access.ok()->isEnabled(), qPrintable(QString::number(i)));
            form.setText(i, "");
            QVERIFY2(!form.access.ok()->isEnabled(), qPrintable(QString::number(i)));
        }
    }

    void blanksAreStoredAsTyped()
    {
        EditForm form(4);
        form.setText(0, " Ada ");
        form.setText(5, "  ");
        QCOMPARE(form.save(), 0);
        QCOMPARE(FakeSdk::record(4, FakeSdk::recordIds(4).at(0)), (QStringList{" Ada ", "", "", "", "", "  "}));
    }

    // ---- Input of every kind -------------------------------------------------------------------------------------

    void anyInputIntoAnyField_data()
    {
        QTest::addColumn<int>("memory");
        QTest::addColumn<int>("field");
        QTest::addColumn<QString>("text");
        const QList<QPair<const char*, QString>> texts = {
            {"astral", QString::fromUtf8("\xf0\x9f\x98\x80\xf0\x90\x8d\x88")},
            {"half a pair", QString(QChar(0xd83d))},
            {"combining", QString::fromUtf8("e\xcc\x81"
                                            "a\xcc\x88"
                                            "o\xcc\x82\xcc\xa3")},
            {"right to left", QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d \xd9\x85\xd8\xb1\xd8\xad")},
            {"controls", QString("\x01\x02\t\n\r\x1b\x7f") + QChar(0x2028) + QChar(0x202e)},
            {"a nought in the middle", QString("a") + QChar(0) + "b"},
            {"100,000 characters", QString(100000, '7')},
            {"100,000 wide characters", QString(100000, QChar(0x4e2d))},
            {"number with blanks", "+44 7700 900123"},
            {"quotes and markup", "<b>\"'&;%s%n{}[]\\"}};
        for (const int memory : {0, 1, 4}) {
            const int fields = memory == 4 ? 6 : 4;
            for (int field = 0; field < fields; ++field) {
                for (const auto& text : texts) {
                    const QByteArray row =
                        QByteArray::number(memory) + "/" + QByteArray::number(field) + " " + text.first;
                    QTest::newRow(row.constData()) << memory << field << text.second;
                }
            }
        }
    }
    void anyInputIntoAnyField()
    {
        QFETCH(int, memory);
        QFETCH(int, field);
        QFETCH(QString, text);
        FakeSdk::setFields(0, FakeSdk::wideDeviceFields());
        FakeSdk::setFields(1, FakeSdk::wideDeviceFields());
        EditForm form(memory);
        form.dialog.setRegEx();
        QWidget* edit = form.input(field);
        const FakeSdk::Field rule = FakeSdk::fields(memory).at(field);

        paste(edit, text);
        const QString pasted = form.text(field);
        QVERIFY(pasted.size() <= rule.maxLength);
        if (rule.accepted != "null") {
            for (int i = 0; i < pasted.size(); ++i)
                QVERIFY(QString(rule.accepted).contains(pasted.at(i)));
        }
        for (const QChar c : text.left(200)) {
            QKeyEvent event(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(c));
            QApplication::sendEvent(edit, &event);
        }
        QVERIFY(form.text(field).size() <= rule.maxLength);
        QCOMPARE(form.access.ok()->isEnabled(), !form.text(field).trimmed().isEmpty());

        // What OK makes of it: a contact as typed, or a box and no contact.
        const QString typed = form.text(field);
        if (!form.access.ok()->isEnabled())
            return;
        const int result = form.save();
        QCOMPARE(FakeSdk::recordIds(memory).size(), result == 0 ? 1 : 0);
        QCOMPARE(FakeCore::messages().size(), result == 0 ? 0 : 1);
        if (result == 0 && !typed.contains(QChar(0)))
            QCOMPARE(FakeSdk::record(memory, FakeSdk::recordIds(memory).at(0)).at(field), typed);
    }
};

QTEST_MAIN(EditInputTest)
#include "EditInputTest.moc"
