// Titles, numbers, field maps and the writer.

#include <cstdlib>
#include <fstream>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

#include "PlainFiles.h"
#include "base/Failure.h"
#include "base/Unicode.h"
#include "csv/ContactRows.h"
#include "csv/LocalText.h"
#include "csv/Titles.h"
#include "csv/Writer.h"
#include "support/Check.h"

using namespace orva;
using namespace std::string_view_literals;

namespace
{

std::string joined(const std::vector<std::string>& titles)
{
    std::string out;
    for (const std::string& title : titles)
        out += (out.empty() && &title == &titles.front() ? "" : ",") + title;
    return out;
}

std::string titlesIn(std::string_view content)
{
    RowReader reader(files::write("some.csv", content), RowReader::Report());
    return joined(readTitles(reader));
}

Field field(const char* key, const char* kind, int maxLength)
{
    Field made;
    made.key = key;
    made.kind = kind;
    made.maxLength = maxLength;
    return made;
}

Profile threeFields()
{
    return Profile({field("Name", "Name", 40), field("Mobile", "Mobile", 20), field("remark", "Remaik", 10)});
}

struct Imported {
    std::vector<std::string> rows; // "line|name|mobile|remark"
    std::vector<std::string> reports;
    long code = ORVA_OK;
};

Imported importText(std::string_view content, std::vector<int> map)
{
    Imported result;
    try {
        const RowBlock rows =
            readContacts(files::write("some.csv", content), threeFields(), map.data(), [&](const Finding& finding) {
                result.reports.push_back(std::to_string(finding.line) + ": " + findingText(finding.reason));
            });
        for (std::size_t i = 0; i < rows.rows(); ++i) {
            std::string text = std::to_string(rows.id(i));
            for (int f = 0; f < rows.fields(); ++f) {
                text += '|';
                appendUtf8(rows.value(i, f), text);
            }
            result.rows.push_back(text);
        }
    } catch (const Failure& failure) {
        result.code = failure.code();
    }
    return result;
}

} // namespace

TEST(titlesNeverHoldTheSeparator)
{
    CHECK_EQ(titlesIn("Name,Phone\n"), "Name,Phone");
    CHECK_EQ(titlesIn("\"Name, first\",\"Pho\r\nne\",x\n"), "Name  first,Pho  ne,x");
    CHECK_EQ(titlesIn("A,B;C;D;E\n"), "A B,C,D,E");
    CHECK_EQ(titlesIn("\"a\tb\",\"\x01\",c\n"), "a b, ,c");
}

TEST(titlesStayAlignedWithTheirColumns)
{
    CHECK_EQ(titlesIn("a,b,\n1,2,3\n"), "a,b,");
    CHECK_EQ(titlesIn(",,\n"), ",,");
    CHECK_EQ(titlesIn("a,a,a\n"), "a,a,a");
    RowReader reader(files::write("some.csv", "\"x,y\";\"p;q\";r\n1;2;3\n"), RowReader::Report());
    CHECK_EQ(readTitles(reader).size(), 3U);
}

TEST(titlesThatAreNoTextAreRefused)
{
    for (const std::string_view content : {"\x7FSOME\0\0\1,x\n"sv, ""sv}) {
        long code = ORVA_OK;
        try {
            titlesIn(content);
        } catch (const Failure& failure) {
            code = failure.code();
        }
        CHECK_EQ(code, ORVA_E_FORMAT);
    }
}

TEST(whatIsNoNumberStaysAsItIsAndIsReported)
{
    for (const char* text : {"1-800-FLOWERS", "see note", "4.9E+11", "anna@example.com", "1;2"}) {
        const Imported result = importText("N,T,R\nAnna," + std::string(text) + ",hi\n", {0, 1, 2});
        REQUIRE(result.rows.size() == 1 && result.reports.size() == 1);
        CHECK_EQ(result.rows[0], "2|Anna|" + std::string(text) + "|hi");
        CHECK_EQ(result.reports[0], "2: not a telephone number");
    }
}

TEST(anExtensionGoesIntoTheNote)
{
    const Imported result =
        importText("N,T,R\nAnna,1 x 2,h\nBo,1 ext. 3,\nCarl,1,\nDora,1 ext. 4,a long one\n", {0, 1, 2});
    REQUIRE(result.rows.size() == 4);
    CHECK_EQ(result.rows[0], "2|Anna|1|h\n1 ext. 2");
    CHECK_EQ(result.rows[1], "3|Bo|1|1 ext. 3");
    CHECK_EQ(result.rows[2], "4|Carl|1|");
    CHECK_EQ(result.rows[3], "5|Dora|1|a long one");
    REQUIRE(result.reports.size() == 1);
    CHECK_EQ(result.reports[0], "5: note cut to what its field holds");
    // Also into one that no column was mapped to.
    CHECK_EQ(importText("N,T\nAnna,1 x 2\n", {0, 1, -1}).rows.at(0), "2|Anna|1|1 ext. 2");
}

