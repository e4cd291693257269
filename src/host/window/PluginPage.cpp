#include "window/PluginPage.h"

#include <QChildEvent>
#include <QLabel>
#include <QLayout>
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

QSize PluginPage::minimumSizeHint() const
{
    const QWidget* pContent = content();
    return pContent != nullptr ? pContent->minimumSizeHint() : QSize(0, 0);
}

int PluginPage::heightForWidth(int iWidth) const
{
    const QLayout* pLayout = content() != nullptr ? content()->layout() : nullptr;
    return pLayout != nullptr && pLayout->hasHeightForWidth() ? pLayout->minimumHeightForWidth(iWidth) : 0;
}

void PluginPage::childEvent(QChildEvent* pEvent)
{
    QWidget::childEvent(pEvent);
    if (pEvent->added() && pEvent->child()->isWidgetType()) {
        pEvent->child()->installEventFilter(this);
        updateGeometry();
    }
}

// The plug-in's window lies in no layout that would pass it on.
bool PluginPage::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QWidget::eventFilter(pObject, pEvent);
}

const QWidget* PluginPage::content() const
{
    foreach (const QObject* pChild, children()) {
        const QWidget* pWidget = qobject_cast<const QWidget*>(pChild);
        if (pWidget != nullptr && pWidget != m_pFailure && !pWidget->isHidden() && !pWidget->isWindow()) {
            return pWidget;
        }
    }
    return nullptr;
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
