#ifndef ADDRBOOKUIPLUGIN_ADDRBOOKDLGFWD_H
#define ADDRBOOKUIPLUGIN_ADDRBOOKDLGFWD_H

// What the phonebook window is put together from, by name.

class QAction;
class QIcon;
class QKeySequence;
class QMenu;
class QShortcut;
class QSplitter;
class QTableWidget;
class QTableWidgetItem;
class QTextBrowser;
class QTreeWidgetItem;
class QVBoxLayout;

class AddrBookEditDlg;
class AddrBookLogic;
class AddrBookSelectContactsDlg;
class AddrBookTableWidget;
class AddrBookWaitingDlg;
class ChoosePhoneNumber;
class GridDelegate;
class IDeviceMgr;
class IPluginContainer;
class PBTreeWidget;
class UITableItem;

#endif // ADDRBOOKUIPLUGIN_ADDRBOOKDLGFWD_H
