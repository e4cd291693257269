#ifndef LINKHAND_HOST_MAINWINDOW_H
#define LINKHAND_HOST_MAINWINDOW_H

#include <QList>
#include <QMainWindow>
#include <QString>
#include <QStringList>

#include "text/LanguageCatalog.h"
#include "window/Glyphs.h"

class CarePage;
class DevicePanel;
class HostSettings;
class DeviceWatcher;
class IPluginContainer;
class MessagesPage;
class NavBar;
class MessageStore;
class Modem;
class PluginContainer;
class PluginPage;
class PreferencesPage;
class QStackedWidget;
class StatusArea;
class WelcomeNote;

// The window of the program: pages at the side bar, one of them in the middle, the device panel, the status area.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    // All outlive the window. Without a modem it is as with the simulated one.
    MainWindow(PluginContainer& container, MessageStore& outbox, DeviceWatcher& watcher, Modem* pModem = nullptr);

    // What the page of preferences shows and changes; without it there is no such page. Called before BuildPages.
    void SetSettings(HostSettings& settings) { m_pSettings = &settings; }

    // Makes a page for the phonebook, one for each further plug-in with a window, and the messages page. Called once,
    // after the plug-ins have been loaded, whether they started or not; and last the care page, if the SDK allows, and
    // the preferences.
    void BuildPages();

    void SetLanguages(const QList<LanguageEntry>& listEntries, const QString& strCurrent);
    void SetDevicePanelShown(bool bShown);
    bool DevicePanelShown() const;
    StatusArea& Status() { return *m_pStatus; }
    WelcomeNote& Welcome() { return *m_pWelcome; }

    // The page of a plug-in, "Messages" or "Care"; null if there is none.
    QWidget* Page(const QString& strName) const;
    void ShowPage(const QString& strName);

    // The name of the page in front; empty while there is none.
    QString CurrentPage() const;

    // All texts anew, after a change of language.
    void Retranslate();

signals:
    void languageChosen(const QString& strCode);

    // The window's texts are those of another language; windows beside it follow.
    void retranslated();

    // A page of the host's own has changed the PC's contacts.
    void contactsChanged();

    // The user closes the window.
    void closing();

protected:
    void closeEvent(QCloseEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;

private slots:
    void OnPageChosen(int iPage);
    void OnDeviceToggled(bool bShown);
    void OnDeviceChanged();
    void OnPreferences();
    void OnBackups();
    void OnWelcomeChosen(bool bShown);
    void OnHelp();
    void OnAbout();

private:
    struct PageEntry {
        QString strName;
        QWidget* pWidget;
        PluginPage* pPlugin; // null for a page of the host's own
    };

    void addPage(const QString& strName, QWidget* pWidget, PluginPage* pPlugin, Glyphs::Glyph enGlyph);
    void addPluginPage(const QString& strName);
    void addPreferences();
    QStringList titles() const;
    void focusPage(QWidget* pPage);
    void applyStyle();

    PluginContainer& m_container;
    DeviceWatcher& m_watcher;
    NavBar* m_pNavBar;
    WelcomeNote* m_pWelcome;
    QStackedWidget* m_pStack;
    DevicePanel* m_pDevicePanel;
    StatusArea* m_pStatus;
    MessageStore& m_outbox;
    MessagesPage* m_pMessages; // null until the pages are built, as the next
    CarePage* m_pCare;         // null where the SDK lacks what it needs
    Modem* m_pModem;
    HostSettings* m_pSettings;
    PreferencesPage* m_pPreferences; // null without settings
    QList<LanguageEntry> m_listLanguages;
    QString m_strLanguage;
    QList<PageEntry> m_listPages;
    int m_iCurrentPage;
};

#endif // LINKHAND_HOST_MAINWINDOW_H
