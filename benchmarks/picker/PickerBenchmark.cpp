// Prints a table of ratios: the number picker against a bare tree with the same nodes, and against itself with twice
// the contacts. Each figure is the best of some rounds in which the two sides take turns.

#include <QApplication>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <cstdio>
#include <cstdlib>

#include "benchmarks/support/Bench.h"
#include "dialogs/AddrBookSelectContactsDlg.h"
#include "logic/AddrBookLogic.h"
#include "orva/orva_sdk.h"
#include "orva/orva_sim.h"

namespace
{

const int memory = ORVA_MEMORY_LOCAL;
int groups = 200;

void expect(long code)
{
    if (code == ORVA_OK)
        return;
    std::fprintf(stderr, "the library returned %ld\n", code);
    std::exit(2);
}

// Contacts with two numbers each, spread evenly over the groups.
void fillStore(const QString& folder, int contacts)
{
    expect(ORVA_Sim_Reset(folder.toUtf8().constData()));
    expect(ORVA_Sim_SetDevice(0));
    QList<int> groupIds;
    expect(ORVA_PBSrv_BeginTransaction(memory));
    for (int i = 0; i < groups; ++i) {
        void* group = nullptr;
        int id = 0;
        expect(ORVA_PBSrv_CreateAddrGroup(memory, &group));
        expect(ORVA_PBSrv_AddrGroup_SetName(group, QString("Group %1").arg(i).utf16()));
        expect(ORVA_PBSrv_AddrGroup_SetParentID(group, 0));
        expect(ORVA_PBSrv_AddGroup(group, &id));
        expect(ORVA_PBSrv_AddrGroup_Release(group));
        groupIds << id;
    }
    for (int i = 0; i < contacts; ++i) {
        void* record = nullptr;
        int id = 0;
        expect(ORVA_PBSrv_CreateAddrRecord(memory, &record));
        expect(ORVA_PBSrv_AddrRecord_SetValue(record, "Name", QString("Contact number %1").arg(i).utf16()));
        expect(ORVA_PBSrv_AddrRecord_SetValue(record, "Mobile", QString("+44%1").arg(7000000 + i).utf16()));
        expect(ORVA_PBSrv_AddrRecord_SetValue(record, "homePhone", QString("020%1").arg(1000000 + i).utf16()));
        expect(ORVA_PBSrv_AddAddrRec(record, &id));
        expect(ORVA_PBSrv_AddrRecord_Release(record));
        expect(ORVA_PBSrv_AddAddrToGroup(groupIds.at(i % groups), id, memory));
        if (i % 200 == 199) {
            expect(ORVA_PBSrv_EndTransaction(memory));
            expect(ORVA_PBSrv_BeginTransaction(memory));
        }
    }
    expect(ORVA_PBSrv_EndTransaction(memory));
}

QTreeWidget* treeOf(AddrBookSelectContactsDlg&)
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* tree = widget->findChild<QTreeWidget*>("AddrBookUIPlugin_selectContacts_treeContacts"))
            return tree;
    }
    return nullptr;
}

// The dialog's own mark of a complete tree: the caller's number, the last number of all, is ticked.
void openAndFill(AddrBookSelectContactsDlg& dialog, int contacts, QTreeWidget*& tree)
{
    dialog.InitDlg(nullptr, AddrBookLogic::Instance(), true, FIELD_TYPE_DEFAULT,
                   QList<QString>{QString("020%1").arg(1000000 + contacts - 1)});
    tree = treeOf(dialog);
    tree->window()->show();
    const QTreeWidgetItem* local = tree->topLevelItem(0);
    while (local->checkState(0) != Qt::Checked)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
}

void setNode(QTreeWidget& tree, QTreeWidgetItem* item, const QString& text, int level)
{
    item->setText(0, text);
    const int width = tree.fontMetrics().horizontalAdvance(text) + level * tree.indentation();
    if (tree.columnWidth(0) < width)
        tree.setColumnWidth(0, width);
    item->setData(0, Qt::UserRole, QVariant(qlonglong(level)));
    item->setSizeHint(0, QSize(25, 20));
    item->setCheckState(0, Qt::Unchecked);
}

