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

// The column or property that a finding is about; empty for none.
std::string placeIn(const ORVA_FINDING& finding)
{
    std::string name = shown(textOf(finding.name));
    if (finding.reason == ORVA_FINDING_PROPERTY)
        return name;
    if (!name.empty())
        return "column \"" + name + "\"";
    return finding.column >= 0 ? "column " + std::to_string(finding.column + 1) : std::string();
}

// The code for which a contact was not taken, one for all of its columns.
long refusalOf(const ORVA_FINDING& finding)
{
    switch (finding.reason) {
    case ORVA_FINDING_NUMBER:
        return ORVA_E_NUMBER;
    case ORVA_FINDING_TOO_LONG:
        return ORVA_E_TOO_LONG;
    case ORVA_FINDING_FULL:
        return ORVA_E_FULL;
    case ORVA_FINDING_REFUSED:
        return finding.count;
    default:
        return ORVA_OK;
    }
}

bool isContinued(const ORVA_FINDING* finding, const ORVA_FINDING* end)
{
    return finding + 1 != end && finding[1].line == finding->line && refusalOf(finding[1]) == refusalOf(*finding);
}

std::string counted(const std::map<std::string, int>& names)
{
    std::string text;
    for (const auto& name : names)
        text += (text.empty() ? "" : ", ") + std::to_string(name.second) + " " + name.first;
    return text;
}

} // namespace

void ImportFindings::say(const std::string& text)
{
    if (++m_said <= findingsShown)
        std::fprintf(stderr, "pbctl: %s\n", text.c_str());
}

// Counts what was left of a card by its name.
bool ImportFindings::count(const ORVA_FINDING& finding)
{
    const bool end = finding.reason == ORVA_FINDING_NAME_CUT || finding.reason == ORVA_FINDING_NOTE_CUT;
    if (m_format != ORVA_FORMAT_CARDS ||
        (!end && finding.reason != ORVA_FINDING_PROPERTY && finding.reason != ORVA_FINDING_GROUP))
        return false;
    ++m_left[(end ? "end of " : "") + textOf(finding.name)];
    return true;
}

std::string ImportFindings::reasonOf(const ORVA_FINDING& finding) const
{
    if (finding.reason == ORVA_FINDING_NAME_CUT)
        return "cut to what the " + memoryName(m_memory) + " holds";
    if (finding.reason == ORVA_FINDING_GROUP)
        return "not put into a group: " + (finding.count == ORVA_E_TOO_LONG
                                               ? explain(finding.count)
                                               : "\"" + textOf(finding.value) + "\": a level has no name");
    if (finding.reason == ORVA_FINDING_EMPTY && m_format == ORVA_FORMAT_CARDS)
        return "not taken: it has nothing that a field is meant for";
    return orva::findingText(finding.reason);
}

void ImportFindings::take(const ORVA_FINDING* finding, const ORVA_FINDING* end)
{
    const std::string place = finding->reason == ORVA_FINDING_GROUP ? std::string() : placeIn(*finding);
    const std::string row = m_format == ORVA_FORMAT_APPLICATION ? "contact " : "line ";
    const long refusal = refusalOf(*finding);
    if (finding->line == 0) {
        m_columns.push_back(place + " (" + std::to_string(finding->count) +
                            (finding->count == 1 ? " value): " : " values): ") + reasonOf(*finding));
    } else if (refusal == ORVA_OK) {
        say(row + std::to_string(finding->line) + ": " + place + (place.empty() ? "" : ": ") + reasonOf(*finding));
    } else {
        m_refused += (m_refused.empty() || place.empty() ? place : ", " + place.substr(place.find('"')));
        if (isContinued(finding, end))
            return;
        say(row + std::to_string(finding->line) + ": not taken: " + explain(refusal) +
            (m_refused.empty() ? "" : ": " + m_refused));
        m_refused.clear();
    }
}

void ImportFindings::sayThoseOf(void* import)
{
    ORVA_FINDING* findings = nullptr;
    int count = 0;
    int total = 0;
    check(ORVA_Care_Import_GetFindings(import, &findings, &count, &total), "asking what was left");
    for (const ORVA_FINDING* finding = findings; finding != findings + count; ++finding)
        if (!this->count(*finding))
            take(finding, findings + count);
    m_said += total - count;
    ORVA_Care_FindingsRelease(&findings);
}

void ImportFindings::finish() const
{
    if (m_said > findingsShown)
        std::fprintf(stderr, "pbctl: and %d findings more\n", m_said - findingsShown);
    for (const std::string& column : m_columns)
        std::fprintf(stderr, "pbctl: %s\n", column.c_str());
    if (!m_left.empty())
        std::fprintf(stderr, "pbctl: left in the file, since there is no field or place for them: %s\n",
                     counted(m_left).c_str());
}

std::string keptText(void* import)
{
    ORVA_FINDING* entries = nullptr;
    int count = 0;
    check(ORVA_Care_Import_GetKept(import, &entries, &count), "asking what was kept");
    std::map<std::string, int> kept;
    for (int i = 0; i < count; ++i)
        kept.emplace(textOf(entries[i].name), entries[i].count);
    ORVA_Care_FindingsRelease(&entries);
    return counted(kept);
}

} // namespace pbctl
