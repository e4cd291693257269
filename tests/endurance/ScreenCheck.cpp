#include "ScreenCheck.h"

#include <QApplication>
#include <QRegularExpression>
#include <QTableWidget>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QtTest>

#include "RandomUser.h"
#include "Store.h"
#include "app/Services.h"
#include "logic/ItemData.h"
#include "orva/orva_sim.h"

namespace
{
const int s_iLimitMs = 60000;

// The first number behind the last opening bracket: "Friends(20)", "SIM card(3/250)". From right to left, marks of
// direction stand about the brackets.
int countIn(QString text)
{
    text.remove(QChar(0x200e)).remove(QChar(0x200f));
    const QRegularExpressionMatch match = QRegularExpression("\\((\\d+)(/\\d+)?\\)$").match(text);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

QTreeWidgetItem* otherThan(QTreeWidget* tree, const QTreeWidgetItem* item)
{
    for (QTreeWidgetItemIterator it(tree); *it != nullptr; ++it) {
        if (*it != item)
            return *it;
    }
    return nullptr;
}

int expectedOf(const TreeNodeData* data)
{
    if (const AddrBookGroup* group = groupOf(data))
        return Store::groupSizes().value(group->iGroupID, -1);
    return Store::records(int(data->iMemoryOrGroup));
}
} // namespace

bool ScreenCheck::isAtRest() const
{
    const QTableWidget* table = Screen::table();
    return m_services.Workers().Running() == 0 && (table == nullptr || table->isSortingEnabled());
}

QString ScreenCheck::run() const
{
    ORVA_Sim_WaitEvents();
    QCoreApplication::sendPostedEvents();
    if (!QTest::qWaitFor([this] { return isAtRest(); }, s_iLimitMs))
        return "does not come to rest: " + m_services.Workers().Names().join(", ");
    const QTreeWidget* tree = Screen::tree();
    if (tree == nullptr)
        return "no tree";
    for (int node = 0; node < tree->topLevelItemCount(); ++node) {
        for (int child = -1; child < tree->topLevelItem(node)->childCount(); ++child) {
            const QString wrong = checkNode(node, child);
            if (!wrong.isEmpty())
                return wrong;
        }
    }
    return QString();
}

bool ScreenCheck::click(QTreeWidget* tree, QTreeWidgetItem* item) const
{
    tree->scrollToItem(item);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier,
                      Screen::shown(tree, tree->visualItemRect(item)));
    return QTest::qWaitFor([this] { return isAtRest(); }, s_iLimitMs);
}

QString ScreenCheck::checkNode(int node, int child) const
{
    QTreeWidget* tree = Screen::tree();
    QTreeWidgetItem* item = tree->topLevelItem(node);
    if (child >= 0)
        item = item->child(child);
    const TreeNodeData* data = treeNodeData(item);
    if (data == nullptr)
        return "a node without data: " + item->text(0);
    const int expected = expectedOf(data);
    const QString text = item->text(0);
    if (countIn(text) != expected)
        return QString("the tree says %1, the store %2").arg(text).arg(expected);
    const QString before = tree->currentItem() != nullptr ? tree->currentItem()->text(0) : QString("no node");
    // A click on the current node changes nothing, and what the search box narrows stays narrowed.
    QTreeWidgetItem* other = otherThan(tree, item);
    if (tree->currentItem() == item && other == nullptr)
        return QString();
    if (tree->currentItem() == item && !click(tree, other))
        return "the table is not filled: " + other->text(0);
    if (!click(tree, item))
        return "the table is not filled: " + text;
    if (Screen::table() == nullptr || Screen::table()->rowCount() != expected)
        return QString("%1 shows %2 rows after a click coming from %3, the store has %4")
            .arg(text)
            .arg(Screen::table() != nullptr ? Screen::table()->rowCount() : -1)
            .arg(before)
            .arg(expected);
    return QString();
}
