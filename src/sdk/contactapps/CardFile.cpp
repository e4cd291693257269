#include "contactapps/CardFile.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <strings.h>
#include <sys/stat.h>

#include "base/Failure.h"
#include "csv/ContactRows.h"
#include "csv/MadeUpColumns.h"
#include "vcard/CardContact.h"
#include "vcard/CardReader.h"
#include "vcard/CardText.h"

namespace orva
{

namespace
{

constexpr std::size_t cardsAtMost = 1000000;
constexpr std::size_t octetsAtMost = 256U << 20;

bool endsWith(const std::string& path, const char* ending)
{
    const std::size_t length = std::strlen(ending);
    return path.size() > length && strcasecmp(path.c_str() + path.size() - length, ending) == 0;
}

std::ifstream openCards(const std::string& path)
{
    struct stat state = {};
    if (stat(path.c_str(), &state) != 0)
        throw Failure(ORVA_E_NOT_FOUND, "cannot open");
    if (!S_ISREG(state.st_mode))
        throw Failure(ORVA_E_FORMAT, "not a regular file");
    std::ifstream in(path, std::ios::binary);
    if (!in)
        throw Failure(ORVA_E_STORE, "cannot open");
    return in;
}

// "WORK" of a number's types, for the note.
std::string kindOf(const CardProperty& property)
{
    for (const char* type : {"FAX", "PAGER", "CELL", "WORK", "HOME"})
        if (property.hasType(type))
            return type;
    return {};
}

// Further numbers and addresses go into the note.
bool isFurther(const CardProperty& property)
{
    return property.is("TEL") || property.is("EMAIL");
}

void takeFurther(const Card& card, CardContact& contact)
{
    for (const CardProperty& property : contact.kept) {
        if (!isFurther(property))
            continue;
        const std::string kind = property.is("TEL") ? kindOf(property) : std::string();
        contact.note += contact.note.empty() ? "" : "\n";
        contact.note += (kind.empty() ? "" : kind + ": ") + cardText(property, card.version);
    }
}

// What a property says, if people can read it.
std::string shownText(const CardProperty& property, CardVersion version)
{
    for (const char* octets : {"PHOTO", "LOGO", "SOUND", "KEY"})
        if (property.is(octets))
            return {};
    return cardText(property, version);
}

const std::string& bestNumber(const CardContact& contact)
{
    return !contact.mobile.empty() ? contact.mobile : !contact.home.empty() ? contact.home : contact.office;
}

// In the order of fieldKeys.
void fill(Row& row, const CardContact& contact)
{
    const std::string& best = bestNumber(contact);
    for (const std::string* value :
         {&contact.name, &contact.mobile, &contact.office, &contact.home, &contact.email, &contact.note, &best})
        row.add(*value);
}

// Tells what of the cards no column of the map has.
class LeftOfCards
{
public:
    LeftOfCards(const int* map, int fields, const RowReader::Report& report)
        : m_map(map, map + fields), m_report(report), m_left(std::size(fieldKeys))
    {
        if (report)
            m_named = [this](const Finding& finding) { m_report(named(finding)); };
    }
    LeftOfCards(const LeftOfCards&) = delete;
    LeftOfCards& operator=(const LeftOfCards&) = delete;

    bool isMapped(int column) const { return std::find(m_map.begin(), m_map.end(), column) != m_map.end(); }

    // Puts the columns' names to what is found in them.
    const RowReader::Report& report() const { return m_named; }

    void tell(const Card& card, const CardContact& contact, const Row& row)
    {
        for (std::size_t i = 0; i < contact.kept.size(); ++i)
            if (!isMapped(RemarkPlace) || !isFurther(contact.kept[i]))
                m_report({card.line, ORVA_FINDING_PROPERTY, 1, -1, contact.left[i],
                          shownText(contact.kept[i], card.version)});
        for (const std::string& group : contact.groups)
            m_report({card.line, ORVA_FINDING_PROPERTY, 1, -1, "CATEGORIES", group});
        const bool best = isMapped(NumberPlace);
        for (int i = 0; i < NumberPlace; ++i) {
            const bool number = i >= MobilePlace && i <= HomePlace;
            if (row.column(i).empty() || isMapped(i) || (best && number && row.column(i) == bestNumber(contact)))
                continue;
            if (best && number)
                m_report(named({card.line, ORVA_FINDING_FURTHER, 1, i, {}, row.column(i)}));
            else
                ++m_left[static_cast<std::size_t>(i)];
        }
    }

    void finish() const
    {
        for (std::size_t i = 0; m_report && i < m_left.size(); ++i)
            if (m_left[i] > 0)
                m_report(named({0, ORVA_FINDING_COLUMN, m_left[i], static_cast<int>(i)}));
    }

private:
    static Finding named(Finding finding)
    {
        if (finding.column >= 0 && static_cast<std::size_t>(finding.column) < std::size(fieldKeys))
            finding.name = fieldKeys[static_cast<std::size_t>(finding.column)];
        finding.column = -1; // which is none of the file
        return finding;
    }

    const std::vector<int> m_map;
    const RowReader::Report& m_report;
    RowReader::Report m_named;
    std::vector<int> m_left; // values, by column
};

} // namespace

bool isCardFile(const std::string& path)
{
    return endsWith(path, ".vcf") || endsWith(path, ".vcard");
}

std::vector<std::string> cardFileTitles(const std::string& path)
{
    std::ifstream in = openCards(path);
    CardReader reader(in, RowReader::Report());
    Card card;
    if (!reader.next(card))
        throw Failure(ORVA_E_FORMAT, "no card");
    return {std::begin(fieldKeys), std::end(fieldKeys)};
}

RowBlock readCardFile(const std::string& path, const Profile& profile, const int* map, const RowReader::Report& report)
{
    std::ifstream in = openCards(path);
    CardReader reader(in, report);
    FieldMap fields(profile, map);
    RowBlock rows(fields.fields());
    LeftOfCards left(map, fields.fields(), report);
    Card card;
    Row row;
    while (reader.next(card)) {
        CardContact contact = contactOf(card);
        if (left.isMapped(RemarkPlace))
            takeFurther(card, contact);
        row.clear(card.line);
        fill(row, contact);
        if (fields.add(row, rows, left.report()) && report)
            left.tell(card, contact, row);
        if (rows.rows() > cardsAtMost || rows.bytes() > octetsAtMost)
            throw Failure(ORVA_E_TOO_LONG, "too many contacts");
    }
    if (in.bad())
        throw Failure(ORVA_E_STORE, "cannot read");
    left.finish();
    if (rows.empty())
        throw Failure(ORVA_E_FORMAT, "no usable card");
    return rows;
}

} // namespace orva
