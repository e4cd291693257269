#ifndef LINKHAND_TESTS_MENUSFIXTURE_H
#define LINKHAND_TESTS_MENUSFIXTURE_H

#include <QScopedPointer>
#include <QString>
#include <QStringList>

#include "HostDriver.h"
#include "Profile.h"

// The program on a phonebook of nine contacts, three of them in the group Friends and two in Work, with two more on
// the card.
class MenusFixture
{
public:
    static constexpr const char* TREE = "AddrBookUIPlugin_TreeWidget";
    static constexpr const char* TABLE = "AddrBookUIPlugin_ContactTable";
    static constexpr const char* SEARCH = "AddrBookUIPlugin_SearchBox";
    static constexpr const char* SMS_TO = "SMSUIPlugin_lineeditTo";
    static constexpr const char* MMS_TO = "MMSUIPlugin_lineeditTo";
    static constexpr int CONTACTS = 9;
    static constexpr int FRIENDS = 3;

    // Fills the profile and starts the program; false, with the reason in Log(), if that fails.
    bool Start();

    // Ends the program. Its error lines, and a line of this class's own if it did not end well.
    QStringList Stop();

    HostDriver* Host() { return m_pHost.data(); }
    QString Log() { return m_pHost ? m_pHost->Log() : QString(); }

    // Shows a node's contacts; false if their number is not as said.
    bool OpenNode(const QString& strNode, int iRows);

    // Clicks the row of a contact, and waits until it is selected.
    bool ClickRow(const QString& strContact);

    // Adds a row to the selection.
    bool AddRow(const QString& strContact);

    // The entries of the open menu, each with "+" in front if it is on, "-" if it is off; a "▸" behind opens another.
    // Empty if none opens.
    QStringList MenuEntries();
    bool CloseMenu();

    // Closes with Escape the window that opened over the main one and holds the widget. A window that is drawn does not
    // have the keyboard yet.
    bool CloseWindow(const QString& strAddress);

    // A point of the table's or tree's empty part below its last row.
    QPoint EmptyPlace(const QString& strAddress);

private:
    QScopedPointer<Profile> m_pProfile;
    QScopedPointer<HostDriver> m_pHost;
};

#endif // LINKHAND_TESTS_MENUSFIXTURE_H
