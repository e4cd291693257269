#ifndef LINKHAND_HOST_ROWSPAINT_H
#define LINKHAND_HOST_ROWSPAINT_H

#include <QObject>

class QTableWidget;

// Marks when the contacts of a table have been read, sorted and painted. Belongs to the table.
class RowsPaint : public QObject
{
    Q_OBJECT

public:
    explicit RowsPaint(QTableWidget* pTable);

    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private slots:
    void OnPainted();

private:
    QTableWidget* m_pTable;
};

#endif // LINKHAND_HOST_ROWSPAINT_H
