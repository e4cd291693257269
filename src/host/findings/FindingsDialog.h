#ifndef LINKHAND_HOST_FINDINGSDIALOG_H
#define LINKHAND_HOST_FINDINGSDIALOG_H

#include "findings/FindingList.h"
#include "linkhand/core/ExtendDialog.h"

class QTreeWidget;

// Lists what an import left: row, column, reason and what stands there. Can be copied, the chosen lines or all, and
// saved as a text.
class FindingsDialog : public ExtendDialog
{
    Q_OBJECT

public:
    FindingsDialog(const FindingList& findings, QWidget* pParent);

    // Writes the list as UTF-8; false if that fails.
    bool SaveTo(const QString& strFile) const;

private slots:
    void OnCopy();
    void OnSave();

private:
    void fill();

    const FindingList m_findings;
    QTreeWidget* m_pList;
};

#endif // LINKHAND_HOST_FINDINGSDIALOG_H
