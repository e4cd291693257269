#include "window/PreferencesPage.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QVariant>

#include "settings/HostSettings.h"
#include "shared/WrapLayout.h"
#include "text/HostText.h"
#include "window/CountryBox.h"
#include "window/HardwarePanel.h"
#include "window/LateBox.h"

namespace
{

const char* const KEY = "key"; // of a line's value in the user's file
const int SECTION_GAP = 14;
const int LONGEST_WORD = 20;

QString named(const char* pszRole)
{
    return QLatin1String("linkhand_Preferences_") + QLatin1String(pszRole);
}

} // namespace

PreferencesPage::PreferencesPage(HostSettings& settings, Modem* pModem, QWidget* pParent)
    : QWidget(pParent),
      m_settings(settings),
      m_pScroll(new QScrollArea(this)),
      m_pLanguage(new LateBox(this)),
      m_pStartPage(new QComboBox(this)),
      m_pCountry(nullptr),
      m_pHardware(nullptr)
{
    setObjectName(QLatin1String("linkhand_Page_Preferences"));
    m_pLanguage->setObjectName(named("language"));
    m_pStartPage->setObjectName(named("startPage"));
    // The texts of another language may be longer.
    m_pStartPage->setSizeAdjustPolicy(QComboBox::AdjustToContents);

    QWidget* const pContent = new QWidget;
    pContent->setObjectName(named("content"));
    QVBoxLayout* const pSections = new QVBoxLayout(pContent);
    pSections->setContentsMargins(0, 0, 8, 0);
    addGeneral(pSections);
    addPhonebook(pSections);
    addRest(pSections, pModem);
    pSections->addStretch(1);

    m_pScroll->setObjectName(named("scroll"));
    m_pScroll->setFrameShape(QFrame::NoFrame);
    m_pScroll->setWidgetResizable(true);
    m_pScroll->setFocusPolicy(Qt::NoFocus);
    m_pScroll->setWidget(pContent);
    QLabel* const pTitle = addLabel("IDS_HOST_PAGE_Preferences", nullptr);
    pTitle->setObjectName(named("title"));
    QLabel* const pHint = addLabel("IDS_HOST_PREFS_HINT", nullptr);
    pHint->setObjectName(named("hint"));
    pHint->setWordWrap(true);
    WrapLayout* const pButtons = new WrapLayout;
    pButtons->AddStretch();
    pButtons->addWidget(addButton("help", "IDS_HOST_HELP_DOTS", SIGNAL(helpRequested())));
    pButtons->addWidget(addButton("about", "IDS_HOST_ABOUT_DOTS", SIGNAL(aboutRequested())));
    QVBoxLayout* const pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(12, 10, 12, 10);
    pLayout->addWidget(pTitle);
    pLayout->addWidget(pHint);
    pLayout->addWidget(m_pScroll, 1);
    pLayout->addLayout(pButtons);
    connect(m_pLanguage, SIGNAL(activated(int)), this, SLOT(OnLanguage(int)));
    connect(m_pStartPage, SIGNAL(activated(int)), this, SLOT(OnStartPage(int)));
    connect(qApp, SIGNAL(focusChanged(QWidget*, QWidget*)), this, SLOT(OnFocusChanged(QWidget*, QWidget*)));
    Enter();
}

void PreferencesPage::addGeneral(QVBoxLayout* pLayout)
{
    QFormLayout* const pForm = addSection(pLayout, "IDS_HOST_PREFS_GENERAL");
    pForm->addRow(addLabel("IDS_HOST_PREFS_LANGUAGE", m_pLanguage), m_pLanguage);
    pForm->addRow(addLabel("IDS_HOST_PREFS_START", m_pStartPage), m_pStartPage);
    QCheckBox* const pWelcome =
        addSwitch("welcome", "host/welcomedismissed", "false", "true", "IDS_HOST_PREFS_WELCOME");
    connect(pWelcome, SIGNAL(clicked(bool)), this, SIGNAL(welcomeChosen(bool)));
    pForm->addRow(pWelcome);
}

