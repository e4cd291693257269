#include "fakesdk/FakeSdk.h"

#include "fakesdk/FakeSdkState.h"

#include <QThread>

#include <chrono>
#include <thread>

namespace fakesdk
{

std::mutex& mutex()
{
    static std::mutex instance;
    return instance;
}

static State*& statePointer()
{
    static State* pointer = new State;
    return pointer;
}

State& state()
{
    return *statePointer();
}

static FakeSdk::Field field(const char* key, int maxLength, const char* kind, const char* labelId)
{
    const bool isNumber = QByteArray(kind) == "Mobile" || QByteArray(kind) == "Number";
    return FakeSdk::Field{key, maxLength, isNumber ? "0123456789+*#" : "null", "null", kind, false, labelId};
}

static int defaultCoding(const QString& value, bool, bool customised)
{
    bool isAscii = true;
    for (const QChar& character : value)
        isAscii = isAscii && character.unicode() < 128;
    return isAscii && !customised ? value.size() : (value.isEmpty() ? 0 : 1 + 2 * value.size());
}

State::State() : coding(defaultCoding), logDirectory("/tmp/linkhand-fake/log/")
{
    memories[ORVA_MEMORY_CARD].fields = FakeSdk::cardFields();
    memories[ORVA_MEMORY_CARD].capacity = 250;
    memories[ORVA_MEMORY_DEVICE].fields = FakeSdk::cardFields();
    memories[ORVA_MEMORY_DEVICE].capacity = 500;
    memories[ORVA_MEMORY_LOCAL].fields = FakeSdk::localFields();
    memories[ORVA_MEMORY_LOCAL].capacity = 100000;
}

bool Memory::knows(const QByteArray& key) const
{
    for (const FakeSdk::Field& candidate : fields)
        if (candidate.key.toLower() == key.toLower())
            return true;
    return false;
}

QList<int> State::presentMemories() const
{
    if (memoryListFixed)
        return memoryList;
    QList<int> list;
    if (devicePresent && cardPresent)
        list << ORVA_MEMORY_CARD;
    if (devicePresent)
        list << ORVA_MEMORY_DEVICE;
    return list;
}

bool State::isPresent(int memory) const
{
    return memory == ORVA_MEMORY_LOCAL || presentMemories().contains(memory);
}

bool isRecording()
{
    std::lock_guard<std::mutex> lock(mutex());
    return state().recording;
}

// The rules are asked in the order in which they were given; the first that is due decides.
static Order dueOrder(const QByteArray& name)
{
    Order order;
    for (Rule& rule : state().rules) {
        if (rule.spent || (!rule.name.isEmpty() && rule.name != name))
            continue;
        if (rule.nth > 1) {
            --rule.nth;
            continue;
        }
        rule.spent = rule.nth == 1;
        if (order.code == 0 && !order.null) {
            order.code = rule.code;
            order.null = rule.code == 0;
            state().failedCall = name;
        }
    }
    return order;
}

Order enter(const char* name, const QStringList& arguments)
{
    Order order;
    int delay = 0;
    std::vector<std::function<void()>> due;
    {
        std::lock_guard<std::mutex> lock(mutex());
        State& s = state();
        ++s.total;
        ++s.counts[name];
        if (s.recording)
            s.calls.append(FakeSdk::Call{name, arguments, QThread::currentThread()});
        delay = s.delays.value(name);
        for (Hook& hook : s.hooks) {
            if (hook.name != name || hook.nth < 0)
                continue;
            if (hook.nth > 1) {
                --hook.nth;
                continue;
            }
            due.push_back(hook.function);
            hook.nth = hook.nth == 1 ? -1 : 0;
        }
        order = dueOrder(name);
    }
    for (const std::function<void()>& function : due)
        function();
    if (delay > 0)
        std::this_thread::sleep_for(std::chrono::milliseconds(delay));
    return order;
}

Handle* find(void* handle, Kind kind, const char* name)
{
    Handle* known = state().handles.contains(handle) ? static_cast<Handle*>(handle) : nullptr;
    if (known != nullptr && known->kind == kind)
        return known;
    state().misuse.append(QString("%1 with %2").arg(name, handle ? "a wrong or released handle" : "a null handle"));
    return nullptr;
}

Handle* make(Kind kind, int memory)
{
    Handle* handle = new Handle;
    handle->kind = kind;
    handle->memory = memory;
    state().handles.insert(handle);
    return handle;
}

long release(void* handle, Kind kind, const char* name)
{
    Handle* known = find(handle, kind, name);
    if (known == nullptr)
        return ORVA_E_HANDLE;
    state().handles.remove(known);
    delete known;
    return ORVA_OK;
}

} // namespace fakesdk

