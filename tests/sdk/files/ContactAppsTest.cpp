// Contacts of the mail programs, from address books made here in their layouts.

#include <cstring>
#include <filesystem>

#include <sqlite3.h>

#include "SdkFiles.h"
#include "contactapps/VCard.h"

using namespace files;

namespace
{

void execute(sqlite3* database, const std::string& sql)
{
    char* error = nullptr;
    if (sqlite3_exec(database, sql.c_str(), nullptr, nullptr, &error) != SQLITE_OK)
        check::report(__FILE__, __LINE__, error);
    sqlite3_free(error);
}

// An address book that stays open, as the program keeps it: its last writes are in the journal alone.
class Book
{
public:
    Book(const std::string& path, const std::string& sql)
    {
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        CHECK_EQ(sqlite3_open(path.c_str(), &m_database), SQLITE_OK);
        execute(m_database, "PRAGMA journal_mode=WAL; PRAGMA wal_autocheckpoint=0;" + sql);
    }
    ~Book() { sqlite3_close(m_database); }
    Book(const Book&) = delete;
    Book& operator=(const Book&) = delete;

private:
    sqlite3* m_database = nullptr;
};

constexpr const char* evolutionTables =
    "CREATE TABLE folders (folder_id TEXT PRIMARY KEY, version INTEGER);"
    "CREATE TABLE keys (key TEXT PRIMARY KEY, value TEXT, folder_id TEXT);"
    "CREATE TABLE \"folder_id\" (uid TEXT PRIMARY KEY, Rev TEXT, file_as TEXT, vcard TEXT, bdata TEXT);";

std::string evolutionContact(const std::string& uid, const std::string& card)
{
    std::string quoted;
    for (const char c : card)
        quoted += c == '\'' ? std::string("''") : std::string(1, c);
    return "INSERT INTO \"folder_id\" (uid, vcard) VALUES ('" + uid + "', '" + quoted + "');";
}

constexpr const char* thunderbirdTables =
    "CREATE TABLE cards (uid TEXT PRIMARY KEY, localId INTEGER);"
    "CREATE TABLE properties (card TEXT, name TEXT, value TEXT);"
    "CREATE TABLE lists (uid TEXT PRIMARY KEY, localId INTEGER, name TEXT, nickName TEXT, description TEXT);"
    "CREATE TABLE list_cards (list TEXT, card TEXT, PRIMARY KEY(list, card));";

std::string thunderbirdCard(const std::string& uid, const std::vector<std::pair<std::string, std::string>>& properties)
{
    std::string sql = "INSERT INTO cards VALUES ('" + uid + "', NULL);";
    for (const auto& property : properties)
        sql += "INSERT INTO properties VALUES ('" + uid + "', '" + property.first + "', '" + property.second + "');";
    return sql;
}

std::vector<Record> importFrom(const char16_t* name, std::vector<int> map, int memory, long expected = ORVA_OK)
{
    void* set = nullptr;
    CHECK_EQ(ORVA_PBSrv_ImportFromOutlook(api(name), map.data(), memory, &set), expected);
    return takeSet(set, memory);
}

// A home without mail programs.
void emptyHome()
{
    for (const char* folder : {".local", ".thunderbird", "snap", ".var"})
        std::filesystem::remove_all(inHome(folder));
}

std::string temporaryFiles()
{
    std::string found;
    for (const auto& entry : std::filesystem::directory_iterator(inHome("tmp")))
        found += entry.path().filename().string() + " ";
    return found;
}

} // namespace

TEST(absentApplicationsAreNotInstalled)
{
    const FreshStore store;
    emptyHome();
    CHECK_EQ(ORVA_PBSrv_IsOutlookInstalled("Outlook"), ORVA_E_NOT_FOUND);
    CHECK_EQ(ORVA_PBSrv_IsOutlookInstalled("Outlook Express"), ORVA_E_NOT_FOUND);
    CHECK_EQ(ORVA_PBSrv_IsOutlookInstalled("Lotus"), ORVA_E_NOT_FOUND);
    CHECK_EQ(ORVA_PBSrv_IsOutlookInstalled(""), ORVA_E_NOT_FOUND);
    importFrom(u"Outlook", {0, 1, 2, 3, 4, 5}, ORVA_MEMORY_LOCAL, ORVA_E_NOT_FOUND);
    importFrom(u"Outlook Express", {0, 1, 2, 3, 4, 5}, ORVA_MEMORY_LOCAL, ORVA_E_NOT_FOUND);
}

