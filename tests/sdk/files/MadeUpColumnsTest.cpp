// The columns made up of a file's own: which there are, and what stands in them.

#include "csv/MadeUpColumns.h"
#include "PlainFiles.h"
#include "support/Check.h"

using namespace orva;

namespace
{

std::string joined(const std::vector<std::string>& texts, const char* between)
{
    std::string out;
    for (const std::string& text : texts)
        out += (&text == &texts.front() ? "" : between) + text;
    return out;
}

std::string madeUpFor(const std::vector<std::string>& titles)
{
    return joined(MadeUpColumns(titles).titles(), ",");
}

// What a row gives a field.
std::string valueFor(const char* key, const std::vector<std::string>& titles, const std::vector<std::string>& values)
{
    MadeUpColumns columns(titles);
    Row row;
    row.clear(1);
    for (const std::string& value : values)
        row.add(value);
    columns.appendTo(row);
    const int column = columns.forField(key);
    return column < 0 ? "none" : std::string(row.column(column));
}

std::string nameFor(const std::vector<std::string>& titles, const std::vector<std::string>& values)
{
    return valueFor("Name", titles, values);
}

} // namespace

TEST(aFileWithOurTitlesNeedsNone)
{
    CHECK_EQ(madeUpFor({"Name", "Mobile", "officePhone", "homePhone", "email", "remark", "Groups"}), "");
    CHECK_EQ(madeUpFor({"name", "MOBILE"}), "");
    CHECK_EQ(madeUpFor({"Name", "Number"}), "");
    // The one number of a card's file is the mobile one of a computer's contact.
    CHECK_EQ(valueFor("Mobile", {"Name", "Number"}, {"Ada", "1"}), "1");
    CHECK_EQ(madeUpFor({}), "");
    CHECK_EQ(madeUpFor({"x", "y"}), "");
}

TEST(oneIsMadeForEachFieldThatNoColumnFeeds)
{
    CHECK_EQ(madeUpFor({"Name", "Phone"}), "Mobile,remark,Number");
    CHECK_EQ(madeUpFor({"Name", "Mobile", "Notes"}), "remark,Number");
    CHECK_EQ(madeUpFor({"Full Name", "Work Phone", "E-mail"}), "Name,officePhone,email,remark,Number");
    CHECK_EQ(madeUpFor({"First Name", "Last Name", "Home Phone", "Home Phone 2"}), "Name,homePhone,remark,Number");
    CHECK_EQ(madeUpFor({"Name", "Phone 1 - Label", "Phone 1 - Value"}), "Mobile,officePhone,homePhone,remark,Number");
    CHECK_EQ(madeUpFor({"Name", "email", "Email 2"}), "email,remark");
    CHECK_EQ(madeUpFor({"Name", "Mobile", "Fax"}), "Mobile,remark,Number");
    CHECK_EQ(madeUpFor({"Name", "Mobile", "remark", "Shoe"}), "Number");
    CHECK_EQ(madeUpFor({"Name", "Mobile", "Company"}), "Name,Number");
}

TEST(fieldsFindTheirColumn)
{
    const auto column = [](const std::vector<std::string>& titles, const char* key) {
        return MadeUpColumns(titles).forField(key);
    };
    CHECK_EQ(column({"Mobile", "Name"}, "Name"), 1);
    CHECK_EQ(column({"Anzeigename", "Vorname"}, "Name"), 2);
    CHECK_EQ(column({"Name", "Number"}, "Number"), 1);
    // From one memory's file into the other.
    CHECK_EQ(column({"Name", "Mobile", "email"}, "Number"), 1);
    CHECK_EQ(column({"Name", "Number"}, "homePhone"), -1);
    CHECK_EQ(column({"Name"}, "unknown"), -1);
    CHECK_EQ(column({"x"}, "Name"), -1);
    CHECK_EQ(MadeUpColumns({"a", "Kategorien"}).groups(), 1);
    CHECK_EQ(MadeUpColumns({"a"}).groups(), -1);
}

