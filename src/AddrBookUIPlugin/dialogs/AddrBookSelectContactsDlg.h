#ifndef ADDRBOOKUIPLUGIN_ADDRBOOKSELECTCONTACTSDLG_H
#define ADDRBOOKUIPLUGIN_ADDRBOOKSELECTCONTACTSDLG_H

#include <QComboBox>
#include <QHBoxLayout>
#include <QHash>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QList>
#include <QMultiMap>
#include <QPointer>
#include <QPushButton>
#include <QString>
#include <QTableWidget>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QVariant>
#include <QWidget>

#include "linkhand/core/ExtendDialog.h"
#include "linkhand/plugin/IAddrBookUIPlugin.h"
#include "logic/AddrBookLogic.h"
#include "logic/AddrBookTypes.h"
#include "widgets/GridDelegate.h"
#include "widgets/TextBound.h"
#include "worker/AddrBookThread.h"

// One group in the index of nodes; under key 0 a memory itself. The items belong to the tree.
struct SC_Hash_Group_Node {
    QTreeWidgetItem* pitemNode;
    QHash<int, QTreeWidgetItem*>* phashContacts; // contact node by record id; owned with the entry
};

// The window in which another plug-in's user picks phone numbers: all memories in one tree (memory, group, contact,
// number), filled by workers while the window is open and kept in step with the device. With bFlag true the nodes have
// check boxes and the result is every number ticked; with false it is the number under the current node. This widget is
// never shown itself: it owns the window and receives its signals. User-interface thread only.
//
//     dialog.InitDlg(pParent, pLogic, bFlag, enFieldType, lstNumbers);
//     dialog.Exec();
//     if (dialog.GetButtonClicked())
//         dialog.GetRecords(lstNumbers);
//
// The dialog may be deleted at any time; it then stops its workers and waits for their end.
class AddrBookSelectContactsDlg : public QWidget
{
    Q_OBJECT

public:
    enum { GroupNode = 1, ContactNode = 2, NumberNode = 3 };

    // Behind each node below a memory, in column 0 under Qt::UserRole, as a pointer carrier; freed with its node. A
    // memory's node holds the memory itself.
    struct LeafNodeData {
        _ORVA_EN_PHONEBOOK_MEMORY enType;
        int iNodeType; // GroupNode, ContactNode or NumberNode
        int iID;       // of the group, else of the record
        QString strName;
        QString strFieldName; // a number's translated label
        QString strValue;     // a number; of a contact the value that follows its name
        bool bChecked;        // strValue stands in the list of chosen numbers
    };

    explicit AddrBookSelectContactsDlg(QWidget* pParent = nullptr);
    ~AddrBookSelectContactsDlg() override;

    // Builds the window and starts filling its tree. lstNumbers are the numbers already chosen. Once per object.
    void InitDlg(QWidget* pParent, AddrBookLogic* pLogic, bool bFlag, FIELD_TYPE enFieldType,
                 QList<QString> lstNumbers);

    // Runs the window. The object becomes a child of the host's main window: a caller that may outlive that window
    // keeps the dialog in a QPointer.
    void Exec();
    bool GetButtonClicked();

    // After OK: with check boxes lstNumbers becomes the numbers ticked, each once, in the order in which they were
    // chosen; without, the number of the current node is appended.
    void GetRecords(QList<QString>& lstNumbers);
    void SetLanguage();
    QString tr(QString strId);

    // Nodes; null where there is none.
    QTreeWidgetItem* findNode(_ORVA_EN_PHONEBOOK_MEMORY enType, int iGroupId);
    QTreeWidgetItem* getNode(_ORVA_EN_PHONEBOOK_MEMORY enType);
    QTreeWidgetItem* findGroupNode(QTreeWidgetItem* pitemParent, int iGroupId);
    bool isNodePresentInTree(QTreeWidgetItem* pitem);

    // Selection (AddrBookSelectContactsDlgSelection.cpp).
    void SetInitialPrerecordSet(bool bFlag, QList<QString> lstNumbers);
    void SetPrerecordSet(bool bFlag, QList<QString> lstNumbers);
    void setContactsTree(QTreeWidgetItem* pitem);

