#ifndef LINKHAND_HOST_CARE_CHECKSECTION_H
#define LINKHAND_HOST_CARE_CHECKSECTION_H

#include "care/CareSection.h"
#include "care/CareTask.h"

class QLabel;
class QPushButton;
class QTextBrowser;

// Looks through the store of the PC's phonebook.
class StoreCheck : public CareTask
{
public:
    StoreCheck() : CareTask(READING) {}
    void Run() override;

    struct Result {
        int iContacts = 0;
        int iFindings = 0;
        QString strFindings; // a line each
        long nAccess = 0;    // what a write meets
        bool bReplaced = false;
        qint64 iReplaced = 0; // when
        int iSavedContacts = 0;
        int iSavedGroups = 0;
        QString strFile; // the damaged one
        QString strWhat;
    };
    const Result& Found() const { return m_result; }

private:
    Result m_result;
};

// The check of the store and what it found: damage, what was saved, where the damaged file lies.
class CheckSection : public CareSection
{
    Q_OBJECT

public:
    CheckSection(CareRunner& runner, QWidget* pParent);

    QString Title() const override;
    void Retranslate() override;
    void Read() override;
    void Take(const CareTask& task) override;
    QWidget* FocusTarget() override;

private slots:
    void OnAgain();

private:
    void show();

    QLabel* m_pHint;
    QTextBrowser* m_pFound;
    QPushButton* m_pAgain;
    bool m_bChecked;
    long m_nCode;
    StoreCheck::Result m_result;
};

#endif // LINKHAND_HOST_CARE_CHECKSECTION_H
