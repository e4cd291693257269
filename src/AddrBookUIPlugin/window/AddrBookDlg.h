#ifndef ADDRBOOKUIPLUGIN_ADDRBOOKDLG_H
#define ADDRBOOKUIPLUGIN_ADDRBOOKDLG_H

#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>

#include "linkhand/core/QBuildMenu.h"
#include "linkhand/core/ToolBarLogic.h"
#include "linkhand/plugin/IAddrBookUIPlugin.h"
#include "logic/AddrBookTypes.h"
#include "window/AddrBookBatch.h"
#include "window/AddrBookDlgFwd.h"
#include "window/Capacity.h"
#include "window/MenuEntries.h"
#include "window/SavedRecords.h"
#include "window/TableSearch.h"
#include "window/UsageFile.h"
#include "worker/AddrBookThread.h"

// The phonebook window: tree on the left; tool bar, contact table and preview on the right. The host re-parents it into
// its page. All runs on the user-interface thread; workers and SDK events reach it as queued signals. One .cpp a
// concern; a section of this header stands for one of them.
class AddrBookDlg : public QWidget
{
    Q_OBJECT

    // ---- Construction, language, device state (AddrBookDlg.cpp, AddrBookDlgStatus.cpp) -----------------------------
public:
    AddrBookDlg();

    // Stops the workers and waits for each to end, at most for the record it has in hand.
    ~AddrBookDlg() override;

    // Builds the window, in two steps that are called once and in this order. pParent is not used: the window gets its
    // parent when it is shown. Null if a part could not be made.
    QWidget* InitWindow(QWidget* pParent);
    void InitTree();

    // Texts, shortcut keys and reading direction anew from the language files.
    void SetLanguage();
    QString tr(const QString& strId) const;

    // The host's notices.
    void OnSimDisabled(bool bIsSimDisabled);
    void OnSysmodeChanged();

    // The radio; true when it is off, in spite of the argument's name.
    void OnRFStatusChanged(bool bIsRFEnabled);

public slots:
    void OnSimStatusChanged(bool bIsSimEnabled);
    void OnAddrBookReady();
    void OnAddrBookSimReady();
    void OnAddrBookDeviceReady();
    void OnDeviceStatusChanged(bool isDeviceConnected);
    void OnNetStatusChanged(bool bIsNetSrvConnected);
    void OnSplitterMoved(int pos, int index);
    void getUpdateDeviceAndSimNode();
    void OnGroupsChanged(); // by another program

signals:
    // Nothing in this plug-in emits it.
    void signalSimStatus(bool bIsSimEnabled);

protected:
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void setArabicLanguage();
    bool createPanes();
    bool createPreview();
    void readRadio();
    void retranslateHeader();
    void retranslateToolBar();
    void removeMemoryNode(QTreeWidgetItem*& pitem, _ORVA_EN_PHONEBOOK_MEMORY enType, const char* szLog,
                          unsigned int uiMsg);
    void removeSimNode();
    void showReadyMemory(QTreeWidgetItem*& pitem, _ORVA_EN_PHONEBOOK_MEMORY enType);
    bool isOnline() const { return m_bNetConnected && !m_bRFOff; }

    // ---- Tree and groups (AddrBookDlgTree.cpp, ...TreeWidth.cpp, ...Groups.cpp) -------------------------------------
public:
    void SetTreeFocus();
    void addTreeNode(QTreeWidgetItem** ppitem, _ORVA_EN_PHONEBOOK_MEMORY enType);

    // Adds whatever memory node the SDK names and the tree lacks; the card's, with bCheckSim, only if it can be read.
    void updateDeviceAndSimNode(bool bCheckSim);
    bool setNodeText(QTreeWidgetItem* pitem, _ORVA_EN_PHONEBOOK_MEMORY enType, bool bShowCount);
    void setLocalText();
    void updateGroupInfoInTree(QTreeWidgetItem* pitem, AddrBookGroup* pGroup, _ORVA_EN_PHONEBOOK_MEMORY enType,
                               qlonglong iNodeValue);
    void rePaintTree();
    void updateNodes();
    bool isNodePresentInTree(QTreeWidgetItem* pitem) const;
    bool isSimorDeviceNodeExist() const;
    QTreeWidgetItem* getGroupAndParentIds(_ORVA_EN_PHONEBOOK_MEMORY& enType, int& iGroupId, int& iParentId,
                                          QTreeWidgetItem* pitem) const;
    QTreeWidgetItem* getGroupId(_ORVA_EN_PHONEBOOK_MEMORY& enType, int& iGroupId) const;