void PreferencesPage::addPhonebook(QVBoxLayout* pLayout)
{
    QFormLayout* const pForm = addSection(pLayout, "IDS_HOST_PAGE_AddrBookUIPlugin");
    if (CountryBox::IsPossible()) {
        m_pCountry = new CountryBox(this);
        pForm->addRow(addLabel("IDS_HOST_PREFS_COUNTRY", m_pCountry), m_pCountry);
    }
    QLineEdit* const pSim = addWord("simType", "customize/simtype");
    QLineEdit* const pUim = addWord("uimType", "customize/uimtype");
    pForm->addRow(addLabel("IDS_HOST_PREFS_SIM_WORD", pSim), pSim);
    pForm->addRow(addLabel("IDS_HOST_PREFS_UIM_WORD", pUim), pUim);
    pForm->addRow(addSwitch("columns", "addrbook/sortpreserve", "1", "0", "IDS_HOST_PREFS_COLUMNS"));
    pForm->addRow(addSwitch("nameUnits", "customize/pbnamecode", "all", "", "IDS_HOST_PREFS_NAME_UNITS"));
    pForm->addRow(
        addSwitch("dualMode", "DualModeCard/HideDoubleModeCardNode", "true", "false", "IDS_HOST_PREFS_DUAL_MODE"));
    pForm->addRow(addSwitch("calls", "callui/callvoice", "1", "0", "IDS_HOST_PREFS_CALLS"));
}

void PreferencesPage::addRest(QVBoxLayout* pLayout, Modem* pModem)
{
    QFormLayout* const pHardware = addSection(pLayout, "IDS_HOST_PREFS_HARDWARE");
    m_pHardware = new HardwarePanel(pModem, this);
    m_pHardware->KeepToContent();
    // The device panel has one, too.
    foreach (QWidget* pWidget, m_pHardware->findChildren<QWidget*>()) {
        if (pWidget->objectName().startsWith(QLatin1String("linkhand_HardwarePanel"))) {
            pWidget->setObjectName(named("hardware_") + pWidget->objectName().section(QLatin1Char('_'), -1));
        }
    }
    pHardware->addRow(m_pHardware);

    QFormLayout* const pBackups = addSection(pLayout, "IDS_HOST_CARE_BACKUPS");
    pBackups->addRow(addSwitch("backup", "host/dailybackup", "true", "false", "IDS_HOST_PREFS_BACKUP"));
    QHBoxLayout* const pRow = new QHBoxLayout;
    pRow->addWidget(addButton("backups", "IDS_HOST_PREFS_BACKUPS_DOTS", SIGNAL(backupsRequested())));
    pRow->addStretch(1);
    pBackups->addRow(pRow);
}

QFormLayout* PreferencesPage::addSection(QVBoxLayout* pLayout, const char* pszTitle)
{
    QLabel* const pTitle = addLabel(pszTitle, nullptr);
    QFont bold = pTitle->font();
    bold.setBold(true);
    pTitle->setFont(bold);
    if (pLayout->count() > 0) {
        pLayout->addSpacing(SECTION_GAP);
    }
    pLayout->addWidget(pTitle);
    QFormLayout* const pForm = new QFormLayout;
    // A long word of one language must not push the fields out of a small window.
    pForm->setRowWrapPolicy(QFormLayout::WrapLongRows);
    pForm->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    pForm->setFormAlignment(Qt::AlignLeft | Qt::AlignTop);
    pForm->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    pLayout->addLayout(pForm);
    return pForm;
}

QLabel* PreferencesPage::addLabel(const char* pszText, QWidget* pBuddy)
{
    QLabel* const pLabel = new QLabel(this);
    pLabel->setBuddy(pBuddy);
    m_listLabels.append(qMakePair(pLabel, pszText));
    return pLabel;
}

QCheckBox* PreferencesPage::addSwitch(const char* pszRole, const char* pszKey, const char* pszOn, const char* pszOff,
                                      const char* pszText)
{
    Switch entry;
    entry.pBox = new QCheckBox(this);
    entry.pBox->setObjectName(named(pszRole));
    entry.strKey = QLatin1String(pszKey);
    entry.strOn = QLatin1String(pszOn);
    entry.strOff = QLatin1String(pszOff);
    entry.pszText = pszText;
    m_listSwitches.append(entry);
    connect(entry.pBox, SIGNAL(clicked(bool)), this, SLOT(OnToggled(bool)));
    return entry.pBox;
}

