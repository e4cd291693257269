// Any file, asked for its titles and the columns made up of them, filled by each of its rows.

#include "csv/Titles.h"
#include "Scratch.h"
#include "base/Failure.h"
#include "csv/LocalText.h"
#include "csv/MadeUpColumns.h"

using namespace orva;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzz::ScratchFile file(data, size);
    try {
        RowReader counting(file.path(), RowReader::Report());
        Row row;
        const bool any = counting.next(row);
        RowReader reader(file.path(), RowReader::Report());
        const std::vector<std::string> titles = readTitles(reader);
        MUST(any && static_cast<int>(titles.size()) == row.columns());
        for (const std::string& title : titles)
            for (const char c : title)
                MUST(c != ',' && static_cast<unsigned char>(c) >= ' ' && c != 0x7F);
        MadeUpColumns madeUp(titles);
        const int columns = row.columns();
        const int all = columns + static_cast<int>(madeUp.titles().size());
        for (const char* key : {"Name", "Mobile", "officePhone", "homePhone", "email", "remark", "Number"}) {
            const int column = madeUp.forField(key);
            MUST(column >= -1 && column < all);
            for (const int source : madeUp.sourcesOf(column))
                MUST(source >= -1 && source < columns);
        }
        MUST(madeUp.groups() < columns);
        do {
            madeUp.appendTo(row);
            MUST(row.columns() == all);
        } while (counting.next(row));
        for (const std::string& title : titles)
            fromLocal(toLocal(title));
    } catch (const Failure& failure) {
        MUST(failure.code() == ORVA_E_FORMAT);
    }
    return 0;
}
