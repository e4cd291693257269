// Reading rows: encodings, separators, quotes, line ends, and what cannot be read.

#include "csv/RowReader.h"

#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "PlainFiles.h"
#include "base/Failure.h"
#include "base/Unicode.h"
#include "support/Check.h"

using namespace orva;

namespace
{

using Rows = std::vector<std::vector<std::string>>;

struct Result {
    Rows rows;
    std::vector<int> lines;
    std::vector<int> reported;
    std::string reasons;
    Encoding encoding = Encoding::Utf8;
    char separator = 0;
};

Result readFile(const std::string& path, const ReaderLimits& limits = ReaderLimits())
{
    Result result;
    RowReader reader(
        path,
        [&result](const Finding& finding) {
            result.reported.push_back(finding.line);
            result.reasons += std::string(findingText(finding.reason)) + ";";
        },
        limits);
    Row row;
    while (reader.next(row)) {
        std::vector<std::string>& columns = result.rows.emplace_back();
        for (int i = 0; i < row.columns(); ++i)
            columns.emplace_back(row.column(i));
        result.lines.push_back(row.line());
    }
    result.encoding = reader.encoding().encoding;
    result.separator = reader.separator();
    return result;
}

Result readText(std::string_view content, const ReaderLimits& limits = ReaderLimits())
{
    return readFile(files::write("rows.csv", content), limits);
}

std::string utf16(std::u16string_view text, bool big, bool mark)
{
    std::string out;
    const auto add = [&](char16_t c) {
        const char high = static_cast<char>(c >> 8);
        const char low = static_cast<char>(c & 0xFF);
        out += big ? high : low;
        out += big ? low : high;
    };
    if (mark)
        add(0xFEFF);
    for (const char16_t c : text)
        add(c);
    return out;
}

EncodingGuess guessOf(std::string_view content, const std::string& codeset, std::size_t pieces = SIZE_MAX)
{
    EncodingDetector detector(codeset);
    while (!content.empty() && !detector.decided()) {
        detector.add(content.substr(0, pieces));
        content.remove_prefix(std::min(pieces, content.size()));
    }
    return detector.guess();
}

std::string decoded(std::string_view content, Encoding encoding, const std::string& codeset, std::size_t pieces)
{
    Decoder decoder(encoding, codeset);
    std::string out;
    while (!content.empty()) {
        decoder.decode(content.substr(0, pieces), false, out);
        content.remove_prefix(std::min(pieces, content.size()));
    }
    decoder.decode({}, true, out);
    return out;
}

void checkRows(const Result& result, const Rows& expected)
{
    if (!CHECK_EQ(result.rows.size(), expected.size()))
        return;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        if (!CHECK_EQ(result.rows[i].size(), expected[i].size()))
            continue;
        for (std::size_t j = 0; j < expected[i].size(); ++j)
            CHECK_EQ(result.rows[i][j], expected[i][j]);
    }
}

long codeOf(const std::string& path, const ReaderLimits& limits = ReaderLimits())
{
    try {
        readFile(path, limits);
    } catch (const Failure& failure) {
        return failure.code();
    }
    return ORVA_OK;
}

} // namespace

TEST(utf8IsReadWithAndWithoutAMark)
{
    checkRows(readText("N,T\nÅsa,1\n"), {{"N", "T"}, {"Åsa", "1"}});
    checkRows(readText("\xEF\xBB\xBFN,T\nÅsa,1\n"), {{"N", "T"}, {"Åsa", "1"}});
}

TEST(utf16IsReadInBothOrdersWithAndWithoutAMark)
{
    const std::u16string text = u"N,T\r\nÅsa 😀,1\r\n";
    for (const bool big : {false, true}) {
        for (const bool mark : {false, true}) {
            const Result result = readText(utf16(text, big, mark));
            checkRows(result, {{"N", "T"}, {"Åsa 😀", "1"}});
            CHECK_EQ(result.encoding, big ? Encoding::Utf16Be : Encoding::Utf16Le);
        }
    }
}

