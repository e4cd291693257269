#include "test/WidgetQueries.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTableView>
#include <QTextEdit>
#include <QTreeView>

#include "linkhand/QtCompat.h"
#include "test/ReaderQueries.h"
#include "test/ScreenPlace.h"

namespace
{

QString escaped(QString strText)
{
    strText.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    strText.replace(QLatin1Char('\t'), QLatin1String("\\t"));
    return strText.replace(QLatin1Char('\n'), QLatin1String("\\n"));
}

QString line(const QStringList& lstFields)
{
    QStringList lstEscaped;
    foreach (const QString& strField, lstFields) {
        lstEscaped.append(escaped(strField));
    }
    return lstEscaped.join(QLatin1String("\t"));
}

QString flag(bool bValue)
{
    return QLatin1String(bValue ? "1" : "0");
}

QStringList area(const QWidget* pWidget, const QRect& rect)
{
    const QPoint corner = ScreenPlace::Of(pWidget, rect.topLeft());
    return QStringList() << QString::number(corner.x()) << QString::number(corner.y()) << QString::number(rect.width())
                         << QString::number(rect.height());
}

QString textOf(const QWidget* pWidget)
{
    if (const QAbstractButton* pButton = qobject_cast<const QAbstractButton*>(pWidget)) {
        return pButton->text();
    }
    if (const QLabel* pLabel = qobject_cast<const QLabel*>(pWidget)) {
        return pLabel->text();
    }
    if (const QLineEdit* pEdit = qobject_cast<const QLineEdit*>(pWidget)) {
        return pEdit->text();
    }
    if (const QTextEdit* pEdit = qobject_cast<const QTextEdit*>(pWidget)) {
        return pEdit->toPlainText();
    }
    if (const QPlainTextEdit* pEdit = qobject_cast<const QPlainTextEdit*>(pWidget)) {
        return pEdit->toPlainText();
    }
    if (const QComboBox* pBox = qobject_cast<const QComboBox*>(pWidget)) {
        return pBox->currentText();
    }
    if (const QMessageBox* pBox = qobject_cast<const QMessageBox*>(pWidget)) {
        return pBox->text();
    }
    if (const QGroupBox* pBox = qobject_cast<const QGroupBox*>(pWidget)) {
        return pBox->title();
    }
    if (const QProgressBar* pBar = qobject_cast<const QProgressBar*>(pWidget)) {
        return QString::number(pBar->value());
    }
    return pWidget->windowTitle();
}

bool matches(const QWidget* pWidget, const QString& strName)
{
    return pWidget->isVisible() &&
           (pWidget->objectName() == strName || pWidget->inherits(strName.toLatin1().constData()));
}

// Depth first, in the order in which the children were made.
void collect(QWidget* pParent, const QString& strName, QList<QWidget*>& listFound)
{
    foreach (QObject* pObject, pParent->children()) {
        QWidget* pChild = qobject_cast<QWidget*>(pObject);
        if (pChild == nullptr) {
            continue;
        }
        if (matches(pChild, strName)) {
            listFound.append(pChild);
        }
        collect(pChild, strName, listFound);
    }
}

QList<QWidget*> candidates(QWidget* pParent, const QString& strName)
{
    QList<QWidget*> listFound;
    if (pParent != nullptr) {
        collect(pParent, strName, listFound);
        return listFound;
    }
    foreach (QWidget* pTop, QApplication::topLevelWidgets()) {
        // A window that has a parent is found below it.
        if (pTop->parentWidget() != nullptr) {
            continue;
        }
        if (matches(pTop, strName)) {
            listFound.append(pTop);
        }
        collect(pTop, strName, listFound);
    }
    return listFound;
}

QStringList windows()
{
    QStringList lstLines;
    foreach (const QWidget* pTop, QApplication::topLevelWidgets()) {
        if (pTop->isVisible()) {
            lstLines.append(line(QStringList() << QLatin1String(pTop->metaObject()->className()) << pTop->objectName()
                                               << pTop->windowTitle() << area(pTop, pTop->rect())
                                               << flag(pTop->isModal()) << flag(pTop->isActiveWindow())));
        }
    }
    return lstLines;
}

QStringList widget(const QWidget* pWidget)
{
    const QAbstractButton* pButton = qobject_cast<const QAbstractButton*>(pWidget);
    return QStringList(line(
        QStringList() << QLatin1String(pWidget->metaObject()->className()) << pWidget->objectName() << textOf(pWidget)
                      << area(pWidget, pWidget->rect()) << flag(pWidget->isEnabled()) << flag(pWidget->hasFocus())
                      << flag(pButton != nullptr && pButton->isChecked()) << flag(QtCompat::isExposed(pWidget))));
}

QString rowPath(QModelIndex index)
{
    QString strPath = QString::number(index.row());
    for (index = index.parent(); index.isValid(); index = index.parent()) {
        strPath.prepend(QString::number(index.row()) + QLatin1Char('/'));
    }
    return strPath;
}

bool isRowHidden(const QAbstractItemView* pView, int iRow)
{
    const QTableView* pTable = qobject_cast<const QTableView*>(pView);
    const QTreeView* pTree = qobject_cast<const QTreeView*>(pView);
    return pTable != nullptr ? pTable->isRowHidden(iRow)
                             : pTree != nullptr && pTree->isRowHidden(iRow, pView->rootIndex());
}

QStringList rows(const QAbstractItemView* pView)
{
    int iShown = 0;
    for (int i = 0; i < pView->model()->rowCount(pView->rootIndex()); ++i) {
        iShown += isRowHidden(pView, i) ? 0 : 1;
    }
    return QStringList(QString::number(iShown));
}

QString checkState(const QModelIndex& index)
{
    const QVariant state = index.data(Qt::CheckStateRole);
    return state.isValid() ? state.toString() : QString::fromLatin1("-1");
}

// The rows that reach into the viewport, with the children of each that are shown.
void cells(const QAbstractItemView* pView, const QModelIndex& parent, QStringList& lstLines)
{
    const QAbstractItemModel* pModel = pView->model();
    const QRect viewport = pView->viewport()->rect();
    for (int iRow = 0; iRow < pModel->rowCount(parent); ++iRow) {
        for (int iColumn = 0; iColumn < pModel->columnCount(parent); ++iColumn) {
            const QModelIndex index = pModel->index(iRow, iColumn, parent);
            const QRect rect = pView->visualRect(index) & viewport;
            if (!rect.isEmpty()) {
                lstLines.append(line(QStringList()
                                     << rowPath(index) << QString::number(iColumn) << index.data().toString()
                                     << area(pView->viewport(), rect)
                                     << flag(pView->selectionModel()->isSelected(index)) << checkState(index)));
            }
        }
        cells(pView, pModel->index(iRow, 0, parent), lstLines);
    }
}

QStringList headers(const QHeaderView* pHeader)
{
    QStringList lstLines;
    for (int i = 0; i < pHeader->count(); ++i) {
        if (!pHeader->isSectionHidden(i)) {
            const QRect rect(pHeader->sectionViewportPosition(i), 0, pHeader->sectionSize(i), pHeader->height());
            lstLines.append(line(QStringList()
                                 << QString::number(i) << pHeader->model()->headerData(i, Qt::Horizontal).toString()
                                 << area(pHeader->viewport(), rect)));
        }
    }
    return lstLines;
}

QStringList actions(const QMenu* pMenu)
{
    QStringList lstLines;
    foreach (QAction* pAction, pMenu->actions()) {
        if (pAction->isVisible() && !pAction->isSeparator()) {
            lstLines.append(line(QStringList()
                                 << pAction->text() << area(pMenu, pMenu->actionGeometry(pAction))
                                 << flag(pAction->isEnabled()) << flag(pAction->isChecked())
                                 << flag(pAction->menu() != nullptr) << flag(pAction == pMenu->activeAction())));
        }
    }
    return lstLines;
}

} // namespace

