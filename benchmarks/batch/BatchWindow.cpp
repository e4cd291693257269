#include "BatchWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

#include "BareLoops.h"
#include "logic/AddrBookLogic.h"
#include "logic/ItemData.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/PBTreeWidget.h"
#include "window/FileDialogs.h"

struct AddrBookDlgAccess {
    static AddrBookTableWidget* table(AddrBookDlg& dialog) { return dialog.m_ptableContacts; }
    static PBTreeWidget* tree(AddrBookDlg& dialog) { return dialog.m_ptreePhonebook; }
    static bool busy(AddrBookDlg& dialog) { return dialog.m_bThreadBusy; }
    static void forgetNode(AddrBookDlg& dialog) { dialog.m_pitemCurrentTreeWidgetItem = nullptr; }
    static QTreeWidgetItem* node(AddrBookDlg& dialog, int memory)
    {
        return memory == ORVA_MEMORY_LOCAL  ? dialog.m_pitemLocalTreeWidgetItem
               : memory == ORVA_MEMORY_CARD ? dialog.m_pitemSimTreeWidgetItem
                                            : dialog.m_pitemDeviceTreeWidgetItem;
    }
};

namespace
{

QString s_file;

QString chosenFile(QWidget*, const QString&, const QString&, const QString&)
{
    return s_file;
}

} // namespace

BatchWindow::BatchWindow()
{
    m_dialog.InitWindow(nullptr);
    m_dialog.InitTree();
    m_dialog.resize(900, 600);
    m_dialog.show();
    waitForEnd();
}

BatchWindow::~BatchWindow()
{
    AddrBookLogic::unSDKRegisterEvent();
}

void BatchWindow::waitForEnd()
{
    while (AddrBookDlgAccess::busy(m_dialog) || !AddrBookDlgAccess::table(m_dialog)->isSortingEnabled())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void BatchWindow::show(int memory)
{
    QTreeWidgetItem* node = AddrBookDlgAccess::node(m_dialog, memory);
    AddrBookDlgAccess::tree(m_dialog)->setCurrentItem(node);
    AddrBookDlgAccess::forgetNode(m_dialog);
    m_dialog.OnTreeClicked(node);
    waitForEnd();
}

int BatchWindow::rows()
{
    return AddrBookDlgAccess::table(m_dialog)->rowCount();
}

bench::Time BatchWindow::deleteAll()
{
    AddrBookDlgAccess::table(m_dialog)->selectAll();
    QCoreApplication::processEvents();
    return bench::timeOf([this] {
        m_dialog.OnButtonClickedDeleteContact();
        waitForEnd();
    });
}

bench::Time BatchWindow::add(const QList<QStringList>& contacts)
{
    QList<AddrBookRecord> records;
    for (const QStringList& values : contacts) {
        AddrBookRecord record;
        record.iID = 0;
        record.lstValues = values;
        records << record;
    }
    return bench::timeOf([&] {
        m_dialog.addImportedRecords(PB_MEM_LOCAL, records, 0);
        waitForEnd();
    });
}

bench::Time BatchWindow::importFile(const QString& file)
{
    s_file = file;
    FileDialogs::setChoosers(chosenFile, chosenFile);
    bench::Stopwatch watch;
    QTimer clicker;
    QObject::connect(&clicker, &QTimer::timeout, [&] {
        for (QWidget* widget : QApplication::allWidgets()) {
            auto* button = qobject_cast<QAbstractButton*>(widget);
            if (button == nullptr || button->objectName() != "AddrUIplugin_FieldMapokbtn" || !button->isVisible())
                continue;
            clicker.stop();
            watch = bench::Stopwatch();
            button->click();
            return;
        }
    });
    clicker.start(0);
    m_dialog.OnClickImport();
    waitForEnd();
    FileDialogs::setChoosers(nullptr, nullptr);
    return watch.elapsed();
}

void BatchWindow::dropAll(int memory, bench::Time& reading, bench::Time& whole)
{
    AddrBookTableWidget* table = AddrBookDlgAccess::table(m_dialog);
    PBTreeWidget* tree = AddrBookDlgAccess::tree(m_dialog);
    table->selectAll();
    m_dialog.OnTableItemClicked();
    QList<QString> dragged;
    for (int row = 0; row < table->rowCount(); ++row)
        dragged << QString::number(tableRowData(table->item(row, 0))->iRecordID) << "0";
    // As the tree leaves it when the mouse lets go over a node.
    tree->m_listDragData = dragged;
    tree->m_bDropped = true;
    const bench::Stopwatch watch;
    tree->setCurrentItem(AddrBookDlgAccess::node(m_dialog, memory)); // the selection change is the end of the drop
    reading = watch.elapsed();
    if (!AddrBookDlgAccess::busy(m_dialog)) {
        std::fprintf(stderr, "the drop did not start\n");
        std::exit(2);
    }
    waitForEnd();
    whole = watch.elapsed();
}

Patience::Patience() : m_answered(true), m_asked(0), m_longest(0)
{
    m_asker.target = this;
    m_asker.start();
}

Patience::~Patience()
{
    m_asker.stop = true;
    m_asker.wait();
}

double Patience::longestSeconds() const
{
    return m_longest;
}

bool Patience::event(QEvent* event)
{
    if (event->type() != QEvent::User)
        return QObject::event(event);
    m_longest = std::max(m_longest, bench::seconds(CLOCK_MONOTONIC) - m_asked);
    m_answered = true;
    return true;
}

void Patience::Asker::run()
{
    while (!stop) {
        if (target->m_answered.exchange(false)) {
            target->m_asked = bench::seconds(CLOCK_MONOTONIC);
            QCoreApplication::postEvent(target, new QEvent(QEvent::User));
        }
        msleep(2);
    }
}
