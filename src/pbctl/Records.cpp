#include "Records.h"

#include <cstdio>

#include "Shown.h"

namespace pbctl
{

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

} // namespace pbctl
