// show.

#include <algorithm>
#include <cstdio>
#include <vector>

#include "Commands.h"
#include "Groups.h"
#include "Sdk.h"
#include "Shown.h"
#include "vcard/KeptLines.h"

namespace pbctl
{

namespace
{

// Values beyond this, such as photos, are told by their length.
constexpr std::size_t longestShown = 1000;

// "ADR;TYPE=HOME"
std::string headOf(const orva::CardProperty& property)
{
    std::string head = property.group().empty() ? property.name() : property.group() + "." + property.name();
    for (const orva::CardParameter& parameter : property.parameters()) {
        head += ";" + parameter.name;
        for (std::size_t i = 0; i < parameter.values.size(); ++i)
            head += (i > 0 ? "," : parameter.name.empty() ? "" : "=") + parameter.values[i];
    }
    return head;
}

void printLines(const Contact& contact, const std::vector<Field>& fields, const std::vector<std::string>& groups)
{
    std::printf("ID\t%d\n", contact.id);
    for (std::size_t i = 0; i < fields.size(); ++i)
        std::printf("%s\t%s\n", fields[i].key.c_str(), shown(toUtf8(contact.values[i])).c_str());
    for (const std::string& group : groups)
        std::printf("Group\t%s\n", shown(group).c_str());
    for (const orva::CardProperty& property : orva::keptProperties(contact.kept)) {
        const std::string& value = property.value();
        const std::string text =
            value.size() > longestShown ? "(" + std::to_string(value.size()) + " octets)" : shown(value);
        std::printf("%s\t%s\n", shown(headOf(property)).c_str(), text.c_str());
    }
}

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
        std::printf("%s{\"property\": %s, \"value\": %s}", between, quoted(headOf(property)).c_str(),
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
            printLines(contacts[i], fields, paths);
    }
    std::printf("%s", json ? "]\n" : "");
    return done;
}

} // namespace pbctl
