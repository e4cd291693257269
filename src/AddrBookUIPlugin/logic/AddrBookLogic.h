#ifndef ADDRBOOKUIPLUGIN_ADDRBOOKLOGIC_H
#define ADDRBOOKUIPLUGIN_ADDRBOOKLOGIC_H

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>

#include <atomic>
#include <functional>
#include <mutex>

#include "logic/AddrBookTypes.h"
#include "orva/orva_sdk.h"

class RecordReader;

// The one object through which the window, the dialogs and the workers reach the SDK. Singleton, created and destroyed
// on the user-interface thread. Its operations run on the thread that calls them; results are those of AddrBookTypes.h,
// and the SDK's own codes are only logged. Any thread may read and change contacts and groups.
class AddrBookLogic : public QObject
{
    Q_OBJECT

public:
    // A field list as a hash value.
    struct vecfield {
        QList<AddrBookField> lstFields;
    };

    // Asked between two records; true ends a read, which then keeps what it has and counts as done.
    typedef std::function<bool()> StopTest;

    // Creates the object on the first call on the user-interface thread. Any other thread gets null where there is
    // none.
    static AddrBookLogic* Instance();

    // Ends every worker (see LogicUser.h), then the object; user-interface thread.
    static void Destroy();

    // Binds OnDeviceMgrInitEvent to the SDK's four services, and takes it away again. A failure of one is logged and
    // does not keep the others from being tried.
    static void RegisterCallbacks();
    static void unSDKRegisterEvent();

    // The SDK's callback, on the SDK's event thread: turns events into signals. 1 taken, 0 not.
    static int OnDeviceMgrInitEvent(int enNotifyType, void* pvData);
    static bool PbServiceReady();

    // True if the card can show its phonebook.
    bool IsSimValidForPB();

    // True if the network is in service. Static, so that the callback may ask.
    static bool GetSystemModeStatus();

    // Forgets the field lists of card and device, for the next device to have its own fetched.
    void ClearDeviceInfo();

    // Index of the field of kind "Mobile" in the local memory's field list.
    int GetMobileIndex();

    // Contacts. Lists are appended to unless told otherwise.
    int GetAllFields(QList<AddrBookField>& lstFields, _ORVA_EN_PHONEBOOK_MEMORY enMemory);
    int GetAllFieldsForOutlook(QList<QString>& lstNames, _ORVA_EN_PHONEBOOK_MEMORY enMemory);
    void GetFieldNames(_ORVA_EN_PHONEBOOK_MEMORY enMemory, QList<QString>& lstNames);       // cleared first
    void GetPhoneFieldLangID(_ORVA_EN_PHONEBOOK_MEMORY enMemory, QList<QString>& lstNames); // cleared first
    int GetRecord(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iRecordID, QList<QString>& lstValues);
    int GetRecordInGroup(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupID,
                         const StopTest& isToEnd = StopTest());
    int getRecordInRoot(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupID,
                        QList<AddrBookField> lstFields, const StopTest& isToEnd = StopTest());
    int getRecordsFromRecList(_ORVA_EN_PHONEBOOK_MEMORY enMemory, void* hAddrRecordSet,
                              QList<AddrBookRecord>& lstRecords);
    int GetAddrRecordCount(_ORVA_EN_PHONEBOOK_MEMORY enMemory); // the count, or -1
    int AddRecord(_ORVA_EN_PHONEBOOK_MEMORY enMemory, QList<QString> lstValues, int& iRecordID);
    int UpdateRecord(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iRecordID, const QList<QString>& lstValues);
    int DelRecord(_ORVA_EN_PHONEBOOK_MEMORY enMemory, const int& iRecordID);
    bool createAddrRecSetValues(_ORVA_EN_PHONEBOOK_MEMORY enMemory, void*& hAddrRecord, QList<QString> lstValues,
                                QList<AddrBookField> lstFields, int& iNonEmpty);

    // Groups, of the local memory alone. GetGroups appends groups that the caller owns.
    int GetGroups(QList<AddrBookGroup*>& lstGroups, _ORVA_EN_PHONEBOOK_MEMORY enMemory);

