#include "csv/GroupColumn.h"

namespace orva
{

std::string joinedGroups(const std::vector<std::string>& paths)
{
    std::string column;
    for (const std::string& path : paths) {
        column += column.empty() ? "" : ";";
        for (const char c : path) {
            if (c == ';' || c == '\\')
                column += '\\';
            column += c;
        }
    }
    return column;
}

} // namespace orva