void walkGroups()
{
    void* set = nullptr;
    expect(ORVA_PBSrv_GetGroupList(memory, &set));
    expect(ORVA_PBSrv_AddrGroupSet_MoveFirst(set));
    do {
        int id = 0;
        int parent = 0;
        int size = 0;
        unsigned short* name = nullptr;
        expect(ORVA_PBSrv_AddrGroupSet_GetID(set, &id));
        expect(ORVA_PBSrv_AddrGroupSet_GetParentID(set, &parent));
        expect(ORVA_PBSrv_AddrGroupSet_GetName(set, &name));
        expect(ORVA_PBSrv_AddrGroupSet_GetGroupSize(set, &size));
        delete[] name;
    } while (ORVA_PBSrv_AddrGroupSet_MoveNext(set) == ORVA_OK);
    expect(ORVA_PBSrv_AddrGroupSet_Release(set));
}

// A bare tree with the same nodes, plus the reads from the library that the picker cannot do without.
void fillBareTree(QTreeWidget& tree, int contacts)
{
    tree.setHeaderHidden(true);
    tree.resize(287, 380);
    tree.show();
    auto* root = new QTreeWidgetItem(&tree);
    setNode(tree, root, QString("Computer(%1)").arg(contacts), 1);
    root->setExpanded(true);
    for (int group = 0; group < groups; ++group) {
        walkGroups();
        auto* groupItem = new QTreeWidgetItem(root);
        setNode(tree, groupItem, QString("Group %1(%2)").arg(group).arg(contacts / groups), 2);
        groupItem->setExpanded(true);
        for (int i = group; i < contacts; i += groups) {
            void* record = nullptr;
            expect(ORVA_PBSrv_GetAddrRecord(1 + i, memory, &record));
            expect(ORVA_PBSrv_AddrRecord_Release(record));
            auto* contact = new QTreeWidgetItem;
            setNode(tree, contact, QString("Contact number %1").arg(i), 3);
            auto* mobile = new QTreeWidgetItem(contact);
            setNode(tree, mobile, QString("Mobile +44%1").arg(7000000 + i), 4);
            auto* home = new QTreeWidgetItem(contact);
            setNode(tree, home, QString("Home 020%1").arg(1000000 + i), 4);
            groupItem->addChild(contact);
        }
    }
    QCoreApplication::processEvents();
}

void checkAll(QTreeWidgetItem* item)
{
    item->setCheckState(0, Qt::Checked);
    for (int i = 0; i < item->childCount(); ++i)
        checkAll(item->child(i));
}

struct Times {
    bench::Best open;
    bench::Best bareOpen;
    bench::Best tick;
    bench::Best bareTick;
};

// One store with its contacts, and the rounds on it.
void measure(int contacts, int rounds, Times& times)
{
    const QTemporaryDir folder;
    fillStore(folder.path(), contacts);
    for (int round = 0; round < rounds; ++round) {
        {
            QTreeWidget tree;
            times.bareOpen.add(bench::timeOf([&] { fillBareTree(tree, contacts); }));
            times.bareTick.add(bench::timeOf([&] {
                checkAll(tree.topLevelItem(0));
                QCoreApplication::processEvents();
            }));
        }
        AddrBookSelectContactsDlg dialog;
        QTreeWidget* tree = nullptr;
        times.open.add(bench::timeOf([&] { openAndFill(dialog, contacts, tree); }));
        times.tick.add(bench::timeOf([&] {
            dialog.setContactsTree(tree->topLevelItem(0));
            QCoreApplication::processEvents();
        }));
    }
    AddrBookLogic::Destroy();
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules("*.debug=false\n*.warning=false"); // as the host sets it unless asked to log
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const bool quick = bench::isShort(argc, argv);
    const int part = quick ? 5 : 1;
    groups /= part;
    Times ten;
    Times twenty;
    // In turns, since what is measured against itself has to meet the same machine.
    for (int round = 0; round < (quick ? 2 : 3); ++round) {
        measure(10000 / part, 2, ten);
        measure(20000 / part, 2, twenty);
    }
    bench::Table table(quick ? "Number picker, with a fifth of contacts and groups" : "Number picker");
    table.ratio("open to complete tree, 10,000 contacts with two numbers each in 200 groups",
                "a bare `QTreeWidget` with the same nodes and the reads of contacts and groups", ten.open.time(),
                ten.bareOpen.time(), 3);
    table.ratio("the same, 20,000 against 10,000 contacts", "itself", twenty.open.time(), ten.open.time(), 2.3);
    table.ratio("ticking the local node of that tree", "a bare walk that sets the same check states", ten.tick.time(),
                ten.bareTick.time(), 3);
    return table.result();
}
