#include "window/MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "care/CarePage.h"
#include "device/DeviceWatcher.h"
#include "device/HardwareChoice.h"
#include "device/Modem.h"
#include "device/SimulatedHardware.h"
#include "linkhand/plugin/Codes.h"
#include "loader/PluginContainer.h"
#include "loader/PluginHandle.h"
#include "text/HostText.h"
#include "window/DevicePanel.h"
#include "window/MessagesPage.h"
#include "window/NavBar.h"
#include "window/PluginPage.h"
#include "window/StatusArea.h"
#include "window/StyleSheet.h"
#include "window/WelcomeNote.h"

namespace
{

const char* const MESSAGES_PAGE = "Messages";
const char* const CARE_PAGE = "Care";

Glyphs::Glyph glyphOf(const QString& strPage)
{
    return strPage == QLatin1String(LINKHAND_ADDRBOOK_NAME)    ? Glyphs::PHONEBOOK
           : strPage == QLatin1String(MESSAGES_PAGE)           ? Glyphs::MESSAGES
           : strPage == QLatin1String(LINKHAND_VOICECALL_NAME) ? Glyphs::CALLS
                                                               : Glyphs::OTHER;
}

// A plug-in that the language files do not know shows under its own name.
QString titleOf(const QString& strPage)
{
    const QString strId = QLatin1String("IDS_HOST_PAGE_") + strPage;
    const QString strText = HostText::Get(strId);
    return strText == strId ? strPage : strText;
}

} // namespace

MainWindow::MainWindow(PluginContainer& container, MessageStore& outbox, DeviceWatcher& watcher, Modem* pModem)
    : m_container(container),
      m_watcher(watcher),
      m_pNavBar(new NavBar(this)),
      m_pWelcome(new WelcomeNote(this)),
      m_pStack(new QStackedWidget(this)),
      m_pDevicePanel(new DevicePanel(watcher, pModem, this)),
      m_pStatus(new StatusArea(this)),
      m_pMessages(new MessagesPage(outbox, container, pModem, this)),
      m_pCare(CarePage::IsPossible() ? new CarePage(this) : nullptr),
      m_iCurrentPage(-1)
{
    setObjectName(QLatin1String("linkhand_MainWindow"));
    setWindowIcon(Glyphs::Icon(Glyphs::PHONEBOOK, palette().color(QPalette::Highlight)));
    setMinimumSize(720, 480);
    resize(1120, 740);

    QWidget* pCentral = new QWidget(this);
    QVBoxLayout* pPage = new QVBoxLayout;
    pPage->setSpacing(0);
    pPage->addWidget(m_pWelcome);
    pPage->addWidget(m_pStack, 1);
    QHBoxLayout* pRow = new QHBoxLayout;
    pRow->setSpacing(0);
    pRow->addWidget(m_pNavBar);
    pRow->addLayout(pPage, 1);
    pRow->addWidget(m_pDevicePanel);
    QVBoxLayout* pLayout = new QVBoxLayout(pCentral);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(0);
    pLayout->addLayout(pRow, 1);
    pLayout->addWidget(m_pStatus);
    setCentralWidget(pCentral);

    m_pMessages->hide();
    if (m_pCare != nullptr) {
        m_pCare->hide();
        connect(m_pCare, SIGNAL(contactsChanged()), this, SIGNAL(contactsChanged()));
    }
    m_pDevicePanel->hide();
    m_pNavBar->SetDeviceAvailable(SimulatedHardware::Available());
    const bool bReal = pModem != nullptr && !pModem->IsSimulated();
    m_pStatus->SetHardware(bReal ? HardwareChoice::Current() : QString(QLatin1String("simulated")));
    connect(m_pNavBar, SIGNAL(pageChosen(int)), this, SLOT(OnPageChosen(int)));
    connect(m_pNavBar, SIGNAL(deviceToggled(bool)), this, SLOT(OnDeviceToggled(bool)));
    connect(m_pNavBar, SIGNAL(languageChosen(QString)), this, SIGNAL(languageChosen(QString)));
    connect(&m_watcher, SIGNAL(changed()), this, SLOT(OnDeviceChanged()));
    new QShortcut(QKeySequence(QLatin1String("Ctrl+Q")), this, SLOT(close()));
    applyStyle();
}

void MainWindow::BuildPages()
{
    addPluginPage(QLatin1String(LINKHAND_ADDRBOOK_NAME));
    addPage(QLatin1String(MESSAGES_PAGE), m_pMessages, nullptr, Glyphs::MESSAGES);
    foreach (PluginHandle* pHandle, m_container.Handles()) {
        if (pHandle->HasWindow() && Page(pHandle->Name()) == nullptr) {
            addPluginPage(pHandle->Name());
        }
    }
    if (m_pCare != nullptr) {
        addPage(QLatin1String(CARE_PAGE), m_pCare, nullptr, Glyphs::CARE);
    }
}

void MainWindow::SetLanguages(const QList<LanguageEntry>& listEntries, const QString& strCurrent)
{
    m_pNavBar->SetLanguages(listEntries, strCurrent);
}

