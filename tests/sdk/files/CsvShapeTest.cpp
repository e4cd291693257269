// What the shape of a file tells: its separator, and which blanks belong to a value.

#include "SdkFiles.h"
#include "csv/RowReader.h"
#include "csv/Separator.h"

using namespace orva;

namespace
{

char separatorOf(const std::string& text)
{
    return RowReader(files::write("shape.csv", text), RowReader::Report()).separator();
}

// The rows of a text, columns in brackets.
std::string rowsOf(const std::string& text)
{
    RowReader reader(files::write("shape.csv", text), RowReader::Report());
    std::string out;
    Row row;
    while (reader.next(row)) {
        for (int i = 0; i < row.columns(); ++i)
            out += "[" + std::string(row.column(i)) + "]";
        out += "\n";
    }
    return out;
}

} // namespace

TEST(theSeparatorIsTheOneThatGivesMostRowsTheSameColumns)
{
    CHECK_EQ(separatorOf("Name, full;a,b,c;last\n1;2;3\n4;5;6\n7;8;9\n"), ';');
    CHECK_EQ(separatorOf("Name;Notes, Remarks, Other\nAnna;x\nBo;y, z\n"), ';');
    CHECK_EQ(separatorOf("Name,Price;Tax\nAnna,\"1;2\"\nBo,3\n"), ',');
    CHECK_EQ(separatorOf("Name\tNotes, Remarks; Other\nAnna\tx;y, z\nBo\tz\n"), '\t');
    // A decimal comma in each row.
    CHECK_EQ(separatorOf("Name;Weight\nAnna;61,5\nBo;70,2\n"), ';');
    // Rows that stop after their last value.
    CHECK_EQ(separatorOf("Name;Street;Mobile;Home;Office\nAnna;A 1, B;1\nBo;C 2, D\nCy;E 3, F;1;2\n"), ';');
    CHECK_EQ(rowsOf("Name, full;a,b,c;last\n1;2;3\n"), "[Name, full][a,b,c][last]\n[1][2][3]\n");
}

TEST(aSeparatorInsideQuotesIsNone)
{
    CHECK_EQ(separatorOf("\"a,b,c\";\"d\"\n\"1,2,3\";\"4\"\n"), ';');
    CHECK_EQ(separatorOf("\"a\nb;c;d\",e\n1,2\n"), ',');
    // A mark within a value opens nothing.
    CHECK_EQ(separatorOf("Name;Size\nAnna;5\" disk, new\nBo;3\" disk, old\n"), ';');
}

TEST(aHeaderAloneAndADrawGoToMoreColumnsThenToTheComma)
{
    CHECK_EQ(separatorOf("a;b;c,d\n"), ';');
    CHECK_EQ(separatorOf("a;b,c\n"), ',');
    CHECK_EQ(separatorOf("a\tb;c\n1\t2;3\n"), ';');
    CHECK_EQ(separatorOf("\n\r\n  \na;b\n1;2\n"), ';');
    CHECK_EQ(separatorOf("a\nb\n"), ',');
    CHECK_EQ(separatorOf(""), ',');
}

TEST(aRowThatIsCutOffIsNotCounted)
{
    CHECK_EQ(guessSeparator("a;b,x\n1;2\n3,4,5,6", false), ';');
    CHECK_EQ(guessSeparator("a;b;c", false), ';');
}

TEST(blanksAtTheEndsOfAValueArePartOfIt)
{
    CHECK_EQ(rowsOf("N,R\n Anna , two  words \n\tx\t,  \n"), "[N][R]\n[ Anna ][ two  words ]\n[\tx\t][  ]\n");
    CHECK_EQ(rowsOf("N;R\n a ; b \r\n"), "[N][R]\n[ a ][ b ]\n");
    CHECK_EQ(rowsOf("N,R\n\" a \",\"b \"\n"), "[N][R]\n[ a ][b ]\n");
}

TEST(blanksAroundQuotesAreNot)
{
    CHECK_EQ(rowsOf("N,R\n \"a, b\" , \"c\"\n"), "[N][R]\n[a, b][c]\n");
    CHECK_EQ(rowsOf("N,R\n\"a\"\t,\t\"b\nc\" \n d,e \n"), "[N][R]\n[a][b\nc]\n[ d][e ]\n");
    CHECK_EQ(rowsOf("N,R\n\"say \"\"hi\"\" now\", x\n"), "[N][R]\n[say \"hi\" now][ x]\n");
    // A mark within a value is a mark.
    CHECK_EQ(rowsOf("N,R\n 5\" disk , x\n"), "[N][R]\n[ 5\" disk ][ x]\n");
}

TEST(numbersLoseTheirBlanksAndTextsKeepThem)
{
    const files::FreshStore store;
    const std::string path =
        files::write("blanks.csv", "Name,Mobile,Note\n Anna , +49 171 , a note \n  , , \nBo, ext. 5 ,\n");
    const std::vector<files::Record> records = files::import(path, {0, 1, -1, -1, -1, 2}, ORVA_MEMORY_LOCAL);
    REQUIRE(records.size() == 2);
    CHECK_EQ(records[0].values[0], " Anna ");
    CHECK_EQ(records[0].values[1], "+49171");
    CHECK_EQ(records[0].values[5], " a note ");
    CHECK_EQ(records[1].values[1], "ext. 5");
    // A title is told from another without its blanks.
    CHECK_EQ(files::titles(files::write("titles.csv", " Name , Mobile,\t,\" Note \"\n1,2,3,4\n")),
             "Name,Mobile,,Note,remark,Number");
}

CHECK_MAIN
