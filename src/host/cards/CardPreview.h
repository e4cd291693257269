#ifndef LINKHAND_HOST_CARDS_CARDPREVIEW_H
#define LINKHAND_HOST_CARDS_CARDPREVIEW_H

#include <QTimer>

#include "care/ImportTasks.h"
#include "linkhand/core/ExtendDialog.h"

class CardImport;
class CareTable;
class QComboBox;
class QLabel;
class QPushButton;

// Shows what would come of a file of contacts, those that are there already among them, and imports it into the PC's
// phonebook if the user says so. Nothing of the file has been stored until then. What was imported without a loss
// closes it; else it stays and tells what was left.
class CardPreview : public ExtendDialog
{
    Q_OBJECT

public:
    CardPreview(const QString& strFile, QWidget* pParent);

    // What came of it, in the user's words; empty if nothing was to be imported.
    QString Outcome() const { return m_strOutcome; }

    // True if contacts have come into the phonebook, or have changed there.
    bool HasStored() const { return m_bStored; }

public slots:
    // Ends what runs first.
    void reject() override;

private slots:
    void OnFinished();
    void OnImport();
    void OnExisting();
    void OnLeft();
    void OnProgress();

private:
    void makeLayout(QWidget* pContent);
    void look();
    void showLook();
    void showImport();
    void showRows();

    CardImport* m_pImport;
    ImportPlan m_plan;
    QLabel* m_pHead;
    QLabel* m_pExistingLabel;
    QComboBox* m_pExisting;
    CareTable* m_pList;
    QLabel* m_pState;
    QPushButton* m_pLeft;
    QPushButton* m_pStore;
    QPushButton* m_pCancel;
    QTimer m_progress; // runs with the work
    int m_iInFile;     // contacts, as the last look has found
    bool m_bStored;
    bool m_bLooked; // at least once
    bool m_bAgain;  // what is being looked at is wanted in another way
    QString m_strOutcome;
};

#endif // LINKHAND_HOST_CARDS_CARDPREVIEW_H