QLineEdit* PreferencesPage::addWord(const char* pszRole, const char* pszKey)
{
    QLineEdit* const pLine = new QLineEdit(this);
    pLine->setObjectName(named(pszRole));
    pLine->setProperty(KEY, QLatin1String(pszKey));
    pLine->setMaxLength(LONGEST_WORD);
    m_listWords.append(pLine);
    connect(pLine, SIGNAL(editingFinished()), this, SLOT(OnWordEdited()));
    return pLine;
}

QPushButton* PreferencesPage::addButton(const char* pszRole, const char* pszText, const char* pszSignal)
{
    QPushButton* const pButton = new QPushButton(this);
    pButton->setObjectName(named(pszRole));
    connect(pButton, SIGNAL(clicked()), this, pszSignal);
    m_listButtons.append(qMakePair(pButton, pszText));
    return pButton;
}

void PreferencesPage::SetLanguages(const QList<LanguageEntry>& listEntries, const QString& strCurrent)
{
    m_pLanguage->clear();
    foreach (const LanguageEntry& entry, listEntries) {
        m_pLanguage->addItem(entry.strName, entry.strCode);
    }
    m_pLanguage->setCurrentIndex(m_pLanguage->findData(strCurrent));
}

void PreferencesPage::SetPages(const QStringList& lstNames, const QStringList& lstTitles)
{
    m_pStartPage->clear();
    m_pStartPage->addItem(HostText::Get("IDS_HOST_PREFS_START_LAST"), QString());
    for (int i = 0; i < lstNames.size(); ++i) {
        m_pStartPage->addItem(lstTitles.value(i), lstNames.at(i));
    }
    m_pStartPage->setCurrentIndex(qMax(0, m_pStartPage->findData(m_settings.StartPage())));
}

void PreferencesPage::Retranslate()
{
    for (int i = 0; i < m_listLabels.size(); ++i) {
        m_listLabels.at(i).first->setText(HostText::Get(m_listLabels.at(i).second));
    }
    for (int i = 0; i < m_listButtons.size(); ++i) {
        m_listButtons.at(i).first->setText(HostText::Get(m_listButtons.at(i).second));
    }
    foreach (const Switch& entry, m_listSwitches) {
        entry.pBox->setText(HostText::Get(entry.pszText));
    }
    if (m_pCountry != nullptr) {
        m_pCountry->Retranslate();
    }
    m_pHardware->Retranslate();
}

void PreferencesPage::Enter()
{
    foreach (const Switch& entry, m_listSwitches) {
        entry.pBox->setChecked(m_settings.Value(entry.strKey) == entry.strOn);
    }
    foreach (QLineEdit* pLine, m_listWords) {
        pLine->setText(m_settings.Value(pLine->property(KEY).toString()));
    }
}

void PreferencesPage::OnLanguage(int iIndex)
{
    emit languageChosen(m_pLanguage->itemData(iIndex).toString());
}

void PreferencesPage::OnStartPage(int iIndex)
{
    m_settings.SetStartPage(m_pStartPage->itemData(iIndex).toString());
}

void PreferencesPage::OnToggled(bool bOn)
{
    foreach (const Switch& entry, m_listSwitches) {
        if (entry.pBox == sender()) {
            m_settings.SetValue(entry.strKey, bOn ? entry.strOn : entry.strOff);
        }
    }
}

void PreferencesPage::OnWordEdited()
{
    const QLineEdit* const pLine = static_cast<QLineEdit*>(sender());
    const QString strKey = pLine->property(KEY).toString();
    if (m_settings.Value(strKey) != pLine->text()) {
        m_settings.SetValue(strKey, pLine->text());
    }
}

// Also where the keys come in from outside, of which the area itself does not hear.
void PreferencesPage::OnFocusChanged(QWidget*, QWidget* pNow)
{
    if (pNow != nullptr && m_pScroll->widget() != nullptr && m_pScroll->widget()->isAncestorOf(pNow)) {
        m_pScroll->ensureWidgetVisible(pNow);
    }
}
