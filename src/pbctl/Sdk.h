#ifndef PBCTL_SDK_H
#define PBCTL_SDK_H

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "orva/orva_sdk.h"

namespace pbctl
{

// A call of the library that failed; what() is for people.
class SdkError : public std::runtime_error
{
public:
    SdkError(const std::string& doing, long code);
    long code() const { return m_code; }

private:
    long m_code;
};

// What a code means.
std::string explain(long code);

// Throws SdkError for a code other than 0; `doing` is what was being done, such as "reading the contacts".
void check(long code, const std::string& doing);

// The same for the code that ended a walk: anything but its end is an error.
void checkEnd(long code, const std::string& doing);

// A handle that is released at the end of its scope.
class Handle
{
public:
    using Release = long (*)(void*);
    explicit Handle(Release release) : m_release(release) {}
    ~Handle()
    {
        if (m_handle != nullptr)
            m_release(m_handle);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    void** out() { return &m_handle; }
    void* get() const { return m_handle; }

private:
    Release m_release;
    void* m_handle = nullptr;
};

// A transaction that is committed at the end of its scope, and every 200 writes.
class Transaction
{
public:
    explicit Transaction(int memory);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    // Says that something was written.
    void wrote();

    // Commits; SdkError if what was written is not on disk.
    void commit();

private:
    int m_memory;
    int m_writes = 0;
    bool m_open = false;
};

struct Field {
    std::string key;
    std::string labelId;
    std::string kind;
    int maxLength = 0;
};

std::vector<Field> fieldsOf(int memory);

// UTF-8 to the library's text; UsageError for an argument that is not UTF-8.
std::u16string toSdk(const std::string& text);
const unsigned short* units(const std::u16string& text);

// The library's text.
std::string textOf(const unsigned short* text);

// The same, which is freed.
std::u16string takeText(unsigned short* text);
std::string takeUtf8(unsigned short* text);
std::string toUtf8(const std::u16string& text);

// Calls back for each record of a set, with its identifier and its values in the order of the fields.
using RecordVisitor = std::function<void(int id, const std::vector<std::u16string>& values)>;
void forEachRecord(void* set, const std::vector<Field>& fields, const RecordVisitor& visit);

// The same for all records of a memory.
void forEachRecord(int memory, const std::vector<Field>& fields, const RecordVisitor& visit);

// Stores a record and gives its identifier, or the library's code in *failure.
int addRecord(int memory, const std::vector<Field>& fields, const std::vector<std::u16string>& values, long* failure);

struct Contact {
    int id = 0;
    std::vector<std::u16string> values; // in the order of the fields
    std::string kept;
};

// SdkError if it is not there.
Contact readContact(int memory, const std::vector<Field>& fields, int id);

// What a handle of a record holds, under an identifier.
Contact contactOf(void* record, const std::vector<Field>& fields, int id);

// Replaces all of a contact; the library's code.
long updateContact(int memory, const std::vector<Field>& fields, const Contact& contact);

// What is kept with the record behind a handle.
std::string keptOf(void* record);

std::string memoryName(int memory);

} // namespace pbctl

#endif // PBCTL_SDK_H
