#include <QVBoxLayout>

#include "fakecore/FakeCoreState.h"

class ExtendDialogPrivate
{
public:
    QVBoxLayout* layout;
};

ExtendDialog::ExtendDialog(QWidget* pParent, QFlags<Qt::WindowType> flags, enWidgetType)
    : QDialog(pParent, flags), d(new ExtendDialogPrivate)
{
    d->layout = new QVBoxLayout(this);
    fakecore::dialogs().append(this);
}

ExtendDialog::~ExtendDialog()
{
    fakecore::dialogs().removeAll(this);
    fakecore::contents().remove(this);
    delete d;
}

void ExtendDialog::AddMainWidget(QWidget* pWidget)
{
    QWidget* const previous = fakecore::contents().value(this);
    if (previous != nullptr && previous != pWidget) {
        d->layout->removeWidget(previous);
        previous->setParent(nullptr);
    }
    fakecore::contents()[this] = pWidget;
    if (pWidget != nullptr)
        d->layout->addWidget(pWidget);
}

void ExtendDialog::setWindowTitle(const QString& strTitle)
{
    QDialog::setWindowTitle(strTitle);
}
void ExtendDialog::setWindowFlags(QFlags<Qt::WindowType> flags)
{
    QDialog::setWindowFlags(flags);
}
