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
#include "fit/PageView.h"
#include "linkhand/plugin/Codes.h"
#include "loader/PluginContainer.h"
#include "loader/PluginHandle.h"
#include "text/HostText.h"
#include "window/AboutDialog.h"
#include "window/DevicePanel.h"
#include "window/HardwarePanel.h"
#include "window/HelpDialog.h"
#include "window/MessagesPage.h"
#include "window/NavBar.h"
#include "window/PluginPage.h"
#include "window/PreferencesPage.h"
#include "window/StatusArea.h"
#include "window/StyleSheet.h"
#include "window/WelcomeNote.h"

namespace
{

const char* const MESSAGES_PAGE = "Messages";
const char* const CARE_PAGE = "Care";
const char* const PREFERENCES_PAGE = "Preferences";

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
      m_outbox(outbox),
      m_pMessages(nullptr),
      m_pCare(nullptr),
      m_pModem(pModem),
      m_pSettings(nullptr),
      m_pPreferences(nullptr),
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

    m_pDevicePanel->hide();
    m_pNavBar->SetDeviceAvailable(SimulatedHardware::Available());
    const bool bReal = pModem != nullptr && !pModem->IsSimulated();
    m_pStatus->SetHardware(bReal ? HardwareChoice::Current() : QString(QLatin1String("simulated")));
    connect(m_pNavBar, SIGNAL(pageChosen(int)), this, SLOT(OnPageChosen(int)));
    connect(m_pNavBar, SIGNAL(deviceToggled(bool)), this, SLOT(OnDeviceToggled(bool)));
    connect(m_pNavBar, SIGNAL(languageChosen(QString)), this, SIGNAL(languageChosen(QString)));
    connect(&m_watcher, SIGNAL(changed()), this, SLOT(OnDeviceChanged()));
    new QShortcut(QKeySequence(QLatin1String("Ctrl+Q")), this, SLOT(close()));
    new QShortcut(QKeySequence(QLatin1String("Ctrl+,")), this, SLOT(OnPreferences()));
    new QShortcut(QKeySequence(QLatin1String("F1")), this, SLOT(OnHelp()));
    applyStyle();
}

void MainWindow::BuildPages()
{
    addPluginPage(QLatin1String(LINKHAND_ADDRBOOK_NAME));
    // Without a parent: a page that goes from one to the next is styled anew with all that is on it.
    m_pMessages = new MessagesPage(m_outbox, m_container, m_pModem, nullptr);
    addPage(QLatin1String(MESSAGES_PAGE), m_pMessages, nullptr, Glyphs::MESSAGES);
    foreach (PluginHandle* pHandle, m_container.Handles()) {
        if (pHandle->HasWindow() && Page(pHandle->Name()) == nullptr) {
            addPluginPage(pHandle->Name());
        }
    }
    if (CarePage::IsPossible()) {
        m_pCare = new CarePage(nullptr);
        connect(m_pCare, SIGNAL(contactsChanged()), this, SIGNAL(contactsChanged()));
        addPage(QLatin1String(CARE_PAGE), m_pCare, nullptr, Glyphs::CARE);
    }
    if (m_pSettings != nullptr) {
        addPreferences();
    }
}

void MainWindow::addPreferences()
{
    m_pPreferences = new PreferencesPage(*m_pSettings, m_pModem, nullptr);
    addPage(QLatin1String(PREFERENCES_PAGE), m_pPreferences, nullptr, Glyphs::PREFERENCES);
    m_pPreferences->SetLanguages(m_listLanguages, m_strLanguage);
    connect(m_pPreferences, SIGNAL(languageChosen(QString)), this, SIGNAL(languageChosen(QString)));
    connect(m_pPreferences, SIGNAL(welcomeChosen(bool)), this, SLOT(OnWelcomeChosen(bool)));
    connect(m_pPreferences, SIGNAL(backupsRequested()), this, SLOT(OnBackups()));
    connect(m_pPreferences, SIGNAL(helpRequested()), this, SLOT(OnHelp()));
    connect(m_pPreferences, SIGNAL(aboutRequested()), this, SLOT(OnAbout()));
    // A choice of hardware in the device panel shows here, and the other way round.
    const QList<HardwarePanel*> listPanels = findChildren<HardwarePanel*>();
    foreach (HardwarePanel* pOne, listPanels) {
        foreach (HardwarePanel* pOther, listPanels) {
            if (pOne != pOther) {
                connect(pOne, SIGNAL(choiceKept(QString)), pOther, SLOT(SetChoice(QString)));
            }
        }
    }
}

