#ifndef ADDRBOOKUIPLUGIN_ADDRBOOKEDITDLG_H
#define ADDRBOOKUIPLUGIN_ADDRBOOKEDITDLG_H

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QList>
#include <QPointer>
#include <QPushButton>
#include <QString>
#include <QVBoxLayout>
#include <QWidget>

#include "dialogs/AddrBookNewContactExtendDialog.h"
#include "dialogs/NewContactLineEdit.h"
#include "linkhand/QtCompat.h"
#include "logic/AddrBookTypes.h"

// One row of the form for a field that has no member of its own. The dialog owns the three objects.
struct _AddrBookFieldItem {
    QPointer<QLabel> pLabel;
    QPointer<NewContactLineEdit> pLineEdit;
    QPointer<QRegExpValidator> pValidator; // null where the field has no character rule
    QString strType;                       // the field's kind
};

// The form in which one contact of one memory is made or changed; its rows, lengths and character rules come from the
// memory's field list. This widget is never shown: it owns the window (AddrBookNewContactExtendDialog) and receives the
// form's signals. User-interface thread only.
//
//     dialog.InitDialog(pParent, iGroupId, enMemory, ADDRBOOK_OP_ADD);     // or ADDRBOOK_OP_EDIT
//     dialog.SetEditCotactDetails(record);                                 // to fill it in
//     dialog.setRegEx();
//     if (dialog.Exec() == 0)
//         record = dialog.GetNewRecordInfo();                              // stored already
class AddrBookEditDlg : public QWidget
{
    Q_OBJECT

public:
    explicit AddrBookEditDlg(QWidget* pParent = nullptr);
    ~AddrBookEditDlg() override;

    // Builds the window and one row for each field of enType. A new contact joins iGroupId. Once per object.
    void InitDialog(QWidget* pParent, int iGroupId, _ORVA_EN_PHONEBOOK_MEMORY enType,
                    _ADDRBOOK_OPERATION_TYPE enOperation);

    // Gives the inputs their validators; after the form has been filled in.
    void setRegEx();
    void SetWindowTitle(QString strTitle);

    // Fills in the form. OK is off until the user changes something.
    void SetEditCotactDetails(AddrBookRecord record);

    // Appends the values of a contact of the local memory that has strNumber as its mobile number and nothing else.
    void ConstructSaveContact(QList<QString>& lstValues, QString strNumber);

    // Runs the form: 0 saved, 1 cancelled, 2 closed, -1 left otherwise or not built.
    int Exec();

    // The contact as it was saved.
    AddrBookRecord GetNewRecordInfo();

    void SetLanguage();
    QString tr(QString strId);
    void getStringForRegExpr(int iLength, QString& strOut);

    // Turns OK on if any input holds more than blanks, off if not.
    void SetOKButtonTrue();

public slots:
    void OnButtonClickedOK();
    void OnButtonClickedCancel();
    void OnTextChanged();
    void OnTextChangedInAnyField(QString strText);
    bool OnNameTextChanged(QString strText); // always false

private:
    Q_DISABLE_COPY(AddrBookEditDlg)
    friend struct AddrBookEditDlgAccess; // the tests

    // The form (AddrBookEditDlg.cpp).
    bool createCommonUIElements(_ORVA_EN_PHONEBOOK_MEMORY enType);
    int getDialogHeight(_ORVA_EN_PHONEBOOK_MEMORY enType);
    bool getFieldInfoCreateFields(_ORVA_EN_PHONEBOOK_MEMORY enType);
    bool createFields(const AddrBookField& field, const QString& strLabelId, int& iRow);
    bool createNameField(const AddrBookField& field, const QString& strLabelId, int& iRow);
    bool createMobNumField(const AddrBookField& field, const QString& strLabelId, int& iRow);
    bool createRemarksField(const AddrBookField& field, const QString& strLabelId, int& iRow);
    bool createConfigEditField(const AddrBookField& field, const QString& strLabelId, int& iRow);
    QLabel* createCaption(const QString& strLabelId);
    NewContactLineEdit* createLineEdit(const AddrBookField& field);
    void addRow(QLabel* pLabel, QWidget* pEdit, int& iRow);
    void layOutButtons();
    void setTabOrders();
    QRegExpValidator* createValidator(NewContactLineEdit* pEdit);
    static QString getQRegExpStr(QString strInclude, QString strExclude, QString strMax);

    // What is typed (AddrBookEditDlgInput.cpp).
    bool isFieldEmpty(QLineEdit* pEdit);
    bool isConfigFieldEmpty();
    bool isRemarksEmpty();
    int IsContextOverLong(QString strText); // 1 over long, 0 not
    void ResetCurPos(QString strFirst, QString strSecond);

    // Checks and save (AddrBookEditDlgSave.cpp).
    void readRecordInfo();
    bool checkSaveData(QString strText, QString strInclude, QString strExclude, int iMaxLength);
    bool checkRepeatedNumber();
    bool checkRepeatedNumber(QList<AddrBookRecord> lstRecords, QString& strField);
    bool checkPhoneNumber(QString strOtherMobile, QList<QString>& lstOtherNumbers, QString& strField);
    bool compareNumbers(QString strNumber, QList<QString>& lstNumbers);
    void showInfoAlert(bool& bRepeated, QString strField);
    bool saveContact();
    int limitEmailAddress(QString strEmail);
    bool emailsPass();
    void showError(const QString& strTextId);

    // The parent of the window may take it and its content away at any time; the pointers then turn null.
    QPointer<QWidget> m_pMainWidget;
    QPointer<AddrBookNewContactExtendDialog> m_pExtendDialog;
    QPointer<QGridLayout> m_pGridLayout;
    QPointer<QVBoxLayout> m_pMainLayout;
    QList<_AddrBookFieldItem> m_lstFieldItems; // in the order of the field list
    QPointer<QLabel> m_pNameLabel;
    QPointer<QLabel> m_pMobileLabel;
    QPointer<QLabel> m_pRemarksLabel;
    QPointer<NewContactLineEdit> m_pNameEdit;
    QPointer<NewContactLineEdit> m_pMobileEdit;
    QPointer<NewContactTextEdit> m_pRemarksEdit;
    QList<QString> m_lstFieldNames; // label ids of all fields, in order
    int m_iRemarksMaxLength;
    int m_iMobileIndex;
    QList<int> m_lstNumberIndexes;    // positions of the fields of kind "Number"
    QList<QString> m_lstNumberLabels; // their label ids
    QPointer<QPushButton> m_pOkButton;
    QPointer<QPushButton> m_pCancelButton;
    QPointer<QHBoxLayout> m_pButtonLayout;
    QPointer<QRegExpValidator> m_pNameValidator;
    QPointer<QRegExpValidator> m_pMobileValidator;
    AddrBookRecord m_record;
    _ORVA_EN_PHONEBOOK_MEMORY m_enMemory;
    QString m_strPrevName; // the last name that was within its limit
    _ADDRBOOK_OPERATION_TYPE m_enOperation;
    int m_iGroupId;
    QString m_strPrevRemarks; // the last remarks that were within their limit
};

#endif // ADDRBOOKUIPLUGIN_ADDRBOOKEDITDLG_H
