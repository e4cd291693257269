#include "contactapps/Evolution.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "contactapps/DatabaseCopy.h"
#include "contactapps/VCard.h"

namespace orva
{

namespace
{

std::vector<std::string> bookFolders()
{
    std::vector<std::string> folders;
    const char* data = std::getenv("XDG_DATA_HOME");
    const char* home = std::getenv("HOME");
    if (data != nullptr && data[0] == '/')
        folders.push_back(std::string(data) + "/evolution/addressbook");
    if (home != nullptr && home[0] == '/') {
        for (const char* place :
             {"/.local/share/evolution/addressbook", "/.var/app/org.gnome.Evolution/data/evolution/addressbook"}) {
            const std::string folder = std::string(home) + place;
            if (std::find(folders.begin(), folders.end(), folder) == folders.end())
                folders.push_back(folder);
        }
    }
    return folders;
}

} // namespace

std::vector<std::string> evolutionBooks()
{
    std::vector<std::string> books;
    for (const std::string& folder : bookFolders()) {
        std::vector<std::string> found;
        std::error_code error;
        for (std::filesystem::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
            const std::string file = at->path().string() + "/contacts.db";
            if (isReadableFile(file))
                found.push_back(file);
        }
        const auto personal = [&folder](const std::string& file) { return file == folder + "/system/contacts.db"; };
        std::sort(found.begin(), found.end(), [&](const std::string& a, const std::string& b) {
            return personal(a) != personal(b) ? personal(a) : a < b;
        });
        books.insert(books.end(), found.begin(), found.end());
    }
    return books;
}

// The table's name is the folder's, so it is told by its column.
std::vector<ContactFields> readEvolutionBook(const std::string& path)
{
    const DatabaseCopy database(path);
    std::vector<std::string> tables;
    database.forEach("SELECT replace(m.name, '\"', '\"\"') FROM sqlite_master AS m, pragma_table_info(m.name) AS c "
                     "WHERE m.type = 'table' AND lower(c.name) = 'vcard' ORDER BY m.name",
                     [&tables](const DatabaseCopy::Columns& column) { tables.emplace_back(column(0)); });
    std::vector<ContactFields> contacts;
    for (const std::string& table : tables) {
        database.forEach("SELECT vcard FROM \"" + table + "\" WHERE vcard IS NOT NULL ORDER BY rowid",
                         [&contacts](const DatabaseCopy::Columns& column) {
                             ContactFields contact = readVCard(column(0));
                             if (!contact.empty())
                                 contacts.push_back(std::move(contact));
                         });
    }
    return contacts;
}

} // namespace orva
