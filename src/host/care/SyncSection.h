#ifndef LINKHAND_HOST_CARE_SYNCSECTION_H
#define LINKHAND_HOST_CARE_SYNCSECTION_H

#include "care/CareSection.h"
#include "care/SyncTasks.h"

class QCheckBox;
class QLabel;
class QPushButton;
class QTextBrowser;
class SyncForm;

// The phonebook on several machines: what it is kept the same as, a sync now or by the timer, and what the last one
// did.
class SyncSection : public CareSection
{
    Q_OBJECT

public:
    SyncSection(CareRunner& runner, QWidget* pParent);

    QString Title() const override;
    void Retranslate() override;
    void Read() override;
    void Take(const CareTask& task) override;
    QWidget* FocusTarget() override;

private slots:
    void OnFormChanged();
    void OnSetUp();
    void OnNow();
    void OnTimer(bool bOn);

private:
    void lay();
    void show();
    void showTimer();

    QLabel* m_pHint;
    SyncForm* m_pForm;
    QCheckBox* m_pTimer;
    QPushButton* m_pSetUp;
    QPushButton* m_pNow;
    QTextBrowser* m_pLast;
    bool m_bRead;
    SyncSetup m_setup;
    SyncOutcome m_last;
    SyncTimer m_enTimer;
};

#endif // LINKHAND_HOST_CARE_SYNCSECTION_H