    // A table of the chosen numbers beside the tree, with its buttons and labels (AddrBookSelectContactsDlgPane.cpp).
    // Nothing builds these widgets today, and without them every operation here does nothing.
    void createTable();
    void constructTableHeader(int iColumn, const QString& strText);
    void fillInitalRows();
    void createRow(int iRow, int iColumn, QString strText);
    void setCellText(QString strName, QString strType, QString strValue, bool bSort);
    bool setPreRecordInTree(QTreeWidgetItem* pitem, QString strNumber, bool bAdd, int iRow);
    bool setTreeCheckState(QTreeWidgetItem* pitem, QString strNumber);
    void setContactsTable(LeafNodeData* pLeafNodeData, int iRow);
    void addCheckedToTable(QTreeWidgetItem* pitem);
    bool isNumberAlreadyInTable(QString strNumber);
    bool isNumberAlreadyInPreList(QString strNumber);
    void setLabelText();
    void fillComboBox();
    void clearTreeandTable();
    void clearTable();

public slots:
    void OnOKButtonClicked();
    void OnCancelButtonClicked();
    void OnTreeClicked(QTreeWidgetItem* pitemTreeWidget);

    // Ends and results of the workers. A record comes as the address of a heap object, which the slot frees.
    void OnInitTreeFinished();
    void OnTreeDestroyed();
    void OnReadFinished();
    void OnGroupReadFinished();
    void OnContactsReadFinished();
    void OnAddContactToTree(int iType, qlonglong iPtrAddrBookRecord, qlonglong iPtrItemTreeNode, int iChildIndex);
    void OnAddContactsToTree(int iIndex);
    void OnAddGroupsToTree(int iType, qlonglong iPtrAddrBookGroup);
    void OnAddGroupContacts(int iType, qlonglong iPtrAddrBookGroup, qlonglong iPtrAddrBookRecord);

    // The device (AddrBookSelectContactsDlgLive.cpp).
    void OnSimStatusChanged(bool bIsSimEnabled);
    void OnDeviceStatusChanged(bool bIsDeviceEnabled);
    void OnAddrBookSimReady();
    void OnAddrBookDeviceReady();

    // Single changes. None touches the numbers chosen.
    void OnAddContact(ADDRBOOK_TYPE enType, int iGroupId, int iContactId, QList<QString> listData);
    void OnUpdateContact(ADDRBOOK_TYPE enType, int iContactId, QList<QString> listData);
    void OnDeleteContact(ADDRBOOK_TYPE enType, int iContactId);
    void OnAddContactToGroup(ADDRBOOK_TYPE enType, int iGroupId, int iContactId, QList<QString> listData);
    void OnRemoveContactFromGroup(ADDRBOOK_TYPE enType, int iContactId, int iGroupId);
    void OnAddGroup(ADDRBOOK_TYPE enType, int iGroupId, int iParentId, QString strText,
                    QTreeWidgetItem** pptreewidgetitemObject = nullptr);
    void OnUpdateGroup(ADDRBOOK_TYPE enType, int iGroupId, QString strText);
    void OnDeleteGroup(ADDRBOOK_TYPE enType, int iGroupId);

    // The pane beside the tree; nothing connects these.
    void OnAddButtonClicked();
    void OnRemoveButtonClicked();
    void OnComboBoxIndexChanged(QString strText);
    void OnTableItemSelectionChanged();
    void OnHeaderClicked(int iLogicalIndex);

protected:
    // The space bar on the tree ticks like a click (the view toggles the box without telling), and a node's tool tip
    // is its whole text.
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private:
    Q_DISABLE_COPY(AddrBookSelectContactsDlg)
    friend struct AddrBookSelectContactsDlgAccess; // the tests

    typedef QHash<int, SC_Hash_Group_Node*> GroupHash;
    typedef QHash<int, QTreeWidgetItem*> ContactHash;

