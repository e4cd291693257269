// Times the window against what it cannot be faster than, and prints the ratios. All sides take turns in one run, and
// the best round of each counts.

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLoggingCategory>
#include <QMenu>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>

#include "Baselines.h"
#include "RealHost.h"
#include "Stretches.h"
#include "logic/AddrBookLogic.h"
#include "orva/orva_sim.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/PBTreeWidget.h"
#include "window/AddrBookDlg.h"

struct AddrBookDlgAccess {
    static AddrBookTableWidget* table(AddrBookDlg& dialog) { return dialog.m_ptableContacts; }
    static PBTreeWidget* tree(AddrBookDlg& dialog) { return dialog.m_ptreePhonebook; }
    static void forgetNode(AddrBookDlg& dialog) { dialog.m_pitemCurrentTreeWidgetItem = nullptr; }
    static void forgetSearch(AddrBookDlg& dialog) { dialog.m_strSearchText.clear(); }
    static QMenu* tableMenu(AddrBookDlg& dialog) { return dialog.m_pmenuTable; }
};

using bench::Best;
using bench::Stopwatch;
using bench::Time;

namespace
{
void waitForTable(AddrBookDlg& dialog)
{
    while (!AddrBookDlgAccess::table(dialog)->isSortingEnabled())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

struct Figures {
    Best click;
    Best narrow;
    Best menu;
    Best plain;
    Best bare;
    Best bareSorted;
    Best clearing; // the call that a click makes: the table before the last one goes
    Best reading;  // the longest the loop is away between that and the end of the read
    Best sorting;
    Best moving; // of the sorted rows
};

Time click(AddrBookDlg& dialog)
{
    AddrBookDlgAccess::forgetNode(dialog);
    const Stopwatch watch;
    dialog.OnTreeClicked(AddrBookDlgAccess::tree(dialog)->topLevelItem(0));
    waitForTable(dialog);
    return watch.elapsed();
}

Time narrow(AddrBookDlg& dialog)
{
    click(dialog);
    AddrBookDlgAccess::forgetSearch(dialog);
    const Stopwatch watch;
    dialog.OnTextEdited(QLatin1String("z"));
    QCoreApplication::processEvents();
    const Time time = watch.elapsed();
    AddrBookDlgAccess::forgetSearch(dialog);
    return time;
}

// The end of a read: the worker's signal that comes when all rows are there, and after which the table is sorted.
class EndWatch : public QObject
{
public:
    EndWatch(QObject* pWindow, const QTableWidget* pTable, int iRows) : m_pTable(pTable), m_iRows(iRows)
    {
        pWindow->installEventFilter(this);
    }
    // What has passed since then, and the longest the loop was away before.
    Time since() const { return m_watch.elapsed(); }
    Time longestBefore() const { return m_longest; }

protected:
    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::MetaCall && m_pTable->rowCount() == m_iRows) {
            m_longest = m_stretches.longest();
            m_watch = Stopwatch();
        }
        return false;
    }

private:
    const QTableWidget* m_pTable;
    int m_iRows;
    Stretches m_stretches;
    Stopwatch m_watch;
    Time m_longest = {0, 0};
};

// The parts of a click during which nothing of the user's is answered.
void clickAndListen(AddrBookDlg& dialog, int iRows, Figures& figures)
{
    click(dialog); // a full table to be cleared
    AddrBookDlgAccess::forgetNode(dialog);
    figures.clearing.add(
        bench::timeOf([&] { dialog.OnTreeClicked(AddrBookDlgAccess::tree(dialog)->topLevelItem(0)); }));
    Time reading = {0, 0};
    Time sorting = {0, 0};
    Time moving = {0, 0};
    Stopwatch watch;
    QObject context;
    const QTableWidget* pTable = AddrBookDlgAccess::table(dialog);
    const EndWatch end(&dialog, pTable, iRows);
    // Before the rows there are sorts of an empty table. A model tells of a sort once it knows the order.
    QObject::connect(pTable->model(), &QAbstractItemModel::layoutAboutToBeChanged, &context, [&] {
        if (pTable->rowCount() > 0) {
            reading = end.longestBefore();
            sorting = end.since();
        }
        watch = Stopwatch();
    });
    QObject::connect(pTable->model(), &QAbstractItemModel::layoutChanged, &context, [&] {
        const Time time = watch.elapsed();
        if (time.processor > moving.processor)
            moving = time;
    });
    waitForTable(dialog);
    figures.reading.add(reading);
    figures.sorting.add(sorting);
    figures.moving.add(moving);
}

