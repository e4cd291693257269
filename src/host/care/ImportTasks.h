#ifndef LINKHAND_HOST_CARE_IMPORTTASKS_H
#define LINKHAND_HOST_CARE_IMPORTTASKS_H

#include <QList>
#include <QString>

#include "care/CareTask.h"
#include "findings/FindingList.h"
#include "orva/orva_care.h"

// What is to be imported, and how.
struct ImportPlan {
    QString strSource;     // a file, or an application by the SDK's name for it; empty: nothing is chosen
    QString strShown;      // what to call it
    bool bProgram = false; // an application
    int iExisting = ORVA_EXISTING_SKIP;
};

// What becomes of a contact.
struct ImportRow {
    int iOutcome; // ORVA_IMPORT_...
    QString strName;
    QString strNumber;
};

// Takes the contacts of a source into the PC's phonebook, or only looks what that would do.
class ContactImporting : public CareTask
{
public:
    // Looks without writing where bTry is set.
    ContactImporting(const ImportPlan& plan, bool bTry);
    void Run() override;

    const ImportPlan& Plan() const { return m_plan; }
    bool IsTry() const { return m_bTry; }

    // Whether a cancel kept it from its end.
    bool IsCut() const { return m_bCut; }

    // As far as it came.
    const QList<ImportRow>& Rows() const { return m_listRows; }
    const ORVA_IMPORT_COUNTS& Counts() const { return m_counts; }
    const FindingList& Findings() const { return m_findings; }

private:
    void takeRows(void* pImport);
    void takeFindings(void* pImport);

    const ImportPlan m_plan;
    const bool m_bTry;
    bool m_bCut;
    QList<ImportRow> m_listRows;
    ORVA_IMPORT_COUNTS m_counts;
    FindingList m_findings;
};

// Writes all contacts of the PC's phonebook to a file; vCards, or CSV, by its name.
class ContactExporting : public CareTask
{
public:
    explicit ContactExporting(const QString& strFile) : CareTask(ASKING), m_strFile(strFile), m_iWritten(0) {}
    void Run() override;

    // The user is told that there is no file.
    bool IsTakenCancelled() const override { return true; }

    const QString& File() const { return m_strFile; }
    int Written() const { return m_iWritten; }

    // Whether a file of that name was there.
    bool HasKept() const { return m_bKept; }

private:
    static int onProgress(int iDone, int iTotal, void* pData);

    const QString m_strFile;
    int m_iWritten;
    bool m_bKept = false;
};

#endif // LINKHAND_HOST_CARE_IMPORTTASKS_H
