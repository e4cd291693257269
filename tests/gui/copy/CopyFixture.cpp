#include "CopyFixture.h"

#include <QColor>
#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QLoggingCategory>
#include <QMimeData>

CopyFixture::CopyFixture()
{
    QLoggingCategory::setFilterRules("default.debug=false\ndefault.warning=false");
    makeUsageFolder();
}

std::unique_ptr<QMimeData> CopyFixture::take(QTreeWidgetItem* source, const QStringList& names)
{
    click(source);
    QList<int> rows;
    for (const QString& name : names)
        rows << rowOf(name);
    selectRows(rows);
    window()->OnTableItemClicked();
    QByteArray ids;
    for (int row : rows) {
        const TableRowData* data = tableRowData(table()->item(row, 0));
        if (data != nullptr)
            ids += QByteArray::number(data->iRecordID) + "-1" + QByteArray::number(data->iGroupID) + "-1";
    }
    auto carried = std::make_unique<QMimeData>();
    carried->setData("Text/stringids", ids);
    carried->setData("Text/colordata", QVariant(QColor(Qt::transparent)).toByteArray());
    return carried;
}

bool CopyFixture::hover(const QMimeData& rows, QTreeWidgetItem* target) const
{
    const QPoint over = tree()->visualItemRect(target).center();
    QDragEnterEvent enter(over, Qt::CopyAction | Qt::MoveAction, &rows, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(tree()->viewport(), &enter);
    QDragMoveEvent move(over, Qt::CopyAction | Qt::MoveAction, &rows, Qt::LeftButton, Qt::NoModifier);
    move.ignore();
    QApplication::sendEvent(tree()->viewport(), &move);
    return enter.isAccepted() && move.isAccepted();
}

void CopyFixture::release(const QMimeData& rows, QTreeWidgetItem* target, Qt::KeyboardModifiers keys) const
{
    QDropEvent event(tree()->visualItemRect(target).center(), Qt::CopyAction | Qt::MoveAction, &rows, Qt::LeftButton,
                     keys);
    QApplication::sendEvent(tree()->viewport(), &event);
}

bool CopyFixture::drop(QTreeWidgetItem* source, const QStringList& names, QTreeWidgetItem* target,
                       Qt::KeyboardModifiers keys)
{
    const std::unique_ptr<QMimeData> rows = take(source, names);
    if (!hover(*rows, target))
        return false;
    release(*rows, target, keys);
    return true;
}

void CopyFixture::dropList(const QList<QString>& list) const
{
    tree()->m_listDragData = list;
    tree()->m_bDropped = true;
    window()->OnTreeItemSelectionChanged();
}

QStringList CopyFixture::stored(int memory)
{
    QStringList texts;
    for (const QStringList& values : all(memory))
        texts << values.value(0) + "=" + values.value(1);
    return texts;
}

QList<QStringList> CopyFixture::all(int memory)
{
    QList<QStringList> records;
    for (int id : FakeSdk::recordIds(memory))
        records << FakeSdk::record(memory, id);
    return records;
}

QString CopyFixture::counter()
{
    for (const QLabel* label : waiting()->findChildren<QLabel*>()) {
        if (label->width() == 220)
            return label->text();
    }
    return "-";
}

int CopyFixture::steps()
{
    return waiting()->findChild<QProgressBar*>()->maximum();
}
