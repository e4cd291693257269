#include "contactapps/ContactApps.h"

#include <algorithm>
#include <vector>

#include "base/Failure.h"
#include "contactapps/Evolution.h"
#include "contactapps/Thunderbird.h"
#include "csv/ContactRows.h"

namespace orva
{

namespace
{

constexpr std::string_view evolutionName = "Outlook";
constexpr std::string_view thunderbirdName = "Outlook Express";

std::vector<std::string> booksOf(std::string_view name)
{
    if (name == evolutionName)
        return evolutionBooks();
    if (name == thunderbirdName)
        if (const std::string book = thunderbirdBook(); !book.empty())
            return {book};
    return {};
}

const std::string& valueFor(const ContactFields& contact, const std::string& labelId, bool oneNumber)
{
    static const std::string none;
    if (labelId == "ID_STR_NAME")
        return contact.name;
    if (labelId == "ID_STR_MOBILE_PHONE") {
        // A memory with a single number takes the best there is.
        if (!contact.mobile.empty() || !oneNumber)
            return contact.mobile;
        return contact.home.empty() ? contact.office : contact.home;
    }
    if (labelId == "ID_STR_BUSINESS_PHONE")
        return contact.office;
    if (labelId == "ID_STR_HOME_PHONE")
        return contact.home;
    if (labelId == "ID_STR_EMAIL")
        return contact.email;
    return labelId == "ID_STR_NOTES" ? contact.note : none;
}

} // namespace

bool hasContactApp(std::string_view name)
{
    return !booksOf(name).empty();
}

RowBlock readContactApp(std::string_view name, const Profile& profile, const int* map, const RowReader::Report& report)
{
    const std::vector<std::string> books = booksOf(name);
    if (books.empty())
        throw Failure(ORVA_E_NOT_FOUND, "no such contacts application");
    const auto numbers = std::count_if(profile.fields().begin(), profile.fields().end(), [](const Field& field) {
        return field.kind == "Number" || field.kind == "Mobile";
    });
    FieldMap fields(profile, map);
    RowBlock rows(fields.fields());
    Row row;
    int number = 0;
    const RowReader::Report named = [&](Finding finding) {
        if (finding.column >= 0 && finding.column < profile.size())
            finding.name = profile.fields()[static_cast<std::size_t>(finding.column)].key;
        finding.column = -1; // which is none of a file
        report(finding);
    };
    for (const std::string& book : books) {
        const bool evolution = name == evolutionName;
        for (const ContactFields& contact : evolution ? readEvolutionBook(book) : readThunderbirdBook(book)) {
            row.clear(++number);
            for (const Field& field : profile.fields())
                row.add(valueFor(contact, field.labelId, numbers == 1));
            if (!fields.add(row, rows, report ? named : report) || !report)
                continue;
            for (const std::string& property : contact.left)
                report({number, ORVA_FINDING_PROPERTY, 1, -1, property});
        }
    }
    if (rows.empty())
        throw Failure(ORVA_E_FORMAT, "no contact in the application");
    return rows;
}

} // namespace orva
