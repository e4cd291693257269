// What a modem's strings mean, and how its answers are cut into fields.

#include "coding/AlphaCoding.h"
#include "coding/AlphaIdentifier.h"
#include "modem/AtPhonebook.h"
#include "modem/PhonebookLines.h"
#include "modem/TextCoding.h"
#include "sdk/files/AlphaForms.h"
#include "support/Check.h"

using namespace orva;

namespace
{

std::string octets(const forms::Octets& all)
{
    return std::string(all.begin(), all.end());
}

const char16_t* const names[] = {u"Anna",
                                 u"Zo\u00EB M\u00FCller",
                                 u"\u0418\u0432\u0430\u043D",
                                 u"\u5317\u4EAC",
                                 u"Last \"one\", ok",
                                 u"{a}[b]~|\\^\u20AC",
                                 u"@$_ \u0394\u03A9",
                                 u"\U0001F600 x",
                                 u"\u0100\u0180",
                                 u"\u06AB\u067E",
                                 u""};

} // namespace

TEST(anAlphaIdentifierComesBackFromEachOfItsForms)
{
    for (const std::u16string_view name : names) {
        for (const forms::Octets& form : forms::encodeAll(name)) {
            CHECK_EQ(alphaText(octets(form)), name);
            CHECK_EQ(alphaText(octets(form) + "\xFF\xFF\xFF"), name);
        }
        const std::string coded = toAlpha(name);
        CHECK_EQ(static_cast<int>(coded.size()), alphaLength(name, AlphaRule::Sim));
        CHECK_EQ(forms::decode(forms::Octets(coded.begin(), coded.end())), name);
    }
}

TEST(anAlphaIdentifierThatIsCutOffGivesWhatThereIs)
{
    CHECK_EQ(alphaText("\x80\x04"), std::u16string_view(u""));
    CHECK_EQ(alphaText("\x81\x0A"), std::u16string_view(u""));
    CHECK_EQ(alphaText(std::string_view("\x81\x0A\x01\x5A\x6F", 5)), std::u16string_view(u"Zo"));
    CHECK_EQ(alphaText("\x1B"), std::u16string_view(u""));
    CHECK_EQ(alphaText("\xFF\xFF"), std::u16string_view(u""));
}

TEST(everySetCarriesWhatItSaysItCarries)
{
    int carried = 0;
    for (const CharacterSet set : {CharacterSet::Ucs2, CharacterSet::Utf8, CharacterSet::Hex, CharacterSet::Latin1,
                                   CharacterSet::Gsm, CharacterSet::Ira}) {
        for (const std::u16string_view name : names) {
            const std::optional<std::string> field = fieldFor(name, set);
            if (!field)
                continue;
            ++carried;
            CHECK_EQ(textFrom(*field, set), name);
            CHECK(field->find('"') == std::string::npos);
        }
    }
    CHECK_EQ(carried, 11 + 10 + 11 + 3 + 4 + 2);
}

TEST(aTextIsReadWhateverTheModemReallySends)
{
    const auto is = [](std::string_view field, CharacterSet set, std::u16string_view text) {
        CHECK_EQ(textFrom(field, set), text);
    };
    is("0041006E006E0061", CharacterSet::Ucs2, u"Anna");
    is("0041006e006e0061", CharacterSet::Ucs2, u"Anna");
    is("0041006EFFFFFFFF", CharacterSet::Ucs2, u"An");
    is("Zo\xC3\xAB", CharacterSet::Ucs2, u"Zo\u00EB");
    is("8053174EAC", CharacterSet::Ucs2, u"\u5317\u4EAC");
    is("Dada", CharacterSet::Ucs2, u"Dada");
    is("81040898B2B0BD", CharacterSet::Gsm, u"\u0418\u0432\u0430\u043D");
    is("Zo\xC3\xAB", CharacterSet::Gsm, u"Zo\u00EB");
    is("M\x7Eller", CharacterSet::Gsm, u"M\u00FCller");
    is("Zo\xEB", CharacterSet::Latin1, u"Zo\u00EB");
    is("say \\22hi\\22", CharacterSet::Ira, u"say \"hi\"");
    is("a\\5Cb", CharacterSet::Utf8, u"a\\b");
    is("Anna\xFF\xFF", CharacterSet::Latin1, u"Anna");
    is("416E6E61", CharacterSet::Hex, u"Anna");
    is("416E6E61FFFF", CharacterSet::Hex, u"Anna");
}

