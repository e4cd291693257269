#include "care/CareSection.h"

#include <QAbstractButton>

#include "care/CareRunner.h"

CareSection::CareSection(CareRunner& runner, const char* pszName, QWidget* pParent)
    : QWidget(pParent), m_runner(runner), m_bStale(true)
{
    setObjectName(QLatin1String(pszName));
}

bool CareSection::begin(CareTask* pTask)
{
    return m_runner.Begin(pTask, this);
}

void CareSection::enable(QAbstractButton* pButton, bool bEnabled)
{
    if (!bEnabled && pButton->hasFocus()) {
        FocusTarget()->setFocus(Qt::OtherFocusReason);
    }
    pButton->setEnabled(bEnabled);
}
