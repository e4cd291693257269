#ifndef SDK_BASE_PROFILE_H
#define SDK_BASE_PROFILE_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orva
{

// One field of a memory; the members are those of ORVA_PROFILE_ENTRY.
struct Field {
    std::string key;
    int maxLength = 0;
    std::string accepted = "null";
    std::string refused = "null";
    std::string kind;
    bool flag = false;
    std::string labelId;
};

// The field list of a memory. Values of a record stand in this order.
class Profile
{
public:
    Profile() = default;
    explicit Profile(std::vector<Field> fields);

    const std::vector<Field>& fields() const { return m_fields; }
    int size() const { return static_cast<int>(m_fields.size()); }

    // Which of them hold telephone numbers.
    const std::vector<std::size_t>& numbers() const { return m_numbers; }

    // The index of a key, compared without regard to case, or -1. `hint` is tried first: readers ask for the fields in
    // order.
    int indexOf(const char* key, int hint = 0) const;

private:
    std::vector<Field> m_fields;
    std::vector<std::size_t> m_numbers;
};

// The fields of the PC's phonebook.
Profile localProfile();

// The fields of a card (2) or a device (2 to 4).
Profile deviceProfile(int fields, int nameLength, int numberLength);

} // namespace orva

#endif // SDK_BASE_PROFILE_H
