#include "csv/Titles.h"

#include <algorithm>

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
        // Blanks at the ends tell no title from another.
        const std::size_t begin = std::min(units.find_first_not_of(u" \t"), units.size());
        const std::size_t behind = std::max(units.find_last_not_of(u" \t") + 1, begin);
        units = units.substr(begin, behind - begin);
        for (char16_t& c : units)
            if (c == u',' || c < u' ' || c == 0x7F)
                c = u' ';
        appendUtf8(units, titles.emplace_back());
    }
    return titles;
}

} // namespace orva