QWidget* WidgetQueries::Find(const QString& strAddress)
{
    QWidget* pFound = nullptr;
    foreach (QString strName, strAddress.split(QLatin1Char('/'))) {
        if (strName == QLatin1String("popup") || strName == QLatin1String("modal")) {
            pFound = strName == QLatin1String("popup") ? QApplication::activePopupWidget()
                                                       : QApplication::activeModalWidget();
        } else {
            int iIndex = 0;
            const int iBracket = strName.indexOf(QLatin1Char('['));
            if (iBracket > 0 && strName.endsWith(QLatin1Char(']'))) {
                iIndex = strName.mid(iBracket + 1, strName.length() - iBracket - 2).toInt();
                strName = strName.left(iBracket);
            }
            pFound = candidates(pFound, strName).value(iIndex);
        }
        if (pFound == nullptr) {
            return nullptr;
        }
    }
    return pFound;
}

QStringList WidgetQueries::Answer(const QString& strQuery, bool& bFound)
{
    const QString strVerb = strQuery.section(QLatin1Char('\t'), 0, 0);
    bFound = true;
    if (strVerb == QLatin1String("windows")) {
        return windows();
    }
    if (strVerb == QLatin1String("place") || strVerb == QLatin1String("texts")) {
        QStringList lstLines;
        foreach (const QString& strText,
                 strVerb == QLatin1String("place") ? ReaderQueries::Place() : ReaderQueries::Texts()) {
            lstLines.append(escaped(strText));
        }
        return lstLines;
    }
    QWidget* pWidget = Find(strQuery.section(QLatin1Char('\t'), 1));
    const QAbstractItemView* pView = qobject_cast<QAbstractItemView*>(pWidget);
    const QMenu* pMenu = qobject_cast<QMenu*>(pWidget);
    if (pWidget != nullptr && strVerb == QLatin1String("widget")) {
        return widget(pWidget);
    }
    if (pView != nullptr && strVerb == QLatin1String("rows")) {
        return rows(pView);
    }
    if (pView != nullptr && strVerb == QLatin1String("cells")) {
        QStringList lstLines;
        cells(pView, pView->rootIndex(), lstLines);
        return lstLines;
    }
    const QTableView* pTable = qobject_cast<QTableView*>(pWidget);
    const QTreeView* pTree = qobject_cast<QTreeView*>(pWidget);
    if (strVerb == QLatin1String("headers") && (pTable != nullptr || pTree != nullptr)) {
        return headers(pTable != nullptr ? pTable->horizontalHeader() : pTree->header());
    }
    if (pMenu != nullptr && strVerb == QLatin1String("actions")) {
        return actions(pMenu);
    }
    bFound = false;
    return QStringList();
}