TEST(evolutionContactsComeIn)
{
    const FreshStore store;
    emptyHome();
    const Book book(
        inHome(".local/share/evolution/addressbook/system/contacts.db"),
        evolutionTables +
            evolutionContact("1", "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Anna Berg\r\nN:Berg;Anna;;;\r\n"
                                  "TEL;TYPE=CELL;X-EVOLUTION-UI-SLOT=1:+44 7700 900001\r\n"
                                  "TEL;TYPE=\"WORK,VOICE\":+44 (1632) 960-002\r\nTEL;TYPE=HOME:01632 960003\r\n"
                                  "EMAIL;TYPE=WORK:anna@example.com\r\nNOTE:one\\ntwo\\, three\r\nEND:VCARD") +
            evolutionContact("2", "BEGIN:VCARD\r\nFN:A list\r\nX-EVOLUTION-LIST:TRUE\r\nEND:VCARD") +
            evolutionContact("3", "BEGIN:VCARD\r\nFN:Ольга Со\r\n колова\r\nTEL:+44 7700 900004\r\nEND:VCARD"));
    const Book other(inHome(".local/share/evolution/addressbook/1234567/contacts.db"),
                     evolutionTables + evolutionContact("9", "BEGIN:VCARD\r\nFN:Other Book\r\nEND:VCARD"));
    CHECK_EQ(ORVA_PBSrv_IsOutlookInstalled("Outlook"), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_IsOutlookInstalled("Outlook Express"), ORVA_E_NOT_FOUND);
    const std::vector<Record> records = importFrom(u"Outlook", {0, 1, 2, 3, 4, 5}, ORVA_MEMORY_LOCAL);
    REQUIRE(records.size() == 3);
    const std::vector<std::string> expected = {"Anna Berg",   "+447700900001",    "+441632960002",
                                               "01632960003", "anna@example.com", "one\ntwo, three"};
    for (std::size_t i = 0; i < expected.size(); ++i)
        CHECK_EQ(records[0].values[i], expected[i]);
    CHECK_EQ(records[1].values[0], "Ольга Соколова");
    CHECK_EQ(records[1].values[1], "+447700900004");
    CHECK_EQ(records[2].values[0], "Other Book");
}

TEST(thunderbirdContactsComeInFromTheProfileInUse)
{
    const FreshStore store;
    emptyHome();
    const Book unused(inHome(".thunderbird/old.default/abook.sqlite"),
                      thunderbirdTables + thunderbirdCard("u", {{"DisplayName", "Unused"}}));
    const Book book(inHome(".thunderbird/new.default-release/abook.sqlite"),
                    thunderbirdTables +
                        thunderbirdCard("a", {{"DisplayName", "Götz Schäfer"},
                                              {"FirstName", "Götz"},
                                              {"PrimaryEmail", "goetz@example.org"},
                                              {"CellularNumber", "0171/3920063"},
                                              {"WorkPhone", "030 23125 601"},
                                              {"HomePhone", "030 23125 602"},
                                              {"Notes", "hello"}}) +
                        thunderbirdCard("b", {{"FirstName", "Ada"}, {"LastName", "Byron"}, {"LastModifiedDate", "0"}}) +
                        thunderbirdCard("c", {{"DisplayName", "From vCard"},
                                              {"_vCard", "BEGIN:VCARD\r\nVERSION:4.0\r\nFN:From vCard\r\n"
                                                         "TEL;VALUE=uri;TYPE=cell:tel:+44-7700-900005\r\nEND:VCARD"}}) +
                        thunderbirdCard("d", {{"LastModifiedDate", "0"}}));
    files::write(".thunderbird/profiles.ini", "[Profile1]\nName=default\nIsRelative=1\nPath=old.default\nDefault=1\n\n"
                                              "[Install4F96D1932A9F858E]\nDefault=new.default-release\nLocked=1\n\n"
                                              "[Profile0]\nName=new\nIsRelative=1\nPath=new.default-release\n");
    CHECK_EQ(ORVA_PBSrv_IsOutlookInstalled("Outlook Express"), ORVA_OK);
    const std::vector<Record> records = importFrom(u"Outlook Express", {0, 1, 2, 3, 4, 5}, ORVA_MEMORY_LOCAL);
    REQUIRE(records.size() == 3);
    CHECK_EQ(records[0].values[0], "Götz Schäfer");
    CHECK_EQ(records[0].values[1], "01713920063");
    CHECK_EQ(records[0].values[2], "03023125601");
    CHECK_EQ(records[0].values[3], "03023125602");
    CHECK_EQ(records[0].values[4], "goetz@example.org");
    CHECK_EQ(records[0].values[5], "hello");
    CHECK_EQ(records[1].values[0], "Ada Byron");
    CHECK_EQ(records[2].values[1], "+447700900005");
}

