#include "base/Profile.h"

#include <strings.h>

#include <algorithm>
#include <cstring>

#include "base/NumberText.h"

namespace orva
{

namespace
{

constexpr char numberCharacters[] = "0123456789+*#";
constexpr char cardNumberCharacters[] = "0123456789+*#pw"; // cards hold pauses and waits, too

Field field(const char* key, const char* kind, const char* labelId, int maxLength)
{
    Field made;
    made.key = key;
    made.kind = kind;
    made.labelId = labelId;
    made.maxLength = maxLength;
    if (made.kind == "Mobile" || made.kind == "Number")
        made.accepted = numberCharacters;
    return made;
}

} // namespace

Profile::Profile(std::vector<Field> fields) : m_fields(std::move(fields))
{
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        if (isNumberField(m_fields[i]))
            m_numbers.push_back(i);
    }
}

int Profile::indexOf(const char* key, int hint) const
{
    constexpr int caseBit = 0x20;
    const int count = size();
    if (hint >= 0 && hint < count && std::strcmp(m_fields[static_cast<std::size_t>(hint)].key.c_str(), key) == 0)
        return hint;
    for (int i = 0; i < count; ++i) {
        const char* const own = m_fields[static_cast<std::size_t>(i)].key.c_str();
        // Keys are ASCII, and hardly two begin alike.
        if (((*own ^ *key) & ~caseBit) == 0 && ::strcasecmp(own, key) == 0)
            return i;
    }
    return -1;
}

Profile localProfile()
{
    std::vector<Field> fields{field("Name", "Name", "ID_STR_NAME", 100),
                              field("Mobile", "Mobile", "ID_STR_MOBILE_PHONE", 40),
                              field("officePhone", "Number", "ID_STR_BUSINESS_PHONE", 40),
                              field("homePhone", "Number", "ID_STR_HOME_PHONE", 40),
                              field("email", "Email", "ID_STR_EMAIL", 100),
                              field("remark", "Remaik", "ID_STR_NOTES", 500)};
    fields.front().flag = true;
    return Profile(std::move(fields));
}

Profile deviceProfile(int fields, int nameLength, int numberLength)
{
    std::vector<Field> all{field("Name", "Name", "ID_STR_NAME", nameLength),
                           field("Number", "Number", "ID_STR_MOBILE_PHONE", numberLength),
                           field("homePhone", "Number", "ID_STR_HOME_PHONE", numberLength),
                           field("email", "Email", "ID_STR_EMAIL", 60)};
    all.front().flag = true;
    for (Field& each : all) {
        if (each.kind == "Number")
            each.accepted = cardNumberCharacters;
    }
    all.resize(static_cast<std::size_t>(std::clamp(fields, 2, 4)));
    return Profile(std::move(all));
}

} // namespace orva