TEST(aNameIsWholeOrJoinedOrTheCompany)
{
    CHECK_EQ(nameFor({"Name", "Given Name", "Family Name"}, {"Ada B", "Ada", "Byron"}), "Ada B");
    CHECK_EQ(nameFor({"Name", "Given Name", "Family Name"}, {" ", "Ada", "Byron"}), "Ada Byron");
    CHECK_EQ(nameFor({"Name", "Vorname"}, {"Byron", "Ada"}), "Ada Byron");
    CHECK_EQ(nameFor({"First Name", "Middle Name", "Last Name"}, {"Ada", "King", "Byron"}), "Ada King Byron");
    CHECK_EQ(nameFor({"First Name", "Middle Name", "Last Name"}, {"", "", "Byron"}), "Byron");
    CHECK_EQ(nameFor({"First Name", "Last Name", "Company"}, {"", "", "Vet & Co"}), "Vet & Co");
    CHECK_EQ(nameFor({"First Name", "Last Name", "File As", "Company"}, {"", "", "The vet", "Vet & Co"}), "The vet");
    CHECK_EQ(nameFor({"First Name", "Last Name", "E-mail"}, {"", "", "ada@example.org"}), "ada@example.org");
    CHECK_EQ(nameFor({"Nombre", "Apellidos"}, {"Ada", "Byron"}), "Ada Byron");
    CHECK_EQ(nameFor({"Nome", "Cognome"}, {"Ada", "Byron"}), "Ada Byron");
    CHECK_EQ(nameFor({"ИМЯ", "ФАМИЛИЯ"}, {"Ada", "Byron"}), "Ada Byron");
    CHECK_EQ(nameFor({"الاسم الأول", "اسم العائلة"}, {"ليلى", "حداد"}), "ليلى حداد");
}

TEST(aNameOfIdeographsBeginsWithTheFamily)
{
    CHECK_EQ(nameFor({"名", "姓"}, {"小明", "王"}), "王小明");
    CHECK_EQ(nameFor({"First Name", "Last Name"}, {"", "王"}), "王");
    CHECK_EQ(nameFor({"First Name", "Last Name"}, {"Jackie", "成"}), "Jackie 成");
}

TEST(aNumberGoesWhereItsTitleSays)
{
    const std::vector<std::string> titles = {"Business Phone", "Mobile Phone", "Home Phone", "Business Fax"};
    const std::vector<std::string> values = {"1", "2", "3", "4"};
    CHECK_EQ(valueFor("Mobile", titles, values), "2");
    CHECK_EQ(valueFor("officePhone", titles, values), "1");
    CHECK_EQ(valueFor("homePhone", titles, values), "3");
    CHECK_EQ(valueFor("remark", titles, values), "Business Fax: 4");
    CHECK_EQ(valueFor("Number", titles, values), "2");
    CHECK_EQ(valueFor("Number", titles, {"1", "", "3"}), "3");
    CHECK_EQ(valueFor("Number", titles, {"1", "", ""}), "1");
    // A short title counts where no other is for its kind.
    CHECK_EQ(valueFor("homePhone", {"Name", "Privat"}, {"Ada", "1"}), "1");
    CHECK_EQ(valueFor("homePhone", {"Name", "Telefon (privat)", "Privat"}, {"Ada", "", "Aus"}), "");
}

TEST(aNumberGoesWhereItsLabelSays)
{
    const std::vector<std::string> titles = {
        "Name", "Phone 1 - Label", "Phone 1 - Value", "Phone 2 - Label", "Phone 2 - Value", "Notes"};
    const auto value = [&titles](const char* key, const char* first, const char* second) {
        return valueFor(key, titles, {"Ada", first, "1", second, "2", "old"});
    };
    CHECK_EQ(value("Mobile", "Work", "* Mobile"), "2");
    CHECK_EQ(value("officePhone", "Work", "* Mobile"), "1");
    CHECK_EQ(value("homePhone", "Privat", "Handy"), "1");
    CHECK_EQ(value("remark", "Work", "Mobile"), "old");
    CHECK_EQ(value("remark", "Mobile", "Mobile"), "old\nMobile: 2");
    CHECK_EQ(value("remark", "Home Fax", "Mobile"), "old\nHome Fax: 1");
    // One without a kind takes the first place that is free, behind those that have one.
    CHECK_EQ(value("Mobile", "", "Mobile"), "2");
    CHECK_EQ(value("homePhone", "", "Mobile"), "1");
    CHECK_EQ(value("Mobile", "Ferry", "Work"), "1");
}

