#include "ImportFindings.h"

#include <cstdio>

#include "Sdk.h"
#include "Shown.h"
#include "base/Finding.h"

namespace pbctl
{

namespace
{

constexpr int findingsShown = 20;

std::string textOf(const unsigned short* text)
{
    return toUtf8(std::u16string(reinterpret_cast<const char16_t*>(text)));
}

// The column or property that a finding is about; empty for none.
std::string placeIn(const ORVA_FINDING& finding)
{
    const std::string name = shown(textOf(finding.name));
    if (finding.reason == ORVA_FINDING_PROPERTY)
        return name;
    if (!name.empty())
        return "column \"" + name + "\"";
    return finding.column >= 0 ? "column " + std::to_string(finding.column + 1) : std::string();
}

bool isExpected(int reason)
{
    return reason == ORVA_FINDING_NAME_CUT || reason == ORVA_FINDING_NUMBER || reason == ORVA_FINDING_TOO_LONG ||
           reason == ORVA_FINDING_FULL;
}

} // namespace

void ImportFindings::say(const std::string& text)
{
    if (++m_said <= findingsShown)
        std::fprintf(stderr, "pbctl: %s\n", text.c_str());
}

void ImportFindings::take(const ORVA_FINDING& finding, const std::string& row)
{
    const std::string place = placeIn(finding);
    const std::string why = orva::findingText(finding.reason);
    if (finding.line != 0)
        say(row + " " + std::to_string(finding.line) + ": " + place + (place.empty() ? "" : ": ") + why);
    else
        m_columns.push_back(place + " (" + std::to_string(finding.count) +
                            (finding.count == 1 ? " value): " : " values): ") + why);
}

void ImportFindings::sayLast(const std::string& row, int groupsColumn)
{
    ORVA_FINDING* findings = nullptr;
    int count = 0;
    int total = 0;
    check(ORVA_Care_GetFindings(&findings, &count, &total, nullptr), "asking what was left");
    for (int i = 0; i < count; ++i) {
        const ORVA_FINDING& finding = findings[i];
        const bool groups = finding.reason == ORVA_FINDING_COLUMN && finding.column == groupsColumn;
        if (!groups && !isExpected(finding.reason))
            take(finding, row);
    }
    m_said += total - count;
    ORVA_Care_FindingsRelease(&findings);
}

void ImportFindings::finish() const
{
    if (m_said > findingsShown)
        std::fprintf(stderr, "pbctl: and %d findings more\n", m_said - findingsShown);
    for (const std::string& column : m_columns)
        std::fprintf(stderr, "pbctl: %s\n", column.c_str());
}

} // namespace pbctl
