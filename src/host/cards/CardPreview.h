#ifndef LINKHAND_HOST_CARDS_CARDPREVIEW_H
#define LINKHAND_HOST_CARDS_CARDPREVIEW_H

#include <QTimer>

#include "linkhand/core/ExtendDialog.h"

class CardImport;
class CareTable;
class QLabel;
class QPushButton;

// Shows the contacts of a file by name and numbers, and imports them into the PC's phonebook if the user says so.
// Nothing of the file has been stored until then.
class CardPreview : public ExtendDialog
{
    Q_OBJECT

public:
    CardPreview(const QString& strFile, QWidget* pParent);

    // What came of it, in the user's words; empty if nothing was to be imported.
    QString Outcome() const { return m_strOutcome; }

    // True if contacts have come into the phonebook.
    bool HasStored() const;

public slots:
    // Ends what runs first.
    void reject() override;

private slots:
    void OnFinished();
    void OnImport();
    void OnProgress();

private:
    void makeLayout(QWidget* pContent);
    void showContacts();

    CardImport* m_pImport;
    QLabel* m_pHead;
    QLabel* m_pState;
    CareTable* m_pList;
    QPushButton* m_pStore;
    QPushButton* m_pCancel;
    QTimer m_progress;
    bool m_bStoring;
    QString m_strOutcome;
};

#endif // LINKHAND_HOST_CARDS_CARDPREVIEW_H
