#ifndef LINKHAND_HOST_CARE_CARETABLE_H
#define LINKHAND_HOST_CARE_CARETABLE_H

#include <QAbstractTableModel>
#include <QList>
#include <QStringList>
#include <QTreeView>

// A row of a list, with what it stands for.
struct CareRow {
    int iId;
    QStringList lstCells;

    CareRow() : iId(0) {}
    CareRow(int id, const QStringList& cells) : iId(id), lstCells(cells) {}
};

// Rows, those that hold the words sought.
class CareRows : public QAbstractTableModel
{
    Q_OBJECT

public:
    CareRows(int iColumns, QObject* pParent);

    void SetTitles(const QStringList& lstTitles);
    void SetRows(const QList<CareRow>& listRows);
    void SetSearch(const QString& strSearch);

    int IdAt(int iRow) const { return m_listRows.at(m_listShown.at(iRow)).iId; }
    int RowOf(int iId) const; // -1: it does not show

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int iRole) const override;
    QVariant headerData(int iSection, Qt::Orientation enOrientation, int iRole) const override;

private:
    bool matches(const CareRow& row) const;
    void filter();

    const int m_iColumns;
    QStringList m_lstTitles;
    QList<CareRow> m_listRows;
    QList<int> m_listShown;
    QStringList m_lstWords;
};

// A list of such rows. What is selected and current stays so over a change of the rows, as long as it shows.
class CareTable : public QTreeView
{
    Q_OBJECT

public:
    CareTable(const char* pszName, int iColumns, QWidget* pParent);

    void SetTitles(const QStringList& lstTitles) { m_pRows->SetTitles(lstTitles); }
    void SetRows(const QList<CareRow>& listRows);

    // What stands in the place of rows once there are known to be none.
    void SetEmptyText(const QString& strText) { m_strEmpty = strText; }
    void SetFilled() { m_bFilled = true; }

    // From the top to the bottom.
    QList<int> SelectedIds() const;
    int RowCount() const { return m_pRows->rowCount(); }
    void Select(int iId);

    // Columns as wide as these texts.
    void SizeColumns(const QStringList& lstWidest);

signals:
    void chosen();

public slots:
    void SetSearch(const QString& strSearch);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    void restore(const QList<int>& listIds, int iCurrent);
    int currentId() const;

    CareRows* m_pRows;
    QString m_strEmpty;
    bool m_bFilled;
};

#endif // LINKHAND_HOST_CARE_CARETABLE_H