TEST(mapsTakeFieldsFromTheirColumns)
{
    const Imported result = importText("N,T,R\nAnna,+49 30-1,hi\nBo,2,\n", {0, 1, 2});
    REQUIRE(result.rows.size() == 2);
    CHECK_EQ(result.rows[0], "2|Anna|+49301|hi");
    CHECK_EQ(result.rows[1], "3|Bo|2|");
    CHECK_EQ(importText("N,T,R\nAnna,1,hi\n", {2, -1, 0}).rows[0], "2|hi||Anna");
    CHECK_EQ(importText("N,T,R\nAnna,1,hi\n", {0, 1, 99}).rows[0], "2|Anna|1|");
    CHECK_EQ(importText("N,T,R\nAnna,1,hi\n", {0, 1, 0}).rows[0], "2|Anna|1|Anna");
}

TEST(twoColumnsCanMakeOneField)
{
    const std::string text = "F,L,T\nAnna,Berg,1\nBo,,2\n,Carl,3\n";
    const Imported result = importText(text, {joinedColumns(0, 1), 2, -1});
    REQUIRE(result.rows.size() == 3);
    CHECK_EQ(result.rows[0], "2|Anna Berg|1|");
    CHECK_EQ(result.rows[1], "3|Bo|2|");
    CHECK_EQ(result.rows[2], "4|Carl|3|");
}

TEST(severalValuesInAColumnGiveTheFirst)
{
    CHECK_EQ(importText("N,T\nAnna,+1 2 ::: 3\n", {0, 1, -1}).rows[0], "2|Anna|+12|");
    CHECK_EQ(importText("N,T\nAnna ::: Berg,1\n", {0, 1, -1}).rows[0], "2|Anna ::: Berg|1|");
}

TEST(aNoteThatIsTooLongIsCutBetweenCharacters)
{
    const Imported result = importText("N,R\nAnna,0123456789abc\nBo,012345678😀\n", {0, -1, 1});
    REQUIRE(result.rows.size() == 2);
    CHECK_EQ(result.rows[0], "2|Anna||0123456789");
    CHECK_EQ(result.rows[1], "3|Bo||012345678");
    CHECK_EQ(result.reports.size(), 2U);
}

TEST(rowsThatAreNoTextAreReportedByTheirLine)
{
    const Imported result =
        importText("\xEF\xBB\xBFN,T\nAnna,1\nB\xF6,2\nC\0,3\n\"x\ny\",4\nD,\xFF\nE,5\n"sv, {0, 1, -1});
    REQUIRE(result.rows.size() == 3);
    CHECK_EQ(result.rows[0], "2|Anna|1|");
    CHECK_EQ(result.rows[1], "5|x\ny|4|");
    CHECK_EQ(result.rows[2], "8|E|5|");
    REQUIRE(result.reports.size() == 3);
    CHECK_EQ(result.reports[0], "3: row passed over: not text");
    CHECK_EQ(result.reports[1], "4: row passed over: a zero byte");
    CHECK_EQ(result.reports[2], "7: row passed over: not text");
}

TEST(aZeroIsFoundWhereverItStandsInALongText)
{
    const std::string name = "A name of some length";
    for (std::size_t at = 0; at < name.size(); ++at) {
        std::string text = "N,T\n" + name + ",1\nE,5\n";
        text[4 + at] = '\0';
        const Imported result = importText(text, {0, 1, -1});
        REQUIRE(result.rows.size() == 1 && result.reports.size() == 1);
        CHECK_EQ(result.reports[0], "2: row passed over: a zero byte");
    }
}

TEST(brokenTextInAColumnThatNobodyWantsDoesNotMatter)
{
    CHECK_EQ(importText("\xEF\xBB\xBFN,T,X\nAnna,1,\xFF\n", {0, 1, -1}).rows[0], "2|Anna|1|");
}

TEST(aFileWithoutAUsableRowIsAnError)
{
    CHECK_EQ(importText("", {0, 1, 2}).code, ORVA_E_FORMAT);
    CHECK_EQ(importText("N,T,R\n", {0, 1, 2}).code, ORVA_E_FORMAT);
    CHECK_EQ(importText("N,T,R\n,,\n\n", {0, 1, 2}).code, ORVA_E_FORMAT);
    CHECK_EQ(importText("N,T,R\na,1,b\n", {-1, -1, -1}).code, ORVA_E_FORMAT);
    CHECK_EQ(importText("N,T,R\na,1,b\n", {-5, 7, 7}).code, ORVA_E_FORMAT);
}

TEST(aValueLongerThanAnyMayBeIsPassedOver)
{
    const Imported result = importText("N,T\n" + std::string(70000, 'x') + ",1\nBo,2\n", {0, 1, -1});
    REQUIRE(result.rows.size() == 1);
    CHECK_EQ(result.rows[0], "3|Bo|2|");
    CHECK_EQ(result.reports[0], "2: row passed over: value too long");
}

