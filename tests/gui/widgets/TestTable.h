#ifndef TESTS_GUI_WIDGETS_TESTTABLE_H
#define TESTS_GUI_WIDGETS_TESTTABLE_H

#include <QApplication>
#include <QDrag>
#include <QHeaderView>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QtTest>

#include <memory>
#include <vector>

#include "logic/ItemData.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/UITableItem.h"

Q_DECLARE_METATYPE(QTableWidgetItem*) // for signal spies

// A contact table of three columns, 100 pixels each, rows 16 pixels high, that owns the blocks behind its cells. It
// notes each drag as it starts; on the offscreen platform a drag ends as soon as it has begun.
class TestTable : public AddrBookTableWidget
{
public:
    using AddrBookTableWidget::keyPressEvent;
    using AddrBookTableWidget::m_ptPress;
    using AddrBookTableWidget::m_strDragData;
    using AddrBookTableWidget::mouseDoubleClickEvent;
    using AddrBookTableWidget::mouseMoveEvent;
    using AddrBookTableWidget::mousePressEvent;
    using AddrBookTableWidget::mouseReleaseEvent;

    TestTable() : AddrBookTableWidget(nullptr)
    {
        setColumnCount(3);
        for (int column = 0; column < 3; ++column)
            setColumnWidth(column, 100);
        verticalHeader()->hide();
        verticalHeader()->setMinimumSectionSize(16);
        verticalHeader()->setDefaultSectionSize(16);
        setSelectionBehavior(QAbstractItemView::SelectRows);
        setSelectionMode(QAbstractItemView::ExtendedSelection);
        setEditTriggers(QAbstractItemView::NoEditTriggers);
        resize(400, 300);
    }

    void addContact(int record, int group)
    {
        const int row = rowCount();
        setRowCount(row + 1);
        for (int column = 0; column < columnCount(); ++column) {
            auto* cell = new UITableItem(QString("%1/%2").arg(record).arg(column));
            blocks.push_back(std::make_unique<TableRowData>(TableRowData{PB_MEM_LOCAL, record, group}));
            cell->setData(Qt::UserRole, pointerToCarrier(blocks.back().get()));
            setItem(row, column, cell);
        }
    }

    void open()
    {
        show();
        QVERIFY(QTest::qWaitForWindowExposed(this));
    }

    void selectRows(const QList<int>& rows)
    {
        clearSelection();
        for (int row : rows)
            selectionModel()->select(model()->index(row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }

    QList<int> selectedRows() const
    {
        QList<int> rows;
        for (const QModelIndex& index : selectionModel()->selectedRows())
            rows << index.row();
        std::sort(rows.begin(), rows.end());
        return rows;
    }

    // A point at x pixels from the left edge of a cell, in the middle of its height.
    QPoint at(int row, int column, int x) const
    {
        const QRect cell = visualRect(model()->index(row, column));
        return {cell.left() + x, cell.center().y()};
    }
    QPoint leftHalf(int row, int column = 0) const { return at(row, column, 20); }
    QPoint rightHalf(int row, int column = 0) const { return at(row, column, 80); }
    QPoint emptyArea() const { return {50, viewport()->height() - 5}; }

    void mouse(QEvent::Type type, QPoint point, Qt::MouseButton button, Qt::MouseButtons held,
               Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        QMouseEvent event(type, point, viewport()->mapToGlobal(point), button, held, keys);
        QApplication::sendEvent(viewport(), &event);
    }
    void press(QPoint point, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        mouse(QEvent::MouseButtonPress, point, button, button, keys);
    }
    void release(QPoint point, Qt::MouseButton button = Qt::LeftButton)
    {
        mouse(QEvent::MouseButtonRelease, point, button, Qt::NoButton);
    }
    void move(QPoint point, Qt::MouseButtons held = Qt::LeftButton)
    {
        mouse(QEvent::MouseMove, point, Qt::NoButton, held);
    }
    void doubleClick(QPoint point) { mouse(QEvent::MouseButtonDblClick, point, Qt::LeftButton, Qt::LeftButton); }

    // The drags so far, oldest first; one that Qt has deleted already is null. Their class is not known yet when they
    // come as children, so they are told apart here.
    QList<QPointer<QDrag>> drags()
    {
        for (const QPointer<QObject>& child : newChildren) {
            if (auto* drag = qobject_cast<QDrag*>(child.data()))
                allDrags << drag;
        }
        newChildren.clear();
        return allDrags;
    }

    // What the last drag carried under a name.
    QByteArray dragged(const char* format)
    {
        const QList<QPointer<QDrag>> known = drags();
        if (known.isEmpty() || known.last().isNull())
            return "no drag";
        return known.last()->mimeData()->data(QString::fromLatin1(format));
    }

protected:
    void childEvent(QChildEvent* event) override
    {
        if (event->added())
            newChildren << event->child();
        AddrBookTableWidget::childEvent(event);
    }

private:
    QList<QPointer<QObject>> newChildren;
    QList<QPointer<QDrag>> allDrags;
    std::vector<std::unique_ptr<TableRowData>> blocks;
};

#endif // TESTS_GUI_WIDGETS_TESTTABLE_H