void MainWindow::SetLanguages(const QList<LanguageEntry>& listEntries, const QString& strCurrent)
{
    m_listLanguages = listEntries;
    m_strLanguage = strCurrent;
    m_pNavBar->SetLanguages(listEntries, strCurrent);
    if (m_pPreferences != nullptr) {
        m_pPreferences->SetLanguages(listEntries, strCurrent);
    }
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

QString MainWindow::CurrentPage() const
{
    return m_iCurrentPage < 0 ? QString() : m_listPages.at(m_iCurrentPage).strName;
}

QStringList MainWindow::titles() const
{
    QStringList lstTitles;
    foreach (const PageEntry& page, m_listPages) {
        lstTitles.append(titleOf(page.strName));
    }
    return lstTitles;
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
    if (m_pMessages != nullptr) {
        m_pMessages->Retranslate();
    }
    if (m_pCare != nullptr) {
        m_pCare->Retranslate();
    }
    if (m_pPreferences != nullptr) {
        QStringList lstNames;
        foreach (const PageEntry& page, m_listPages) {
            lstNames.append(page.strName);
        }
        m_pPreferences->SetPages(lstNames, titles());
        m_pPreferences->Retranslate();
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
    } else if (pEvent->type() == QEvent::FontChange && centralWidget() != nullptr &&
               centralWidget()->font().family() != font().family()) {
        // Below a style sheet that has just been set the parts do not follow a font by themselves.
        setStyleSheet(styleSheet());
    }
}

void MainWindow::resizeEvent(QResizeEvent* pEvent)
{
    QMainWindow::resizeEvent(pEvent);
    m_pNavBar->FitButtons();
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
    m_pStack->setCurrentIndex(iPage);
    if (m_listPages.at(iPage).pPlugin != nullptr) {
        m_listPages.at(iPage).pPlugin->Enter();
    } else if (m_listPages.at(iPage).pWidget == m_pMessages) {
        m_pMessages->Enter();
    } else if (m_listPages.at(iPage).pWidget == m_pPreferences) {
        m_pPreferences->Enter();
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

void MainWindow::OnPreferences()
{
    ShowPage(QLatin1String(PREFERENCES_PAGE));
}

void MainWindow::OnBackups()
{
    if (m_pCare != nullptr) {
        m_pCare->ShowBackups();
        ShowPage(QLatin1String(CARE_PAGE));
    }
}

void MainWindow::OnWelcomeChosen(bool bShown)
{
    m_pWelcome->SetDismissed(!bShown);
}

void MainWindow::OnHelp()
{
    HelpDialog dialog(titles(), this);
    dialog.exec();
}

void MainWindow::OnAbout()
{
    AboutDialog dialog(this);
    dialog.exec();
}

void MainWindow::addPage(const QString& strName, QWidget* pWidget, PluginPage* pPlugin, Glyphs::Glyph enGlyph)
{
    PageEntry page;
    page.strName = strName;
    page.pWidget = pWidget;
    page.pPlugin = pPlugin;
    m_listPages.append(page);
    m_pStack->addWidget(new PageView(pWidget));
    m_pNavBar->AddPage(m_listPages.size() - 1, strName, enGlyph);
}

void MainWindow::addPluginPage(const QString& strName)
{
    PluginPage* pPage = new PluginPage(m_container, strName, nullptr);
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
