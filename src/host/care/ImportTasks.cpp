#include "care/ImportTasks.h"

#include <QFile>

#include "care/CareSdk.h"
#include "linkhand/QtCompat.h"

namespace
{

// As many as one transaction takes; progress and a cancel come between.
const int CONTACTS_A_STEP = 200;

} // namespace

ContactImporting::ContactImporting(const ImportPlan& plan, bool bTry)
    : CareTask(bTry ? READING : WRITING), m_plan(plan), m_bTry(bTry), m_bCut(false), m_counts()
{
}

void ContactImporting::Run()
{
    ORVA_IMPORT_SETTINGS settings = {};
    settings.format = m_plan.bProgram ? ORVA_FORMAT_APPLICATION : ORVA_FORMAT_ANY;
    settings.existing = m_plan.iExisting;
    settings.flags = m_bTry ? ORVA_IMPORT_TRY : 0;
    void* pImport = nullptr;
    if (!succeeded(ORVA_Care_OpenImport(ORVA_MEMORY_LOCAL, m_plan.strSource.utf16(), &settings, &pImport))) {
        return;
    }
    long nCode = ORVA_OK;
    while (nCode == ORVA_OK && !IsCancelled()) {
        nCode = ORVA_Care_Import_Step(pImport, CONTACTS_A_STEP);
        ORVA_Care_Import_GetCounts(pImport, &m_counts);
        setTotal(m_counts.total);
        setDone(m_counts.seen);
        takeRows(pImport);
    }
    // Whoever cancels when the last step is through has cancelled nothing.
    m_bCut = nCode == ORVA_OK;
    succeeded(nCode == ORVA_E_END ? ORVA_OK : nCode);
    takeFindings(pImport);
    ORVA_Care_Import_Release(pImport);
}

void ContactImporting::takeRows(void* pImport)
{
    ORVA_IMPORT_CONTACT contact;
    for (int i = 0; ORVA_Care_Import_GetContact(pImport, i, &contact) == ORVA_OK; ++i) {
        ImportRow row;
        row.iOutcome = contact.outcome;
        row.strName = QtCompat::fromUtf16(contact.name);
        row.strNumber = QtCompat::fromUtf16(contact.number);
        m_listRows.append(row);
    }
}

void ContactImporting::takeFindings(void* pImport)
{
    ORVA_FINDING* pFindings = nullptr;
    int iCount = 0;
    int iTotal = 0;
    if (ORVA_Care_Import_GetFindings(pImport, &pFindings, &iCount, &iTotal) == ORVA_OK) {
        m_findings = FindingList(pFindings, iCount, iTotal, m_plan.strShown);
        ORVA_Care_FindingsRelease(&pFindings);
    }
}

void ContactExporting::Run()
{
    m_bKept = QFile::exists(m_strFile);
    // An earlier SDK cannot be broken off.
    succeeded(&ORVA_Care_ExportWithProgress != nullptr
                  ? ORVA_Care_ExportWithProgress(ORVA_MEMORY_LOCAL, m_strFile.utf16(), ORVA_FORMAT_ANY, nullptr, 0,
                                                 &m_iWritten, &ContactExporting::onProgress, this)
                  : ORVA_Care_Export(ORVA_MEMORY_LOCAL, m_strFile.utf16(), ORVA_FORMAT_ANY, nullptr, 0, &m_iWritten));
}

int ContactExporting::onProgress(int iDone, int iTotal, void* pData)
{
    ContactExporting* const pSelf = static_cast<ContactExporting*>(pData);
    pSelf->setTotal(iTotal);
    pSelf->setDone(iDone);
    return pSelf->IsCancelled() ? 1 : 0;
}
