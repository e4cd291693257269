#include "Sdk.h"

#include "Arguments.h"
#include "base/Unicode.h"
#include "orva/orva_care.h"

namespace pbctl
{

namespace
{

constexpr int writesInATransaction = 200;

} // namespace

SdkError::SdkError(const std::string& doing, long code) : std::runtime_error(doing + ": " + explain(code)), m_code(code)
{
}

std::string explain(long code)
{
    switch (code) {
    case ORVA_E_NOT_FOUND:
        return "not there";
    case ORVA_E_FULL:
        return "the memory is full";
    case ORVA_E_STORE:
        return "the file could not be opened, read or written";
    case ORVA_E_ABSENT:
        return "the card or device is not there";
    case ORVA_E_FORMAT:
        return "nothing in the file can be read as contacts";
    case ORVA_E_NO_MEMORY:
        return "out of memory";
    case ORVA_E_BUSY:
        return "in use by another program";
    case ORVA_E_TOO_LONG:
        return "too long";
    case ORVA_E_UNSUPPORTED:
        return "this memory has no such thing";
    case ORVA_E_VERSION:
        return "written by a newer release";
    case ORVA_E_NUMBER:
        return "not a telephone number that this memory takes";
    case ORVA_E_NO_SPACE:
        return "the disk is full; the contacts are safe and can be read";
    case ORVA_E_READ_ONLY:
        return "the phonebook can only be read here";
    case ORVA_E_ARGUMENT:
        return "not possible for this memory";
    case ORVA_E_INTERNAL:
        return "a fault of the library; the log says more";
    default:
        return "failed with the library's code " + std::to_string(code);
    }
}

void check(long code, const std::string& doing)
{
    if (code != ORVA_OK)
        throw SdkError(doing, code);
}

void checkEnd(long code, const std::string& doing)
{
    if (code != ORVA_E_END)
        throw SdkError(doing, code);
}

Transaction::Transaction(int memory) : m_memory(memory)
{
    check(ORVA_PBSrv_BeginTransaction(memory), "beginning to write");
    m_open = true;
}

Transaction::~Transaction()
{
    if (m_open)
        ORVA_PBSrv_EndTransaction(m_memory);
}

void Transaction::wrote()
{
    if (++m_writes % writesInATransaction != 0)
        return;
    commit();
    check(ORVA_PBSrv_BeginTransaction(m_memory), "beginning to write");
    m_open = true;
}

void Transaction::commit()
{
    m_open = false;
    check(ORVA_PBSrv_EndTransaction(m_memory), "writing");
}

std::vector<Field> fieldsOf(int memory)
{
    ORVA_PROFILE_ENTRY* entries = nullptr;
    int count = 0;
    check(ORVA_PBSrv_GetProfile(memory, &entries, &count), "asking for the fields of the " + memoryName(memory));
    std::vector<Field> fields;
    fields.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        fields.push_back({entries[i].key, entries[i].label_id, entries[i].kind, entries[i].max_length});
    ORVA_PBSrv_ProfileRelease(memory, &entries);
    return fields;
}

std::u16string toSdk(const std::string& text)
{
    std::u16string out;
    if (!orva::appendUtf16(text, out))
        throw UsageError("not UTF-8: \"" + text + "\"");
    return out;
}

const unsigned short* units(const std::u16string& text)
{
    return reinterpret_cast<const unsigned short*>(text.c_str());
}

std::string textOf(const unsigned short* text)
{
    return toUtf8(std::u16string(reinterpret_cast<const char16_t*>(text)));
}

std::u16string takeText(unsigned short* text)
{
    std::u16string out;
    if (text == nullptr)
        return out;
    for (const unsigned short* at = text; *at != 0; ++at)
        out.push_back(static_cast<char16_t>(*at));
    delete[] text;
    return out;
}

std::string takeUtf8(unsigned short* text)
{
    return toUtf8(takeText(text));
}

std::string toUtf8(const std::u16string& text)
{
    std::string out;
    orva::appendUtf8(std::u16string_view(text), out);
    return out;
}

void forEachRecord(void* set, const std::vector<Field>& fields, const RecordVisitor& visit)
{
    std::vector<std::u16string> values(fields.size());
    long more = ORVA_PBSrv_AddrRecordSet_MoveFirst(set);
    for (; more == ORVA_OK; more = ORVA_PBSrv_AddrRecordSet_MoveNext(set)) {
        int id = 0;
        check(ORVA_PBSrv_AddrRecordSet_GetID(set, &id), "reading a contact");
        for (std::size_t i = 0; i < fields.size(); ++i) {
            unsigned short* text = nullptr;
            check(ORVA_PBSrv_AddrRecordSet_GetValue(set, fields[i].key.c_str(), &text), "reading a contact");
            values[i] = takeText(text);
        }
        visit(id, values);
    }
    checkEnd(more, "reading the contacts");
}

void forEachRecord(int memory, const std::vector<Field>& fields, const RecordVisitor& visit)
{
    Handle set(ORVA_PBSrv_AddrRecordSet_Release);
    check(ORVA_PBSrv_GetAddrRecList(memory, set.out()), "reading the contacts of the " + memoryName(memory));
    if (set.get() != nullptr)
        forEachRecord(set.get(), fields, visit);
}

namespace
{

// Fills a new record; the library's code.
long fillRecord(Handle& record, int memory, const std::vector<Field>& fields, const std::vector<std::u16string>& values)
{
    long code = ORVA_PBSrv_CreateAddrRecord(memory, record.out());
    for (std::size_t i = 0; code == ORVA_OK && i < fields.size(); ++i)
        code = ORVA_PBSrv_AddrRecord_SetValue(record.get(), fields[i].key.c_str(), units(values[i]));
    return code;
}

} // namespace

int addRecord(int memory, const std::vector<Field>& fields, const std::vector<std::u16string>& values, long* failure)
{
    Handle record(ORVA_PBSrv_AddrRecord_Release);
    int id = 0;
    *failure = fillRecord(record, memory, fields, values);
    if (*failure == ORVA_OK)
        *failure = ORVA_PBSrv_AddAddrRec(record.get(), &id);
    return id;
}

Contact readContact(int memory, const std::vector<Field>& fields, int id)
{
    Handle record(ORVA_PBSrv_AddrRecord_Release);
    check(ORVA_PBSrv_GetAddrRecord(id, memory, record.out()), "reading contact " + std::to_string(id));
    return contactOf(record.get(), fields, id);
}

Contact contactOf(void* record, const std::vector<Field>& fields, int id)
{
    Contact contact;
    contact.id = id;
    for (const Field& field : fields) {
        unsigned short* text = nullptr;
        check(ORVA_PBSrv_AddrRecord_GetValue(record, field.key.c_str(), &text), "reading a contact");
        contact.values.push_back(takeText(text));
    }
    contact.kept = keptOf(record);
    return contact;
}

long updateContact(int memory, const std::vector<Field>& fields, const Contact& contact)
{
    Handle record(ORVA_PBSrv_AddrRecord_Release);
    long code = fillRecord(record, memory, fields, contact.values);
    if (code == ORVA_OK && memory == ORVA_MEMORY_LOCAL)
        code = ORVA_Care_SetKept(record.get(), contact.kept.data(), static_cast<int>(contact.kept.size()));
    return code == ORVA_OK ? ORVA_PBSrv_UpdateAddrRec(record.get(), contact.id) : code;
}

std::string keptOf(void* record)
{
    char* lines = nullptr;
    int octets = 0;
    check(ORVA_Care_GetKept(record, &lines, &octets), "reading a contact");
    std::string kept(lines, static_cast<std::size_t>(octets));
    delete[] lines;
    return kept;
}

std::string memoryName(int memory)
{
    return memory == ORVA_MEMORY_CARD ? "card" : memory == ORVA_MEMORY_DEVICE ? "device" : "PC's phonebook";
}

} // namespace pbctl