    // Ends an open editor from outside: the text in it is saved, or the node goes.
    void CloseEditor();

    // Writes the editor's text to the store and puts the count behind it. False if the edit was undone.
    bool saveGroupName(QString& strText, QTreeWidgetItem* pitem);

    // Takes a node out of the tree and frees it with what is below it; nothing in the window names it afterwards.
    void removeTreeItem(QTreeWidgetItem* pParent, QTreeWidgetItem* pitem);

    // Frees what is below a node, with its groups.
    void removeChildNodes(QTreeWidgetItem* pitem);

public slots:
    void OnTreeClicked(QTreeWidgetItem* item);
    void OnTreeItemSelectionChanged();
    void OnTreeItemEntered(QTreeWidgetItem* item);
    void OnNewGroupClicked();
    void OnRenameGroupClicked();
    void OnDeleteGroupClicked();
    void OnTreeDoubleClicked(QTreeWidgetItem* pitem);
    void OnEditorClosed(QWidget* pwidgetEditor);
    void OnGroupNameRefused(const QString& strTextId);

private:
    void createTreeWidget();

    // Each group that becomes a node belongs to its node.
    void addGroupsToTree(QTreeWidgetItem* pParent, QList<AddrBookGroup*> lstGroups, int iParentId);
    void readGroups();
    void addListedNode(_ORVA_EN_PHONEBOOK_MEMORY enType, bool bCheckSim);
    void repaintNode(QTreeWidgetItem* pitem, TreeNodeData* pData, const QIcon& icon);
    void setTreeData(qlonglong iData, int iColumn, bool bSorted, Qt::SortOrder enOrder, QTreeWidgetItem* pitem);
    void setNodeCaption(QTreeWidgetItem* pitem, QString strText);
    void getImageIconFromFile(const QString& strPath, int iFrame, QIcon& icon) const;
    void setTreeColumnWidth(QTreeWidgetItem* pitem);
    void setCorrectTreeWidth();
    void deleteTreeVariantData();
    void refuseGroupName(QTreeWidgetItem* pitem, int iResult);
    void undoGroupEdit(QTreeWidgetItem* pitem, bool bFitTree);
    bool isUnderEdit(const QTreeWidgetItem* pitem) const;
    void endGroupEdit();
    void forgetTreeItem(const QTreeWidgetItem* pitem);
    void goBackTo(QTreeWidgetItem* pitem, bool bShown, QTreeWidgetItem* pShown);

    // ---- Table and preview (AddrBookDlgTable.cpp, ...TableState.cpp, ...Preview.cpp) --------------------------------
public:
    void getFieldNames();
    void getColumnCount(_ORVA_EN_PHONEBOOK_MEMORY enType, int& iCount) const;
    void removeFieldNameAndInfo(QList<QString>& lstNames, QList<QString>& lstInfo, int iIndex) const;
    void UpdateTableRecords(QTreeWidgetItem* pitem);
    void addContactToTable(_ORVA_EN_PHONEBOOK_MEMORY enType, const AddrBookRecord& record, int iGroupId, int& iRow);
    void setTableContent(_ORVA_EN_PHONEBOOK_MEMORY enType, const AddrBookRecord& record);
    bool checkStrings(const QString& strText, const QString& strPrefix) const;
    void constructPreview(int iRow, int iColumnCount, QString& strText, TableRowData* pData);
    int tableSelectionStatus() const; // ADDRBOOK_ENABLE_TABLE_SINGLE, _MULTIPLE or _NONE

public slots:
    void OnAddContactToTable(int enType, qlonglong iData, int iGroupid, int iCurrentRow, int iColumnCount);
    void OnReadFinished();
    void OnTableClicked(int iRow, int iColumn);
    void OnTableItemClicked();
    void OnTableItemSelectionChanged();
    void OnHeaderClicked(int iLogicalIndex);
    void OnDragTargetChanged(QWidget* pwidgetTarget);

private:
    void constructTable(_ORVA_EN_PHONEBOOK_MEMORY enType);
    UITableItem* constructTableHeader(int iColumn, const QString& strText);
    void createNewTable();
    void connectHandlersForTable();
    void startThreadAndUpdateTable(_ORVA_EN_PHONEBOOK_MEMORY enType, int iGroupId);
    void retireTable();
    bool tableHoldsFocus() const;
    void clearTable(AddrBookTableWidget* pTable);
    void showNoRecord();
    void enableForPreview();
    void disableSelectionItems();