void MainWindow::SetDevicePanelShown(bool bShown)
{
    m_pNavBar->SetDeviceShown(bShown && SimulatedHardware::Available());
}

bool MainWindow::DevicePanelShown() const
{
    return !m_pDevicePanel->isHidden();
}

QWidget* MainWindow::Page(const QString& strName) const
{
    foreach (const PageEntry& page, m_listPages) {
        if (page.strName == strName) {
            return page.pWidget;
        }
    }
    return nullptr;
}

void MainWindow::ShowPage(const QString& strName)
{
    for (int i = 0; i < m_listPages.size(); ++i) {
        if (m_listPages.at(i).strName == strName) {
            OnPageChosen(i);
        }
    }
}

void MainWindow::Retranslate()
{
    setWindowTitle(HostText::Get("IDS_HOST_TITLE"));
    for (int i = 0; i < m_listPages.size(); ++i) {
        m_pNavBar->SetPageText(i, titleOf(m_listPages.at(i).strName));
        if (m_listPages.at(i).pPlugin != nullptr) {
            m_listPages.at(i).pPlugin->Retranslate();
        }
    }
    m_pNavBar->Retranslate();
    m_pWelcome->Retranslate();
    m_pMessages->Retranslate();
    if (m_pCare != nullptr) {
        m_pCare->Retranslate();
    }
    m_pDevicePanel->Retranslate();
    m_pStatus->Retranslate();
    emit retranslated();
}

void MainWindow::closeEvent(QCloseEvent* pEvent)
{
    pEvent->accept();
    emit closing();
}

void MainWindow::changeEvent(QEvent* pEvent)
{
    QMainWindow::changeEvent(pEvent);
    if (pEvent->type() == QEvent::PaletteChange || pEvent->type() == QEvent::ApplicationPaletteChange ||
        pEvent->type() == QEvent::ApplicationFontChange || pEvent->type() == QEvent::LayoutDirectionChange) {
        applyStyle();
    }
}

void MainWindow::OnPageChosen(int iPage)
{
    m_pNavBar->SetCurrentPage(iPage);
    if (iPage == m_iCurrentPage) {
        return;
    }
    // Asked before the old page goes: with it the keys would fall to the next in line, a button of the side bar.
    const bool bAlongBar = m_pNavBar->isAncestorOf(focusWidget());
    if (m_iCurrentPage >= 0 && m_listPages.at(m_iCurrentPage).pPlugin != nullptr) {
        m_listPages.at(m_iCurrentPage).pPlugin->Leave();
    }
    m_iCurrentPage = iPage;
    m_pWelcome->SetPhonebookShown(m_listPages.at(iPage).strName == QLatin1String(LINKHAND_ADDRBOOK_NAME));
    m_pStack->setCurrentWidget(m_listPages.at(iPage).pWidget);
    if (m_listPages.at(iPage).pPlugin != nullptr) {
        m_listPages.at(iPage).pPlugin->Enter();
    } else if (m_listPages.at(iPage).pWidget == m_pMessages) {
        m_pMessages->Enter();
    } else {
        m_pCare->Enter();
    }
    // The keys follow to the page, unless the user is moving along the side bar.
    if (!bAlongBar) {
        focusPage(m_listPages.at(iPage).pWidget);
    }
}

void MainWindow::focusPage(QWidget* pPage)
{
    const QWidget* pFocus = focusWidget();
    if (pFocus != nullptr && pFocus->isVisible() && pPage->isAncestorOf(pFocus)) {
        return;
    }
    for (QWidget* pNext = pPage->nextInFocusChain(); pNext != pPage; pNext = pNext->nextInFocusChain()) {
        if ((pNext->focusPolicy() & Qt::TabFocus) != 0 && pNext->isEnabled() && pNext->isVisible() &&
            pPage->isAncestorOf(pNext)) {
            pNext->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

void MainWindow::OnDeviceToggled(bool bShown)
{
    m_pDevicePanel->setVisible(bShown);
}

void MainWindow::OnDeviceChanged()
{
    m_pStatus->SetState(m_watcher.State());
}

void MainWindow::addPage(const QString& strName, QWidget* pWidget, PluginPage* pPlugin, Glyphs::Glyph enGlyph)
{
    PageEntry page;
    page.strName = strName;
    page.pWidget = pWidget;
    page.pPlugin = pPlugin;
    m_listPages.append(page);
    m_pStack->addWidget(pWidget);
    m_pNavBar->AddPage(m_listPages.size() - 1, strName, enGlyph);
}

void MainWindow::addPluginPage(const QString& strName)
{
    PluginPage* pPage = new PluginPage(m_container, strName, m_pStack);
    addPage(strName, pPage, pPage, glyphOf(strName));
}

void MainWindow::applyStyle()
{
    // Both setters send a change of palette themselves.
    const QPalette legible = StyleSheet::WithPlainDisabledTexts(StyleSheet::WithLegibleLinks(QApplication::palette()));
    if (legible != QApplication::palette()) {
        QApplication::setPalette(legible);
    }
    const QString strRules = StyleSheet::Build(palette(), QApplication::font());
    if (strRules != styleSheet()) {
        setStyleSheet(strRules);
    }
}
