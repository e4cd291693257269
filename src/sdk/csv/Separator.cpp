#include "csv/Separator.h"

#include <algorithm>
#include <map>
#include <vector>

namespace orva
{

namespace
{

constexpr std::string_view candidates = ",;\t";

// The number of columns of each row but blank ones. A quotation mark counts at the beginning of a column alone.
std::vector<int> columnsOfRows(std::string_view text, bool whole, char separator)
{
    std::vector<int> rows;
    int columns = 1;
    bool quoted = false;
    bool begun = false;  // the row has something other than blanks
    bool atStart = true; // of a column
    for (const char c : text) {
        if (c == '"') {
            if (quoted || atStart)
                quoted = !quoted;
            begun = true;
            atStart = false;
        } else if (quoted) {
            continue;
        } else if (c == '\n' || c == '\r') {
            if (begun)
                rows.push_back(columns);
            columns = 1;
            begun = false;
            atStart = true;
        } else if (c == separator) {
            ++columns;
            begun = atStart = true;
        } else if (c != ' ' && c != '\t') {
            begun = true;
            atStart = false;
        }
    }
    if (begun && (whole || rows.empty()))
        rows.push_back(columns);
    return rows;
}

// How many rows have the number of columns that most have.
int rowsAlike(const std::vector<int>& rows)
{
    std::map<int, int> counts;
    int most = 0;
    for (const int columns : rows) {
        if (columns > 1)
            most = std::max(most, ++counts[columns]);
    }
    return most;
}

} // namespace

char guessSeparator(std::string_view text, bool whole)
{
    char best = candidates.front();
    int bestAlike = 0;
    int bestColumns = 1;
    for (const char candidate : candidates) {
        const std::vector<int> rows = columnsOfRows(text, whole, candidate);
        if (rows.empty() || rows.front() < 2)
            continue;
        const int alike = rowsAlike(rows);
        if (alike > bestAlike || (alike == bestAlike && rows.front() > bestColumns)) {
            best = candidate;
            bestAlike = alike;
            bestColumns = rows.front();
        }
    }
    return best;
}

} // namespace orva
