#ifndef ADDRBOOKUIPLUGIN_PBTREEWIDGET_H
#define ADDRBOOKUIPLUGIN_PBTREEWIDGET_H

#include <QList>
#include <QRect>
#include <QString>
#include <QTreeWidget>

#include "logic/AddrBookTypes.h"

class QMimeData;

// The tree of memories and groups, and the drop target of contacts. While contacts hover, the node that may take them
// is the current one; at the drop the identifiers wait in m_listDragData, and itemEntered() tells the window.
// User-interface thread only.
class PBTreeWidget : public QTreeWidget
{
    Q_OBJECT

public:
    explicit PBTreeWidget(QWidget* pParent);

    // Memory and group (0 for a root) of a node. Without a node, or one without data, nothing is written.
    void getGroupId(QTreeWidgetItem* pitem, _ORVA_EN_PHONEBOOK_MEMORY& enType, int& iGroupId);

    // The first node that holds rect (viewport coordinates), with memory and group as above. With none, enType is
    // PB_MEM_NONE and iGroupId -1, and *ppitem stays.
    void GetItemAtPos(QRect rect, _ORVA_EN_PHONEBOOK_MEMORY& enType, int& iGroupId, QTreeWidgetItem** ppitem);

    // True if a memory is full by the counts of the last drag that came in; an unknown capacity is never full.
    bool isMaxContactsPresent(_ORVA_EN_PHONEBOOK_MEMORY enMemory);

    // Fetches the counts of one memory from the SDK.
    void getMaxCapacity(_ORVA_EN_PHONEBOOK_MEMORY enMemory);

    // True if a group may be created below this node.
    bool checkIfCreateNew(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupId);

    // Raises itemSelectionChanged() on the window's behalf.
    void ItemSelectionChanged();

    // While contacts hover over the tree, makes the node that the table shows the current one again; their next
    // movement lights a node anew.
    void EndHover();

    // The window reads and writes these.
    QList<QString> m_listDragData;            // record id, group id, record id, ... of the dropped rows
    bool m_bCopyInLocal;                      // Ctrl was held at the drop
    bool m_bCreateInGroup;                    // groups may have groups; nothing sets it
    _ORVA_EN_PHONEBOOK_MEMORY m_enDragMemory; // of the node the table shows: where a drag comes from
    int m_iDragGroupId;                       // its group, 0 for a root
    bool m_bDropped;                          // a drop waits for the window
    bool m_bHandleSelection;                  // false once a hover has moved the current node
    QTreeWidgetItem* m_pitemPrevious;         // the node the table shows; who removes it forgets it here

    // The last drag's counts; -1 before the first.
    int m_iSimUsed;
    int m_iSimCapacity;
    int m_iLocalUsed;
    int m_iLocalCapacity;
    int m_iDeviceUsed;
    int m_iDeviceCapacity;

public slots:
    void OnShortKeyDelGroup();
    void OnShortKeyNewGroup();
    void OnShortKeyRenameGroup();
    void OnSendSMS();
    void OnSendMMS();

signals:
    void newContact();
    void deleteGroup();
    void newGroup();
    void renameGroup();
    void showHideSearchControl();
    void sendMessage();
    void sendMmsMessage();

protected:
    void dragEnterEvent(QDragEnterEvent* pEvent) override;
    void dragMoveEvent(QDragMoveEvent* pEvent) override;
    void dragLeaveEvent(QDragLeaveEvent* pEvent) override;
    void dropEvent(QDropEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;

private:
    void goBack();
    void currentGroup(_ORVA_EN_PHONEBOOK_MEMORY& enMemory, int& iGroupId);
    void takeDroppedIds(const QString& strIds);

    bool m_bHovering; // contacts are over the tree, and have not been dropped
};

#endif // ADDRBOOKUIPLUGIN_PBTREEWIDGET_H