TEST(mapsNameTheFieldsOfTheMemory)
{
    const FreshStore store;
    emptyHome();
    const Book book(inHome(".local/share/evolution/addressbook/system/contacts.db"),
                    evolutionTables +
                        evolutionContact("1", "BEGIN:VCARD\nFN:Anna\nTEL;TYPE=HOME:123\nNOTE:n\nEND:VCARD"));
    const std::vector<Record> records = importFrom(u"Outlook", {5, 3, -1, -1, -1, 0}, ORVA_MEMORY_LOCAL);
    REQUIRE(records.size() == 1);
    CHECK_EQ(records[0].values[0], "n");
    CHECK_EQ(records[0].values[1], "123");
    CHECK_EQ(records[0].values[3], "");
    CHECK_EQ(records[0].values[5], "Anna");
    // A card has one number, which is the best there is.
    const std::vector<Record> card = importFrom(u"Outlook", {0, 1}, ORVA_MEMORY_CARD);
    REQUIRE(card.size() == 1);
    CHECK_EQ(card[0].values[1], "123");
    importFrom(u"Outlook", {-1, -1, -1, -1, -1, -1}, ORVA_MEMORY_LOCAL, ORVA_E_FORMAT);
}

TEST(addressBooksAreLeftAsTheyAreAndCopiesAreTakenAway)
{
    const FreshStore store;
    emptyHome();
    std::filesystem::create_directories(inHome("tmp"));
    CHECK_EQ(setenv("TMPDIR", inHome("tmp").c_str(), 1), 0);
    const std::string path = inHome(".local/share/evolution/addressbook/system/contacts.db");
    const Book book(path, evolutionTables + evolutionContact("1", "BEGIN:VCARD\nFN:Anna\nEND:VCARD"));
    const std::string before = files::read(path) + files::read(path + "-wal");
    CHECK_EQ(importFrom(u"Outlook", {0, 1, 2, 3, 4, 5}, ORVA_MEMORY_LOCAL).size(), 1U);
    CHECK(files::read(path) + files::read(path + "-wal") == before);
    CHECK_EQ(temporaryFiles(), "");
    unsetenv("TMPDIR");
}

TEST(addressBooksThatCannotBeReadAreCodes)
{
    const FreshStore store;
    emptyHome();
    const std::string folder = ".local/share/evolution/addressbook/system";
    std::filesystem::create_directories(inHome(folder));
    files::write(folder + "/contacts.db", "this is no database, but long enough to be looked at as if it were one");
    CHECK_EQ(ORVA_PBSrv_IsOutlookInstalled("Outlook"), ORVA_OK);
    importFrom(u"Outlook", {0, 1, 2, 3, 4, 5}, ORVA_MEMORY_LOCAL, ORVA_E_FORMAT);
    files::write(folder + "/contacts.db", "");
    importFrom(u"Outlook", {0, 1, 2, 3, 4, 5}, ORVA_MEMORY_LOCAL, ORVA_E_FORMAT);
    std::filesystem::create_directories(inHome(".thunderbird/p"));
    files::write(".thunderbird/profiles.ini", "[Profile0]\nPath=p\nIsRelative=1\n");
    files::write(".thunderbird/p/abook.sqlite", "");
    importFrom(u"Outlook Express", {0, 1, 2, 3, 4, 5}, ORVA_MEMORY_LOCAL, ORVA_E_FORMAT);
}

TEST(vCardsOfAllVersionsAreRead)
{
    using orva::readVCard;
    CHECK_EQ(readVCard(
                 "BEGIN:VCARD\nVERSION:2.1\nN;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:M=C3=BCller;J=C3=B6rg\nEND:VCARD")
                 .name,
             "Jörg Müller");
    CHECK_EQ(readVCard("fn:lower case\n").name, "lower case");
    CHECK_EQ(readVCard("item1.FN:Grouped\n").name, "Grouped");
    CHECK_EQ(readVCard("ORG:Funke & Söhne;Sales\n").name, "Funke & Söhne");
    CHECK_EQ(readVCard("EMAIL:a@example.com\nEMAIL;PREF=1:b@example.com\n").email, "b@example.com");
    CHECK_EQ(readVCard("EMAIL:a@example.com\n").name, "a@example.com");
    CHECK_EQ(readVCard("FN:a\\;b\\\\c\\,d\n").name, "a;b\\c,d");
    CHECK_EQ(readVCard("TEL;TYPE=FAX:1\nTEL:2\n").mobile, "2");
    CHECK_EQ(readVCard("TEL:1\nTEL;CELL:2\nTEL;CELL:3\n").mobile, "2");
    CHECK_EQ(readVCard("TEL:1\nTEL;CELL:2\n").home, "1");
    CHECK(readVCard("").empty());
    CHECK(readVCard("no colon\n:\n;:x\n.:y\n\\").empty());
}

CHECK_MAIN
