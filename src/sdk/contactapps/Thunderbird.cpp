#include "contactapps/Thunderbird.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <string_view>
#include <utility>

#include "contactapps/DatabaseCopy.h"
#include "contactapps/VCard.h"

namespace orva
{

namespace
{

constexpr const char* bookName = "/abook.sqlite";

struct Section {
    std::string name;
    std::string path;      // [Profile...]
    std::string installed; // [Install...]: the path of the profile in use
    bool isDefault = false;
};

std::vector<Section> readSections(const std::string& file)
{
    std::vector<Section> sections;
    std::ifstream in(file);
    std::string line;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        const std::size_t equals = line.find('=');
        if (!line.empty() && line.front() == '[') {
            sections.emplace_back().name = line.substr(1);
        } else if (!sections.empty() && equals != std::string::npos) {
            const std::string key = line.substr(0, equals);
            const std::string value = line.substr(equals + 1);
            if (key == "Path")
                sections.back().path = value;
            else if (key == "Default" && sections.back().name.rfind("Install", 0) == 0)
                sections.back().installed = value;
            else if (key == "Default")
                sections.back().isDefault = value == "1";
        }
    }
    return sections;
}

// Folders of the profiles that a program folder names, the one in use first.
std::vector<std::string> profileFolders(const std::string& programFolder)
{
    const std::vector<Section> sections = readSections(programFolder + "/profiles.ini");
    std::vector<std::string> paths;
    paths.reserve(2 * sections.size());
    for (const Section& section : sections)
        paths.push_back(section.installed);
    for (const bool isDefault : {true, false})
        for (const Section& section : sections)
            if (section.isDefault == isDefault)
                paths.push_back(section.path);
    std::vector<std::string> folders;
    for (const std::string& path : paths)
        if (!path.empty())
            folders.push_back(path.front() == '/' ? path : std::string(programFolder).append("/").append(path));
    return folders;
}

void setProperty(ContactFields& contact, std::string_view name, std::string_view value)
{
    const std::array<std::pair<const char*, std::string*>, 6> places = {{{"DisplayName", &contact.name},
                                                                         {"CellularNumber", &contact.mobile},
                                                                         {"WorkPhone", &contact.office},
                                                                         {"HomePhone", &contact.home},
                                                                         {"PrimaryEmail", &contact.email},
                                                                         {"Notes", &contact.note}}};
    for (const auto& place : places)
        if (name == place.first && place.second->empty())
            *place.second = value;
}

// A card in the making: newer releases keep all of it in a vCard and copy a few fields out, older ones have fields
// alone.
struct Card {
    std::string id;
    ContactFields fields;
    std::string firstName;
    std::string lastName;
    std::string vCard;

    ContactFields contact() const
    {
        ContactFields made = readVCard(vCard);
        setProperty(made, "DisplayName", fields.name);
        setProperty(made, "CellularNumber", fields.mobile);
        setProperty(made, "WorkPhone", fields.office);
        setProperty(made, "HomePhone", fields.home);
        setProperty(made, "PrimaryEmail", fields.email);
        setProperty(made, "Notes", fields.note);
        if (made.name.empty())
            made.name = firstName + (firstName.empty() || lastName.empty() ? "" : " ") + lastName;
        if (made.name.empty())
            made.name = made.email;
        return made;
    }
};

} // namespace

std::string thunderbirdBook()
{
    const char* home = std::getenv("HOME");
    if (home == nullptr || home[0] != '/')
        return {};
    for (const char* place :
         {"/.thunderbird", "/snap/thunderbird/common/.thunderbird", "/.var/app/org.mozilla.Thunderbird/.thunderbird"}) {
        for (const std::string& folder : profileFolders(std::string(home) + place))
            if (isReadableFile(folder + bookName))
                return folder + bookName;
    }
    return {};
}

std::vector<ContactFields> readThunderbirdBook(const std::string& path)
{
    const DatabaseCopy database(path);
    std::vector<ContactFields> contacts;
    Card card;
    const auto finish = [&contacts, &card] {
        ContactFields contact = card.contact();
        if (!contact.empty())
            contacts.push_back(std::move(contact));
    };
    database.forEach("SELECT p.card, p.name, p.value FROM properties AS p LEFT JOIN cards AS c ON c.uid = p.card "
                     "ORDER BY c.rowid, p.card, p.rowid",
                     [&](const DatabaseCopy::Columns& column) {
                         if (column(0) != card.id) {
                             finish();
                             card = Card();
                             card.id = column(0);
                         }
                         const std::string_view name = column(1);
                         const std::string_view value = column(2);
                         if (name == "_vCard")
                             card.vCard = value;
                         else if (name == "FirstName")
                             card.firstName = value;
                         else if (name == "LastName")
                             card.lastName = value;
                         else
                             setProperty(card.fields, name, value);
                     });
    finish();
    return contacts;
}

} // namespace orva