TEST(aNameThatWouldBeReadAsSomethingElseIsNotSent)
{
    CHECK(!fieldFor(u"8053174EAC", CharacterSet::Gsm));
    CHECK(!fieldFor(u"a\"b", CharacterSet::Utf8));
    CHECK(!fieldFor(u"a\rb", CharacterSet::Ira));
    CHECK(!fieldFor(u"\u0418", CharacterSet::Gsm));
    CHECK(!fieldFor(u"\u00EB", CharacterSet::Ira));
    CHECK(!fieldFor(u"a\\22", CharacterSet::Utf8));
    CHECK(fieldFor(u"8053174EAC", CharacterSet::Ucs2));
}

TEST(characterSetsAreFoundInAnyListAndTheBestComesFirst)
{
    const std::vector<CharacterSet> wanted = {CharacterSet::Ucs2, CharacterSet::Gsm, CharacterSet::Ira};
    for (const std::string_view list :
         {"(\"GSM\",\"IRA\",\"UCS2\",\"PCCP437\")", "((\"GSM\",\"IRA\",\"UCS2\"))", "\"GSM\", \"IRA\", \"UCS2\"",
          "(GSM,IRA,UCS2)", "(\"00470053004D\",\"0049005200410022\",\"004900520041\",\"0055004300530032\")"})
        CHECK(characterSetsIn(list) == wanted);
    CHECK(characterSetsIn("").empty());
}

TEST(anEntryIsReadWhateverItsPunctuation)
{
    const auto is = [](std::string_view line, int location, std::string_view number, int type, std::string_view text,
                       std::string_view tail) {
        const std::optional<EntryLine> entry = readEntryLine(line);
        REQUIRE(entry.has_value());
        CHECK_EQ(entry->location, location);
        CHECK_EQ(entry->number, number);
        CHECK_EQ(entry->type, type);
        CHECK_EQ(entry->text, text);
        CHECK_EQ(entry->tail, tail);
    };
    is("+CPBR: 1,\"+491711\",145,\"Anna\"", 1, "+491711", 145, "Anna", "");
    is("+CPBR:12,\"112\",129,\"x\"", 12, "112", 129, "x", "");
    is("+CPBR: 1, \"112\", 129, \"a, b\"", 1, "112", 129, "a, b", "");
    is("+CPBR: 2,\"112\",129,0041006E", 2, "112", 129, "0041006E", "");
    is("+CPBR: 16,\"\",,\"0053\"", 16, "", 0, "0053", "");
    is("+CPBR: 3,\"112\",129,\"Last \"one\", ok\"", 3, "112", 129, "Last \"one\", ok", "");
    is("+CPBR: 3,\"112\",129,\"x\",0", 3, "112", 129, "x", ",0");
    is("+CPBR: 3,\"112\",129,\"x\",,,,,,,", 3, "112", 129, "x", ",,,,,,,");
    is("+CPBR: 3,\"112\",129,\"x\",\"2007/11/02,09:27\"", 3, "112", 129, "x", ",\"2007/11/02,09:27\"");
    is("+CPBR: 3,\"\",\"112\",129,\"x\"", 3, "112", 129, "x", "");
    is("+CPBR: 5,\"112\",129,\"open", 5, "112", 129, "open", "");
    is("+CPBR: 5,\"112\",129", 5, "112", 129, "", "");
    is("+CPBR: 5,\"112\"", 5, "112", 0, "", "");
    CHECK(readEntryLine("+CPBR: 7")->empty());
    CHECK(readEntryLine("+CPBR: 7,\"\",,\"\"")->empty());
    CHECK(!readEntryLine("+CPBR: (1-20),40,18"));
    CHECK(!readEntryLine("+CPBR: "));
    CHECK(!readEntryLine("+CPBR: 99999999999,\"1\",129,\"x\""));
}

