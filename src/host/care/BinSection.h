#ifndef LINKHAND_HOST_CARE_BINSECTION_H
#define LINKHAND_HOST_CARE_BINSECTION_H

#include <QList>

#include "care/BinTasks.h"
#include "care/CareSection.h"

class CareTable;
class QLabel;
class QLineEdit;
class QPushButton;

// Contacts that were deleted or overwritten in the last days, and their way back.
class BinSection : public CareSection
{
    Q_OBJECT

public:
    BinSection(CareRunner& runner, QWidget* pParent);

    QString Title() const override;
    void Retranslate() override;
    void Read() override;
    void Take(const CareTask& task) override;
    QWidget* FocusTarget() override;

private slots:
    void OnChosen();
    void OnRestore();

private:
    void show(const QList<BinContact>& listContacts);

    QLabel* m_pHint;
    QLabel* m_pSearchLabel;
    QLineEdit* m_pSearch;
    CareTable* m_pTable;
    QPushButton* m_pRestore;
    QList<BinContact> m_listContacts;
};

#endif // LINKHAND_HOST_CARE_BINSECTION_H