TEST(aLoneSurrogateAndACutUnitDoNotDisturbTheRest)
{
    std::u16string text = u"N,T\nab,1\n";
    text[4] = 0xD83D;
    checkRows(readText(utf16(text, false, true)), {{"N", "T"},
                                                   {"\xEF\xBF\xBD"
                                                    "b",
                                                    "1"}});
    const Result cut = readText(utf16(u"N,T\nab,1\nx,2", false, true) + "z");
    CHECK_EQ(cut.rows.size(), 3U);
    CHECK_EQ(cut.rows[2][1], "2\xFF");
}

TEST(otherEncodingsAreTold)
{
    CHECK_EQ(guessOf("Name,Note\nJ\xF6rg,x\n", "UTF-8").encoding, Encoding::Windows1252);
    CHECK_EQ(guessOf("Name,Note\nJ\xF6rg,x\n", "ANSI_X3.4-1968").encoding, Encoding::Windows1252);
    CHECK_EQ(guessOf("Name,Note\nJ\xF6rg,x\n", "ISO-8859-2").encoding, Encoding::Local);
    CHECK_EQ(guessOf("Name,Note\nJ\xC3\xB6rg,x\n", "ISO-8859-2").encoding, Encoding::Utf8);
    CHECK_EQ(guessOf("Name,Note\nJorg,x\n", "ISO-8859-2").encoding, Encoding::Utf8);
    CHECK_EQ(guessOf("\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6\xF6", "UTF-8")
                 .encoding,
             Encoding::Utf8); // one broken place in ten
    CHECK_EQ(guessOf("", "UTF-8").encoding, Encoding::Utf8);
    CHECK_EQ(guessOf("\xEF\xBB\xBFx", "UTF-8").markLength, 3U);
    // What the locale's own encoding cannot be: octet 81 has no character in Shift_JIS by itself.
    CHECK_EQ(guessOf("Name\n\x81\n", "SHIFT_JIS").encoding, Encoding::Windows1252);
}

TEST(encodingsDoNotDependOnHowTheFileComesInPieces)
{
    const std::string utf8 = "Name,Ελένη,😀,王小明,ö\n";
    for (std::size_t pieces = 1; pieces < 8; ++pieces) {
        CHECK_EQ(guessOf(utf8, "ISO-8859-1", pieces).encoding, Encoding::Utf8);
        CHECK_EQ(decoded(utf16(u"a😀z", false, false), Encoding::Utf16Le, "UTF-8", pieces), "a😀z");
        CHECK_EQ(decoded("\x83\x65\x83\x58\x83\x67 a", Encoding::Local, "SHIFT_JIS", pieces), "テスト a");
        CHECK_EQ(guessOf("\x83\x65\x83\x58\x83\x67 a\n", "SHIFT_JIS", pieces).encoding, Encoding::Local);
    }
}

TEST(everyOctetOfWindows1252IsACharacter)
{
    CHECK_EQ(decoded("\x80\x82\x8A\x9F\xA0\xE4\xFF", Encoding::Windows1252, "UTF-8", 3), "€‚ŠŸ\u00A0äÿ");
    std::string all;
    for (int i = 1; i < 256; ++i)
        all.push_back(static_cast<char>(i));
    const std::string text = decoded(all, Encoding::Windows1252, "UTF-8", 16);
    std::u16string units;
    CHECK(appendUtf16(text, units));
    CHECK_EQ(units.size(), 255U);
}

TEST(theLocalEncodingIsReadAndBrokenPlacesAreMarked)
{
    CHECK_EQ(decoded("\xCF\xF0\xE8\xE2\xE5\xF2", Encoding::Local, "WINDOWS-1251", 2), "Привет");
    CHECK_EQ(decoded("a\x81", Encoding::Local, "SHIFT_JIS", 1), "a\xFF");
}