TEST(localTextKeepsWhatItCan)
{
    // The tests run in a UTF-8 locale; the conversion itself is tried on another.
    CHECK_EQ(localCodeset(), "UTF-8");
    CHECK_EQ(toLocal("Größe"), "Größe");
    Conversion conversion("ISO-8859-1", "UTF-8");
    std::string out;
    std::string_view in = "Größe";
    CHECK(conversion.convert(in, out, nullptr));
    CHECK_EQ(out, "Gr\xF6\xDF"
                  "e");
    CHECK(!Conversion("no-such-encoding", "UTF-8").usable());
}

TEST(whatIsWrittenIsPlainCsv)
{
    const std::string path = check::inHome("written.csv");
    {
        Writer writer(path);
        for (const char16_t* text :
             {u"plain", u"", u" lead", u"trail ", u"a,b", u"c;d", u"e\tf", u"g\"h", u"i\r\nj", u"\"", u","})
            writer.column(std::u16string_view(text));
        writer.endRow();
        writer.column(std::string_view("Ελένη 😀"));
        writer.endRow();
        writer.column(std::string_view(""));
        writer.endRow();
        writer.commit();
    }
    CHECK_EQ(files::read(path),
             "\xEF\xBB\xBF"
             "plain,,\" lead\",\"trail \",\"a,b\",\"c;d\",\"e\tf\",\"g\"\"h\",\"i\r\nj\",\"\"\"\",\",\"\r\n"
             "Ελένη 😀\r\n\"\"\r\n");
}

TEST(anUnfinishedFileLeavesTheOldOne)
{
    const std::string path = check::inHome("kept.csv");
    std::ofstream(path) << "old";
    {
        Writer writer(path);
        writer.column(std::string_view("new"));
        writer.endRow();
    }
    CHECK_EQ(files::read(path), "old");
    Writer writer(path);
    writer.column(std::string_view("new"));
    writer.endRow();
    CHECK_EQ(files::read(path), "old");
    writer.commit();
    CHECK_EQ(files::read(path), "\xEF\xBB\xBFnew\r\n");
}

TEST(aReplacedFileKeepsItsModeAndItsLink)
{
    const std::string path = check::inHome("target.csv");
    const std::string link = check::inHome("link.csv");
    std::ofstream(path) << "old";
    CHECK_EQ(chmod(path.c_str(), 0640), 0);
    CHECK_EQ(symlink(path.c_str(), link.c_str()), 0);
    Writer writer(link);
    writer.column(std::string_view("new"));
    writer.endRow();
    writer.commit();
    struct stat state = {};
    CHECK_EQ(lstat(link.c_str(), &state), 0);
    CHECK(S_ISLNK(state.st_mode));
    CHECK_EQ(stat(path.c_str(), &state), 0);
    CHECK_EQ(state.st_mode & 0777U, 0640U);
    CHECK_EQ(files::read(path), "\xEF\xBB\xBFnew\r\n");
}

TEST(targetsThatAreNoFilesAreRefused)
{
    for (const std::string& path :
         {std::string("/dev/null"), check::inHome("."), check::inHome("no/such/folder.csv")}) {
        long code = ORVA_OK;
        try {
            Writer writer(path);
        } catch (const Failure& failure) {
            code = failure.code();
        }
        CHECK_EQ(code, ORVA_E_STORE);
    }
    struct stat state = {};
    CHECK_EQ(stat("/dev/null", &state), 0);
    CHECK(S_ISCHR(state.st_mode));
}

TEST(unicodeIsConvertedBothWays)
{
    std::u16string all;
    for (char32_t point = 1; point <= 0x10FFFF; point += point < 0x3000 ? 1 : 37) {
        if (point >= 0xD800 && point < 0xE000)
            continue;
        std::string one;
        appendUtf8(point, one);
        std::u16string units;
        CHECK(appendUtf16(one, units));
        std::string back;
        appendUtf8(std::u16string_view(units), back);
        if (!CHECK_EQ(back, one))
            return;
    }
    std::string out;
    const std::u16string lone = {u'a', 0xDC00, u'b', 0xD800};
    appendUtf8(std::u16string_view(lone), out);
    CHECK_EQ(out, "a\xEF\xBF\xBD"
                  "b\xEF\xBF\xBD");
}

TEST(brokenUtf8IsRefused)
{
    for (const std::string_view text : {"\x80", "a\xC3", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                                        "\xF8\x88\x80\x80\x80", "\xFF", "\xE2\x82", "abcdefgh\xE2"}) {
        std::u16string out = u"before";
        CHECK(!appendUtf16(text, out));
        CHECK_EQ(out, u"before");
    }
    std::u16string out;
    CHECK(!appendUtf16(std::string_view("a\0b", 3), out));
}

CHECK_MAIN
