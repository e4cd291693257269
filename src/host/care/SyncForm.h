#ifndef LINKHAND_HOST_CARE_SYNCFORM_H
#define LINKHAND_HOST_CARE_SYNCFORM_H

#include <QWidget>

#include "care/SyncTasks.h"

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

// What the phonebook is to be kept the same as: a server's address book or a folder.
class SyncForm : public QWidget
{
    Q_OBJECT

public:
    explicit SyncForm(QWidget* pParent);

    void Retranslate();

    // Shows what is set up, unless the user has begun to change it.
    void Show(const SyncSetup& setup);

    // What the user has entered is set up: what is read from now on shows.
    void SetUntouched();

    SyncSetup Entered() const;
    bool IsComplete() const;
    QWidget* First();

signals:
    void changed();

private slots:
    void OnTouched();
    void OnKind();
    void OnChooseFolder();

private:
    struct Row {
        QLabel* pLabel;
        QWidget* pField;
        const char* pszTextId;
    };
    void addRow(QGridLayout* pLayout, const char* pszTextId, QWidget* pField);
    void setRowVisible(int iRow, bool bVisible);

    QComboBox* m_pKind;
    QLineEdit* m_pUrl;
    QLineEdit* m_pUser;
    QComboBox* m_pSource;
    QLineEdit* m_pSecret;
    QLineEdit* m_pFolder;
    QPushButton* m_pChoose;
    QList<Row> m_listRows;
    bool m_bTouched;
};

#endif // LINKHAND_HOST_CARE_SYNCFORM_H
