#include "window/PhonebookCounts.h"

#include <QEvent>
#include <QLineEdit>
#include <QSplitter>
#include <QTableWidget>

#include "window/PhonebookParts.h"
#include "window/StatusArea.h"

namespace
{

// Rows come one by one, and many at a time.
const int GATHER_MS = 30;

int selectedRows(const QTableWidget& table)
{
    int iCount = 0;
    foreach (const QTableWidgetSelectionRange& range, table.selectedRanges()) {
        iCount += range.rowCount();
    }
    return iCount;
}

} // namespace

PhonebookCounts::PhonebookCounts(QWidget& page, StatusArea& status) : m_page(page), m_status(status)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(GATHER_MS);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(OnCount()));
    m_page.installEventFilter(this);
    if (QLineEdit* const pSearch = PhonebookParts::Search(m_page)) {
        connect(pSearch, SIGNAL(textChanged(QString)), this, SLOT(OnChanged()));
        pSearch->installEventFilter(this);
    }
    // Where each new table comes.
    if (QSplitter* const pSplitter = PhonebookParts::PreviewSplitter(m_page)) {
        pSplitter->installEventFilter(this);
    }
    OnCount();
}

bool PhonebookCounts::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::ChildAdded || pEvent->type() == QEvent::Show || pEvent->type() == QEvent::Hide) {
        OnChanged();
    }
    return QObject::eventFilter(pObject, pEvent);
}

void PhonebookCounts::OnChanged()
{
    if (!m_timer.isActive()) {
        m_timer.start();
    }
}

void PhonebookCounts::OnCount()
{
    QTableWidget* const pTable = PhonebookParts::Table(m_page);
    if (pTable != m_pTable) {
        m_pTable = pTable;
        if (pTable != nullptr) {
            connect(pTable->model(), SIGNAL(rowsInserted(QModelIndex, int, int)), this, SLOT(OnChanged()));
            connect(pTable->model(), SIGNAL(rowsRemoved(QModelIndex, int, int)), this, SLOT(OnChanged()));
            connect(pTable->selectionModel(), SIGNAL(selectionChanged(QItemSelection, QItemSelection)), this,
                    SLOT(OnChanged()));
        }
    }
    if (pTable == nullptr || !m_page.isVisible()) {
        m_status.SetCounts(StatusCounts());
        return;
    }
    const QLineEdit* const pSearch = PhonebookParts::Search(m_page);
    StatusCounts counts;
    counts.iContacts = pTable->rowCount();
    counts.bFound = pSearch != nullptr && pSearch->isVisible() && !pSearch->text().isEmpty();
    counts.iSelected = selectedRows(*pTable);
    m_status.SetCounts(counts);
}
