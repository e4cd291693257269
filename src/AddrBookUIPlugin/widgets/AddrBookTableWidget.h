#ifndef ADDRBOOKUIPLUGIN_ADDRBOOKTABLEWIDGET_H
#define ADDRBOOKUIPLUGIN_ADDRBOOKTABLEWIDGET_H

#include <QModelIndex>
#include <QPoint>
#include <QString>
#include <QTableWidget>

#include "widgets/RunningDrag.h"

struct TableRowData;

// The table of contacts, one contact a row. The left half of each cell starts a drag of the selected rows, the right
// half selects as usual. User-interface thread only; while the host shuts down, input does nothing.
//
// A drag carries two entries. "Text/stringids" is, for each selected row, the record's identifier, "-1", the group's
// identifier, "-1": records 12 and 7 out of group 3 are "12-13-17-13-1". "Text/colordata" is a colour, the mark of
// origin that the tree tests for.
class AddrBookTableWidget : public QTableWidget
{
    Q_OBJECT
    Q_PROPERTY(QString dragData READ dragData)

public:
    AddrBookTableWidget(int iRows, int iColumns, QWidget* pParent);
    explicit AddrBookTableWidget(QWidget* pParent);

    // selectedIndexes(), for everybody.
    QModelIndexList GetSelectedIndexes() const;

    // What "Text/stringids" of a drag of the selected rows would be, for those who copy them by key.
    QString dragData() const;

    // Where the current cell is: the menu key opens the context menu there.
    QVariant inputMethodQuery(Qt::InputMethodQuery enQuery) const override;

    // What stands in the table while it has no rows, and what it is described as to a screen reader then.
    void SetEmptyText(const QString& strText);

public slots:
    // deleteContact(), if something is selected.
    void OnShortKeyDelContact();

    // editContact(), if exactly one row is selected.
    void OnShortKeyEditContact();

    // A drag of this table has come over another widget; null: over none that takes it.
    void OnDragTargetChanged(QWidget* pwidgetTarget);

signals:
    void emptyAreaRightClicked(bool bIsRightClicked); // any button; true: it was the right one
    void mouseDoubleClicked();                        // on a row
    void editContact();
    void newContact();
    void deleteContact();
    void showHideSearchControl();
    void sendMessage();
    void makeCall();
    void dragTargetChanged(QWidget* pwidgetTarget);
    void importMOE();
    void importMOO();

protected:
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;

    QPoint m_ptPress;      // of the last press, in the viewport's coordinates
    QString m_strDragData; // built at a press on the left half of a cell
    QString m_strEmptyText;

private slots:
    void OnDragTargetObjectChanged(QObject* pTarget);
    void OnRowsChanged();

private:
    void listenToRows();
    bool pressStartsDrag() const;
    QString dragDataOf(const TableRowData* pPressed) const;
    void startDragOfRows();

    RunningDrag m_drag;
};

#endif // ADDRBOOKUIPLUGIN_ADDRBOOKTABLEWIDGET_H
