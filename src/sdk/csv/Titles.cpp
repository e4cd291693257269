#include "csv/Titles.h"

#include "base/Failure.h"
#include "base/Unicode.h"

namespace orva
{

std::vector<std::string> readTitles(RowReader& reader)
{
    Row row;
    if (!reader.next(row))
        throw Failure(ORVA_E_FORMAT, "no titles");
    return titlesOf(row);
}

std::vector<std::string> titlesOf(const Row& row)
{
    if (row.columns() == 0)
        throw Failure(ORVA_E_FORMAT, "no titles");
    std::vector<std::string> titles;
    titles.reserve(static_cast<std::size_t>(row.columns()));
    std::u16string units;
    for (int i = 0; i < row.columns(); ++i) {
        units.clear();
        if (!appendUtf16(row.column(i), units))
            throw Failure(ORVA_E_FORMAT, "titles are no text");
        for (char16_t& c : units)
            if (c == u',' || c < u' ' || c == 0x7F)
                c = u' ';
        appendUtf8(units, titles.emplace_back());
    }
    return titles;
}

} // namespace orva
