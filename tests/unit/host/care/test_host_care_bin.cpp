#include "CareSetup.h"
#include "NoThreads.h"
#include "care/CareRunner.h"

namespace
{

const char* const LIST = "linkhand_Care_bin_list";
const char* const RESTORE = "linkhand_Care_bin_restore";
enum Column { TIME, WHAT, NAME, NUMBER, GROUPS };

int addGroup(const QString& strName)
{
    void* pGroup = nullptr;
    int iId = 0;
    ORVA_PBSrv_CreateAddrGroup(ORVA_MEMORY_LOCAL, &pGroup);
    ORVA_PBSrv_AddrGroup_SetName(pGroup, strName.utf16());
    ORVA_PBSrv_AddGroup(pGroup, &iId);
    ORVA_PBSrv_AddrGroup_Release(pGroup);
    return iId;
}

int sizeOfFirstGroup()
{
    void* pSet = nullptr;
    int iSize = -1;
    ORVA_PBSrv_GetGroupList(ORVA_MEMORY_LOCAL, &pSet);
    ORVA_PBSrv_AddrGroupSet_MoveFirst(pSet);
    ORVA_PBSrv_AddrGroupSet_GetGroupSize(pSet, &iSize);
    ORVA_PBSrv_AddrGroupSet_Release(pSet);
    return iSize;
}

} // namespace

class TestHostCareBin : public CareSetup
{
    Q_OBJECT

private slots:
    void init() { beginCare(); }
    void cleanup() { endCare(); }

    void aDeletedContactComesBackWithItsGroups()
    {
        const int iAda = add({"Ada", "0170111"});
        add({"Bo", "0170222"});
        const int iChoir = addGroup("Choir");
        QCOMPARE(ORVA_PBSrv_AddAddrToGroup(iChoir, iAda, ORVA_MEMORY_LOCAL), long(ORVA_OK));
        QCOMPARE(ORVA_PBSrv_DelAddrRec(iAda, ORVA_MEMORY_LOCAL), long(ORVA_OK));
        QSignalSpy spyChanged(m_pWindow.data(), SIGNAL(contactsChanged()));
        openSection("bin");
        QTRY_COMPARE(column(LIST, NAME), QStringList("Ada"));
        const QStringList lstRow = rows(LIST).first();
        QCOMPARE(lstRow.at(WHAT), QString("Deleted"));
        QCOMPARE(lstRow.at(NUMBER), QString("0170111"));
        QCOMPARE(lstRow.at(GROUPS), QString("Choir"));
        QVERIFY(!lstRow.at(TIME).isEmpty());
        QVERIFY(select(LIST, NAME, "Ada"));
        click(RESTORE);
        QTRY_COMPARE(told(), QString("Contacts restored: 1"));
        QTRY_VERIFY(rows(LIST).isEmpty());
        QCOMPARE(contacts(), 2);
        QCOMPARE(sizeOfFirstGroup(), 1);
        QCOMPARE(spyChanged.count(), 1);
    }

    void workThatFindsNoThreadIsToldAndTheNextOneRuns()
    {
        QCOMPARE(ORVA_PBSrv_DelAddrRec(add({"Ada", "0170111"}), ORVA_MEMORY_LOCAL), long(ORVA_OK));
        openSection("bin");
        QTRY_COMPARE(column(LIST, NAME), QStringList("Ada"));
        QTRY_VERIFY(m_pWindow->findChild<CareRunner*>()->Current() == nullptr);
        QVERIFY(select(LIST, NAME, "Ada"));
        {
            const NoThreads none;
            click(RESTORE);
        }
        QTRY_VERIFY2(told().contains("1009"), qPrintable(told()));
        QTRY_VERIFY(m_pWindow->findChild<CareRunner*>()->Current() == nullptr);
        QCOMPARE(contacts(), 0);
        QVERIFY(select(LIST, NAME, "Ada"));
        click(RESTORE);
        QTRY_COMPARE(contacts(), 1);
    }

