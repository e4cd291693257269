#include "LogicTest.h"

class TestGroups : public LogicTest
{
    Q_OBJECT

private slots:
    void aMemoryWithoutGroupsIsAFailureForTheListAndNoneForASearch()
    {
        QList<AddrBookGroup*> groups;
        QCOMPARE(logic()->GetGroups(groups, PB_MEM_LOCAL), 1);
        QVERIFY(groups.isEmpty());
        QCOMPARE(logic()->IsGroupAlreadyExists(PB_MEM_LOCAL, "Friends", 0), 0);
    }

    void groupsAreAppendedWithAllTheirData()
    {
        const int friends = FakeSdk::addGroup("Friends");
        FakeSdk::addGroup("Close", friends);
        FakeSdk::join(friends, FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna")));
        QList<AddrBookGroup*> groups = {new AddrBookGroup};
        QCOMPARE(logic()->GetGroups(groups, PB_MEM_LOCAL), 0);
        QCOMPARE(groups.size(), 3);
        QCOMPARE(groups[1]->strName, QString("Friends"));
        QCOMPARE(groups[1]->iGroupID, friends);
        QCOMPARE(groups[1]->iParentID, 0);
        QCOMPARE(groups[1]->iSize, 1);
        QCOMPARE(groups[2]->iParentID, friends);
        qDeleteAll(groups);
        const QStringList one = {"AddrGroupSet_GetID()", "AddrGroupSet_GetParentID()", "AddrGroupSet_GetName()",
                                 "AddrGroupSet_GetGroupSize()", "AddrGroupSet_MoveNext()"};
        QCOMPARE(FakeSdk::log(), QStringList({"BeginTransaction(4)", "GetGroupList(4)", "EndTransaction(4)",
                                              "BeginTransaction(4)", "AddrGroupSet_MoveFirst()"}) +
                                     one + one + QStringList({"EndTransaction(4)", "AddrGroupSet_Release()"}));
    }

    void theGroupsBeforeAFailureStayInTheList_data()
    {
        QTest::addColumn<QByteArray>("call");
        for (const char* call :
             {"AddrGroupSet_GetID", "AddrGroupSet_GetParentID", "AddrGroupSet_GetName", "AddrGroupSet_GetGroupSize"})
            QTest::newRow(call) << QByteArray(call);
    }

    void theGroupsBeforeAFailureStayInTheList()
    {
        QFETCH(QByteArray, call);
        for (const char* name : {"A", "B", "C"})
            FakeSdk::addGroup(name);
        FakeSdk::fail(call, 2);
        QList<AddrBookGroup*> groups;
        QCOMPARE(logic()->GetGroups(groups, PB_MEM_LOCAL), 1);
        QCOMPARE(groups.size(), 1);
        qDeleteAll(groups);
        QCOMPARE(FakeSdk::openTransactions(PB_MEM_LOCAL), 0);
    }

    void aGroupWithoutRoomIsAFailure()
    {
        FakeSdk::addGroup("A");
        logic();
        FailingNew::failNth(1);
        QList<AddrBookGroup*> groups;
        QCOMPARE(logic()->GetGroups(groups, PB_MEM_LOCAL), 1);
        QVERIFY(groups.isEmpty());
    }

    void theDataOfAGroupAreFoundByItsIdentifier()
    {
        FakeSdk::addGroup("A");
        AddrBookGroup group;
        group.iGroupID = FakeSdk::addGroup("B", 1);
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression("GetGroupInfo could not find the info for the given group "
                                                "id$"));
        QCOMPARE(logic()->GetGroupInfo(PB_MEM_LOCAL, group), 0);
        QCOMPARE(group.strName, QString("B"));
        QCOMPARE(group.iParentID, 1);
    }

