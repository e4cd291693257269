#include "linkhand/core/ExtendDialog.h"

#include <QPointer>
#include <QVBoxLayout>

class ExtendDialogPrivate
{
public:
    QVBoxLayout* pLayout;
    QPointer<QWidget> pContent;
};

namespace
{
// The content brings margins of its own; the frame adds a little air around it.
const int s_iFrameMargin = 6;
} // namespace

ExtendDialog::ExtendDialog(QWidget* pParent, QFlags<Qt::WindowType> flags, enWidgetType enType)
    : QDialog(pParent, flags), d(new ExtendDialogPrivate)
{
    const int iMargin = enType == WIDGET_TYPE_PLAIN ? 0 : s_iFrameMargin;
    d->pLayout = new QVBoxLayout(this);
    d->pLayout->setContentsMargins(iMargin, iMargin, iMargin, iMargin);
    d->pLayout->setSpacing(0);
}

ExtendDialog::~ExtendDialog()
{
    delete d;
}

void ExtendDialog::AddMainWidget(QWidget* pWidget)
{
    if (pWidget == d->pContent)
        return;
    if (!d->pContent.isNull()) {
        d->pLayout->removeWidget(d->pContent);
        d->pContent->setParent(nullptr);
    }
    d->pContent = pWidget;
    if (pWidget == nullptr)
        return;
    d->pLayout->addWidget(pWidget);
    // A widget that came with another parent was hidden by the change of it.
    pWidget->show();
}

void ExtendDialog::setWindowTitle(const QString& strTitle)
{
    QDialog::setWindowTitle(strTitle);
}

void ExtendDialog::setWindowFlags(QFlags<Qt::WindowType> flags)
{
    QDialog::setWindowFlags(flags);
}