    void aChangedContactComesBackBesideItself()
    {
        const int iAda = add({"Ada", "0170111"});
        void* pRecord = nullptr;
        QCOMPARE(ORVA_PBSrv_GetAddrRecord(iAda, ORVA_MEMORY_LOCAL, &pRecord), long(ORVA_OK));
        ORVA_PBSrv_AddrRecord_SetValue(pRecord, "Name", QString("Ada B").utf16());
        QCOMPARE(ORVA_PBSrv_UpdateAddrRec(pRecord, iAda), long(ORVA_OK));
        ORVA_PBSrv_AddrRecord_Release(pRecord);
        openSection("bin");
        QTRY_COMPARE(column(LIST, WHAT), QStringList("Changed"));
        QVERIFY(select(LIST, NAME, "Ada"));
        click(RESTORE);
        QTRY_COMPARE(contacts(), 2);
    }

    void theSearchLeavesWhatHoldsEachWord()
    {
        const QList<QStringList> listAll{{"Ada Hartley", "0170111"}, {"Bo Hartley", "0170222"}, {"Cy", "0170333"}};
        foreach (const QStringList& lstValues, listAll) {
            QCOMPARE(ORVA_PBSrv_DelAddrRec(add(lstValues), ORVA_MEMORY_LOCAL), long(ORVA_OK));
        }
        openSection("bin");
        QTRY_COMPARE(rows(LIST).size(), 3);
        QLineEdit* pSearch = find<QLineEdit>("linkhand_Care_bin_search");
        pSearch->setText("hartley 222");
        QCOMPARE(column(LIST, NAME), QStringList("Bo Hartley"));
        pSearch->setText(" ");
        QCOMPARE(rows(LIST).size(), 3);
    }

    void withoutAChoiceNothingCanBeRestored()
    {
        ORVA_PBSrv_DelAddrRec(add({"Ada"}), ORVA_MEMORY_LOCAL);
        openSection("bin");
        QTRY_COMPARE(rows(LIST).size(), 1);
        QVERIFY(!find<QPushButton>(RESTORE)->isEnabled());
        QVERIFY(select(LIST, NAME, "Ada"));
        QVERIFY(find<QPushButton>(RESTORE)->isEnabled());
    }

    // The one is back by other hands by the time that the button is pressed.
    void whatLeftTheBinMeanwhileIsPassedOver()
    {
        ORVA_PBSrv_DelAddrRec(add({"Ada"}), ORVA_MEMORY_LOCAL);
        ORVA_PBSrv_DelAddrRec(add({"Bo"}), ORVA_MEMORY_LOCAL);
        openSection("bin");
        QTRY_COMPARE(column(LIST, NAME), QStringList() << "Bo"
                                                       << "Ada");
        find<QAbstractItemView>(LIST)->selectAll();
        int iId = 0;
        QCOMPARE(ORVA_Care_Undelete(ORVA_MEMORY_LOCAL, 1, &iId), long(ORVA_OK));
        click(RESTORE);
        QTRY_COMPARE(told(), QString("Contacts restored: 1"));
        QCOMPARE(contacts(), 2);
    }

    void aCancelledRestoreKeepsTheRestInTheBin()
    {
        const int iAll = 3000;
        ORVA_PBSrv_BeginTransaction(ORVA_MEMORY_LOCAL);
        for (int i = 0; i < iAll; ++i) {
            ORVA_PBSrv_DelAddrRec(add({"N" + QString::number(i)}), ORVA_MEMORY_LOCAL);
        }
        QCOMPARE(ORVA_PBSrv_EndTransaction(ORVA_MEMORY_LOCAL), long(ORVA_OK));
        openSection("bin");
        QTRY_COMPARE(rows(LIST).size(), iAll);
        find<QAbstractItemView>(LIST)->selectAll();
        click(RESTORE);
        // Hidden until the work takes its time.
        find<QPushButton>("linkhand_Care_cancel")->click();
        QTRY_VERIFY(told().startsWith("Contacts restored: "));
        const int iBack = contacts();
        QVERIFY(iBack < iAll);
        QCOMPARE(told(), QString("Contacts restored: %1").arg(iBack));
        QTRY_COMPARE(rows(LIST).size(), iAll - iBack);
    }
};

QTEST_MAIN(TestHostCareBin)
#include "test_host_care_bin.moc"
