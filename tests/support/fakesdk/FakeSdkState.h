#ifndef TESTS_SUPPORT_FAKESDKSTATE_H
#define TESTS_SUPPORT_FAKESDKSTATE_H

// The inside of the scripted SDK; tests include FakeSdk.h alone.

#include <QHash>
#include <QMap>
#include <QSet>

#include <map>
#include <mutex>
#include <vector>

#include "fakesdk/FakeSdk.h"
#include "linkhand/QtCompat.h"

namespace fakesdk
{

typedef QHash<QByteArray, QString> Values; // lower-case key

struct Memory {
    QList<FakeSdk::Field> fields;
    std::map<int, Values> records;
    int nextId = 1;
    int capacity = 0;
    int size = -1;
    int openTransactions = 0;

    bool knows(const QByteArray& key) const;
};

enum class Kind { Record, RecordSet, Group, GroupSet };

struct Handle {
    Kind kind;
    int memory = 4;
    // Record
    Values values;
    // RecordSet: identifiers, or rows where it comes from a file
    std::vector<int> ids;
    std::vector<Values> rows;
    bool fromFile = false;
    size_t position = 0;
    // Group
    QString name;
    int parent = 0;
    // GroupSet
    std::vector<FakeSdk::Group> groups;
    std::vector<int> members;
};

struct Rule {
    QByteArray name; // empty: any
    int nth = 1;     // 0: each
    long code = 0;   // 0: give null
    bool spent = false;
};

struct Hook {
    QByteArray name;
    int nth;
    std::function<void()> function;
};

enum Service { DevInit, DevMgr, Net, Phonebook, ServiceCount };

struct State {
    State();

    QMap<int, Memory> memories;
    std::map<int, FakeSdk::Group> groups;
    int nextGroup = 1;
    bool missingGivesNull = false;

    QHash<QString, QList<QStringList>> imports;
    QHash<QString, QByteArray> titles;
    long titleLengthCode = 2;
    QSet<QByteArray> outlooks;
    QList<FakeSdk::Export> exports;
    QList<int> lastFieldMap;
    std::function<int(const QString&, bool, bool)> coding;
    QString logDirectory;

    bool devicePresent = true;
    bool cardPresent = true;
    bool memoryListFixed = false;
    QList<int> memoryList;
    int devStatus = 3;
    int pinStatus = 1;
    int productType = 2;
    int cardType = 1;
    int radio[2] = {1, 1};
    int netStatus = 2;
    unsigned char multiMode[2] = {0, 0};
    QList<ORVA_CALLBACK> callbacks[ServiceCount];

    std::vector<Rule> rules;
    std::vector<Hook> hooks;
    QHash<QByteArray, int> delays;
    QByteArray failedCall;

    QList<FakeSdk::Call> calls;
    QHash<QByteArray, int> counts;
    int total = 0;
    bool recording = true;

    QSet<const void*> handles;
    QSet<const void*> profiles;
    QStringList misuse;

    QList<int> presentMemories() const;
    bool isPresent(int memory) const;
};

std::mutex& mutex(); // of the state
State& state();

// What a call has been ordered to do.
struct Order {
    long code = 0;
    bool null = false;
};

// Records the call and finds its order; waits and runs hooks. Not under the lock.
Order enter(const char* name, const QStringList& arguments);
bool isRecording();

inline QString text(int value)
{
    return QString::number(value);
}
inline QString text(short value)
{
    return QString::number(value);
}
inline QString text(bool value)
{
    return QLatin1String(value ? "true" : "false");
}
inline QString text(const char* value)
{
    return value ? QString::fromLatin1(value) : QString("null");
}
inline QString text(const unsigned short* value)
{
    return value ? QtCompat::fromUtf16(value) : QString("null");
}

template <class... Args>
Order enterCall(const char* name, Args... args)
{
    return enter(name, isRecording() ? QStringList{text(args)...} : QStringList());
}

// A handle of a kind, null with a note of misuse otherwise. Under the lock.
Handle* find(void* handle, Kind kind, const char* name);
Handle* make(Kind kind, int memory);
long release(void* handle, Kind kind, const char* name);

// Text buffers that callers free with array delete.
unsigned short* makeText(const QString& value);
int buffersAlive();
void forgetBuffers();

} // namespace fakesdk

// The first line of each operation: leaves at once with the code that was ordered.
#define FAKE_ENTER(...)                                                                                                \
    const fakesdk::Order order = fakesdk::enterCall(__VA_ARGS__);                                                      \
    if (order.code != 0)                                                                                               \
        return order.code;                                                                                             \
    std::lock_guard<std::mutex> lock(fakesdk::mutex())

#endif // TESTS_SUPPORT_FAKESDKSTATE_H
