#ifndef LINKHAND_HOST_PREFERENCESPAGE_H
#define LINKHAND_HOST_PREFERENCESPAGE_H

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QWidget>

#include "text/LanguageCatalog.h"

class CountryBox;
class HardwarePanel;
class HostSettings;
class Modem;
class QAbstractButton;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

// Every setting of the program has its place here. What is changed is kept at once. User-interface thread only.
class PreferencesPage : public QWidget
{
    Q_OBJECT

public:
    // Both outlive the page. Without a modem it is as with the simulated one.
    PreferencesPage(HostSettings& settings, Modem* pModem, QWidget* pParent);

    void SetLanguages(const QList<LanguageEntry>& listEntries, const QString& strCurrent);

    // The pages that the program can begin with, by name, and what they are called.
    void SetPages(const QStringList& lstNames, const QStringList& lstTitles);

    void Retranslate();

    // Reads anew what may have been changed elsewhere; called as the page is entered.
    void Enter();

signals:
    void languageChosen(const QString& strCode);

    // The user wants to see the note that greets at an empty phonebook, or not.
    void welcomeChosen(bool bShown);

    void backupsRequested();
    void helpRequested();
    void aboutRequested();

private slots:
    void OnLanguage(int iIndex);
    void OnStartPage(int iIndex);
    void OnToggled(bool bOn);
    void OnWordEdited();
    void OnFocusChanged(QWidget* pBefore, QWidget* pNow);

private:
    // A switch for a value in the user's file.
    struct Switch {
        QCheckBox* pBox;
        QString strKey;
        QString strOn;
        QString strOff;
        const char* pszText;
    };

    QFormLayout* addSection(QVBoxLayout* pLayout, const char* pszTitle);
    QLabel* addLabel(const char* pszText, QWidget* pBuddy);
    QCheckBox* addSwitch(const char* pszRole, const char* pszKey, const char* pszOn, const char* pszOff,
                         const char* pszText);
    QLineEdit* addWord(const char* pszRole, const char* pszKey);
    QPushButton* addButton(const char* pszRole, const char* pszText, const char* pszSignal);
    void addGeneral(QVBoxLayout* pLayout);
    void addPhonebook(QVBoxLayout* pLayout);
    void addRest(QVBoxLayout* pLayout, Modem* pModem);

    HostSettings& m_settings;
    QScrollArea* m_pScroll;
    QList<Switch> m_listSwitches;
    QList<QLineEdit*> m_listWords;
    QList<QPair<QLabel*, const char*>> m_listLabels;
    QList<QPair<QPushButton*, const char*>> m_listButtons;
    QComboBox* m_pLanguage;
    QComboBox* m_pStartPage;
    CountryBox* m_pCountry;
    HardwarePanel* m_pHardware;
};

#endif // LINKHAND_HOST_PREFERENCESPAGE_H
