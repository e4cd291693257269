#ifndef TESTS_SUPPORT_FAKESDK_H
#define TESTS_SUPPORT_FAKESDK_H

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <utility>

#include "orva/orva_sdk.h"

// A phonebook SDK in memory, scripted by the test. It offers every ORVA_* function of orva_sdk.h with the semantics
// told there, records each call, and can be made to fail, to give nulls, to wait and to run a function of the test's.
//
// Names of operations are written without "ORVA_" and "PBSrv_": "AddAddrRec", "DevSrv_GetPinStatus",
// "GetLogDirectory".
//
//     void init() { FakeSdk::reset(); }
//     void cleanup() { QCOMPARE(FakeSdk::leaks(), QString()); }
//     ...
//     FakeSdk::fail("GetAddrRecList");
//     QCOMPARE(AddrBookLogic::Instance()->GetAddrRecordCount(PB_MEM_LOCAL), -1);
//     QCOMPARE(FakeSdk::log(), QStringList{"GetAddrRecList(4)"});
//
// Any thread may call anything here.
class FakeSdk
{
public:
    struct Field {
        QByteArray key;
        int maxLength;
        QByteArray accepted;
        QByteArray refused;
        QByteArray kind;
        bool flag;
        QByteArray labelId;
    };

    struct Group {
        int id;
        int parent;
        QString name;
        QList<int> members;
    };

    struct Call {
        QByteArray name;
        QStringList arguments; // numbers, keys and texts as given; handles and outputs are left out
        const void* thread;    // of QThread::currentThread()
    };

    struct Export {
        QString path;
        QList<int> ids;
        int memory;
    };

    // Forgets everything: no records, groups, calls, failures or callbacks; the field lists of a plain set-up (card
    // and device with name and number, PC with six fields); device attached, card in with PIN status 1, product 2,
    // card type 1, radio on, network in service; capacities card 250, device 500, PC 100,000.
    static void reset();

    // What a test must not leave behind: handles, field lists and text buffers alive, and calls with a handle that is
    // null, released or of another kind. Empty when all is well. (Text buffers are counted in builds without a
    // sanitizer; with one, the leak checker sees them.)
    static QString leaks();
    static int handlesAlive();
    static int buffersAlive();

    // ---- Contents -----------------------------------------------------------------------------------------------

    // Stores a record, values in the order of the memory's fields (missing ones empty). Returns its identifier.
    static int addRecord(int memory, const QStringList& values);
    static void removeRecord(int memory, int id);
    static bool hasRecord(int memory, int id);
    static QStringList record(int memory, int id); // values in field order; empty if it is not there
    static QList<int> recordIds(int memory);

    static int addGroup(const QString& name, int parent = 0);
    static void join(int group, int record); // the record need not be there
    static QList<Group> groups();
    static QList<int> members(int group);

    static QList<Field> localFields(); // the PC's six
    static QList<Field> cardFields();  // name 14, number 20
    static QList<Field> wideDeviceFields();
    static void setFields(int memory, const QList<Field>& fields);
    static QList<Field> fields(int memory);

    static void setCapacity(int memory, int capacity);
    static void setSize(int memory, int size); // instead of the number of records; -1 for that number again

    // GetAddrRecord on a record that is gone: 0 and a null handle (true) or ORVA_E_NOT_FOUND (false, the default).
    static void setMissingRecordGivesNull(bool isNull);

    // What an import of this path (or application) gives: the columns of each row. Unknown paths give ORVA_E_FORMAT.
    static void setImport(const QString& path, const QList<QStringList>& rows);
    static void setFileTitles(const QString& path, const QByteArray& titles);
    static void setTitleLengthCode(long code); // beside the length of a file's titles; 2 by default
    static void setOutlookInstalled(const QByteArray& name, bool installed);
    static QList<Export> exports();
    static QList<int> lastFieldMap(); // of the last import

    // How long a text counts: text, not UIM, customised. Default: one a character, or 1 + 2 a character outside ASCII.
    static void setCoding(std::function<int(const QString&, bool, bool)> coding);
    static void setLogDirectory(const QString& path);

    // ---- Device, card, network -----------------------------------------------------------------------------------

    // Attached or not: device status 3 or 4 and the memory list. Without effect on what setMemoryList fixed.
    static void setDevicePresent(bool present);
    static void setCardPresent(bool present);
    static void setMemoryList(const QList<int>& memories); // exactly this from now on; may hold -1
    static void setDevStatus(int status);
    static void setPinStatus(int status);
    static void setProductType(int type);
    static void setCardType(int type);
    static void setRadio(int first, int second);
    static void setNetStatus(int status);
    static void setMultiModeCard(unsigned char first, unsigned char second);

    // Sends an event from a thread of its own to the service that it belongs to (2xxxx phonebook, 6002 and 66xx device
    // manager, 6014 device start, others network) and returns when the callback has: its result, or -1 if none is
    // registered. fireHere calls on the caller's thread.
    static int fire(int event);
    static int fireHere(int event);
    static int callbackCount(); // registrations in force, of all services

    // ---- Failing, waiting, watching ------------------------------------------------------------------------------

    // From now on, the nth call of an operation returns `code` (any other than 0) with no effect but that a handle
    // which it releases is released, and that the status of the network is written all the same.
    static void fail(const QByteArray& name, int nth = 1, long code = ORVA_E_STORE);
    static void failAlways(const QByteArray& name, long code = ORVA_E_STORE);

    // The kth call from now on, whatever it is, fails; with code 0 it gives null, as below.
    static void failCall(int k, long code = ORVA_E_STORE);

    // The nth call of an operation returns 0 and gives null: a null handle, set, array or text; counts become 0.
    static void giveNull(const QByteArray& name, int nth = 1);

    // The name of the last call that was made to fail or to give null; empty for none since the last of those orders.
    static QByteArray failedCall();
    static void clearFailures();

    // Each call of the operation takes this long; 0 for no wait.
    static void setDelay(const QByteArray& name, int milliseconds);

    // Runs a function on the calling thread before the nth call of an operation takes effect; nth 0: before each.
    // It may call anything, ORVA functions included.
    static void onCall(const QByteArray& name, int nth, std::function<void()> function);

    // ---- What was called -----------------------------------------------------------------------------------------

    static QList<Call> calls();
    static QStringList log();   // "AddAddrToGroup(3, 7, 4)"
    static QStringList names(); // "AddAddrToGroup"
    static int count(const QByteArray& name);
    static int totalCalls();
    static void clearCalls();
    static void setRecording(bool on); // counts go on without

    // Begins without an end; may be below 0.
    static int openTransactions(int memory);
};

#endif // TESTS_SUPPORT_FAKESDK_H
