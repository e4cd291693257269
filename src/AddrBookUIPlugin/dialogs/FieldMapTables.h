#ifndef ADDRBOOKUIPLUGIN_FIELDMAPTABLES_H
#define ADDRBOOKUIPLUGIN_FIELDMAPTABLES_H

#include <QString>
#include <QTableWidget>

#include "widgets/RunningDrag.h"

class QMimeData;

// The two tables of the field map dialog. User-interface thread only.

// The columns of an import's source. The first move with the left button drags the selected one, as plain text.
class FieldMapTable1Widget : public QTableWidget
{
    Q_OBJECT

public:
    FieldMapTable1Widget(int iRows, int iColumns, QWidget* pParent);
    explicit FieldMapTable1Widget(QWidget* pParent);

protected:
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;

private:
    bool dragSelection();

    QDrag* m_pDrag; // while a drag runs
    QMimeData* m_pMimeData;
    RunningDrag m_drag;
};

// The fields of a memory, each with the source column that feeds it. A drop is kept and placed on the row that the
// mouse moves over next; Delete clears a row.
class FieldMapTable2Widget : public QTableWidget
{
    Q_OBJECT

public:
    FieldMapTable2Widget(int iRows, int iColumns, QWidget* pParent);
    explicit FieldMapTable2Widget(QWidget* pParent);

    QString m_strDropText; // the text of the last drop, "" once placed

protected:
    void dragEnterEvent(QDragEnterEvent* pEvent) override;
    void dragMoveEvent(QDragMoveEvent* pEvent) override;
    void dropEvent(QDropEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;
};

#endif // ADDRBOOKUIPLUGIN_FIELDMAPTABLES_H