    // ---- Tool bar, search, menus, shortcuts (AddrBookDlgToolBar.cpp, ...Search, ...Menus, ...Shortcuts.cpp) ---------
public:
    void enableItem(int iId);
    void disableItem(int iId);
    QAction* getAction(const QString& strId, const QList<MENU::QActionInfo>& lstActions) const;
    void updateTableSend(bool bEnable);
    void updateTableCall(bool bEnable);
    void enableOutlookMenu(bool bEnable, int iId);
    void updateContextMenu(ADDRBOOK_ENABLE_STATUS enStatus);

    // The text of an action with its key behind it, in the layout's direction.
    void setShortCutToQAction(QAction* pAction, const QKeySequence& key) const;

public slots:
    void OnTBBtnClicked(int iId);
    void OnShowHideSearchBox();
    void OnTextEdited(const QString& strEditedText);
    void OnTableEmptyAreaRightClicked();
    void OnShortKeySendSMS();
    void OnShortKeySendMMS();
    void OnShortKeyEditContact();
    void OnShortKeyDel();
    void OnShortKeyNewGroup();
    void OnShortKeyRenameGroup();

private:
    bool createToolBar(QWidget* pParent);
    void appendShortcuts();
    void createSendMenu();
    QMenu* getSendMenu();
    void destroyToolBar();
    void deleteToolBarObjects();
    void showSearchBox();
    void hideSearchBox();
    void reloadForSearch(QTreeWidgetItem* pitem, const QString& strText);
    void updateTable(const QString& strText);
    void showEmptyText();
    void constructContextMenu();
    void tableMenuConnect();
    void treeMenuConnect();
    void tableMenuConnectCall(const MENU::QActionInfo& info, const QString& strPluginId);
    void tableMenuConnectMMS(const MENU::QActionInfo& info, QMenu* pmenuSend);
    void removeTreeMenuItem(const QString& strPluginId, const QString& strActionId);
    void updateMenu(ADDRBOOK_ENABLE_STATUS enStatus, QAction* pactionRemove);
    void updateTableMenu(bool bDetail, bool bDelete, bool bExportSelected);
    void updateTreeMenu(bool bNew, bool bRename, bool bDelete);
    void tableContextMenuEvent(QContextMenuEvent* event);
    void treeContextMenuEvent(QContextMenuEvent* event);
    void supportShortcutsKeys();
    void connectShortcutsKeysToSlot();
    void setMenuShortCuts();

    // ---- Contacts (AddrBookDlgContacts.cpp, AddrBookDlgBatches.cpp) ------------------------------------------------
public:
    // Lets the user save a number to the PC's phonebook; pParent, or the window, is the dialog's parent. Always 1.
    int SaveNumberToAddrBook(QString strNumber, QWidget* pParent);

    // Starts the worker on the rows selected: ADDRBOOK_OP_DELETE or ADDRBOOK_OP_REMOVE_FROM_GROUP.
    void handleMultipleContact(_ADDRBOOK_OPERATION_TYPE enOperation);
    void getContactInfoFromSDK(QTableWidgetItem* pitem, AddrBookRecord& record);
    void enableDisableNewContact(int iTotal, int iUsed);
    void checkMaxCapacity(_ORVA_EN_PHONEBOOK_MEMORY enType, bool bRefresh);

    // Follows the cached figures by one record, without asking the SDK.
    void checkMaxCapWithLocals(_ORVA_EN_PHONEBOOK_MEMORY enType, _ADDRBOOK_OPERATION_TYPE enOperation);

public slots:
    void OnButtonClickedNewContact();
    void OnButtonClickedEditContact();
    void OnOKBtnClickedNewEditContact(AddrBookEditDlg* pAddrBookEditDlg);
    void OnButtonClickedDeleteContact();
    void OnRemoveFromGroupClicked();
    void OnDelResult(bool bVal, int iRecordId);