TEST(allOfSeveralValuesInACellAreUsed)
{
    const std::vector<std::string> titles = {"Name", "Phone 1 - Type", "Phone 1 - Value", "E-mail 1 - Value"};
    const std::vector<std::string> row = {"Ada", "Mobile", "1 ::: 2 :::  ::: 3", "a@x.org ::: b@x.org"};
    CHECK_EQ(valueFor("Mobile", titles, row), "1");
    CHECK_EQ(valueFor("email", titles, row), "a@x.org");
    CHECK_EQ(valueFor("remark", titles, row), "Mobile: 2\nMobile: 3\nb@x.org");
    const std::vector<std::string> other = {"Ada", "Other", "1 ::: 2 ::: 3 ::: 4", ""};
    CHECK_EQ(valueFor("Mobile", titles, other), "1");
    CHECK_EQ(valueFor("homePhone", titles, other), "2");
    CHECK_EQ(valueFor("officePhone", titles, other), "3");
    CHECK_EQ(valueFor("remark", titles, other), "Other: 4");
}

TEST(titlesAreKnownInTheirLanguages)
{
    CHECK_EQ(madeUpFor({"姓", "名", "移动电话", "商务电话", "住宅电话", "电子邮件地址", "附注"}),
             "Name,Mobile,officePhone,homePhone,email,remark,Number");
    CHECK_EQ(madeUpFor({"الاسم", "الهاتف المحمول", "هاتف العمل", "هاتف المنزل", "البريد الإلكتروني", "ملاحظات"}),
             "Name,Mobile,officePhone,homePhone,email,remark,Number");
    CHECK_EQ(madeUpFor({"Prénom", "Nom", "Tél. mobile", "Téléphone (bureau)", "Téléphone (domicile)",
                        "Adresse de messagerie", "Commentaires"}),
             "Name,Mobile,officePhone,homePhone,email,remark,Number");
    CHECK_EQ(madeUpFor({"Nome", "Cognome", "Cellulare", "Telefono ufficio", "Telefono abitazione",
                        "Indirizzo di posta elettronica", "Annotazioni"}),
             "Name,Mobile,officePhone,homePhone,email,remark,Number");
    CHECK_EQ(madeUpFor({"Nombre", "Apellidos", "Teléfono móvil", "Teléfono del trabajo", "Teléfono particular",
                        "Dirección de correo electrónico", "Notas"}),
             "Name,Mobile,officePhone,homePhone,email,remark,Number");
}

TEST(whatARowHasBeyondTheTitlesGoesAndWhatItLacksIsEmpty)
{
    MadeUpColumns columns({"Full Name", "Phone"});
    REQUIRE(columns.titles().size() == 4);
    for (const std::vector<std::string>& values :
         {std::vector<std::string>{"Ada", "1", "beyond", "far beyond"}, {"Ada", "1"}, {"Ada"}}) {
        Row row;
        row.clear(7);
        for (const std::string& value : values)
            row.add(value);
        columns.appendTo(row);
        CHECK_EQ(row.columns(), 6);
        CHECK_EQ(row.column(0), "Ada");
        CHECK_EQ(row.column(2), "Ada");
        CHECK_EQ(row.column(3), values.size() > 1 ? "1" : "");
        CHECK_EQ(row.line(), 7);
    }
}

TEST(theFilesColumnsBehindAFieldAreTold)
{
    const MadeUpColumns columns({"First Name", "x", "Phone 1 - Label", "Phone 1 - Value", "Notes"});
    const auto sources = [&columns](const char* key) {
        std::vector<int> found = columns.sourcesOf(columns.forField(key));
        std::sort(found.begin(), found.end());
        std::string out;
        for (const int column : found)
            out += std::to_string(column) + " ";
        return out;
    };
    CHECK_EQ(sources("Name"), "0 ");
    CHECK_EQ(sources("Mobile"), "2 3 ");
    CHECK_EQ(sources("remark"), "2 3 4 ");
    const MadeUpColumns kinds({"Mobile Phone", "Work Phone", "Home Phone", "Other Phone", "Fax"});
    const auto behind = [&kinds](const char* key) { return kinds.sourcesOf(kinds.forField(key)).size(); };
    CHECK_EQ(behind("Mobile"), 2U);
    CHECK_EQ(behind("officePhone"), 2U);
    CHECK_EQ(behind("homePhone"), 2U);
    CHECK_EQ(behind("Number"), 4U);
    CHECK_EQ(behind("remark"), 5U);
    CHECK_EQ(columns.sourcesOf(1).size(), 1U);
    CHECK_EQ(columns.sourcesOf(1).front(), 1);
    CHECK_EQ(columns.sourcesOf(-1).front(), -1);
    const int map[] = {-1, 1, columns.forField("Mobile")};
    CHECK(columns.usedBy(map, 3));
    CHECK(!columns.usedBy(map, 2));
    const int beyond[] = {5 + static_cast<int>(columns.titles().size())};
    CHECK(!columns.usedBy(beyond, 1));
}

CHECK_MAIN
