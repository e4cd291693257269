#include "window/LivePhonebook.h"

#include <QApplication>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QMetaObject>
#include <QTableWidget>
#include <QTreeWidget>

#include "linkhand/plugin/Codes.h"
#include "loader/PluginContainer.h"
#include "loader/PluginHandle.h"
#include "loader/WorkerCount.h"
#include "settings/StoreWatch.h"
#include "window/PhonebookParts.h"
#include "window/StatusArea.h"

namespace
{

const int PAUSE_MS = 2000;

// What is written to the log shows to others when its transaction ends, which leaves no trace of its own.
const int LOOKS = 2;

// The PC's contacts, or one of their groups.
bool showsLocal(const QTreeWidget* pTree)
{
    QTreeWidgetItem* pItem = pTree != nullptr ? pTree->currentItem() : nullptr;
    while (pItem != nullptr && pItem->parent() != nullptr) {
        pItem = pItem->parent();
    }
    return pItem != nullptr && pItem == pTree->topLevelItem(0);
}

} // namespace

LivePhonebook::LivePhonebook(StoreWatch& watch, PluginContainer& container, const WorkerCount& workers, QWidget& page,
                             StatusArea& status)
    : m_watch(watch),
      m_container(container),
      m_workers(workers),
      m_page(page),
      m_status(status),
      m_bPending(false),
      m_iLooks(0)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(PAUSE_MS);
    connect(&m_pause, SIGNAL(timeout()), this, SLOT(OnLook()));
    connect(&m_watch, SIGNAL(touched()), this, SLOT(OnTouched()));
    connect(&m_status, SIGNAL(showChangesRequested()), this, SLOT(OnShow()));
}

void LivePhonebook::ReadAnew()
{
    m_bPending = true;
    OnLook();
}

void LivePhonebook::OnTouched()
{
    m_iLooks = LOOKS;
    if (!m_pause.isActive()) {
        m_pause.start();
    }
}

void LivePhonebook::OnLook()
{
    // A look waits for the transactions of a batch.
    if (isBusy()) {
        m_pause.start();
        return;
    }
    m_bPending = m_watch.TakeChange() || m_bPending;
    if (!m_bPending) {
        if (--m_iLooks > 0) {
            m_pause.start();
        }
        return;
    }
    if (isInUse()) {
        m_status.SetChangedElsewhere(true);
        m_pause.start();
    } else {
        reload();
    }
}

void LivePhonebook::OnShow()
{
    if (!isBusy()) {
        reload();
    }
}

// Whether a reload now would take something from under a flow of the phonebook.
bool LivePhonebook::isBusy() const
{
    return m_workers.Running() > 0 || QApplication::activeModalWidget() != nullptr ||
           QApplication::activePopupWidget() != nullptr || QApplication::mouseButtons() != Qt::NoButton;
}

// Whether a reload would take something from the user: a choice, a search, a name being edited, another memory.
bool LivePhonebook::isInUse() const
{
    const QWidget* pWindow = PhonebookParts::Window(m_page);
    if (pWindow == nullptr) {
        return true;
    }
    const QTableWidget* pTable = PhonebookParts::Table(m_page);
    const QTreeWidget* pTree = PhonebookParts::Tree(m_page);
    const QLineEdit* pSearch = PhonebookParts::Search(m_page);
    const bool bEditing = pTree != nullptr && pTree->findChild<QLineEdit*>() != nullptr;
    return bEditing || !showsLocal(pTree) || (pSearch != nullptr && !pSearch->text().isEmpty()) ||
           (pTable != nullptr && pTable->selectionModel()->hasSelection());
}

void LivePhonebook::reload()
{
    QWidget* const pWindow = PhonebookParts::Window(m_page);
    PluginHandle* const pHandle = m_container.FindByName(QLatin1String(LINKHAND_ADDRBOOK_NAME));
    if (pWindow == nullptr || pHandle == nullptr) {
        return;
    }
    m_bPending = false;
    m_status.SetChangedElsewhere(false);
    // The first makes the window take the current node for one that it has not read yet, the second reads it.
    if (pWindow->metaObject()->indexOfSlot("OnGroupsChanged()") >= 0) {
        QMetaObject::invokeMethod(pWindow, "OnGroupsChanged");
    }
    QMetaObject::invokeMethod(pWindow, "OnAddrBookSimReady");
    pHandle->Notify(HOST_NOTIFY_LANGUAGE, 0, 0);
    m_pause.start();
}
