#include "SceneParts.h"

#include <QAbstractButton>
#include <QDir>
#include <QHeaderView>
#include <QMessageBox>
#include <QProcess>
#include <QTableWidget>
#include <QTextEdit>
#include <QTreeWidget>
#include <QtTest>

#include "window/MainWindow.h"

QString Scenes::csvFile()
{
    return QDir::home().filePath("contacts.csv");
}

QWidget* Scenes::windowOf(const char* pszName)
{
    QWidget* pWidget = seen(pszName);
    return pWidget != nullptr ? pWidget->window() : nullptr;
}

void Scenes::click(const char* pszName)
{
    if (QAbstractButton* pButton = Child<QAbstractButton>(pszName)) {
        pButton->click();
    }
}

void Scenes::phonebook(const char* pszSlot)
{
    foreach (QWidget* pWidget, QApplication::allWidgets()) {
        if (pWidget->inherits("AddrBookDlg")) {
            QMetaObject::invokeMethod(pWidget, pszSlot);
            return;
        }
    }
}

QTreeWidgetItem* Scenes::node(int iRoot, int iGroup)
{
    QTreeWidget* pTree = Child<QTreeWidget>(TREE);
    QTreeWidgetItem* pItem = pTree != nullptr ? pTree->topLevelItem(iRoot) : nullptr;
    return pItem != nullptr && iGroup >= 0 ? pItem->child(iGroup) : pItem;
}

void Scenes::clickNode(QTreeWidgetItem* pItem)
{
    if (pItem != nullptr) {
        QTreeWidget* pTree = pItem->treeWidget();
        pTree->setFocus();
        // Large letters reach out of the tree.
        pTree->scrollToItem(pItem);
        const QRect rectSeen = pTree->visualItemRect(pItem) & pTree->viewport()->rect();
        QTest::mouseClick(pTree->viewport(), Qt::LeftButton, Qt::NoModifier, rectSeen.center());
    }
}

// Qt's own way to select a row finds no column in a table that runs from right to left.
void Scenes::selectFirst(QTableWidget* pTable)
{
    pTable->clearSelection();
    pTable->setFocus();
    pTable->setCurrentCell(0, 0);
}

// True once the table shows so many rows, the first of which is selected then, as the preview tells.
bool Scenes::shown(int iLeast)
{
    QTableWidget* pTable = seen<QTableWidget>(TABLE);
    const QTextEdit* pPreview = seen<QTextEdit>("AddrBookUIPlugin_labelPreview");
    if (pTable == nullptr || pPreview == nullptr || pTable->rowCount() < iLeast) {
        return false;
    }
    // A read restores the order that the user left, and so the order in which the director found the table.
    if (pTable->horizontalHeader()->sortIndicatorSection() != 0) {
        pTable->horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
        return false;
    }
    const QString strName = pTable->item(0, 0) != nullptr ? pTable->item(0, 0)->text() : QString();
    if (!pPreview->toPlainText().contains(strName) || pTable->selectedItems().isEmpty()) {
        selectFirst(pTable);
        return false;
    }
    return true;
}

QWidget* Scenes::mainWindowIf(bool bCondition)
{
    return bCondition ? Scenes::Main() : nullptr;
}

// A real key: only from the keyboard does Qt make a context menu of it.
void Scenes::menuKey()
{
    QProcess::startDetached("xdotool", {"key", "Menu"});
}

void Scenes::answerBox(bool bYes)
{
    later([bYes] {
        QMessageBox* pBox = qobject_cast<QMessageBox*>(modal("QMessageBox"));
        if (pBox != nullptr && !pBox->buttons().isEmpty()) {
            (bYes ? pBox->buttons().first() : pBox->buttons().last())->click();
        }
        return pBox != nullptr;
    });
}

Scene Scenes::scene(const char* pszName, const std::function<void()>& open, const std::function<QWidget*()>& find,
                    const std::function<void()>& close)
{
    return Scene{QString::fromLatin1(pszName), open, find, close};
}
