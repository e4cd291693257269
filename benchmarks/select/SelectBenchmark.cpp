// Prints a table of ratios: the number picker against a bare tree with the same nodes, and against itself with twice
// the contacts. Each figure is the best of some rounds in which the two sides take turns.

#include <QApplication>
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>

#include "dialogs/AddrBookSelectContactsDlg.h"
#include "logic/AddrBookLogic.h"
#include "orva/orva_sdk.h"
#include "orva/orva_sim.h"

namespace
{

const int memory = ORVA_MEMORY_LOCAL;
const int groups = 200;
const int rounds = 5;

bool missed = false;

void expect(long code)
{
    if (code == ORVA_OK)
        return;
    std::fprintf(stderr, "the library returned %ld\n", code);
    std::exit(1);
}

double secondsOf(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e9;
}

void show(const char* what, double ratio, double most)
{
    const bool good = ratio <= most;
    missed = missed || !good;
    std::printf("%-62s %8.2f    %6.1f    %s\n", what, ratio, most, good ? "" : "MISSED");
    std::fflush(stdout);
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
    double open = 1e9;
    double bareOpen = 1e9;
    double tick = 1e9;
    double untick = 1e9;
    double bareTick = 1e9;
    double close = 1e9;
};

void keepBest(double& best, double seconds)
{
    best = std::min(best, seconds);
}

Times measure(int contacts)
{
    Times times;
    for (int round = 0; round < rounds; ++round) {
        {
            QTreeWidget tree;
            keepBest(times.bareOpen, secondsOf([&] { fillBareTree(tree, contacts); }));
            keepBest(times.bareTick, secondsOf([&] {
                         checkAll(tree.topLevelItem(0));
                         QCoreApplication::processEvents();
                     }));
        }
        auto* dialog = new AddrBookSelectContactsDlg;
        QTreeWidget* tree = nullptr;
        keepBest(times.open, secondsOf([&] { openAndFill(*dialog, contacts, tree); }));
        QTreeWidgetItem* local = tree->topLevelItem(0);
        keepBest(times.tick, secondsOf([&] {
                     dialog->setContactsTree(local);
                     QCoreApplication::processEvents();
                 }));
        keepBest(times.untick, secondsOf([&] {
                     local->setCheckState(0, Qt::Unchecked);
                     dialog->OnTreeClicked(local);
                     QCoreApplication::processEvents();
                 }));
        keepBest(times.close, secondsOf([&] { delete dialog; }));
    }
    std::printf("%6d contacts: open %.0f ms (bare %.0f), tick %.0f ms (bare %.0f), untick %.0f ms, close %.0f ms\n",
                contacts, times.open * 1e3, times.bareOpen * 1e3, times.tick * 1e3, times.bareTick * 1e3,
                times.untick * 1e3, times.close * 1e3);
    return times;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules("*.debug=false\n*.warning=false"); // as the host sets it unless asked to log
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QTemporaryDir small;
    const QTemporaryDir large;

    fillStore(small.path(), 10000);
    const Times ten = measure(10000);
    AddrBookLogic::Destroy();
    fillStore(large.path(), 20000);
    const Times twenty = measure(20000);
    AddrBookLogic::Destroy();

    std::printf("%-62s %8s    %6s\n", "", "ratio", "at most");
    show("open to complete tree, 10,000 contacts in 200 groups", ten.open / ten.bareOpen, 3);
    show("the same, 20,000 against 10,000 contacts", twenty.open / ten.open, 2.3);
    show("ticking the local node", ten.tick / ten.bareTick, 3);
    return missed ? 1 : 0;
}
