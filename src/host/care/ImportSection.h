#ifndef LINKHAND_HOST_CARE_IMPORTSECTION_H
#define LINKHAND_HOST_CARE_IMPORTSECTION_H

#include "care/CareSection.h"
#include "care/ImportTasks.h"

class CareTable;
class QComboBox;
class QLabel;
class QPushButton;

// Contacts in from files and programs, with a look at what would come first, and out into a file.
class ImportSection : public CareSection
{
    Q_OBJECT

public:
    ImportSection(CareRunner& runner, QWidget* pParent);

    QString Title() const override;
    void Retranslate() override;
    void Read() override;
    void Take(const CareTask& task) override;
    QWidget* FocusTarget() override;

    // Chooses a file and shows what would come from it.
    void SetFile(const QString& strFile);

    // Writes all contacts to a file.
    void ExportTo(const QString& strFile);

private slots:
    void OnFile();
    void OnThunderbird();
    void OnEvolution();
    void OnExisting();
    void OnImport();
    void OnLeft();
    void OnExport();

private:
    void layOut();
    QPushButton* newButton(const char* pszName);
    void choose(const QString& strSource, const QString& strShown, bool bProgram);
    void look();
    void takeImport(const ContactImporting& importing);
    void takeExport(const ContactExporting& exporting);
    void show();

    QLabel* m_pHint;
    QPushButton* m_pFile;
    QPushButton* m_pThunderbird;
    QPushButton* m_pEvolution;
    QPushButton* m_pExport;
    QLabel* m_pExistingLabel;
    QComboBox* m_pExisting;
    CareTable* m_pTable;
    QLabel* m_pSummary;
    QPushButton* m_pLeft;
    QPushButton* m_pImport;
    ImportPlan m_plan; // empty again once it is carried out

    // What is shown: of a look, or of what was done.
    QString m_strShown;
    bool m_bTry;
    QList<ImportRow> m_listRows;
    ORVA_IMPORT_COUNTS m_counts;
    FindingList m_findings;
};

#endif // LINKHAND_HOST_CARE_IMPORTSECTION_H
