#include "FieldWord.h"

#include <algorithm>
#include <strings.h>

#include "Arguments.h"

namespace pbctl
{

FieldWord::FieldWord(const std::string& word, const std::vector<Field>& fields) : field(none)
{
    const std::size_t equals = word.find('=');
    assigns = equals != std::string::npos;
    key = word.substr(0, equals);
    if (assigns)
        value = word.substr(equals + 1);
    const auto found = std::find_if(fields.begin(), fields.end(), [this](const Field& candidate) {
        return strcasecmp(candidate.key.c_str(), key.c_str()) == 0;
    });
    if (found != fields.end())
        field = static_cast<std::size_t>(found - fields.begin());
}

void refuseWord(const std::string& word, const std::vector<Field>& fields)
{
    std::string keys;
    for (const Field& known : fields)
        keys += " " + known.key + "=...";
    throw UsageError("what is \"" + word + "\"? The fields are" + keys);
}

} // namespace pbctl
