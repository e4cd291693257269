#include "Fit.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QScreen>
#include <QTabBar>
#include <QTableWidget>
#include <QTreeView>
#include <QWindow>
#include <QtTest>

#include "linkhand/QtCompat.h"

namespace
{

QString sizeText(const QSize& size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

QString nameOf(const QWidget* pWidget)
{
    return QStringLiteral("%1 %2").arg(pWidget->metaObject()->className(), pWidget->objectName());
}

void checkScreen(const QWidget* pWindow, QStringList& lstFaults)
{
    const QRect rectFree = pWindow->windowHandle()->screen()->availableGeometry();
    // Without the frame, and of a dialog the size alone: on a scaled display Qt sometimes tells borders that leave
    // nothing of the window, and the place that the window had before it got its frame.
    const QPointer<const QWidget> pHeld(pWindow);
    const auto lies = [&] {
        return pHeld.isNull() ||
               rectFree.contains(pHeld->parentWidget() == nullptr ? pHeld->geometry()
                                                                  : QRect(rectFree.topLeft(), pHeld->size()));
    };
    if (QTest::qWaitFor(lies)) {
        return;
    }
    const QRect rect = pWindow->geometry();
    lstFaults << QStringLiteral("%1 at %2,%3 of %4 is not within the screen of %5")
                     .arg(nameOf(pWindow))
                     .arg(rect.x())
                     .arg(rect.y())
                     .arg(sizeText(rect.size()), sizeText(rectFree.size()));
}

// A layout that has too little room makes its widgets smaller than they can be.
void checkControl(const QWidget* pControl, QStringList& lstFaults)
{
    const QSize needs = pControl->minimumSizeHint().boundedTo(pControl->maximumSize());
    if (pControl->width() < needs.width() || pControl->height() < needs.height()) {
        lstFaults
            << QStringLiteral("%1 needs %2, has %3").arg(nameOf(pControl), sizeText(needs), sizeText(pControl->size()));
    }
}

void checkRows(const QTableWidget* pTable, int iHeight, QStringList& lstFaults)
{
    for (int i = 0; i < pTable->rowCount(); ++i) {
        if (pTable->rowHeight(i) != iHeight) {
            lstFaults << QStringLiteral("%1: row %2 is %3 high").arg(nameOf(pTable)).arg(i).arg(pTable->rowHeight(i));
        }
    }
}

// The phonebook's tree makes its letters smaller as it draws them.
void checkLetters(const QTreeView* pTree, QStringList& lstFaults)
{
    const int iRow = pTree->visualRect(pTree->indexAt(QPoint(1, 1))).height();
    if (iRow > 0 && iRow < pTree->fontMetrics().height() && !pTree->inherits("PBTreeWidget")) {
        lstFaults << QStringLiteral("%1: letters of %2 in rows of %3")
                         .arg(nameOf(pTree))
                         .arg(pTree->fontMetrics().height())
                         .arg(iRow);
    }
}

// What Qt puts into its own widgets as it likes.
bool isQtsOwn(const QWidget* pWidget)
{
    const QWidget* pParent = pWidget->parentWidget();
    return pWidget->window()->inherits("QFileDialog") || qobject_cast<const QComboBox*>(pParent) != nullptr ||
           qobject_cast<const QTabBar*>(pParent) != nullptr || pWidget->inherits("QExpandingLineEdit");
}

} // namespace

QStringList Fit::Faults(QWidget* pWidget)
{
    QStringList lstFaults;
    checkScreen(pWidget->window(), lstFaults);
    foreach (const QWidget* pChild, pWidget->findChildren<QWidget*>()) {
        if (!pChild->isVisibleTo(pWidget) || isQtsOwn(pChild)) {
            continue;
        }
        if (qobject_cast<const QAbstractButton*>(pChild) != nullptr ||
            qobject_cast<const QComboBox*>(pChild) != nullptr || qobject_cast<const QLineEdit*>(pChild) != nullptr ||
            (qobject_cast<const QAbstractScrollArea*>(pChild) != nullptr &&
             qobject_cast<const QHeaderView*>(pChild) == nullptr)) {
            checkControl(pChild, lstFaults);
        }
        const QTableWidget* pTable = qobject_cast<const QTableWidget*>(pChild);
        if (pTable != nullptr && pTable->objectName() == QLatin1String("AddrBookUIPlugin_ContactTable")) {
            checkRows(pTable, 16, lstFaults);
        }
        if (const QTreeView* pTree = qobject_cast<const QTreeView*>(pChild)) {
            checkLetters(pTree, lstFaults);
        }
    }
    return lstFaults;
}
