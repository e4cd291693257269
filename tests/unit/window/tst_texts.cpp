#include <QtTest>

#include "fakecore/FakeCore.h"
#include "window/BatchTexts.h"

class TextsTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FakeCore::reset();
        for (const char* id :
             {"IDS_IMPORT_DEVICEFULL", "IDS_MOVE_REC_DEV_FULL", "IDS_IMPORT_TOTAL_NUMBER", "IDS_IMPORT_IMPORTED_NUMBER",
              "IDS_MOVE_COMPLETE", "IDS_COPY_COMPLETE", "IDS_TOTAL_COUNT", "IDS_SUCCESS_COUNT"})
            FakeCore::setText(id, QString(id).mid(4) + ':');
    }

    void progressIsNamedAfterTheOperation()
    {
        QCOMPARE(BatchTexts::progress(ADDRBOOK_OP_COPY), "IDS_COPY_STATUS");
        QCOMPARE(BatchTexts::progress(ADDRBOOK_OP_MOVE), "IDS_MOVE_STATUS");
        QCOMPARE(BatchTexts::progress(ADDRBOOK_OP_IMPORT), "IDS_IMPORT_STATUS");
        QCOMPARE(BatchTexts::progress(ADDRBOOK_OP_DELETE), "IDS_DELETE_STATUS");
        QCOMPARE(BatchTexts::progress(ADDRBOOK_OP_REMOVE_FROM_GROUP), "IDS_DELETE_STATUS");
    }

    void fullMemoryTellsHowMuchWentIn()
    {
        QCOMPARE(BatchTexts::full(ADDRBOOK_OP_IMPORT, 7), QString("IMPORT_DEVICEFULL:7"));
        QCOMPARE(BatchTexts::full(ADDRBOOK_OP_COPY, 7), QString("MOVE_REC_DEV_FULL:7"));
        QCOMPARE(BatchTexts::full(ADDRBOOK_OP_MOVE, 7), QString("MOVE_REC_DEV_FULL:7"));
        QVERIFY(BatchTexts::full(ADDRBOOK_OP_DELETE, 7).isEmpty());
    }

    void endTellsTheNumbers()
    {
        QCOMPARE(BatchTexts::importEnd(9, 8), QString("IMPORT_TOTAL_NUMBER:9IMPORT_IMPORTED_NUMBER:8"));
        QCOMPARE(BatchTexts::copyEnd(ADDRBOOK_OP_COPY, PB_MEM_SIM, PB_MEM_LOCAL, 9, 8),
                 QString("COPY_COMPLETE: TOTAL_COUNT:9SUCCESS_COUNT:8"));
        QCOMPARE(BatchTexts::copyEnd(ADDRBOOK_OP_MOVE, PB_MEM_LOCAL, PB_MEM_ME, 9, 8),
                 QString("MOVE_COMPLETE: TOTAL_COUNT:9SUCCESS_COUNT:8"));
        QVERIFY(BatchTexts::copyEnd(ADDRBOOK_OP_COPY, PB_MEM_LOCAL, PB_MEM_LOCAL, 9, 8).isEmpty());
    }
};

QTEST_MAIN(TextsTest)
#include "tst_texts.moc"
