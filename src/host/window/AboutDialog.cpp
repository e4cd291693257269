#include "window/AboutDialog.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "text/HostText.h"
#include "window/Glyphs.h"

namespace
{

const int PICTURE_SIZE = 48;
const int LEAST_WIDTH = 340;

} // namespace

AboutDialog::AboutDialog(QWidget* pParent)
    : ExtendDialog(pParent, Qt::Dialog | Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG)
{
    setObjectName(QLatin1String("linkhand_About"));
    setWindowTitle(HostText::Get("IDS_HOST_ABOUT"));
    QWidget* const pContent = new QWidget;
    QLabel* const pPicture = new QLabel(pContent);
    pPicture->setPixmap(
        Glyphs::Icon(Glyphs::PHONEBOOK, palette().color(QPalette::Highlight)).pixmap(PICTURE_SIZE, PICTURE_SIZE));
    QLabel* const pName = new QLabel(HostText::Get("IDS_HOST_TITLE"), pContent);
    pName->setObjectName(QLatin1String("linkhand_About_name"));
    QLabel* const pText = new QLabel(pContent);
    pText->setObjectName(QLatin1String("linkhand_About_text"));
    pText->setWordWrap(true);
    // The keys reach it, so that it can be read out and copied.
    pText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    pText->setText(HostText::Get("IDS_HOST_ABOUT_WHAT") + QLatin1String("\n\n") +
                   HostText::Get("IDS_HOST_ABOUT_RELEASE").arg(QCoreApplication::applicationVersion()) +
                   QLatin1Char('\n') + HostText::Get("IDS_HOST_ABOUT_QT").arg(QLatin1String(qVersion())) +
                   QLatin1String("\n\n") + HostText::Get("IDS_HOST_ABOUT_LICENCE"));
    QPushButton* const pClose = new QPushButton(HostText::Get("IDS_HOST_CLOSE"), pContent);
    pClose->setObjectName(QLatin1String("linkhand_About_close"));
    pClose->setDefault(true);
    connect(pClose, SIGNAL(clicked()), this, SLOT(accept()));

    QHBoxLayout* const pHead = new QHBoxLayout;
    pHead->addWidget(pPicture);
    pHead->addWidget(pName, 1);
    QHBoxLayout* const pButtons = new QHBoxLayout;
    pButtons->addStretch(1);
    pButtons->addWidget(pClose);
    QVBoxLayout* const pLayout = new QVBoxLayout(pContent);
    pLayout->addLayout(pHead);
    pLayout->addWidget(pText);
    pLayout->addStretch(1);
    pLayout->addLayout(pButtons);
    pContent->setMinimumWidth(LEAST_WIDTH);
    AddMainWidget(pContent);
    pClose->setFocus();
}
