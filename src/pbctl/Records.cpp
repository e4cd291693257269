#include "Records.h"

#include <cstdio>

#include "Shown.h"
#include "vcard/KeptLines.h"

namespace pbctl
{

namespace
{

// Values beyond this, such as photos, are told by their length.
constexpr std::size_t longestShown = 1000;

} // namespace

RecordPrinter::RecordPrinter(const std::vector<Field>& fields, bool json) : m_fields(fields), m_json(json)
{
    std::printf("%s", json ? "[" : "ID");
    for (const Field& field : fields)
        if (!json)
            std::printf("\t%s", field.key.c_str());
    std::printf("%s", json ? "" : "\n");
}

void RecordPrinter::print(int id, const std::vector<std::u16string>& values)
{
    std::printf(m_json ? "%s{\"id\": %d" : "%s%d", m_json && m_any ? ",\n" : "", id);
    m_any = true;
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        const std::string value = toUtf8(values[i]);
        if (m_json)
            std::printf(", %s: %s", quoted(m_fields[i].key).c_str(), quoted(value).c_str());
        else
            std::printf("\t%s", shown(value).c_str());
    }
    std::printf("%s", m_json ? "}" : "\n");
}

void RecordPrinter::finish()
{
    std::printf("%s", m_json ? "]\n" : "");
}

void printContact(const Contact& contact, const std::vector<Field>& fields, const std::vector<std::string>& groups)
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
        std::printf("%s\t%s\n", shown(orva::headOf(property)).c_str(), text.c_str());
    }
}

} // namespace pbctl
