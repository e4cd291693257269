#include "contactapps/CardFile.h"

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

// Puts further numbers and addresses into the note. The names of the properties that stay behind.
std::string takeFurther(const Card& card, CardContact& contact)
{
    std::string left;
    for (std::size_t i = 0; i < contact.kept.size(); ++i) {
        const CardProperty& property = contact.kept[i];
        if (!property.is("TEL") && !property.is("EMAIL")) {
            left += (left.empty() ? "" : ", ") + contact.left[i];
            continue;
        }
        const std::string kind = property.is("TEL") ? kindOf(property) : std::string();
        contact.note += contact.note.empty() ? "" : "\n";
        contact.note += (kind.empty() ? "" : kind + ": ") + cardText(property, card.version);
    }
    return left;
}

// In the order of fieldKeys.
void fill(Row& row, const CardContact& contact)
{
    const std::string& best = !contact.mobile.empty() ? contact.mobile
                              : !contact.home.empty() ? contact.home
                                                      : contact.office;
    for (const std::string* value :
         {&contact.name, &contact.mobile, &contact.office, &contact.home, &contact.email, &contact.note, &best})
        row.add(*value);
}

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
    Card card;
    Row row;
    while (reader.next(card)) {
        CardContact contact = contactOf(card);
        const std::string left = takeFurther(card, contact);
        row.clear(card.line);
        fill(row, contact);
        if (fields.add(row, rows, report) && !left.empty() && report)
            report(card.line, ("no field is for " + left).c_str());
        if (rows.rows() > cardsAtMost || rows.bytes() > octetsAtMost)
            throw Failure(ORVA_E_TOO_LONG, "too many contacts");
    }
    if (in.bad())
        throw Failure(ORVA_E_STORE, "cannot read");
    if (rows.empty())
        throw Failure(ORVA_E_FORMAT, "no usable card");
    return rows;
}

} // namespace orva