    // Forwarders to the number picker; nothing is connected to them.
    void OnAddSelectDialogContact(int iType, int iRecordId, int iGroupId);
    void OnDeleteSelectDialogContact(int iType, int iRecordId);
    void OnRemoveContactFromGroup(int iType, int iRecordId, int iGroupId);

private:
    int runForm(AddrBookEditDlg& dlgEdit);
    void showNewContact(const AddrBookRecord& record);
    void showChangedContact(_ORVA_EN_PHONEBOOK_MEMORY enMemory, const AddrBookRecord& record);
    bool makeRoomForBatch(_ORVA_EN_PHONEBOOK_MEMORY enMemory);
    void startBatch(const AddrBookBatch::Order& order);
    void showBatchCounts();

    // ---- Copies, files and contact applications (AddrBookDlgCopy.cpp, ...Batches.cpp, ...Files.cpp) -----------------
public:
    // What was dropped: iCount entries of the tree's drag list, two a contact.
    void moveOrCopyAllContacts(int iCount, int iTargetGroup);
    void moveOrCopyContactInLocal(int iSourceGroup, int iTargetGroup, int iRecordId, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                                  bool bCopy);
    void moveOrCopyContactBetweenType(QList<AddrBookRecord>& lstRecords, int iRecordId, QList<QString> lstSourceFields,
                                      QList<QString> lstTargetFields);

    // Cuts the name to what the target of the drag can hold.
    void limitNameField(QList<QString> lstFieldNames, QList<QString>& lstValues);

    // Splits one contact over as many records as it takes.
    void constructRecordsForCopy(QList<AddrBookRecord>& lstRecords, QList<QString> lstSourceFields,
                                 QList<QString> lstTargetFields, QList<QString> lstValues, int iRecordId);
    void initThreadForMoveorCopy(bool bBetweenTypes, QList<AddrBookRecord> lstRecords, int iTargetGroup,
                                 _ADDRBOOK_OPERATION_TYPE enOperation);
    void showCopyCompletedAlert(int iTotal, int iSuccess);

    // Keeps the phone numbers of the records for the notifications to come.
    void copyContactsForPushNotify(QList<AddrBookRecord> lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory);

    void getFileFieldDescription(QString strPath, QList<QString>& lstTitles);
    void addImportedRecords(_ORVA_EN_PHONEBOOK_MEMORY enMemory, QList<AddrBookRecord> lstRecords, int iGroupId);
    void ImportOutlookRecords(QString strSource);
    void showFileDialog();
    void OnFileSelected(QString strFile);
    bool saveToFile(QString strFile); // always true

public slots:
    void OnAddResult(bool bSuccess, qlonglong iPtrRecord);
    void OnFinished();
    void OnClickImport();
    void OnClickExportSelectedContacts();
    void OnClickExportAllContacts();
    void OnBnClickedBtnMOO();
    void OnBnClickedBtnMOE();
    void SetImportBtnState(_ORVA_EN_PHONEBOOK_MEMORY enMemory);

private:
    void finishDrop();
    void showProgressBar(int iSteps);
    bool stopAtFullMemory();
    AddrBookWaitingDlg* openWaitingDialog(const char* pTextId, int iSteps, bool bReading);
    void dropWaitingDialog();
    void finishReading(int iResult, _ORVA_EN_PHONEBOOK_MEMORY enMemory, const QList<AddrBookRecord>& lstRecords,
                       int iGroupId);
    void importFromApplication(const char* pActionId, const char* pSource, bool& bUsable);

    // ---- Send, call, notices, usage file (AddrBookDlgSend.cpp, ...Notify.cpp, ...Usage.cpp) -------------------------
public:
    // The object that a sibling plug-in serves for a kind; null if it is not there.
    QObject* getPlugin(const QString& strPluginId, int iKind);
    IDeviceMgr* getDeviceMgrPlugin();
    void sendSMS(ADDRBOOK_SEND_TYPE enType);
    void sendMMS(ADDRBOOK_SEND_TYPE enType);

