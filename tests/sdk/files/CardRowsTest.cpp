// Files of vCards through the functions that read files of rows.

#include <sys/stat.h>
#include <unistd.h>

#include "SdkFiles.h"

namespace
{

using namespace files;

constexpr int local = ORVA_MEMORY_LOCAL;
const std::string ourTitles = "Name,Mobile,officePhone,homePhone,email,remark,Number";
const std::vector<int> all = {0, 1, 2, 3, 4, 5};

std::string card(const std::string& lines)
{
    return "BEGIN:VCARD\r\nVERSION:3.0\r\n" + lines + "END:VCARD\r\n";
}

} // namespace

TEST(aFileOfCardsHasTheFieldsAsItsTitles)
{
    const FreshStore store;
    CHECK_EQ(titles(write("a.vcf", card("FN:Ada\r\n"))), ourTitles);
    CHECK_EQ(titles(write("a.VCF", card("FN:Ada\r\n"))), ourTitles);
    CHECK_EQ(titles(write("a.vcard", card("FN:Ada\r\n"))), ourTitles);
    CHECK(titles(write("a.vcf.csv", card("FN:Ada\r\n"))) != ourTitles);
}

TEST(aFileWithoutACardIsRefused)
{
    const FreshStore store;
    const std::string path = write("none.vcf", "Name,Mobile\r\nAda,1\r\n");
    titles(path, ORVA_E_FORMAT);
    import(path, all, local, ORVA_E_FORMAT);
    titles(write("empty.vcf", ""), ORVA_E_FORMAT);
    titles(inHome("missing.vcf"), ORVA_E_NOT_FOUND);
    import(inHome("missing.vcf"), all, local, ORVA_E_NOT_FOUND);
    const std::string folder = inHome("folder.vcf");
    CHECK_EQ(mkdir(folder.c_str(), 0700), 0);
    titles(folder, ORVA_E_FORMAT);
    import(write("blank.vcf", card("")), all, local, ORVA_E_FORMAT);
}

TEST(cardsOfAllVersionsComeInByTheirLines)
{
    const FreshStore store;
    const std::string path = write(
        "some.vcf", card("FN:Ada Byron\r\nTEL;TYPE=CELL:+44 7700 900503\r\nTEL;TYPE=WORK:+44 1632 960501\r\n"
                         "TEL;TYPE=HOME:+44 1632 960502\r\nEMAIL:ada@example.com\r\nNOTE:engines\\nand notes\r\n") +
                        "BEGIN:VCARD\r\nVERSION:2.1\r\nN;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:M=C3=BCller;"
                        "J=C3=BCrgen\r\nTEL;CELL:0171-5551234\r\nEND:VCARD\r\n"
                        "BEGIN:VCARD\r\nVERSION:4.0\r\nFN:Bo\r\nTEL;VALUE=uri:tel:+4917155\r\nEND:VCARD\r\n");
    const std::vector<Record> records = import(path, all, local);
    REQUIRE(records.size() == 3);
    CHECK_EQ(records[0].id, 1);
    const std::vector<std::string> ada = {"Ada Byron",     "+447700900503",   "+441632960501",
                                          "+441632960502", "ada@example.com", "engines\nand notes"};
    CHECK(records[0].values == ada);
    CHECK_EQ(records[1].id, 10);
    CHECK_EQ(records[1].values[0], "Jürgen Müller");
    CHECK_EQ(records[1].values[1], "01715551234");
    CHECK_EQ(records[2].values[1], "+4917155");
}

TEST(aMapTakesWhatItNamesAlone)
{
    const FreshStore store;
    const std::string path = write("some.vcf", card("FN:Ada\r\nTEL;TYPE=HOME:1\r\nEMAIL:ada@example.com\r\n"));
    const std::vector<std::string> wanted = {"Ada", "1", "", "", "", "ada@example.com"};
    CHECK(import(path, {0, 3, -1, -1, -1, 4}, local)[0].values == wanted);
    // The best number there is, for a card.
    CHECK_EQ(import(path, {0, 6}, ORVA_MEMORY_CARD)[0].values[1], "1");
    CHECK_EQ(import(write("office.vcf", card("FN:Bo\r\nTEL;TYPE=WORK:2\r\n")), {0, 6}, ORVA_MEMORY_CARD)[0].values[1],
             "2");
    CHECK_EQ(
        import(write("both.vcf", card("FN:Bo\r\nTEL;TYPE=WORK:2\r\nTEL;TYPE=CELL:3\r\n")), {0, 6}, ORVA_MEMORY_CARD)[0]
            .values[1],
        "3");
}

TEST(furtherNumbersAndAddressesStandInTheRemark)
{
    const FreshStore store;
    const std::string path =
        write("more.vcf", card("FN:Ada\r\nTEL;TYPE=CELL:1\r\nTEL;TYPE=CELL:2\r\nTEL;TYPE=WORK,FAX:3\r\n"
                               "EMAIL:a@example.org\r\nEMAIL:b@example.org\r\nNOTE:old\r\n"));
    CHECK_EQ(import(path, all, local)[0].values[5], "old\nb@example.org\nCELL: 2\nFAX: 3");
}

TEST(whatHasNoFieldIsNamedInTheLog)
{
    const FreshStore store;
    const std::string path = write("photo.vcf", card("FN:Ada\r\nBDAY:1815-12-10\r\nPHOTO:http://example.org/a\r\n"));
    CHECK_EQ(import(path, all, local).size(), 1U);
    CHECK(log().find("line 1: BDAY: not taken: no field is for it") != std::string::npos);
    CHECK(log().find("line 1: PHOTO: not taken: no field is for it") != std::string::npos);
}

CHECK_MAIN