// From the event to the menu on the screen: the menu's first event after it has been shown ends it.
class MenuWatch : public QObject
{
public:
    explicit MenuWatch(QMenu* pMenu) : m_pMenu(pMenu), m_time() { m_pMenu->installEventFilter(this); }
    Time time() const { return m_time; }

protected:
    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::Paint) {
            m_time = m_watch.elapsed();
            QTimer::singleShot(0, m_pMenu, SLOT(close()));
        }
        return false;
    }

private:
    QMenu* m_pMenu;
    const Stopwatch m_watch;
    Time m_time;
};

Time openMenu(AddrBookDlg& dialog)
{
    AddrBookTableWidget* pTable = AddrBookDlgAccess::table(dialog);
    QMenu* pMenu = AddrBookDlgAccess::tableMenu(dialog);
    if (pMenu == nullptr) {
        std::fprintf(stderr, "no menu: build the target AddrBookUIPluginFiles\n");
        std::exit(2);
    }
    // As high as ten rows: a popup takes the focus, for which Qt paints all rows on the screen anew.
    pTable->setMaximumHeight(10 * 16 + pTable->horizontalHeader()->height());
    dialog.activateWindow(); // a table of the other side may have had the focus
    pTable->selectRow(3);
    pTable->setFocus();
    QCoreApplication::processEvents();
    const QPoint ptRow = pTable->viewport()->mapTo(&dialog, pTable->visualItemRect(pTable->item(3, 0)).center());
    QContextMenuEvent event(QContextMenuEvent::Mouse, ptRow, dialog.mapToGlobal(ptRow));
    const MenuWatch watch(pMenu);
    QCoreApplication::sendEvent(&dialog, &event);
    pTable->setMaximumHeight(QWIDGETSIZE_MAX);
    if (watch.time().clock <= 0) {
        std::fprintf(stderr, "the menu did not open\n");
        std::exit(2);
    }
    return watch.time();
}

void check(int iRows, int iExpected)
{
    if (iRows == iExpected)
        return;
    std::fprintf(stderr, "%d rows in place of %d\n", iRows, iExpected);
    std::exit(2);
}

// One store with its contacts, and the rounds on it.
void measure(int iCount, int iRounds, Figures& figures)
{
    const QTemporaryDir folder;
    ORVA_Sim_Reset(folder.path().toUtf8().constData());
    ORVA_Sim_SetCapacity(PB_MEM_LOCAL, 1000000);
    if (!storeContacts(makeContacts(iCount))) {
        std::fprintf(stderr, "the contacts could not be stored\n");
        std::exit(2);
    }
    // Some of the bare side's rounds come before the window, which leaves the heap in another shape.
    const auto bareRound = [&] {
        QVector<QStringList> lstRows;
        figures.plain.add(readPlainly(folder.path(), lstRows));
        check(lstRows.size(), iCount);
        figures.bareSorted.add(fillBareTable(lstRows, true));
        figures.bare.add(fillBareTable(lstRows, false));
    };
    for (int i = 0; i < iRounds; ++i)
        bareRound();
    {
        AddrBookDlg dialog;
        dialog.InitWindow(nullptr);
        dialog.InitTree();
        dialog.resize(900, 600);
        dialog.show();
        waitForTable(dialog);
        dialog.activateWindow();
        QCoreApplication::processEvents();
        check(AddrBookDlgAccess::table(dialog)->rowCount(), iCount);
        // The first click has no table to clear away; it is not counted.
        click(dialog);
        for (int i = 0; i < iRounds; ++i) {
            figures.click.add(click(dialog));
            bareRound();
            figures.menu.add(openMenu(dialog));
            figures.narrow.add(narrow(dialog));
            clickAndListen(dialog, iCount, figures);
        }
        AddrBookLogic::unSDKRegisterEvent();
    }
    ORVA_Sim_Reset(nullptr);
}
} // namespace

