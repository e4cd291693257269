#include "TextFit.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QStyleOption>
#include <QToolButton>
#include <QTreeWidget>
#include <QtMath>

#include "AddrBookUIPlugin/widgets/RowFont.h"
#include "window/NavButton.h"

namespace
{

QString plain(QString strText)
{
    return strText.remove(QLatin1Char('&'));
}

int widthOf(const QWidget* pWidget, const QString& strText)
{
    return pWidget->fontMetrics().horizontalAdvance(plain(strText));
}

QString note(const QWidget* pWidget, const QString& strText, int iNeeds, int iHas)
{
    return QStringLiteral("%1 %2: \"%3\" needs %4, has %5")
        .arg(pWidget->metaObject()->className(), pWidget->objectName(), strText)
        .arg(iNeeds)
        .arg(iHas);
}

void compare(const QWidget* pWidget, const QString& strText, const QSize& needs, const QSize& has,
             QStringList& lstProblems)
{
    if (needs.width() > has.width()) {
        lstProblems << note(pWidget, strText, needs.width(), has.width());
    }
    if (needs.height() > has.height()) {
        lstProblems << note(pWidget, strText + " (height)", needs.height(), has.height());
    }
}

void checkLabel(const QLabel* pLabel, QStringList& lstProblems)
{
    if (pLabel->text().isEmpty()) {
        return;
    }
    const int iMargin = 2 * pLabel->margin();
    const QSize has = pLabel->contentsRect().size() - QSize(iMargin, iMargin);
    // Only a label with a buddy has a mnemonic.
    const QString strShown = pLabel->buddy() != nullptr ? plain(pLabel->text()) : pLabel->text();
    // Where a line can be broken it is: what counts is the longest word, and the height of the lines.
    const QSizeF exact = QFontMetricsF(pLabel->font())
                             .boundingRect(QRectF(QPointF(), QSizeF(has.width(), 10000)),
                                           pLabel->wordWrap() ? Qt::TextWordWrap : Qt::TextSingleLine, strShown)
                             .size();
    // Qt 6 has heights in parts of a pixel.
    const QSize needs(qCeil(exact.width()), qFloor(exact.height()));
    // How high lines are that break, the label says. A layout on a scaled display rounds, and a pixel is no part of a
    // letter.
    const bool bBreaks = pLabel->wordWrap() && pLabel->hasHeightForWidth();
    const int iNeeds =
        bBreaks ? pLabel->heightForWidth(pLabel->width()) - pLabel->height() + has.height() - 1 : needs.height();
    compare(pLabel, pLabel->text(), QSize(needs.width(), iNeeds), has, lstProblems);
}

void checkButton(const QAbstractButton* pButton, QStringList& lstProblems)
{
    const QToolButton* pTool = qobject_cast<const QToolButton*>(pButton);
    const NavButton* pNav = qobject_cast<const NavButton*>(pButton);
    if (pNav != nullptr && pNav->IsPicture()) {
        return;
    }
    if (pButton->text().isEmpty() || (pTool != nullptr && pTool->toolButtonStyle() == Qt::ToolButtonIconOnly)) {
        return;
    }
    QSize has = pButton->size();
    if (qobject_cast<const QPushButton*>(pButton) != nullptr) {
        QStyleOptionButton option;
        option.initFrom(pButton);
        has = pButton->style()->subElementRect(QStyle::SE_PushButtonContents, &option, pButton).size();
    } else if (qobject_cast<const QCheckBox*>(pButton) != nullptr) {
        QStyleOptionButton option;
        option.initFrom(pButton);
        option.text = pButton->text();
        has = pButton->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, pButton).size();
    } else if (!pButton->icon().isNull()) {
        has.rwidth() -= pButton->iconSize().width() + 4;
    }
    // The line's own height is less than its letters' where the widget gives no more.
    const QSize needs(widthOf(pButton, pButton->text()), pButton->fontMetrics().ascent());
    compare(pButton, pButton->text(), needs, has, lstProblems);
}

void checkComboBox(QComboBox* pBox, QStringList& lstProblems)
{
    // Paths of folders in Qt's file dialog, as long as they happen to be.
    if (pBox->objectName() == QLatin1String("lookInCombo")) {
        return;
    }
    QStyleOptionComboBox option;
    option.initFrom(pBox);
    option.subControls = QStyle::SC_All;
    const QSize has =
        pBox->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, pBox).size();
    for (int i = 0; i < pBox->count(); ++i) {
        compare(pBox, pBox->itemText(i), QSize(widthOf(pBox, pBox->itemText(i)), 0), has, lstProblems);
    }
}

void checkLineEdit(const QLineEdit* pEdit, QStringList& lstProblems)
{
    QStyleOptionFrame option;
    option.initFrom(pEdit);
    const QSize has = pEdit->style()->subElementRect(QStyle::SE_LineEditContents, &option, pEdit).size();
    compare(pEdit, pEdit->placeholderText(), QSize(widthOf(pEdit, pEdit->placeholderText()), 0), has, lstProblems);
    if (pEdit->height() < pEdit->fontMetrics().height()) {
        lstProblems << note(pEdit, pEdit->text() + " (height)", pEdit->fontMetrics().height(), pEdit->height());
    }
}

