#ifndef TESTS_GUI_WIDGETS_TESTTREE_H
#define TESTS_GUI_WIDGETS_TESTTREE_H

#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QtTest>

#include <memory>
#include <vector>

#include "logic/AddrBookLogic.h"
#include "logic/ItemData.h"
#include "widgets/PBTreeWidget.h"

Q_DECLARE_METATYPE(QTreeWidgetItem*) // for signal spies

// The tree with the PC's root over two groups (identifiers 1 and 2), the card and the device, fully expanded.
class TestTree : public PBTreeWidget
{
public:
    using PBTreeWidget::dragEnterEvent;
    using PBTreeWidget::dragMoveEvent;
    using PBTreeWidget::dropEvent;
    using PBTreeWidget::keyPressEvent;

    TestTree() : PBTreeWidget(nullptr)
    {
        setColumnCount(1);
        header()->hide();
        setAcceptDrops(true);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        local = add(nullptr, "PC", PB_MEM_LOCAL);
        group1 = addGroup("Friends", 1);
        group2 = addGroup("Work", 2);
        card = add(nullptr, "SIM", PB_MEM_SIM);
        device = add(nullptr, "Device", PB_MEM_ME);
        expandAll();
        resize(200, 300);
    }

    QTreeWidgetItem* add(QTreeWidgetItem* parent, const QString& text, qlonglong value)
    {
        auto* node = parent != nullptr ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(this);
        node->setText(0, text);
        blocks.push_back(std::make_unique<TreeNodeData>(TreeNodeData{value, 0, false, Qt::AscendingOrder}));
        node->setData(0, Qt::UserRole, pointerToCarrier(blocks.back().get()));
        return node;
    }

    QTreeWidgetItem* addGroup(const QString& name, int id)
    {
        groups.push_back(std::make_unique<AddrBookGroup>());
        groups.back()->iGroupID = id;
        groups.back()->strName = name;
        return add(local, name, pointerToCarrier(groups.back().get()));
    }

    QTreeWidgetItem* node(const QString& text) const
    {
        return findItems(text, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }

    // The table shows a node: what a click on it writes.
    void showNode(QTreeWidgetItem* shown)
    {
        setCurrentItem(shown);
        m_pitemPrevious = shown;
        m_enDragMemory = PB_MEM_LOCAL;
        m_iDragGroupId = 0;
        getGroupId(shown, m_enDragMemory, m_iDragGroupId);
    }

    QPoint over(const QTreeWidgetItem* target) const { return visualItemRect(target).center(); }
    QPoint emptyArea() const { return {50, viewport()->height() - 5}; }

    // True if the event was accepted.
    bool enter(const QMimeData& carried)
    {
        QDragEnterEvent event(over(local), Qt::CopyAction | Qt::MoveAction, &carried, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        dragEnterEvent(&event);
        return event.isAccepted();
    }
    bool hover(QPoint point, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        QMimeData carried;
        QDragMoveEvent event(point, Qt::CopyAction | Qt::MoveAction, &carried, Qt::LeftButton, keys);
        event.setAccepted(false);
        dragMoveEvent(&event);
        return event.isAccepted();
    }
    bool hover(const QTreeWidgetItem* target) { return hover(over(target)); }
    bool drop(const QMimeData& carried, QPoint point, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        QDropEvent event(point, Qt::CopyAction | Qt::MoveAction, &carried, Qt::LeftButton, keys);
        event.ignore();
        dropEvent(&event);
        return event.isAccepted();
    }

    QTreeWidgetItem* local;
    QTreeWidgetItem* group1;
    QTreeWidgetItem* group2;
    QTreeWidgetItem* card;
    QTreeWidgetItem* device;

private:
    std::vector<std::unique_ptr<TreeNodeData>> blocks;
    std::vector<std::unique_ptr<AddrBookGroup>> groups;
};

// What the contact table drags.
inline std::unique_ptr<QMimeData> contacts(const QByteArray& ids = "12-13-17-13-1")
{
    auto data = std::make_unique<QMimeData>();
    data->setData("Text/stringids", ids);
    data->setData("Text/colordata", QVariant(QColor(Qt::transparent)).toByteArray());
    return data;
}

#endif // TESTS_GUI_WIDGETS_TESTTREE_H