TEST(rangeAndLengthsAreReadWhateverTheirForm)
{
    const auto is = [](std::string_view line, int first, int last, int number, int text, int more) {
        const StorageShape shape = readStorageShape(line);
        CHECK_EQ(shape.first, first);
        CHECK_EQ(shape.last, last);
        CHECK_EQ(shape.numberLength, number);
        CHECK_EQ(shape.textLength, text);
        CHECK_EQ(shape.moreLengths, more);
    };
    is("+CPBR: (1-250),40,18", 1, 250, 40, 18, 0);
    is("+CPBR:(1-250),40,18", 1, 250, 40, 18, 0);
    is("+CPBR: 1-250,40,18", 1, 250, 40, 18, 0);
    is("+CPBR: (),40,18", -1, -1, 40, 18, 0);
    is("+CPBR: (1-250)", 1, 250, -1, -1, 0);
    is("+CPBR: (1-250),,", 1, 250, -1, -1, 0);
    is("+CPBR: (1-250),(40),(18)", 1, 250, 40, 18, 0);
    is("+CPBR: (101-350),40,18,255,16", 101, 350, 40, 18, 2);
    is("+CPBR: (0,1,2,5-9),20,14", 0, 9, 20, 14, 0);
    is("+CPBR: (1-150),32,16,255,16,255,255,255", 1, 150, 32, 16, 5);
    is("+CPBR: ", -1, -1, -1, -1, 0);
}

TEST(storagesAndTheirCountsAreReadWhateverTheirForm)
{
    const std::vector<std::string> wanted = {"SM", "ME", "FD"};
    for (const std::string_view line :
         {"+CPBS: (\"SM\",\"ME\",\"FD\")", "+CPBS: ((\"SM\",\"ME\",\"FD\"))", "+CPBS: \"SM\",\"ME\",\"FD\"",
          "+CPBS: (SM, ME, FD)", "+CPBS: (\"0053004D\",\"004D0045\",\"00460044\")"})
        CHECK(readStorageNames(line) == wanted);
    const StorageStatus full = readStorageStatus("+CPBS: \"SM\",5,20");
    CHECK_EQ(full.storage, "SM");
    CHECK_EQ(full.used, 5);
    CHECK_EQ(full.total, 20);
    const StorageStatus alone = readStorageStatus("+CPBS: \"0053004D\"");
    CHECK_EQ(alone.storage, "SM");
    CHECK_EQ(alone.used, -1);
}

TEST(furtherFieldsAreWrittenInTheOrderOfTheCommand)
{
    CHECK_EQ(writableTail(""), "");
    CHECK_EQ(writableTail(",0"), "");
    CHECK_EQ(writableTail(",,,,,,,"), "");
    CHECK_EQ(writableTail(",\"Team\",\"123\",129"), ",\"Team\",\"123\",129");
    CHECK_EQ(writableTail(",0,\"Team\",\"123\",129"), ",\"Team\",\"123\",129");
    CHECK_EQ(writableTail(",1,\"Team\""), ",\"Team\",,,,,,,1");
    CHECK_EQ(writableTail(",0,\"a,b\""), ",\"a,b\"");
}

TEST(aNumberIsCleanedToWhatAFieldShows)
{
    CHECK_EQ(cleanNumber("+49 171-1"), "+491711");
    CHECK_EQ(cleanNumber("123,45;6P7W*#"), "123p45w6p7w*#");
    CHECK_EQ(cleanNumber("abc"), "");
}

CHECK_MAIN
