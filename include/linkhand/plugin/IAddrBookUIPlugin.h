#ifndef LINKHAND_PLUGIN_IADDRBOOKUIPLUGIN_H
#define LINKHAND_PLUGIN_IADDRBOOKUIPLUGIN_H

#include <QList>
#include <QObject>
#include <QString>
#include <QWidget>

// Chosen by the caller of OpenNumSelectDlg and handed through; the phonebook does not act on it.
enum FIELD_TYPE { FIELD_TYPE_DEFAULT = 0 };

// The phonebook's service to its siblings: QueryInterface with LINKHAND_ADDRBOOK_KIND on the phonebook's root object,
// then qobject_cast. All operations run on the user-interface thread.
class IAddrBookUIPlugin
{
public:
    virtual ~IAddrBookUIPlugin() {}

    // Lets the user save strNumber as a contact. pParent is the parent of the windows that opens. 1 done, 0 failed.
    virtual int SaveNumberToAddrBook(QString strNumber, QWidget* pParent) = 0;

    // Keeps its place in the interface; searches nothing and writes nothing.
    virtual void SearchMobile(QString strNumber, QString strText, int& iResult, bool bFlag) = 0;

    // Lets the user pick phone numbers. lstNumbers comes in with the numbers already chosen and, when the user
    // confirms, goes out with the new choice. bFlag selects the dialog's layout. 1 confirmed, 0 otherwise.
    virtual int OpenNumSelectDlg(bool bFlag, FIELD_TYPE enFieldType, QList<QString>& lstNumbers) = 0;
};

Q_DECLARE_INTERFACE(IAddrBookUIPlugin, "com.teskra.linkhand.plugin.IAddrBookUIPlugin")

#endif // LINKHAND_PLUGIN_IADDRBOOKUIPLUGIN_H