using fakesdk::State;
using fakesdk::state;
typedef std::lock_guard<std::mutex> Lock;

void FakeSdk::reset()
{
    Lock lock(fakesdk::mutex());
    State* fresh = new State;
    for (const void* handle : state().handles)
        delete static_cast<const fakesdk::Handle*>(handle);
    for (const void* profile : state().profiles)
        delete[] static_cast<const ORVA_PROFILE_ENTRY*>(profile);
    delete &state();
    fakesdk::statePointer() = fresh;
    fakesdk::forgetBuffers();
}

QString FakeSdk::leaks()
{
    Lock lock(fakesdk::mutex());
    QStringList found = state().misuse;
    for (const void* handle : state().handles) {
        const char* const kinds[] = {"record", "record set", "group", "group set"};
        found << QString("a %1 handle").arg(kinds[int(static_cast<const fakesdk::Handle*>(handle)->kind)]);
    }
    if (!state().profiles.isEmpty())
        found << QString("%1 field lists").arg(state().profiles.size());
    if (fakesdk::buffersAlive() != 0)
        found << QString("%1 text buffers").arg(fakesdk::buffersAlive());
    return found.join("; ");
}

int FakeSdk::handlesAlive()
{
    Lock lock(fakesdk::mutex());
    return state().handles.size();
}

int FakeSdk::buffersAlive()
{
    return fakesdk::buffersAlive();
}

int FakeSdk::addRecord(int memory, const QStringList& values)
{
    Lock lock(fakesdk::mutex());
    fakesdk::Memory& m = state().memories[memory];
    fakesdk::Values record;
    for (int i = 0; i < m.fields.size() && i < values.size(); ++i)
        record[m.fields[i].key.toLower()] = values[i];
    m.records[m.nextId] = record;
    return m.nextId++;
}

void FakeSdk::removeRecord(int memory, int id)
{
    Lock lock(fakesdk::mutex());
    state().memories[memory].records.erase(id);
}

bool FakeSdk::hasRecord(int memory, int id)
{
    Lock lock(fakesdk::mutex());
    return state().memories[memory].records.count(id) == 1;
}

QStringList FakeSdk::record(int memory, int id)
{
    Lock lock(fakesdk::mutex());
    const fakesdk::Memory& m = state().memories[memory];
    const auto found = m.records.find(id);
    QStringList values;
    if (found != m.records.end())
        for (const Field& f : m.fields)
            values << found->second.value(f.key.toLower());
    return values;
}

QList<int> FakeSdk::recordIds(int memory)
{
    Lock lock(fakesdk::mutex());
    QList<int> ids;
    for (const auto& entry : state().memories[memory].records)
        ids << entry.first;
    return ids;
}

int FakeSdk::addGroup(const QString& name, int parent)
{
    Lock lock(fakesdk::mutex());
    const int id = state().nextGroup++;
    state().groups[id] = Group{id, parent, name, QList<int>()};
    return id;
}

void FakeSdk::join(int group, int record)
{
    Lock lock(fakesdk::mutex());
    state().groups[group].members << record;
}

QList<FakeSdk::Group> FakeSdk::groups()
{
    Lock lock(fakesdk::mutex());
    QList<Group> list;
    for (const auto& entry : state().groups)
        list << entry.second;
    return list;
}

QList<int> FakeSdk::members(int group)
{
    Lock lock(fakesdk::mutex());
    const auto found = state().groups.find(group);
    return found == state().groups.end() ? QList<int>() : found->second.members;
}

