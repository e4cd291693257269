// Any contacts, written and read back. The input's octets 0 end columns, octets 1 end rows.

#include <vector>

#include "Scratch.h"
#include "base/Unicode.h"
#include "csv/RowReader.h"
#include "csv/Writer.h"

using namespace orva;

namespace
{

using Rows = std::vector<std::vector<std::string>>;

// Rows of the same number of columns each, at least two, as field lists have.
Rows rowsOf(const std::uint8_t* data, std::size_t size)
{
    Rows rows = {{"first", "second"}};
    std::vector<std::string> row(1);
    for (std::size_t i = 0; i < size && rows.size() < 100; ++i) {
        if (data[i] == 0) {
            row.emplace_back();
        } else if (data[i] == 1) {
            rows.push_back(row);
            row.assign(1, std::string());
        } else {
            row.back().push_back(static_cast<char>(data[i]));
        }
    }
    rows.push_back(row);
    for (std::vector<std::string>& columns : rows) {
        columns.resize(2);
        for (std::string& column : columns) {
            std::u16string units;
            if (!appendUtf16(column, units))
                column = "not UTF-8";
        }
    }
    return rows;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const std::string path = "/dev/shm/roundtrip-" + std::to_string(getpid()) + ".csv";
    const Rows rows = rowsOf(data, size);
    {
        Writer writer(path);
        for (const auto& row : rows) {
            for (const std::string& column : row)
                writer.column(std::string_view(column));
            writer.endRow();
        }
        writer.commit();
    }
    RowReader reader(path, [](const Finding&) { MUST(false); });
    Row row;
    for (const auto& expected : rows) {
        MUST(reader.next(row));
        MUST(row.columns() == 2 && row.column(0) == expected[0] && row.column(1) == expected[1]);
    }
    MUST(!reader.next(row));
    unlink(path.c_str());
    return 0;
}
