#include "window/PluginPage.h"

#include <QLabel>
#include <QResizeEvent>

#include "loader/PluginContainer.h"
#include "loader/PluginHandle.h"
#include "text/HostText.h"

PluginPage::PluginPage(PluginContainer& container, const QString& strPlugin, QWidget* pParent)
    : QWidget(pParent), m_container(container), m_strPlugin(strPlugin), m_pFailure(new QLabel(this))
{
    setObjectName(QLatin1String("linkhand_Page_") + strPlugin);
    m_pFailure->setObjectName(QLatin1String("linkhand_Page_failure"));
    m_pFailure->setAlignment(Qt::AlignCenter);
    m_pFailure->setWordWrap(true);
    m_pFailure->hide();
}

void PluginPage::Enter()
{
    PluginHandle* pHandle = m_container.FindByName(m_strPlugin);
    m_pFailure->setVisible(pHandle == nullptr || !pHandle->Show(this));
}

void PluginPage::Leave()
{
    PluginHandle* pHandle = m_container.FindByName(m_strPlugin);
    if (pHandle != nullptr) {
        pHandle->Hide();
    }
}

void PluginPage::Retranslate()
{
    m_pFailure->setText(HostText::Get("IDS_HOST_PAGE_FAILED").arg(m_strPlugin));
}

void PluginPage::resizeEvent(QResizeEvent* pEvent)
{
    QWidget::resizeEvent(pEvent);
    m_pFailure->setGeometry(rect());
    PluginHandle* pHandle = m_container.FindByName(m_strPlugin);
    if (pHandle != nullptr) {
        pHandle->Fit(rect());
    }
}
