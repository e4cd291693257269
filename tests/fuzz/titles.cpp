// Any file, asked for its titles, and what is guessed from them.

#include "csv/Titles.h"
#include "Scratch.h"
#include "base/Failure.h"
#include "csv/ColumnGuess.h"
#include "csv/LocalText.h"

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
        const ColumnGuess guess(titles);
        const int columns = row.columns();
        for (const char* label : {"ID_STR_NAME", "ID_STR_MOBILE_PHONE", "ID_STR_BUSINESS_PHONE", "ID_STR_HOME_PHONE",
                                  "ID_STR_EMAIL", "ID_STR_NOTES"}) {
            const int entry = guess.forLabel(label);
            MUST(entry >= -1 && (entry == -1 || (entry & 0xFFFF) < columns) && (entry >> 16) <= columns);
        }
        MUST(guess.groups() < columns);
        for (const std::string& title : titles)
            fromLocal(toLocal(title));
    } catch (const Failure& failure) {
        MUST(failure.code() == ORVA_E_FORMAT);
    }
    return 0;
}