    // True if the memory can be read and holds no group, which GetGroups reports as a failure.
    bool HasNoGroups(_ORVA_EN_PHONEBOOK_MEMORY enMemory);
    int GetGroupInfo(_ORVA_EN_PHONEBOOK_MEMORY enMemory, AddrBookGroup& group);
    int IsGroupAlreadyExists(_ORVA_EN_PHONEBOOK_MEMORY enMemory, QString strName, int iParentID);
    int AddGroup(_ORVA_EN_PHONEBOOK_MEMORY enMemory, QString strName, int iParentID, int& iGroupID);
    int UpdateGroup(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupID, QString strName, int iParentID);
    int DelGroup(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupID);
    int AddAddrToGroup(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iRecordID, int iGroupID);
    int RemoveAddrFromGroup(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iRecordID, int iGroupID);

    // Files and capacity. A field map holds one integer for each field of the memory.
    int ImportFromFile(QString strPath, const QList<int>& lstFieldMap, QList<AddrBookRecord>& lstRecords,
                       _ORVA_EN_PHONEBOOK_MEMORY enMemory);
    int ImportFromOutlook(QString strSource, const QList<int>& lstFieldMap, QList<AddrBookRecord>& lstRecords,
                          _ORVA_EN_PHONEBOOK_MEMORY enMemory);
    int ExportToFile(QString strPath, const QList<int>& lstRecordIDs, _ORVA_EN_PHONEBOOK_MEMORY enMemory);
    int GetAddrCapacity(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int& iCapacity, int& iSize);
    bool IsOutlookInstalled(QString strName);

    // Field rules. IsValidEmail: 0 good, -1 no "@", -2 a character outside ASCII.
    bool isValidPhoneNum(QString strValue);
    int IsValidEmail(QString strValue);
    void GetFieldString(QString& strOut, QString strSource, int iLimit, _ORVA_EN_PHONEBOOK_MEMORY enMemory);
    void GetRegExpForNewContactDlg(_ORVA_EN_PHONEBOOK_MEMORY enMemory, QString& strOut, QString strFieldKey);
    static bool GetSortPreserve();

    // The figure of the last complete read of a memory, kept by whoever read it; any thread.
    void setRecordCount(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iCount);
    int recordCount(_ORVA_EN_PHONEBOOK_MEMORY enMemory) const;

signals:
    void signalSimStatus(bool bIsSimEnabled);
    void signalNetStatus(bool bIsNetSrvConnected);
    void signalDeviceConnected(bool bIsDeviceConnected);
    void signalAddrBookReady();
    void signalAddrBookSimReady();
    void signalAddrBookDeviceReady();

private:
    AddrBookLogic();
    ~AddrBookLogic() override;
    Q_DISABLE_COPY(AddrBookLogic)

    int fetchFields(QList<AddrBookField>& lstFields, _ORVA_EN_PHONEBOOK_MEMORY enMemory);
    int readGroupMembers(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, void* hAddrGroupSet,
                         int iGroupID, const QList<AddrBookField>& lstFields, const StopTest& isToEnd);
    int readMembers(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, const int* piIds, int iCount,
                    const QList<AddrBookField>& lstFields, const StopTest& isToEnd);
    int readAllRecords(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, void* hAddrRecordSet,
                       const QList<AddrBookField>& lstFields, const StopTest& isToEnd);
    int appendImportedRecord(_ORVA_EN_PHONEBOOK_MEMORY enMemory, void* hAddrRecordSet,
                             const QList<AddrBookField>& lstFields, const RecordReader& reader,
                             QList<AddrBookRecord>& lstRecords);
    int importRecords(const QString& strSource, const QList<int>& lstFieldMap, QList<AddrBookRecord>& lstRecords,
                      _ORVA_EN_PHONEBOOK_MEMORY enMemory, bool bIsFile);
    void resetState();
    void signalDeviceState();
    void signalRadioState();

    static std::atomic<AddrBookLogic*> m_pInstance;
    static std::atomic<bool> m_bPbServiceReady;

    // Guards the members below. No lock is held across a call of the SDK, which may call back on the same thread.
    mutable std::mutex m_mutexCaches;
    QHash<_ORVA_EN_PHONEBOOK_MEMORY, int> m_hashRecordCount;
    QHash<_ORVA_EN_PHONEBOOK_MEMORY, vecfield> m_hashFields;
    int m_iMobileIndex;
    int m_iDeviceGeneration; // counts ClearDeviceInfo: a list fetched from a device that went is not kept
};

#endif // ADDRBOOKUIPLUGIN_ADDRBOOKLOGIC_H
