#include "window/SearchKeys.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTableWidget>

#include "window/PhonebookParts.h"

SearchKeys::SearchKeys(QWidget& page) : m_page(page)
{
    if (QLineEdit* const pSearch = PhonebookParts::Search(m_page)) {
        pSearch->installEventFilter(this);
    }
}

bool SearchKeys::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::KeyPress || pEvent->type() == QEvent::ShortcutOverride) {
        const QKeyEvent* const pKey = static_cast<QKeyEvent*>(pEvent);
        const bool bPlain = pKey->modifiers() == Qt::NoModifier || pKey->modifiers() == Qt::KeypadModifier;
        if (bPlain && (pKey->key() == Qt::Key_Escape || pKey->key() == Qt::Key_Down)) {
            pEvent->accept();
            if (pEvent->type() == QEvent::KeyPress) {
                pKey->key() == Qt::Key_Escape ? escape() : toContacts();
            }
            return true;
        }
    }
    return QObject::eventFilter(pObject, pEvent);
}

void SearchKeys::escape()
{
    QLineEdit* const pSearch = PhonebookParts::Search(m_page);
    if (!pSearch->text().isEmpty()) {
        pSearch->selectAll();
        pSearch->del(); // clear() would not count as an edit
        return;
    }
    if (QAbstractButton* const pButton = PhonebookParts::SearchButton(m_page)) {
        pButton->click();
    }
    // What was found is what the user goes on with.
    QTableWidget* const pTable = PhonebookParts::Table(m_page);
    if (pTable != nullptr && !pSearch->isVisible()) {
        pTable->setFocus(Qt::OtherFocusReason);
    }
}

void SearchKeys::toContacts()
{
    QTableWidget* const pTable = PhonebookParts::Table(m_page);
    if (pTable == nullptr || pTable->rowCount() == 0) {
        return;
    }
    pTable->setFocus(Qt::TabFocusReason);
    if (pTable->selectedItems().isEmpty()) {
        pTable->setCurrentCell(0, 0);
    }
}
