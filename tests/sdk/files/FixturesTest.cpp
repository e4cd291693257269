// Files as programs write them. Each file in fixtures/ stands in one program's column layout and encoding; beside it,
// NAME.expected tells what comes of it: the titles, then a line for each contact (its line in the file, the fields of
// the PC's phonebook and the column of groups, with tabs between). With the environment variable WRITE_EXPECTED=1 the
// test writes those files instead, for a look at them before they are committed.

#include <algorithm>
#include <filesystem>
#include <map>

#include "SdkFiles.h"
#include "csv/MadeUpColumns.h"
#include "csv/Titles.h"

namespace
{

std::string escaped(const std::string& value)
{
    std::string out;
    for (const char c : value)
        out += c == '\n' ? std::string("\\n") : c == '\r' ? "\\r" : c == '\t' ? "\\t" : std::string(1, c);
    return out;
}

std::string describe(const std::string& path)
{
    const std::string titleText = files::titles(path);
    orva::RowReader reader(path, orva::RowReader::Report());
    const orva::MadeUpColumns columns(orva::readTitles(reader));
    std::vector<int> map;
    for (const char* key : {"Name", "Mobile", "officePhone", "homePhone", "email", "remark"})
        map.push_back(columns.forField(key));
    std::map<int, std::string> groups;
    if (columns.groups() >= 0)
        for (const files::Record& record :
             files::import(path, {-1, -1, -1, -1, -1, columns.groups()}, ORVA_MEMORY_LOCAL))
            groups[record.id] = record.values[5];
    std::string out = titleText + "\n";
    for (const files::Record& record : files::import(path, map, ORVA_MEMORY_LOCAL)) {
        out += std::to_string(record.id);
        for (const std::string& value : record.values)
            out += "\t" + escaped(value);
        out += "\t" + escaped(groups[record.id]) + "\n";
    }
    return out;
}

} // namespace

TEST(filesOfEachProgramComeInAsExpected)
{
    const files::FreshStore store;
    const bool writing = !check::environment("WRITE_EXPECTED").empty();
    int count = 0;
    const std::string folder = check::environment("LINKHAND_SOURCE_DIR") + "/tests/sdk/files/fixtures";
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".csv" && extension != ".txt")
            continue;
        ++count;
        const std::string expected = entry.path().string() + ".expected";
        const std::string found = describe(entry.path().string());
        if (writing)
            std::ofstream(expected, std::ios::binary) << found;
        else if (!CHECK_EQ(found, files::read(expected)))
            std::fprintf(stderr, "    in: %s\n", entry.path().filename().c_str());
    }
    CHECK(count >= 15);
    CHECK(!writing);
    CHECK_EQ(files::log().find("passed over"), std::string::npos);
}

CHECK_MAIN
