#ifndef ADDRBOOKUIPLUGIN_ADDRBOOKTYPES_H
#define ADDRBOOKUIPLUGIN_ADDRBOOKTYPES_H

#include <QHash>
#include <QList>
#include <QString>
#include <QtGlobal>

// The records and enumerations that cross class boundaries. All are plain values without behaviour.

// Where a contact lives. The SDK's numbers; 2 and 3 are not in use.
enum _ORVA_EN_PHONEBOOK_MEMORY {
    PB_MEM_SIM = 0,   // SIM or UIM card; no groups
    PB_MEM_ME = 1,    // the device's own memory, "NV"; no groups
    PB_MEM_LOCAL = 4, // the phonebook of the PC; the only one with groups, always there
    PB_MEM_NONE = 8   // no memory: the tree widget's mark for "nothing dragged"
};
typedef _ORVA_EN_PHONEBOOK_MEMORY ADDRBOOK_TYPE;

inline uint qHash(_ORVA_EN_PHONEBOOK_MEMORY enMemory, uint uiSeed = 0)
{
    return static_cast<uint>(enMemory) ^ uiSeed;
}

// True for the memories that come and go with the hardware.
inline bool isDeviceMemory(_ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    return enMemory == PB_MEM_SIM || enMemory == PB_MEM_ME;
}

// Results of the logic layer.
enum {
    ADDRBOOK_OK = 0,
    ADDRBOOK_FAILED = 1,
    ADDRBOOK_OUT_OF_MEMORY = 13,
    ADDRBOOK_GROUP_EXISTS = 18,
    ADDRBOOK_MISMATCH = -1 // a record whose value count does not match the field list; a capacity below 1
};

// One contact.
struct AddrBookRecord {
    int iID;                  // identifier inside its memory; 0 or -1 where there is none yet; unset by default
    QList<QString> lstValues; // in the order of the memory's field list, empty for an empty field
};

// One group. Lists of groups are QList<AddrBookGroup*>, and the list's owner deletes the elements; a group handed to a
// tree node belongs to the node.
struct AddrBookGroup {
    AddrBookGroup() : iGroupID(0), iParentID(0), strName(QLatin1String("")), iSize(0) {}

    int iGroupID;    // 0: no group, the memory's root
    int iParentID;   // 0: first level
    QString strName; // without the count
    int iSize;       // number of contacts, as the SDK reports it
};

// One field of a memory, from the SDK's profile.
struct AddrBookField {
    QString strName;         // key in value calls; compared without regard to case
    QString strType;         // "Name", "Mobile", "Number", "Email", "Remaik" (so spelt); compared exactly
    QString strLangID;       // id of the label
    QString strExcludeChars; // "null" for none
    QString strIncludeChars; // "null" for no such limit
    bool bFlag;
    int iReserved1;
    int iReserved2;
    int iReserved3;
    int iMaxLength; // longest value in characters
};

// What the window or a worker is doing. The numbers travel through signals.
enum _ADDRBOOK_OPERATION_TYPE {
    ADDRBOOK_OP_DELETE = 0,
    ADDRBOOK_OP_REMOVE_FROM_GROUP = 1,
    ADDRBOOK_OP_ADD = 2,
    ADDRBOOK_OP_EDIT = 3,
    ADDRBOOK_OP_EXPORT_SELECTED = 4,
    ADDRBOOK_OP_EXPORT_ALL = 5,
    ADDRBOOK_OP_IMPORT = 6,
    ADDRBOOK_OP_COPY = 7,
    ADDRBOOK_OP_MOVE = 8,
    ADDRBOOK_OP_READ = 9,
    ADDRBOOK_OP_SEARCH = 10,
    ADDRBOOK_OP_TREE_NODES = 11,
    ADDRBOOK_OP_TREE_GROUPS = 12,
    ADDRBOOK_OP_TREE_CONTACTS = 13,
    ADDRBOOK_OP_READ_LOCAL = 14,
    ADDRBOOK_OP_NONE = 15
};

// To whom a message goes.
enum ADDRBOOK_SEND_TYPE {
    ADDRBOOK_SEND_SINGLE = 0, // the contacts selected in the table
    ADDRBOOK_SEND_GROUP = 1   // the contacts of the node selected in the tree
};

// The state for which the context menus are prepared.
enum ADDRBOOK_ENABLE_STATUS {
    ADDRBOOK_ENABLE_TABLE_SINGLE = 0,
    ADDRBOOK_ENABLE_TABLE_MULTIPLE = 1,
    ADDRBOOK_ENABLE_TREE_LOCAL = 2,
    ADDRBOOK_ENABLE_TREE_GROUP = 3,
    ADDRBOOK_ENABLE_TREE_DEVICE = 4,
    ADDRBOOK_ENABLE_TABLE_NONE = 5,
    ADDRBOOK_ENABLE_TABLE_IN_GROUP = 6
};

// Behind each cell of the contact table, under Qt::UserRole; owned by the table.
struct TableRowData {
    _ORVA_EN_PHONEBOOK_MEMORY enType;
    int iRecordID;
    int iGroupID; // the group being shown when the row was added, 0 for a memory's root
};

// Behind each node of the main tree, in column 0 under Qt::UserRole; owned by the window.
struct TreeNodeData {
    qlonglong iMemoryOrGroup; // a memory's value, or the address of the node's AddrBookGroup
    int iSortColumn;
    bool bSorted;
    Qt::SortOrder enSortOrder;
};

// A node stands for a group when its value is none of the memories.
inline bool isGroupValue(qlonglong iMemoryOrGroup)
{
    return iMemoryOrGroup != PB_MEM_LOCAL && iMemoryOrGroup != PB_MEM_SIM && iMemoryOrGroup != PB_MEM_ME;
}

#endif // ADDRBOOKUIPLUGIN_ADDRBOOKTYPES_H
