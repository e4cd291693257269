#ifndef LINKHAND_HOST_CARE_DUPLICATESECTION_H
#define LINKHAND_HOST_CARE_DUPLICATESECTION_H

#include <QList>
#include <QSet>

#include "care/CareSection.h"
#include "care/DuplicateTasks.h"

class CareTable;
class QLabel;
class QPushButton;

// Who is there twice: the contacts of each set side by side with what would become of them.
class DuplicateSection : public CareSection
{
    Q_OBJECT

public:
    DuplicateSection(CareRunner& runner, QWidget* pParent);

    QString Title() const override;
    void Retranslate() override;
    void Read() override;
    void Take(const CareTask& task) override;
    QWidget* FocusTarget() override;

private slots:
    void OnChosen();
    void OnPreview();
    void OnMerge();
    void OnSkip();
    void OnMergeAll();

private:
    void show();
    void showSideBySide(const DuplicateSet& set, const MergePreview* pPreview);
    void merge(const QList<DuplicateSet>& listSets);
    const DuplicateSet* chosenSet() const;
    QList<DuplicateSet> samePeople() const;

    QLabel* m_pHint;
    CareTable* m_pTable;
    CareTable* m_pSides;
    QPushButton* m_pMerge;
    QPushButton* m_pSkip;
    QPushButton* m_pMergeAll;
    QList<DuplicateSet> m_listSets;
    QSet<int> m_setSkipped; // by the first of their identifiers
};

#endif // LINKHAND_HOST_CARE_DUPLICATESECTION_H
