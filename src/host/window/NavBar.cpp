#include "window/NavBar.h"

#include <QAction>
#include <QActionGroup>
#include <QButtonGroup>
#include <QEvent>
#include <QKeySequence>
#include <QMenu>
#include <QVBoxLayout>

#include "linkhand/QtCompat.h"
#include "text/HostText.h"

namespace
{

const int MARGIN = 8;
const int SPACING = 2;
const int WIDEST_PART = 4; // of the window: a quarter

} // namespace

NavBar::NavBar(QWidget* pParent)
    : QFrame(pParent),
      m_pPagesLayout(new QVBoxLayout),
      m_pPages(new QButtonGroup(this)),
      m_pDevice(new NavButton(Glyphs::DEVICE, this)),
      m_pLanguage(new NavButton(Glyphs::LANGUAGE, this)),
      m_pLanguageMenu(new QMenu(this)),
      m_pLanguageActions(new QActionGroup(this))
{
    setObjectName(QLatin1String("linkhand_NavBar"));
    m_pDevice->setObjectName(QLatin1String("linkhand_NavBar_device"));
    m_pLanguage->setObjectName(QLatin1String("linkhand_NavBar_language"));
    m_pLanguageMenu->setObjectName(QLatin1String("linkhand_NavBar_languageMenu"));
    m_pLanguage->setCheckable(false);

    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    QVBoxLayout* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, MARGIN, 0, MARGIN);
    pLayout->setSpacing(SPACING);
    m_pPagesLayout->setSpacing(SPACING);
    pLayout->addLayout(m_pPagesLayout);
    pLayout->addStretch(1);
    pLayout->addWidget(m_pDevice);
    pLayout->addWidget(m_pLanguage);

    connect(m_pPages, QtCompat::idClicked(), this, SIGNAL(pageChosen(int)));
    connect(m_pDevice, SIGNAL(toggled(bool)), this, SIGNAL(deviceToggled(bool)));
    connect(m_pLanguage, SIGNAL(clicked()), this, SLOT(OnLanguageClicked()));
    connect(m_pLanguageActions, SIGNAL(triggered(QAction*)), this, SLOT(OnLanguageChosen(QAction*)));
}

void NavBar::AddPage(int iPage, const QString& strName, Glyphs::Glyph enGlyph)
{
    NavButton* pButton = new NavButton(enGlyph, this);
    pButton->setObjectName(QLatin1String("linkhand_NavBar_") + strName);
    pButton->setShortcut(QKeySequence(QString::fromLatin1("Alt+%1").arg(iPage + 1)));
    m_pPagesLayout->addWidget(pButton);
    m_pPages->addButton(pButton, iPage);
}

void NavBar::SetPageText(int iPage, const QString& strText)
{
    QAbstractButton* pButton = m_pPages->button(iPage);
    // Setting a text takes the shortcut away.
    const QKeySequence key = pButton->shortcut();
    pButton->setText(strText);
    pButton->setShortcut(key);
    pButton->setToolTip(strText + QLatin1String(" (") + key.toString(QKeySequence::NativeText) + QLatin1Char(')'));
    pButton->updateGeometry();
}

void NavBar::SetCurrentPage(int iPage)
{
    if (m_pPages->button(iPage) != nullptr) {
        m_pPages->button(iPage)->setChecked(true);
    }
}

void NavBar::SetLanguages(const QList<LanguageEntry>& listEntries, const QString& strCurrent)
{
    m_pLanguageMenu->clear();
    foreach (const LanguageEntry& entry, listEntries) {
        QAction* pAction = m_pLanguageMenu->addAction(entry.strName);
        pAction->setCheckable(true);
        pAction->setChecked(entry.strCode == strCurrent);
        pAction->setData(entry.strCode);
        m_pLanguageActions->addAction(pAction);
    }
    m_pLanguage->setVisible(listEntries.size() > 1);
}

void NavBar::SetDeviceShown(bool bShown)
{
    m_pDevice->setChecked(bShown);
}

void NavBar::SetDeviceAvailable(bool bAvailable)
{
    m_pDevice->setVisible(bAvailable);
}

void NavBar::Retranslate()
{
    m_pDevice->setText(HostText::Get("IDS_HOST_DEVICE"));
    m_pDevice->setToolTip(HostText::Get("IDS_HOST_DEVICE_TIP"));
    m_pLanguage->setText(HostText::Get("IDS_HOST_LANGUAGE"));
    m_pLanguage->setToolTip(HostText::Get("IDS_HOST_LANGUAGE_TIP"));
}

QSize NavBar::minimumSizeHint() const
{
    return QSize(sizeHint().width(), 2 * MARGIN + int(buttons().size()) * (NavButton::LeastHeight() + SPACING));
}

bool NavBar::event(QEvent* pEvent)
{
    if (pEvent->type() == QEvent::LayoutRequest) {
        FitButtons();
    }
    return QFrame::event(pEvent);
}

void NavBar::resizeEvent(QResizeEvent* pEvent)
{
    QFrame::resizeEvent(pEvent);
    FitButtons();
}

QList<NavButton*> NavBar::buttons() const
{
    QList<NavButton*> listShown;
    foreach (NavButton* pButton, findChildren<NavButton*>()) {
        if (!pButton->isHidden()) {
            listShown.append(pButton);
        }
    }
    return listShown;
}

QSize NavBar::sizeIn(NavButton::Form enForm) const
{
    QSize size(0, 2 * MARGIN);
    foreach (const NavButton* pButton, buttons()) {
        size.setWidth(qMax(size.width(), pButton->SizeIn(enForm).width()));
        size.rheight() += pButton->SizeIn(enForm).height() + SPACING;
    }
    return size;
}

void NavBar::FitButtons()
{
    // Large letters in a small window leave their place to the page.
    NavButton::Form enForm = NavButton::SPACIOUS;
    if (sizeIn(enForm).height() > height()) {
        enForm = sizeIn(NavButton::CLOSE).height() > height() ? NavButton::PICTURE : NavButton::CLOSE;
    }
    if (sizeIn(NavButton::CLOSE).width() * WIDEST_PART > window()->width()) {
        enForm = NavButton::PICTURE;
    }
    foreach (NavButton* pButton, findChildren<NavButton*>()) {
        pButton->SetForm(enForm);
    }
}

void NavBar::OnLanguageClicked()
{
    // Upwards, since the button stands at the foot of the bar.
    const QSize size = m_pLanguageMenu->sizeHint();
    const int iX = isRightToLeft() ? -size.width() : m_pLanguage->width();
    m_pLanguageMenu->popup(m_pLanguage->mapToGlobal(QPoint(iX, m_pLanguage->height() - size.height())));
}

void NavBar::OnLanguageChosen(QAction* pAction)
{
    emit languageChosen(pAction->data().toString());
}
