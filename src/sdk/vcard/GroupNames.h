#ifndef SDK_VCARD_GROUPNAMES_H
#define SDK_VCARD_GROUPNAMES_H

#include <string>
#include <vector>

namespace orva
{

// A name without the blanks around it.
std::string trimmedName(const std::string& text);

// Takes a column of group names apart: at ";" and " ::: ", without the "* " of built-in ones. In a name "\;" stands for
// ";" and "\\" for "\".
std::vector<std::string> splitGroups(const std::string& column);

// The group that one such name stands for, without the "* "; empty for none.
std::string groupCalled(const std::string& text);

// The column that splitGroups() takes apart.
std::string joinGroups(const std::vector<std::string>& paths);

} // namespace orva

#endif // SDK_VCARD_GROUPNAMES_H
