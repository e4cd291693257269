// Any file, read as contacts. The last octet chooses how narrow the limits are.

#include "Scratch.h"
#include "base/Failure.h"
#include "csv/ContactRows.h"

using namespace orva;

namespace
{

Profile someFields()
{
    std::vector<Field> fields(4);
    fields[0].kind = "Name";
    fields[1].kind = "Mobile";
    fields[2].kind = "Email";
    fields[3].kind = "Remaik";
    fields[3].maxLength = 7;
    return Profile(fields);
}

void readRows(const std::string& path, const ReaderLimits& limits)
{
    int lastReported = 0;
    RowReader reader(
        path,
        [&lastReported](const Finding& finding) {
            MUST(finding.reason > 0 && finding.line > lastReported);
            lastReported = finding.line;
        },
        limits);
    Row row;
    int lastLine = 0;
    while (reader.next(row)) {
        MUST(row.line() > lastLine);
        lastLine = row.line();
        MUST(row.columns() > 0 && row.columns() <= limits.columns);
        std::size_t octets = 0;
        for (int i = 0; i < row.columns(); ++i)
            octets += row.column(i).size();
        MUST(octets <= limits.rowOctets);
        MUST(row.column(row.columns()).empty());
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::uint8_t choice = data[size - 1];
    ReaderLimits limits;
    limits.rowOctets = choice % 2 == 0 ? 1U << 20 : 16U + choice;
    limits.columns = choice % 4 < 2 ? 4096 : 3;
    const fuzz::ScratchFile file(data, size - 1);
    readRows(file.path(), limits);
    const Profile profile = someFields();
    const RowReader::Report told = [](const Finding& finding) { MUST(finding.reason > 0 && finding.count > 0); };
    const int map[] = {joinedColumns(0, 1), 1, 2, choice % 5 - 1};
    try {
        const RowBlock rows = readContacts(file.path(), profile, map, told, limits);
        MUST(!rows.empty());
        for (std::size_t i = 0; i < rows.rows(); ++i) {
            MUST(i == 0 || rows.id(i) > rows.id(i - 1));
            MUST(rows.value(i, 3).size() <= 7);
            for (int field = 0; field < rows.fields(); ++field)
                MUST(rows.value(i, field).find(u'\0') == std::u16string_view::npos);
        }
    } catch (const Failure& failure) {
        MUST(failure.code() == ORVA_E_FORMAT);
    }
    return 0;
}