    // Window (AddrBookSelectContactsDlg.cpp).
    bool createCommonUIElements();
    void setObjectNames();
    void layOut();
    void connectSignals();
    bool tickByKey(const QKeyEvent& event);
    bool showWholeText(const QHelpEvent& event);

    // Fill (AddrBookSelectContactsDlgFill.cpp).
    void initTree();
    void checkSimStatus();
    void updateDeviceAndSimNodes();
    bool isDeviceSideHidden() const;
    void addDeviceNode(QTreeWidgetItem** ppitem, _ORVA_EN_PHONEBOOK_MEMORY enType);
    void addTreeNode(QTreeWidgetItem** ppitem, _ORVA_EN_PHONEBOOK_MEMORY enType);
    void addGroupsToTree(_ORVA_EN_PHONEBOOK_MEMORY enType, QList<AddrBookGroup*> lstGroups,
                         QList<AddrBookRecord>& lstRecords, int iParent);
    void applyPreRecordsWhenFilled();
    bool isCurrentMemoryNode(const QTreeWidgetItem* pitem, _ORVA_EN_PHONEBOOK_MEMORY enType);

    // Workers (AddrBookSelectContactsDlgFill.cpp).
    AddrBookThread* createThread();
    void deleteThread(AddrBookThread* pthread);
    void stopAndDeleteThreads();
    void signalBack();

    // Nodes (AddrBookSelectContactsDlgNodes.cpp).
    QTreeWidgetItem* AddRecordNodes(const AddrBookRecord& record, _ORVA_EN_PHONEBOOK_MEMORY enType);
    void updateAddressNodes(QTreeWidgetItem* pitem, const AddrBookRecord& record, _ORVA_EN_PHONEBOOK_MEMORY enType);
    bool fillContactNode(QTreeWidgetItem* pitem, const AddrBookRecord& record, _ORVA_EN_PHONEBOOK_MEMORY enType,
                         bool bUpdate);
    QString nameNode(QTreeWidgetItem* pitem, const AddrBookRecord& record, const QList<AddrBookField>& lstFields,
                     int iName, LeafNodeData* pData, bool bUpdate);
    void addNumberNode(QTreeWidgetItem* pitemContact, const LeafNodeData& leaf);
    static QTreeWidgetItem* createNode();
    QString numberLabel(_ORVA_EN_PHONEBOOK_MEMORY enType, int iField);
    void setNodeProperties(QTreeWidgetItem* pitem, QString strText, bool bCount, int iCount, const QVariant& variant);
    void setTreeColumnWidth(QTreeWidgetItem* pitem);
    static LeafNodeData* leafData(const QTreeWidgetItem* pitem);
    static bool isMemoryNode(const QTreeWidgetItem* pitem);

    // The index of nodes (AddrBookSelectContactsDlgNodes.cpp).
    GroupHash* createHashForGroup(QTreeWidgetItem* pitem, ContactHash* phashContacts, int iGroupId);
    void enterMemory(QTreeWidgetItem* pitem, _ORVA_EN_PHONEBOOK_MEMORY enType);
    SC_Hash_Group_Node* groupEntry(_ORVA_EN_PHONEBOOK_MEMORY enType, int iGroupId);
    static void freeEntry(SC_Hash_Group_Node* pEntry);
    static void freeGroupHash(GroupHash* phashGroups);
    void forgetGroups(QTreeWidgetItem* pitem);

    // Live changes (AddrBookSelectContactsDlgLive.cpp).
    void removeTopLevelNode(QTreeWidgetItem* pitem);
    void removeTreeItem(QTreeWidgetItem* pitemParent, QTreeWidgetItem* pitem);
    void emptyNode(QTreeWidgetItem* pitemMemory);
    void setGroupText(_ORVA_EN_PHONEBOOK_MEMORY enType, int iGroupId);
    void findAndReplaceContactNodes(_ORVA_EN_PHONEBOOK_MEMORY enType, QTreeWidgetItem* pitem, int iContactId,
                                    const QList<QString>& listData, bool bDelete, int iGroupId);
    bool removeContactNode(_ORVA_EN_PHONEBOOK_MEMORY enType, QTreeWidgetItem* pitemParent, QTreeWidgetItem* pitem,
                           int iContactId, int iGroupId);
    void findAndRemoveChild(QTreeWidgetItem* pitem, int iContactId);
    bool IsContactPresentInOtherGroups(QTreeWidgetItem* pitem, int iContactId);