TEST(separatorsAreTold)
{
    checkRows(readText("a,b,c\n1,2,3\n"), {{"a", "b", "c"}, {"1", "2", "3"}});
    checkRows(readText("a;b;c\n1;2,5;3\n"), {{"a", "b", "c"}, {"1", "2,5", "3"}});
    checkRows(readText("a\tb\tc\n1\t2\t3\n"), {{"a", "b", "c"}, {"1", "2", "3"}});
    checkRows(readText("\"a;x;y\",b\n1,2\n"), {{"a;x;y", "b"}, {"1", "2"}});
    checkRows(readText("one\ntwo\n"), {{"one"}, {"two"}});
    CHECK_EQ(readText("a,b;c\n").separator, ',');
    checkRows(readText("sep=|\r\na|b\r\n1,5|2\r\n"), {{"a", "b"}, {"1,5", "2"}});
    CHECK_EQ(readText("sep=|\r\na|b\r\n").lines[0], 2);
    checkRows(readText("sep=;\na;b\n"), {{"a", "b"}});
}

TEST(quotesHoldSeparatorsQuotesAndLineEnds)
{
    const Result result = readText("N,T\r\n\"a,b\",\"say \"\"hi\"\"\"\r\n\"two\r\nlines\",\"\"\r\nlast,1\r\n");
    checkRows(result, {{"N", "T"}, {"a,b", "say \"hi\""}, {"two\r\nlines", ""}, {"last", "1"}});
    CHECK_EQ(result.lines[2], 3);
    CHECK_EQ(result.lines[3], 5);
}

TEST(anyLineEndEndsARow)
{
    const Rows expected = {{"a", "b"}, {"1", "2"}, {"3", "4"}};
    checkRows(readText("a,b\n1,2\n3,4\n"), expected);
    checkRows(readText("a,b\n1,2\n3,4"), expected);
    checkRows(readText("a,b\r\n1,2\r\n3,4\r\n"), expected);
    checkRows(readText("a,b\r1,2\r3,4\r"), expected);
    checkRows(readText("a,b\r1,2\r3,4"), expected);
    checkRows(readText("\n\na,b\n\n \n1,2\r\n\r\n3,4\n\n"), expected);
    CHECK_EQ(readText("a,b\r1,2\r3,4").lines[2], 3);
    CHECK_EQ(readText("\n\na,b\n\n \n1,2\r\n\r\n3,4\n\n").lines[1], 6);
}

TEST(emptyColumnsKeepTheirPlaces)
{
    checkRows(readText("a,b,c,\n,,x,\n,,,\n"), {{"a", "b", "c", ""}, {"", "", "x", ""}, {"", "", "", ""}});
    checkRows(readText("a\tb\n\tx\n\t\n"), {{"a", "b"}, {"", "x"}, {"", ""}});
}

TEST(aFileWithoutARowHasNone)
{
    CHECK_EQ(readText("").rows.size(), 0U);
    CHECK_EQ(readText("\n\n\r\n").rows.size(), 0U);
    CHECK_EQ(readText("\xEF\xBB\xBF").rows.size(), 0U);
}

TEST(aRowBeyondTheLimitIsPassedOverByItself)
{
    ReaderLimits limits;
    limits.rowOctets = 1000;
    for (const std::size_t length : {1001U, 5000U, 70000U, 400000U}) {
        const std::string big(length, 'x');
        const Result result = readText("a,b\n1," + big + "\n2,y\n\"" + big + "\",z\n3,w\n", limits);
        checkRows(result, {{"a", "b"}, {"2", "y"}, {"3", "w"}});
        CHECK_EQ(result.reported.size(), 2U);
        CHECK_EQ(result.reported[0], 2);
        CHECK_EQ(result.reported[1], 4);
        CHECK_EQ(result.lines[2], 5);
    }
    CHECK_EQ(readText("a,b\n1," + std::string(900, 'x') + "\n", limits).rows.size(), 2U);
    CHECK_EQ(readText("a,b\n1," + std::string(5000, 'x'), limits).rows.size(), 1U);
}

