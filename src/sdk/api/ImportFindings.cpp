#include "api/ImportFindings.h"

#include <algorithm>
#include <climits>
#include <iterator>
#include <utility>

#include "base/Log.h"
#include "base/Text.h"
#include "base/Unicode.h"

namespace orva
{

namespace
{

constexpr int loggedAtMost = 1000; // a file of nothing but bad rows must not push everything else out of the log

// Cut between characters, with an ellipsis where something is missing.
template <std::size_t Size>
void put(std::u16string text, unsigned short (&into)[Size])
{
    if (text.size() >= Size) {
        text.resize(cutLength(text, Size - 2));
        text.push_back(u'\u2026');
    }
    std::copy(text.begin(), text.end(), into);
    into[text.size()] = 0;
}

// Of a long value no more than could be shown.
std::u16string readable(std::string_view text)
{
    constexpr std::size_t octets = 512;
    if (text.find('\0') != std::string_view::npos || !isUtf8(text))
        return {};
    while (text.size() > octets && (static_cast<unsigned char>(text[octets]) & 0xC0) == 0x80)
        text.remove_suffix(1);
    return fromUtf8(text.substr(0, octets));
}

} // namespace

void ImportFindings::add(const Finding& finding)
{
    if (finding.reason == ORVA_FINDING_NUMBER && (m_refused.empty() || m_refused.back() != finding.line))
        m_refused.push_back(finding.line);
    m_total = std::min(m_total, INT_MAX - 1) + 1;
    log(finding);
    if (m_kept.size() >= ORVA_FINDINGS_KEPT)
        return;
    m_kept.push_back(plain(finding));
}

ORVA_FINDING ImportFindings::plain(const Finding& finding)
{
    ORVA_FINDING made = {};
    made.line = finding.line;
    made.reason = finding.reason;
    made.count = finding.count;
    made.column = finding.column;
    put(readable(finding.name), made.name);
    put(readable(finding.value), made.value);
    return made;
}

ORVA_FINDING* ImportFindings::copies() const
{
    if (m_kept.empty())
        return nullptr;
    auto copies = std::make_unique<ORVA_FINDING[]>(m_kept.size());
    std::copy(m_kept.begin(), m_kept.end(), copies.get());
    std::stable_sort(copies.get(), copies.get() + m_kept.size(), [](const ORVA_FINDING& a, const ORVA_FINDING& b) {
        return a.line != b.line && (b.line == 0 || (a.line != 0 && a.line < b.line));
    });
    return copies.release();
}

// A title may be a contact's: the first row of a file without titles is one.
void ImportFindings::log(const Finding& finding)
{
    if (m_total > loggedAtMost)
        return;
    std::string place = finding.line > 0 ? "line " + std::to_string(finding.line) : std::string();
    if (finding.reason == ORVA_FINDING_PROPERTY)
        place += ": " + std::string(finding.name);
    else if (finding.column >= 0)
        place += (place.empty() ? "column " : ": column ") + std::to_string(finding.column + 1);
    logFormat("%s: %s: %s", m_function, place.c_str(), findingText(finding.reason));
}

// False for a row that the memory refuses.
bool ImportFindings::judgeRow(const RowBlock& rows, std::size_t row, const Profile& profile, Memory& memory)
{
    const int line = rows.id(row);
    if (std::binary_search(m_refused.begin(), m_refused.end(), line))
        return false; // told when it was read
    bool taken = true;
    for (int i = 0; i < rows.fields(); ++i) {
        const Field& field = profile.fields()[static_cast<std::size_t>(i)];
        const std::u16string_view value = rows.value(row, i);
        if (memory.lengthOf(field, value) <= field.maxLength)
            continue;
        // Clients cut the names of cards and devices, whose fields are short.
        const bool cut = field.kind == "Name" && memory.hasShortNames();
        taken = taken && cut;
        add({line, cut ? ORVA_FINDING_NAME_CUT : ORVA_FINDING_TOO_LONG, 1, -1, field.key, toUtf8(value)});
    }
    return taken;
}

void ImportFindings::judge(const RowBlock& rows, const Profile& profile, Memory& memory)
{
    int room = INT_MAX;
    try {
        room = memory.capacity() - memory.size();
    } catch (const Failure&) {
        // Absent or unreadable: storing says so itself.
    }
    std::sort(m_refused.begin(), m_refused.end());
    int taken = 0;
    int firstRefused = 0;
    int refused = 0;
    for (std::size_t row = 0; row < rows.rows(); ++row) {
        if (!judgeRow(rows, row, profile, memory) || ++taken <= room)
            continue;
        firstRefused = firstRefused == 0 ? rows.id(row) : firstRefused;
        ++refused;
    }
    if (refused > 0)
        add({firstRefused, ORVA_FINDING_FULL, refused});
}

void ImportFindings::close()
{
    if (m_total > loggedAtMost)
        logFormat("%s: %d more findings", m_function, m_total - loggedAtMost);
}

bool LastImport::set(std::shared_ptr<const ImportFindings> findings)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const bool some = findings->total() > 0 || (m_findings && m_findings->total() > 0);
    m_findings = std::move(findings);
    return some;
}

std::shared_ptr<const ImportFindings> LastImport::get() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_findings;
}

} // namespace orva