    // Check marks (AddrBookSelectContactsDlgSelection.cpp).
    bool checkChildState(QTreeWidgetItem* pitem);
    void addItemToContactsList(QTreeWidgetItem* pitem);
    struct Strikes;
    void uncheckAllChilds(QTreeWidgetItem* pitem);
    void uncheckSubtree(QTreeWidgetItem* pitem, Strikes& strikes);
    void removeItemFromContactsList(QTreeWidgetItem* pitem);
    void uncheckParentState(QTreeWidgetItem* pitem);
    void generateMapByContactsTree(QTreeWidgetItem* pitem, QMultiMap<QString, QTreeWidgetItem*>& mapNodes);
    void tickPreRecord(const QMultiMap<QString, QTreeWidgetItem*>& mapNodes, const QString& strNumber);

    // The parent of the window may take it and its content away at any time; the pointers then turn null.
    QPointer<QWidget> m_pMainWidget;
    QPointer<ExtendDialog> m_pExtendDialog;
    QPointer<QTreeWidget> m_ptreeContacts;
    QPointer<QComboBox> m_pcomboNumberType;
    QPointer<QPushButton> m_pbuttonAdd;
    QPointer<QPushButton> m_pbuttonRemove;
    QPointer<QLabel> m_plabelTotal;
    QPointer<QPushButton> m_pbuttonOK;
    QPointer<QPushButton> m_pbuttonCancel;
    QPointer<QTableWidget> m_ptableSelected;
    QPointer<QVBoxLayout> m_pvlayoutLeft;
    QPointer<QVBoxLayout> m_pvlayoutMiddleButtons;
    QPointer<QVBoxLayout> m_pvlayoutRight;
    QPointer<QHBoxLayout> m_phlayoutMain;
    QPointer<QHBoxLayout> m_phlayoutButtons;
    QPointer<AddrBookLogic> m_pAddrBookLogic;
    QTreeWidgetItem* m_pitemLocalTreeWidgetItem;
    QTreeWidgetItem* m_pitemSimTreeWidgetItem; // may be out of the tree: see isNodePresentInTree
    QTreeWidgetItem* m_pitemDeviceTreeWidgetItem;
    bool m_bSimEnabled;
    bool m_bOKClicked;
    QString m_strNumberType;
    QList<AddrBookRecord> m_lstLocalRecords; // contacts of the PC in no group
    QList<AddrBookGroup*> m_lstGroups;       // owned
    QList<QString> m_lstPreRecords;          // the caller's numbers
    QHash<_ORVA_EN_PHONEBOOK_MEMORY, GroupHash*> m_hashMemories;
    QList<QString> m_lstSelectedNumbers; // an entry for each node ticked, in the order of ticking
    QList<QString> m_lstFieldNames;      // label ids of the local memory
    bool m_bMultiSelect;
    int m_iPendingReads; // fills under way
    QPointer<AddrBookThread> m_pthreadGroups;
    QPointer<AddrBookThread> m_pthreadSim;
    QPointer<AddrBookThread> m_pthreadDevice;
    QPointer<AddrBookThread> m_pthreadContacts;
    bool m_bHideDualModeCardNode;

    QList<AddrBookThread*> m_lstThreads;        // every worker that has not been deleted, the five's forerunners too
    QList<QTreeWidgetItem*> m_lstDetachedNodes; // memory nodes out of the tree, bare; kept: no address comes twice
    QPointer<SCDelegate> m_pdelegateTable;
    bool m_bClosing; // results are only freed from here on
    TextBound m_textBound;
};

#endif // ADDRBOOKUIPLUGIN_ADDRBOOKSELECTCONTACTSDLG_H