QList<FakeSdk::Field> FakeSdk::localFields()
{
    using fakesdk::field;
    return {field("Name", 80, "Name", "ID_STR_NAME"),
            field("Mobile", 40, "Mobile", "ID_STR_MOBILE_PHONE"),
            field("officePhone", 40, "Number", "ID_STR_BUSINESS_PHONE"),
            field("homePhone", 40, "Number", "ID_STR_HOME_PHONE"),
            field("email", 80, "Email", "ID_STR_EMAIL"),
            field("remark", 200, "Remaik", "ID_STR_NOTES")};
}

QList<FakeSdk::Field> FakeSdk::cardFields()
{
    using fakesdk::field;
    return {field("Name", 14, "Name", "ID_STR_NAME"), field("Number", 20, "Number", "ID_STR_MOBILE_PHONE")};
}

QList<FakeSdk::Field> FakeSdk::wideDeviceFields()
{
    using fakesdk::field;
    return cardFields() << field("homePhone", 20, "Number", "ID_STR_HOME_PHONE")
                        << field("email", 40, "Email", "ID_STR_EMAIL");
}

void FakeSdk::setFields(int memory, const QList<Field>& fields)
{
    Lock lock(fakesdk::mutex());
    state().memories[memory].fields = fields;
}

QList<FakeSdk::Field> FakeSdk::fields(int memory)
{
    Lock lock(fakesdk::mutex());
    return state().memories[memory].fields;
}

#define FAKE_SETTER(function, type, member)                                                                            \
    void FakeSdk::function(type value)                                                                                 \
    {                                                                                                                  \
        Lock lock(fakesdk::mutex());                                                                                   \
        state().member = value;                                                                                        \
    }

FAKE_SETTER(setMissingRecordGivesNull, bool, missingGivesNull)
typedef std::function<int(const QString&, bool, bool)> Coding;
FAKE_SETTER(setCoding, Coding, coding)
FAKE_SETTER(setLogDirectory, const QString&, logDirectory)
FAKE_SETTER(setCardPresent, bool, cardPresent)
FAKE_SETTER(setDevStatus, int, devStatus)
FAKE_SETTER(setPinStatus, int, pinStatus)
FAKE_SETTER(setProductType, int, productType)
FAKE_SETTER(setCardType, int, cardType)
FAKE_SETTER(setNetStatus, int, netStatus)
FAKE_SETTER(setRecording, bool, recording)
FAKE_SETTER(setTitleLengthCode, long, titleLengthCode)

void FakeSdk::setCapacity(int memory, int capacity)
{
    Lock lock(fakesdk::mutex());
    state().memories[memory].capacity = capacity;
}

void FakeSdk::setSize(int memory, int size)
{
    Lock lock(fakesdk::mutex());
    state().memories[memory].size = size;
}

void FakeSdk::setImport(const QString& path, const QList<QStringList>& rows)
{
    Lock lock(fakesdk::mutex());
    state().imports[path] = rows;
}

void FakeSdk::setFileTitles(const QString& path, const QByteArray& titles)
{
    Lock lock(fakesdk::mutex());
    state().titles[path] = titles;
}

void FakeSdk::setOutlookInstalled(const QByteArray& name, bool installed)
{
    Lock lock(fakesdk::mutex());
    if (installed)
        state().outlooks.insert(name);
    else
        state().outlooks.remove(name);
}

QList<FakeSdk::Export> FakeSdk::exports()
{
    Lock lock(fakesdk::mutex());
    return state().exports;
}

QList<int> FakeSdk::lastFieldMap()
{
    Lock lock(fakesdk::mutex());
    return state().lastFieldMap;
}

void FakeSdk::setDevicePresent(bool present)
{
    Lock lock(fakesdk::mutex());
    state().devicePresent = present;
    state().devStatus = present ? 3 : 4;
}

void FakeSdk::setMemoryList(const QList<int>& memories)
{
    Lock lock(fakesdk::mutex());
    state().memoryListFixed = true;
    state().memoryList = memories;
}

void FakeSdk::setRadio(int first, int second)
{
    Lock lock(fakesdk::mutex());
    state().radio[0] = first;
    state().radio[1] = second;
}

void FakeSdk::setMultiModeCard(unsigned char first, unsigned char second)
{
    Lock lock(fakesdk::mutex());
    state().multiMode[0] = first;
    state().multiMode[1] = second;
}
