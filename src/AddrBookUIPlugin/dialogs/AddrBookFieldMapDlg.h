#ifndef ADDRBOOKUIPLUGIN_ADDRBOOKFIELDMAPDLG_H
#define ADDRBOOKUIPLUGIN_ADDRBOOKFIELDMAPDLG_H

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QPushButton>
#include <QString>
#include <QTableWidget>

#include "dialogs/FieldMapTables.h"
#include "linkhand/core/ExtendDialog.h"
#include "logic/AddrBookTypes.h"

// Asks which column of a source feeds which field of a memory. It is made for one import: InitDialog, the tables' row
// counts and heights, their contents, Exec, GetFieldMapData, in this order. User-interface thread only.
class AddrBookFieldMapDlg : public QObject
{
    Q_OBJECT

public:
    explicit AddrBookFieldMapDlg(QObject* pParent = nullptr);
    ~AddrBookFieldMapDlg() override;

    // Builds the dialog; strTitle stands above the source's columns.
    void InitDialog(QWidget* pParent, _ORVA_EN_PHONEBOOK_MEMORY enMemory, QString strTitle);

    // iTable is 1 for the source's table and 2 for the memory's. The height, in pixels, is that of the present rows.
    void SetRowCount(int iTable, int iRows);
    void SetRowHeight(int iTable, int iHeight);

    void SetFirstTableInfo(QList<QString> lstTitles);

    // Lists the memory's fields and maps those whose label or name is a title, whatever its case.
    void SetSecondTableInfo(QList<QString> lstTitles, _ORVA_EN_PHONEBOOK_MEMORY enMemory);

    // Runs the dialog: 1 after OK, 0 after a cancel, -1 without a dialog.
    int Exec();

    // After OK, one text per row of the memory's table: a title, " " for a field without one, "" for an unused row.
    // Empty after a cancel.
    QList<QString> GetFieldMapData() const;

public slots:
    void OnItemSelectionChanged();
    void OnCellEntered(int iRow, int iColumn);
    void OnButtonClickedOK();
    void OnButtonClickedCancel();

private:
    Q_DISABLE_COPY(AddrBookFieldMapDlg)

    bool createCommonUIElements(_ORVA_EN_PHONEBOOK_MEMORY enMemory, const QString& strTitle);
    void setTableProperties(QTableWidget* ptable);
    void setUpTables();
    void layOutParts();
    void setUpButtons();
    void constructTableWidgetItem(QTableWidget* ptable, int iRow, int iColumn, const QString& strText);
    QTableWidget* table(int iTable) const;
    void clearFirstTable();
    void clearSecondTable();

    _ORVA_EN_PHONEBOOK_MEMORY m_enMemory;
    // The dialog belongs to its parent as well, and takes its content with it.
    QPointer<QWidget> m_pMainWidget;
    QPointer<ExtendDialog> m_pExtendDialog;
    QPointer<QGridLayout> m_pGridLayout;
    QPointer<QLabel> m_plabelTips;
    QPointer<QLabel> m_plabelSpacer;
    QPointer<QLabel> m_plabelSource;
    QPointer<QLabel> m_plabelMemory;
    QPointer<FieldMapTable1Widget> m_ptableFirst;
    QPointer<FieldMapTable2Widget> m_ptableSecond;
    QPointer<QPushButton> m_pOkButton;
    QPointer<QPushButton> m_pCancelButton;
    QPointer<QHBoxLayout> m_pButtonLayout;
    QList<QString> m_listFieldMapData;
};

#endif // ADDRBOOKUIPLUGIN_ADDRBOOKFIELDMAPDLG_H