    // Numbers with ";" between: of the rows selected, and of the node selected.
    QString sendSingleSMS() const;
    QString sendMultipleSMS() const;
    void broadcastMsg(unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2);
    void pushNotify(unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2);

    // Tells of each number of the records that wait under this identifier, and takes them off the list.
    void sendNotifyToSMS(int iRecordId, unsigned int uiMsg);

    // Lets the user pick numbers. True, with the choice in lstNumbers, if the user confirmed.
    bool OpenNumSelectDlg(bool bFlag, FIELD_TYPE enFieldType, QList<QString>& lstNumbers);

    // True for a label of a phone field of the memory that the last row click or drag was in.
    bool isPhoneField(const QString& strFieldName) const;
    int getPhoneFieldCount(const QList<QString>& lstFieldNames) const;

    // Notes an item's element in the usage file; true when the file was written.
    bool SavePBInfoForAgent(QString strItem, QString strName, QString strValue);

public slots:
    void OnButtonClickedSendSMS();
    void OnButtonClickedSendMMS();
    void OnButtonClickedSendGroupSMS();
    void OnButtonClickedSendGroupMMS();
    void OnButtonClickedCall();

    // ---- Members ---------------------------------------------------------------------------------------------------
private:
    Q_DISABLE_COPY(AddrBookDlg)
    friend struct AddrBookDlgAccess; // the tests' look at the members

    // Capacity as last read, followed while a batch runs.
    int m_iSimUsedCount = 0;
    int m_iSimTotalCount = 0;
    int m_iLocalUsedCount = 0;
    int m_iLocalTotalCount = 0;
    int m_iDeviceUsedCount = 0;
    int m_iDeviceTotalCount = 0;
    Capacity m_capacity = Capacity({m_iSimUsedCount, m_iSimTotalCount}, {m_iDeviceUsedCount, m_iDeviceTotalCount},
                                   {m_iLocalUsedCount, m_iLocalTotalCount});

    // The operation of the user. Of a running batch they are a copy: m_batch carries its own.
    int m_iTotalRowCount = 0;
    int m_iProcessedRowCount = 0;
    int m_iSuccessRowCount = 0;
    _ORVA_EN_PHONEBOOK_MEMORY m_enMemory = PB_MEM_LOCAL; // of the operation, or of the open dialog
    int m_iGroupId = 0;
    bool m_bThreadBusy = false;
    QList<int> m_listPreviewSplitterSizes;
    AddrBookThread m_threadWorker;
    AddrBookBatch m_batch = AddrBookBatch(m_threadWorker);
    AddrBookThread* m_pthreadRead = nullptr;
    AddrBookThread* m_pthreadReadOld = nullptr;
    _ORVA_EN_PHONEBOOK_MEMORY m_enTableMemory = PB_MEM_LOCAL;
    GridDelegate* m_pdelegateGrid = nullptr;
    _ORVA_EN_PHONEBOOK_MEMORY m_enDragSourceMemory = PB_MEM_LOCAL;
    _ORVA_EN_PHONEBOOK_MEMORY m_enDragTargetMemory = PB_MEM_LOCAL;
    _ADDRBOOK_OPERATION_TYPE m_enOperation = ADDRBOOK_OP_DELETE;
    _ADDRBOOK_OPERATION_TYPE m_enReadMode = ADDRBOOK_OP_NONE; // ADDRBOOK_OP_SEARCH while a reload for the search runs
    TableSearch m_search;                                     // of m_pthreadRead and the rows that it brought
    SavedRecords m_saved;                                     // while m_pthreadRead runs
    QPointer<AddrBookWaitingDlg> m_pdlgWaiting;
    AddrBookRecord m_recordCurrent = AddrBookRecord(); // edit and delete work on it
    bool m_bNewContactEnabled = true;
    QList<AddrBookRecord> m_listNotifyRecords;
    UsageFile m_usageFile;

