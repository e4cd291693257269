#include "vcard/GroupNames.h"

namespace orva
{

std::string trimmedName(const std::string& text)
{
    const std::size_t begin = text.find_first_not_of(" \t\r\n");
    if (begin == std::string::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(" \t\r\n") - begin + 1);
}

namespace
{

// The name in front of the next ";", which is taken off the column with it.
std::string takeName(std::string& rest)
{
    std::string name;
    std::size_t at = 0;
    for (; at < rest.size() && rest[at] != ';'; ++at) {
        const bool escape = rest[at] == '\\' && at + 1 < rest.size() && (rest[at + 1] == ';' || rest[at + 1] == '\\');
        name += escape ? rest[++at] : rest[at];
    }
    rest.erase(0, at + 1);
    return trimmedName(name);
}

} // namespace

std::vector<std::string> splitGroups(const std::string& column)
{
    std::vector<std::string> groups;
    std::string rest = column;
    for (std::size_t at = rest.find(" ::: "); at != std::string::npos; at = rest.find(" ::: "))
        rest.replace(at, 5, ";");
    while (!rest.empty()) {
        const std::string name = groupCalled(takeName(rest));
        if (!name.empty())
            groups.push_back(name);
    }
    return groups;
}

std::string groupCalled(const std::string& text)
{
    std::string name = trimmedName(text);
    if (name.rfind("* ", 0) == 0)
        name = trimmedName(name.substr(2));
    // "My contacts" holds everybody. No level may be without a name.
    const bool none = name == "myContacts" || name.empty() || name.front() == '/' || name.back() == '/' ||
                      name.find("//") != std::string::npos;
    return none ? std::string() : name;
}

std::string joinGroups(const std::vector<std::string>& paths)
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