    void anUnknownGroupLeavesTheArgumentAsItWas()
    {
        FakeSdk::addGroup("A");
        AddrBookGroup group;
        group.iGroupID = 9;
        group.strName = "mine";
        group.iSize = 3;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("GetGroupInfo could not find the info"));
        QCOMPARE(logic()->GetGroupInfo(PB_MEM_LOCAL, group), 1);
        QCOMPARE(group.strName, QString("mine"));
        QCOMPARE(group.iSize, 3);
        FakeSdk::reset();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("GetGroups in GetGroupInfo returns empty list$"));
        QCOMPARE(logic()->GetGroupInfo(PB_MEM_LOCAL, group), 1);
    }

    void aDuplicateIsTheSameNameUnderTheSameParent_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("parent");
        QTest::addColumn<int>("result");
        QTest::newRow("the same") << "Friends" << 0 << 18;
        QTest::newRow("another case") << "friends" << 0 << 0;
        QTest::newRow("another parent") << "Friends" << 1 << 0;
        QTest::newRow("a longer name") << "Friends2" << 0 << 0;
        QTest::newRow("the second group") << "Close" << 1 << 18;
    }

    void aDuplicateIsTheSameNameUnderTheSameParent()
    {
        QFETCH(QString, name);
        QFETCH(int, parent);
        QFETCH(int, result);
        FakeSdk::addGroup("Friends");
        FakeSdk::addGroup("Close", 1);
        QCOMPARE(logic()->IsGroupAlreadyExists(PB_MEM_LOCAL, name, parent), result);
        int id = -1;
        QCOMPARE(logic()->AddGroup(PB_MEM_LOCAL, name, parent, id), result);
        QCOMPARE(id, result == 0 ? 3 : -1);
        QCOMPARE(FakeSdk::groups().size(), result == 0 ? 3 : 2);
    }

    void failuresOfTheDuplicateSearch()
    {
        FakeSdk::addGroup("Friends");
        FakeSdk::fail("GetGroupList");
        QCOMPARE(logic()->IsGroupAlreadyExists(PB_MEM_LOCAL, "Friends", 0), 1);
        FakeSdk::giveNull("GetGroupList");
        QCOMPARE(logic()->IsGroupAlreadyExists(PB_MEM_LOCAL, "Friends", 0), 1);
        FakeSdk::fail("AddrGroupSet_GetName");
        QCOMPARE(logic()->IsGroupAlreadyExists(PB_MEM_LOCAL, "Friends", 0), 1);
        // A parent that cannot be read ends the search without an error.
        FakeSdk::fail("AddrGroupSet_GetParentID");
        QCOMPARE(logic()->IsGroupAlreadyExists(PB_MEM_LOCAL, "Friends", 0), 0);
        // Another failure of the first move goes on to the walk.
        FakeSdk::fail("AddrGroupSet_MoveFirst", 1, 5);
        QCOMPARE(logic()->IsGroupAlreadyExists(PB_MEM_LOCAL, "Friends", 0), 18);
    }

    void aNewGroupIsStoredUnderItsParent()
    {
        FakeSdk::addGroup("Friends");
        FakeSdk::clearCalls();
        int id = -1;
        QCOMPARE(logic()->AddGroup(PB_MEM_LOCAL, "Close", 1, id), 0);
        QCOMPARE(id, 2);
        QCOMPARE(FakeSdk::groups()[1].parent, 1);
        QCOMPARE(FakeSdk::log().mid(FakeSdk::log().indexOf("CreateAddrGroup(4)")),
                 QStringList({"CreateAddrGroup(4)", "AddrGroup_SetName(Close)", "AddrGroup_SetParentID(1)",
                              "AddGroup()", "AddrGroup_Release()"}));
    }

    void aGroupUnderAParentThatIsNotThereFails()
    {
        int id = -1;
        QCOMPARE(logic()->AddGroup(PB_MEM_LOCAL, "Close", 8, id), 1);
        QCOMPARE(id, -1);
    }

    void aRenameChangesTheNameAlone()
    {
        FakeSdk::addGroup("Friends");
        FakeSdk::addGroup("Close", 1);
        FakeSdk::clearCalls();
        QCOMPARE(logic()->UpdateGroup(PB_MEM_LOCAL, 2, "Closest", 1), 0);
        QCOMPARE(FakeSdk::groups()[1].name, QString("Closest"));
        QCOMPARE(FakeSdk::groups()[1].parent, 1);
        QCOMPARE(FakeSdk::count("AddrGroup_SetParentID"), 0);
    }

    void aRenameToTheGroupsOwnNameIsADuplicate()
    {
        FakeSdk::addGroup("Friends");
        QCOMPARE(logic()->UpdateGroup(PB_MEM_LOCAL, 1, "Friends", 0), 18);
        QCOMPARE(FakeSdk::count("UpdateGroup"), 0);
        QCOMPARE(FakeSdk::groups().first().name, QString("Friends"));
    }

    void deletingAndMemberships()
    {
        const int anna = FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
        const int group = FakeSdk::addGroup("Friends");
        FakeSdk::clearCalls();
        QCOMPARE(logic()->AddAddrToGroup(PB_MEM_LOCAL, anna, group), 0);
        QCOMPARE(FakeSdk::members(group), QList<int>({anna}));
        QCOMPARE(logic()->RemoveAddrFromGroup(PB_MEM_LOCAL, anna, group), 0);
        QCOMPARE(logic()->RemoveAddrFromGroup(PB_MEM_LOCAL, anna, group), 1);
        QCOMPARE(logic()->DelGroup(PB_MEM_LOCAL, group), 0);
        QCOMPARE(logic()->DelGroup(PB_MEM_LOCAL, group), 1);
        QCOMPARE(logic()->AddAddrToGroup(PB_MEM_LOCAL, anna, group), 1);
        QCOMPARE(FakeSdk::log(),
                 QStringList({"AddAddrToGroup(1, 1, 4)", "DelAddrFromGroup(1, 1, 4)", "DelAddrFromGroup(1, 1, 4)",
                              "DelGroup(1, 4)", "DelGroup(1, 4)", "AddAddrToGroup(1, 1, 4)"}));
    }
};

QTEST_GUILESS_MAIN(TestGroups)
#include "tst_groups.moc"