namespace
{
// A line a number of contacts, in processor time, and what a contact costs beside the first line's.
int measureGrowth()
{
    bench::Table table("Growth, by the processor's time");
    Figures first;
    const QList<int> lstCounts = {1000, 10000, 50000, 200000};
    for (int iCount : lstCounts) {
        Figures figures;
        measure(iCount, 2, figures);
        if (iCount == lstCounts.first())
            first = figures;
        const double factor = static_cast<double>(iCount) / lstCounts.first();
        char what[80];
        std::snprintf(what, sizeof what, "click to sorted table, %d contacts", iCount);
        table.note(what, figures.click.time().processor * 1e3, "ms",
                   qPrintable(QString::number(figures.click.time().processor / factor / first.click.time().processor)));
        std::snprintf(what, sizeof what, "search that narrows %d contacts", iCount);
        table.note(
            what, figures.narrow.time().processor * 1e3, "ms",
            qPrintable(QString::number(figures.narrow.time().processor / factor / first.narrow.time().processor)));
    }
    return table.result();
}
} // namespace

int main(int argc, char** argv)
{
    if (qgetenv("QT_QPA_PLATFORM").isEmpty())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    // As the host sets it unless asked to log.
    QLoggingCategory::setFilterRules(QLatin1String("*.debug=false\n*.warning=false"));
    const RealHost host(QCoreApplication::applicationDirPath() + QLatin1String("/.."));

    if (argc > 1 && std::strcmp(argv[1], "growth") == 0)
        return measureGrowth();
    const bool bShort = bench::isShort(argc, argv);
    const int iSome = bShort ? 2000 : 10000;
    const int iMany = 5 * iSome;
    Figures few;
    Figures some;
    Figures many;
    // In turns, since what is measured against itself has to meet the same machine.
    for (int i = 0; i < (bShort ? 2 : 4); ++i) {
        measure(10, 3, few);
        measure(iSome, 3, some);
        measure(iMany, bShort ? 2 : 3, many);
    }
    bench::Table table(bShort ? "Window, with a fifth of the contacts" : "Window");
    table.ratio("click on a node to sorted table, 50,000 contacts of 6 fields",
                "a bare table filled in bulk and sorted once, plus a plain SQLite loop", many.click.time(),
                bench::sum(many.bareSorted.time(), many.plain.time()), 2.0);
    table.ratio("the same, 50,000 against 10,000", "itself", many.click.time(), some.click.time(), 7.0);
    table.ratio("narrowing 50,000 rows to a tenth by typing a character", "filling a bare table with 50,000 rows",
                many.narrow.time(), many.bare.time(), 6.0);
    table.ratio("narrowing, 50,000 against 10,000 rows", "itself", many.narrow.time(), some.narrow.time(), 18.0);
    table.note("a keystroke that narrows 10,000 rows", some.narrow.time().clock * 1e3, "ms", "aim 100 ms");
    table.ratio("opening a context menu with 50,000 rows", "with 10 rows", many.menu.time(), few.menu.time(), 2.0);
    table.note("longest time without an answer while 50,000 contacts are read into the table",
               many.reading.time().processor * 1e3, "ms", "on the processor");
    table.note("the clearing of the table before, at the click", many.clearing.time().processor * 1e3, "ms",
               "on the processor");
    table.note("the end of the read with the one sort", many.sorting.time().processor * 1e3, "ms", "on the processor");
    table.note("the moving of the sorted rows", many.moving.time().processor * 1e3, "ms", "on the processor");
    return table.result();
}
