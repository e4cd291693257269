#include "Inspector.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QProgressBar>
#include <QSet>
#include <QTableView>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeView>

namespace
{

QString describe(const QWidget* pWidget)
{
    return QStringLiteral("%1 \"%2\"").arg(pWidget->metaObject()->className(), pWidget->objectName());
}

// A part that a user works with, and not a piece that Qt builds another of.
bool isPart(const QWidget* pWidget)
{
    const bool bKind =
        qobject_cast<const QAbstractButton*>(pWidget) != nullptr ||
        qobject_cast<const QAbstractItemView*>(pWidget) != nullptr ||
        qobject_cast<const QLineEdit*>(pWidget) != nullptr || qobject_cast<const QTextEdit*>(pWidget) != nullptr ||
        qobject_cast<const QPlainTextEdit*>(pWidget) != nullptr || qobject_cast<const QComboBox*>(pWidget) != nullptr ||
        qobject_cast<const QProgressBar*>(pWidget) != nullptr;
    const bool bInside = pWidget->inherits("QHeaderView") || pWidget->inherits("QTableCornerButton") ||
                         (pWidget->parentWidget() != nullptr && (pWidget->parentWidget()->inherits("QLineEdit") ||
                                                                 pWidget->parentWidget()->inherits("QComboBox")));
    return bKind && !bInside;
}

QSet<QAccessible::Role> rolesOf(const QWidget* pWidget)
{
    if (qobject_cast<const QTreeView*>(pWidget) != nullptr) {
        return {QAccessible::Tree};
    }
    if (qobject_cast<const QTableView*>(pWidget) != nullptr) {
        return {QAccessible::Table};
    }
    if (qobject_cast<const QComboBox*>(pWidget) != nullptr) {
        return {QAccessible::ComboBox};
    }
    if (qobject_cast<const QProgressBar*>(pWidget) != nullptr) {
        return {QAccessible::ProgressBar};
    }
    if (qobject_cast<const QAbstractButton*>(pWidget) != nullptr) {
        return {QAccessible::Button, QAccessible::ButtonMenu, QAccessible::CheckBox, QAccessible::RadioButton};
    }
    // A text that is only read is one of the static ones.
    const QTextEdit* pText = qobject_cast<const QTextEdit*>(pWidget);
    return {pText != nullptr && pText->isReadOnly() ? QAccessible::StaticText : QAccessible::EditableText};
}

void checkNameAndRole(QWidget* pWidget, QStringList& lstFaults)
{
    QAccessibleInterface* pInterface = QAccessible::queryAccessibleInterface(pWidget);
    if (pInterface == nullptr) {
        lstFaults << describe(pWidget) + " is nothing";
        return;
    }
    if (pInterface->text(QAccessible::Name).trimmed().isEmpty()) {
        lstFaults << describe(pWidget) + " has no name";
    }
    if (!rolesOf(pWidget).contains(pInterface->role())) {
        lstFaults << describe(pWidget) + QStringLiteral(" has role %1").arg(pInterface->role());
    }
}

// Parts that the keyboard works in other ways: Escape is the number picker's Cancel, and a progress bar is only read.
// Of a group of buttons of which one is chosen, Tab reaches that one, and the arrows the others.
bool needsNoTab(const QWidget* pWidget)
{
    const QAbstractButton* pButton = qobject_cast<const QAbstractButton*>(pWidget);
    const bool bInGroup = pButton != nullptr && pButton->group() != nullptr && pButton->group()->exclusive();
    return bInGroup || qobject_cast<const QProgressBar*>(pWidget) != nullptr ||
           pWidget->objectName() == QLatin1String("ChoosePhoneNumber_buttonCancel");
}

void checkTabs(QWidget* pWindow, const QList<QWidget*>& listParts, QStringList& lstFaults)
{
    const QPointer<QWidget> pBefore = QApplication::focusWidget();
    QSet<QWidget*> reached;
    // A text with links takes a key for each of them.
    for (int i = 0; i < 60 + 2 * listParts.size(); ++i) {
        QWidget* pFocus = QApplication::focusWidget();
        if (pFocus == nullptr || pFocus->window() != pWindow) {
            break;
        }
        reached.insert(pFocus);
        QTest::keyClick(pFocus, Qt::Key_Tab);
    }
    foreach (QWidget* pWidget, listParts) {
        if (pWidget->isEnabled() && !needsNoTab(pWidget) && !reached.contains(pWidget)) {
            lstFaults << describe(pWidget) + " is not reached with Tab";
        }
    }
    if (pBefore) {
        pBefore->setFocus();
    }
}

} // namespace

QStringList Inspector::Faults(QWidget* pWindow)
{
    QStringList lstFaults;
    // Qt's own dialog is Qt's, and a menu names its entries by their texts.
    if (qobject_cast<QFileDialog*>(pWindow) != nullptr || qobject_cast<QMenu*>(pWindow) != nullptr) {
        return lstFaults;
    }
    QList<QWidget*> listParts;
    foreach (QWidget* pWidget, pWindow->findChildren<QWidget*>()) {
        if (isPart(pWidget) && pWidget->isVisible() && pWidget->window() == pWindow) {
            listParts << pWidget;
            checkNameAndRole(pWidget, lstFaults);
        }
    }
    // While a group's name is being written, Tab ends that.
    const QWidget* pFocus = QApplication::focusWidget();
    const bool bEditing = pFocus != nullptr && pFocus->parentWidget() != nullptr &&
                          pFocus->parentWidget()->parentWidget() != nullptr &&
                          qobject_cast<const QAbstractItemView*>(pFocus->parentWidget()->parentWidget()) != nullptr;
    if (!bEditing) {
        checkTabs(pWindow, listParts, lstFaults);
    }
    return lstFaults;
}
