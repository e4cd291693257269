#include "test/ReaderQueries.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTextEdit>

namespace
{

QWidget* front()
{
    if (QWidget* const pPopup = QApplication::activePopupWidget()) {
        return pPopup;
    }
    return QApplication::activeWindow();
}

QString entryOf(const QAction* pAction)
{
    return pAction == nullptr ? QString() : pAction->text().section(QLatin1Char('\t'), 0, 0);
}

// Rows are read as far as they show.
QStringList cellsOf(const QAbstractItemView* pView, const QModelIndex& parent)
{
    QStringList lstTexts;
    const QAbstractItemModel* const pModel = pView->model();
    for (int iRow = 0; pModel != nullptr && iRow < pModel->rowCount(parent); ++iRow) {
        for (int iColumn = 0; iColumn < pModel->columnCount(parent); ++iColumn) {
            const QModelIndex index = pModel->index(iRow, iColumn, parent);
            if (pView->visualRect(index).intersects(pView->viewport()->rect())) {
                lstTexts << index.data().toString();
            }
        }
        lstTexts << cellsOf(pView, pModel->index(iRow, 0, parent));
    }
    return lstTexts;
}

QStringList textsOf(const QWidget* pWidget)
{
    if (const QAbstractButton* const pButton = qobject_cast<const QAbstractButton*>(pWidget)) {
        return QStringList(pButton->text());
    }
    if (const QLabel* const pLabel = qobject_cast<const QLabel*>(pWidget)) {
        return QStringList(pLabel->text());
    }
    if (const QLineEdit* const pEdit = qobject_cast<const QLineEdit*>(pWidget)) {
        return QStringList() << pEdit->text() << pEdit->placeholderText();
    }
    if (const QTextEdit* const pEdit = qobject_cast<const QTextEdit*>(pWidget)) {
        return QStringList(pEdit->toPlainText());
    }
    if (const QPlainTextEdit* const pEdit = qobject_cast<const QPlainTextEdit*>(pWidget)) {
        return QStringList(pEdit->toPlainText());
    }
    if (const QComboBox* const pBox = qobject_cast<const QComboBox*>(pWidget)) {
        return QStringList(pBox->currentText());
    }
    if (const QTabBar* const pTabs = qobject_cast<const QTabBar*>(pWidget)) {
        return QStringList(pTabs->tabText(pTabs->currentIndex()));
    }
    if (const QMenu* const pMenu = qobject_cast<const QMenu*>(pWidget)) {
        QStringList lstTexts;
        foreach (const QAction* pAction, pMenu->actions()) {
            lstTexts << entryOf(pAction);
        }
        return lstTexts;
    }
    const QAbstractItemView* const pView = qobject_cast<const QAbstractItemView*>(pWidget);
    return pView != nullptr ? cellsOf(pView, pView->rootIndex()) : QStringList();
}

QStringList currentOf(const QWidget* pWidget)
{
    if (const QMenu* const pMenu = qobject_cast<const QMenu*>(pWidget)) {
        return QStringList(entryOf(pMenu->activeAction()));
    }
    if (const QAbstractItemView* const pView = qobject_cast<const QAbstractItemView*>(pWidget)) {
        const QModelIndex index = pView->currentIndex();
        return QStringList() << index.data().toString() << index.sibling(index.row(), 0).data().toString();
    }
    return textsOf(pWidget);
}

// Without marks of mnemonics and empty ones.
QStringList plain(const QStringList& lstTexts)
{
    QStringList lstPlain;
    foreach (QString strText, lstTexts) {
        strText.remove(QLatin1Char('&'));
        if (!strText.isEmpty()) {
            lstPlain << strText;
        }
    }
    return lstPlain;
}

} // namespace

QStringList ReaderQueries::Place()
{
    const QWidget* const pFront = front();
    const QWidget* pFocus = qobject_cast<const QMenu*>(pFront);
    if (pFocus == nullptr && pFront != nullptr) {
        pFocus = pFront->focusWidget();
    }
    if (pFocus == nullptr) {
        return QStringList();
    }
    QStringList lstNames = QStringList() << currentOf(pFocus) << pFocus->accessibleName();
    foreach (const QLabel* pLabel, pFront->findChildren<QLabel*>()) {
        if (pLabel->buddy() == pFocus) {
            lstNames << pLabel->text();
        }
    }
    return plain(lstNames);
}

QStringList ReaderQueries::Texts()
{
    const QWidget* const pFront = front();
    if (pFront == nullptr) {
        return QStringList();
    }
    QStringList lstTexts = QStringList() << pFront->windowTitle() << textsOf(pFront);
    foreach (const QWidget* pWidget, pFront->findChildren<QWidget*>()) {
        if (pWidget->isVisible() && pWidget->window() == pFront) {
            lstTexts << textsOf(pWidget);
        }
    }
    return plain(lstTexts);
}