void checkHeader(const QHeaderView* pHeader, QStringList& lstProblems)
{
    if (pHeader->orientation() != Qt::Horizontal) {
        return;
    }
    for (int i = 0; i < pHeader->count(); ++i) {
        if (pHeader->isSectionHidden(i)) {
            continue;
        }
        const QString strText = pHeader->model()->headerData(i, Qt::Horizontal).toString();
        int iNeeds = widthOf(pHeader, strText);
        if (pHeader->isSortIndicatorShown() && pHeader->sortIndicatorSection() == i) {
            iNeeds += pHeader->style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, pHeader);
        }
        compare(pHeader, strText, QSize(iNeeds, pHeader->fontMetrics().ascent()),
                QSize(pHeader->sectionSize(i) - 2, pHeader->height()), lstProblems);
    }
}

// The roots alone: groups are named by the user.
void checkTree(QTreeWidget* pTree, QStringList& lstProblems)
{
    if (!pTree->isHeaderHidden()) {
        return;
    }
    for (int i = 0; i < pTree->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* pItem = pTree->topLevelItem(i);
        // Rows keep their height, and their letters fit it.
        const QFont font = fontFitting(pTree->font(), pTree->visualItemRect(pItem).height());
        const int iNeeds = QFontMetrics(font).horizontalAdvance(pItem->text(0));
        int iHas = pTree->visualItemRect(pItem).width();
        if (!pItem->icon(0).isNull()) {
            iHas -= pTree->style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, pTree) + 4;
        }
        compare(pTree, pItem->text(0), QSize(iNeeds, 0), QSize(iHas, 0), lstProblems);
        // Rows that the view gives no room at all are not looked at, hence the width of the view as well.
        compare(pTree, pItem->text(0), QSize(iNeeds, 0), pTree->viewport()->size(), lstProblems);
    }
}

// What a scroll area holds may be larger than it, and what a style draws may stand out by a pixel.
void checkPlace(const QWidget* pWidget, const QWidget* pRoot, QStringList& lstProblems)
{
    const QWidget* pParent = pWidget->parentWidget();
    if (pWidget == pRoot || pParent == nullptr || pWidget->isWindow() || !pWidget->isVisibleTo(pRoot)) {
        return;
    }
    for (const QWidget* pAbove = pParent; pAbove != nullptr; pAbove = pAbove->parentWidget()) {
        if (qobject_cast<const QAbstractScrollArea*>(pAbove) != nullptr) {
            return;
        }
    }
    if (!pParent->rect().adjusted(-1, -1, 1, 1).contains(pWidget->geometry())) {
        lstProblems << QStringLiteral("%1 %2 reaches out of its parent")
                           .arg(pWidget->metaObject()->className(), pWidget->objectName());
    }
}

void checkMenu(const QMenu* pMenu, QStringList& lstProblems)
{
    if (!QGuiApplication::primaryScreen()->geometry().contains(pMenu->geometry())) {
        lstProblems << QStringLiteral("menu %1 is larger than the screen").arg(pMenu->objectName());
    }
}

void check(QWidget* pWidget, const QWidget* pRoot, QStringList& lstProblems)
{
    checkPlace(pWidget, pRoot, lstProblems);
    if (QLabel* pLabel = qobject_cast<QLabel*>(pWidget)) {
        checkLabel(pLabel, lstProblems);
    } else if (QAbstractButton* pButton = qobject_cast<QAbstractButton*>(pWidget)) {
        checkButton(pButton, lstProblems);
    } else if (QComboBox* pBox = qobject_cast<QComboBox*>(pWidget)) {
        checkComboBox(pBox, lstProblems);
    } else if (QLineEdit* pEdit = qobject_cast<QLineEdit*>(pWidget)) {
        checkLineEdit(pEdit, lstProblems);
    } else if (QHeaderView* pHeader = qobject_cast<QHeaderView*>(pWidget)) {
        checkHeader(pHeader, lstProblems);
    } else if (QTreeWidget* pTree = qobject_cast<QTreeWidget*>(pWidget)) {
        checkTree(pTree, lstProblems);
    } else if (QMenu* pMenu = qobject_cast<QMenu*>(pWidget)) {
        checkMenu(pMenu, lstProblems);
    }
}

} // namespace

QStringList TextFit::Cut(QWidget* pRoot)
{
    QStringList lstProblems;
    check(pRoot, pRoot, lstProblems);
    foreach (QWidget* pWidget, pRoot->findChildren<QWidget*>()) {
        if (pWidget->isVisibleTo(pRoot)) {
            check(pWidget, pRoot, lstProblems);
        }
    }
    return lstProblems;
}
