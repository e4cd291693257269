// edit and delete.

#include <algorithm>
#include <cstdio>
#include <vector>

#include "Commands.h"
#include "FieldWord.h"
#include "Numbers.h"
#include "Sdk.h"
#include "vcard/KeptLines.h"

namespace pbctl
{

namespace
{

// Puts one property in place of all of its name; an empty value only takes them away.
void keep(Contact& contact, const std::string& name, const std::string& value)
{
    std::vector<orva::CardProperty> properties = orva::keptProperties(contact.kept);
    properties.erase(std::remove_if(properties.begin(), properties.end(),
                                    [&name](const orva::CardProperty& property) { return property.is(name); }),
                     properties.end());
    if (!value.empty()) {
        toSdk(value); // or it is no text
        properties.emplace_back(name);
        properties.back().setValue(value);
    }
    contact.kept = orva::linesOf(properties);
}

// Takes FIELD=VALUE over into a contact.
void change(Contact& contact, int memory, const std::vector<Field>& fields, const std::string& given)
{
    const std::string word = textIn(given);
    const FieldWord assigned(word, fields);
    // A name in capitals is that of a property where both have one, as EMAIL beside email.
    const bool property = assigned.assigns && memory == ORVA_MEMORY_LOCAL && orva::isKeptName(assigned.key) &&
                          (!assigned.hasField() || fields[assigned.field].key != assigned.key);
    if (property)
        keep(contact, assigned.key, assigned.value);
    else if (assigned.hasField())
        contact.values[assigned.field] = toSdk(assigned.value);
    else
        refuseWord(word, fields);
}

} // namespace

int runEdit(const Arguments& arguments)
{
    arguments.require(2, 1000, {"memory"});
    const int memory = arguments.memory();
    const std::vector<Field> fields = fieldsOf(memory);
    Contact contact = readContact(memory, fields, identifierIn(arguments.words()[1]));
    for (auto word = arguments.words().begin() + 2; word != arguments.words().end(); ++word)
        change(contact, memory, fields, *word);
    const std::vector<std::size_t> refused = cleanNumbers(memory, fields, contact.values);
    if (!refused.empty())
        throw SdkError("changing the contact: " + fields[refused.front()].key, ORVA_E_NUMBER);
    requireEmails(fields, contact.values);
    check(updateContact(memory, fields, contact), "changing contact " + std::to_string(contact.id));
    return done;
}

int runDelete(const Arguments& arguments)
{
    arguments.require(1, 1000000, {"memory"});
    const int memory = arguments.memory();
    std::vector<int> ids;
    for (auto word = arguments.words().begin() + 1; word != arguments.words().end(); ++word)
        ids.push_back(identifierIn(*word));
    Transaction transaction(memory);
    int deleted = 0;
    for (const int id : ids) {
        const long code = ORVA_PBSrv_DelAddrRec(id, memory);
        if (code == ORVA_E_NOT_FOUND) {
            std::fprintf(stderr, "pbctl: the %s has no contact %d\n", memoryName(memory).c_str(), id);
            continue;
        }
        check(code, "deleting contact " + std::to_string(id));
        transaction.wrote();
        ++deleted;
    }
    transaction.commit();
    std::printf("%d contacts deleted\n", deleted);
    return deleted == static_cast<int>(ids.size()) ? done : failed;
}

} // namespace pbctl
