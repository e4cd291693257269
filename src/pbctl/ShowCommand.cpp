// show.

#include <algorithm>
#include <cstdio>
#include <vector>

#include "Commands.h"
#include "Groups.h"
#include "Records.h"
#include "Sdk.h"
#include "Shown.h"
#include "vcard/KeptLines.h"

namespace pbctl
{

namespace
{

void printJson(const Contact& contact, const std::vector<Field>& fields, const std::vector<std::string>& groups)
{
    std::printf("{\"id\": %d", contact.id);
    for (std::size_t i = 0; i < fields.size(); ++i)
        std::printf(", %s: %s", quoted(fields[i].key).c_str(), quoted(toUtf8(contact.values[i])).c_str());
    std::printf(", \"groups\": [");
    for (std::size_t i = 0; i < groups.size(); ++i)
        std::printf("%s%s", i > 0 ? ", " : "", quoted(groups[i]).c_str());
    std::printf("], \"kept\": [");
    const char* between = "";
    for (const orva::CardProperty& property : orva::keptProperties(contact.kept)) {
        std::printf("%s{\"property\": %s, \"value\": %s}", between, quoted(orva::headOf(property)).c_str(),
                    quoted(property.value()).c_str());
        between = ", ";
    }
    std::printf("]}");
}

} // namespace

int runShow(const Arguments& arguments)
{
    arguments.require(1, 1000000, {"memory", "json"});
    const int memory = arguments.memory();
    const bool json = arguments.has("json");
    const std::vector<Field> fields = fieldsOf(memory);
    std::vector<Group> groups;
    if (memory == ORVA_MEMORY_LOCAL)
        groups = Groups().all();
    std::vector<Contact> contacts;
    for (auto word = arguments.words().begin() + 1; word != arguments.words().end(); ++word)
        contacts.push_back(readContact(memory, fields, identifierIn(*word)));
    for (std::size_t i = 0; i < contacts.size(); ++i) {
        std::vector<std::string> paths;
        for (const Group& group : groups)
            if (std::find(group.members.begin(), group.members.end(), contacts[i].id) != group.members.end())
                paths.push_back(group.path);
        std::printf("%s", json ? i == 0 ? "[" : ",\n" : i == 0 ? "" : "\n");
        if (json)
            printJson(contacts[i], fields, paths);
        else
            printContact(contacts[i], fields, paths);
    }
    std::printf("%s", json ? "]\n" : "");
    return done;
}

} // namespace pbctl