    // Widgets.
    QWidget* m_pwidgetSplitter = nullptr;
    QVBoxLayout* m_pvlayoutCentral = nullptr;
    QVBoxLayout* m_pvlayoutRight = nullptr;
    QSplitter* m_psplitterMain = nullptr;
    PBTreeWidget* m_ptreePhonebook = nullptr;
    QTreeWidgetItem* m_pitemEnteredTreeWidgetItem = nullptr;
    QTreeWidgetItem* m_pitemLocalTreeWidgetItem = nullptr;
    QTreeWidgetItem* m_pitemSimTreeWidgetItem = nullptr;
    QTreeWidgetItem* m_pitemDeviceTreeWidgetItem = nullptr;
    QTreeWidgetItem* m_pitemCurrentTreeWidgetItem = nullptr; // whose records the table holds or is loading
    QSplitter* m_psplitterPreview = nullptr;
    ChoosePhoneNumber* m_pdlgChoosePhone = nullptr;
    AddrBookTableWidget* m_ptableContacts = nullptr;
    AddrBookTableWidget* m_ptableContactsOld = nullptr;
    QTextBrowser* m_plabelPreview = nullptr;
    AddrBookLogic* m_pAddrBookLogic = nullptr;

    // Tool bar.
    QWidget* m_pwidgetToolBar = nullptr;
    QList<ToolItem> m_listToolItems;
    QButtonGroup* m_pbuttonGroup = nullptr;
    SearchLineEdit* m_plineeditSearch = nullptr;
    bool m_bSearchBoxShown = false;
    QHBoxLayout* m_phlayoutToolBar = nullptr;
    QLabel* m_plabelToolBar = nullptr;
    IPluginContainer* m_pPluginContainer = nullptr;
    bool m_bSimEnabled = false;
    bool m_bNetConnected = false;
    bool m_bRFOff = false;
    bool m_bSubGroupSupported = false;

    bool m_bOutlookUsable = false; // last answers about the contact applications
    bool m_bOutlookExpressUsable = false;

    // Meant for an open number picker; no flow assigns it.
    AddrBookSelectContactsDlg* m_pdlgSelectContacts = nullptr;

    // The group editor.
    QString m_strOldGroupName;
    int m_iNewGroupParentId = 0;
    QTreeWidgetItem* m_pitemGroupParent = nullptr;
    QTreeWidgetItem* m_pitemEditedGroup = nullptr;
    bool m_bEndingGroupEdit = false; // boxes about the name wait until whatever ended the editor is through

    // Menus.
    MENU::QBuildMenu* m_pBuildMenu = nullptr;
    QMenu* m_pmenuTable = nullptr;
    QMenu* m_pmenuTree = nullptr;
    QTableWidget* m_ptableMenuOwner = nullptr; // never shown; outlives the tables on screen
    QList<MENU::QActionInfo> m_listTableActions;
    QList<MENU::QActionInfo> m_listTreeActions;
    MenuEntries m_tableEntries = MenuEntries(MenuEntries::TABLE, m_listTableActions);
    MenuEntries m_treeEntries = MenuEntries(MenuEntries::TREE, m_listTreeActions);
    QString m_strSearchText = QLatin1String("");
    bool m_bSortPreserve = true;
    bool m_bPreviewEmpty = true;
    bool m_bRemovingTreeItem = false;
    bool m_bFocusFromTable = false; // a tool button took the focus from the table
    QList<QString> m_listFieldNames;
    bool m_bRightToLeft = false;
    bool m_bStateSavePending = true;
    QMenu* m_pmenuSend = nullptr;
    bool m_bClosingEditor = false;
    QList<int> m_listColumnWidths;
    int m_iSortSection = 0;
    Qt::SortOrder m_enSortOrder = Qt::AscendingOrder;
    bool m_bNewGroupPending = false;
    QShortcut* m_pshortcutSendSMS = nullptr;
    QShortcut* m_pshortcutSendMMS = nullptr;
    QShortcut* m_pshortcutNewContact = nullptr;
    QShortcut* m_pshortcutEditContact = nullptr;
    QShortcut* m_pshortcutDelete = nullptr;
    QShortcut* m_pshortcutSearch = nullptr;
    QShortcut* m_pshortcutCall = nullptr;
    QShortcut* m_pshortcutNewGroup = nullptr;
    QShortcut* m_pshortcutRenameGroup = nullptr;
    unsigned char m_ucMultiModeCard[2] = {0, 0}; // the SDK may write two bytes; the first is the status
    bool m_bHideDoubleModeCardNode = false;
};

#endif // ADDRBOOKUIPLUGIN_ADDRBOOKDLG_H