TEST(aRowWithTooManyColumnsIsPassedOver)
{
    ReaderLimits limits;
    limits.columns = 3;
    const Result result = readText("a,b,c\n1,2,3,4\n1,2,3\n", limits);
    checkRows(result, {{"a", "b", "c"}, {"1", "2", "3"}});
    CHECK_EQ(result.reported.size(), 1U);
    CHECK_EQ(result.reported[0], 2);
}

TEST(aQuotationMarkThatNothingClosesCostsOneLine)
{
    const Result result = readText("a,b\n1,x\n\"2,y\n3,z\n4,w\n");
    checkRows(result, {{"a", "b"}, {"1", "x"}, {"3", "z"}, {"4", "w"}});
    CHECK_EQ(result.reported.size(), 1U);
    CHECK_EQ(result.reported[0], 3);
    CHECK_EQ(result.lines[3], 5);
    checkRows(readText("a,b\n1,\"x"), {{"a", "b"}});
    checkRows(readText("a,b\n1,\"x\n"), {{"a", "b"}});
    checkRows(readText("\""), {});
}

TEST(manyOpenQuotationMarksEndInBoundedTime)
{
    std::string text = "a,b\n";
    for (int i = 0; i < 20000; ++i)
        text += "\"" + std::to_string(i) + ",\"\"x\n"; // each opens, none closes
    const Result result = readText(text);
    CHECK(result.rows.size() <= 2U);
    CHECK(!result.reported.empty());
    CHECK(result.reported.size() < 100U);
}

TEST(rowsDoNotDependOnWhereThePiecesEnd)
{
    // Rows of growing length put every kind of place on the border of a piece of 64 KB.
    std::string text = "N,T\r\n";
    Rows expected = {{"N", "T"}};
    for (std::size_t i = 0; text.size() < 400000; ++i) {
        const std::string word(i % 97, static_cast<char>('a' + i % 26));
        text.append("\"").append(word).append("\r\n\"\"é\",").append(std::to_string(i)).append("\r\n");
        expected.push_back({word + "\r\n\"é", std::to_string(i)});
    }
    checkRows(readText(text), expected);
}

TEST(filesThatAreNoFilesAreRefused)
{
    CHECK_EQ(codeOf(check::inHome("nothing-here.csv")), ORVA_E_NOT_FOUND);
    CHECK_EQ(codeOf(files::write("rows.csv", "x") + "/below"), ORVA_E_NOT_FOUND);
    CHECK_EQ(codeOf(check::inHome(".")), ORVA_E_FORMAT);
    CHECK_EQ(codeOf("/dev/zero"), ORVA_E_FORMAT);
    const std::string pipe = check::inHome("pipe");
    CHECK_EQ(mkfifo(pipe.c_str(), 0600), 0);
    CHECK_EQ(codeOf(pipe), ORVA_E_FORMAT);
}

TEST(aFileOfAGigabyteIsRefusedUnread)
{
    const std::string path = check::inHome("sparse.csv");
    const int file = open(path.c_str(), O_CREAT | O_WRONLY, 0600);
    CHECK_EQ(ftruncate(file, 1 << 30), 0);
    close(file);
    CHECK_EQ(codeOf(path), ORVA_E_TOO_LONG);
    unlink(path.c_str());
}

TEST(aLineOfAHundredMegabytesIsReadInBoundedMemory)
{
    const std::string path = check::inHome("long-line.csv");
    {
        std::ofstream out(path, std::ios::binary);
        out << "a,b\n1,\"";
        const std::string block(1 << 20, 'x');
        for (int i = 0; i < 100; ++i)
            out << block;
        out << "\"\n2,y\n";
    }
    rusage before = {};
    rusage after = {};
    getrusage(RUSAGE_SELF, &before);
    const Result result = readFile(path);
    getrusage(RUSAGE_SELF, &after);
    unlink(path.c_str());
    checkRows(result, {{"a", "b"}, {"2", "y"}});
    CHECK_EQ(result.reported.size(), 1U);
    CHECK(after.ru_maxrss - before.ru_maxrss < 16 * 1024); // KB
}

CHECK_MAIN
