#include "care/ContactKeys.h"

#include <utf8proc.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Unicode.h"
#include "care/NumberKey.h"

namespace orva
{

namespace
{

constexpr char between = '\x1F'; // keeps "ab" + "c" apart from "a" + "bc"

} // namespace

std::string foldedText(std::u16string_view text)
{
    std::string octets;
    appendUtf8(text, octets);
    // Most names need no table.
    if (std::all_of(octets.begin(), octets.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; })) {
        for (char& c : octets)
            if (c >= 'A' && c <= 'Z')
                c = static_cast<char>(c - 'A' + 'a');
        return octets;
    }
    utf8proc_uint8_t* folded = nullptr;
    const auto options = static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPOSE | UTF8PROC_CASEFOLD);
    const utf8proc_ssize_t length = utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(octets.data()),
                                                 static_cast<utf8proc_ssize_t>(octets.size()), &folded, options);
    if (length == UTF8PROC_ERROR_NOMEM)
        throw Failure(ORVA_E_NO_MEMORY, "folding a text");
    if (length < 0)
        return octets;
    std::string out(reinterpret_cast<const char*>(folded), static_cast<std::size_t>(length));
    std::free(folded);
    return out;
}

ContactKeys contactKeys(const Profile& profile, const std::string& region, const Values& values)
{
    ContactKeys keys;
    std::string name;
    std::string email;
    bool anything = false;
    for (std::size_t i = 0; i < profile.fields().size() && i < values.size(); ++i) {
        const Field& field = profile.fields()[i];
        std::string text = isNumberField(field) ? numberKey(values[i], region) : foldedText(values[i]);
        anything = anything || !text.empty();
        keys.whole += text + between;
        if (text.empty())
            continue;
        if (field.kind == "Name")
            name = std::move(text);
        else if (field.kind == "Email")
            email = std::move(text);
        else if (isNumberField(field) &&
                 std::find(keys.numbers.begin(), keys.numbers.end(), text) == keys.numbers.end())
            keys.numbers.push_back(std::move(text));
    }
    if (!anything)
        keys.whole.clear();
    if (name.empty())
        return keys;
    name += between;
    for (const std::string& number : keys.numbers)
        keys.person.push_back(name + number);
    if (!email.empty())
        keys.person.push_back(name + between + email);
    return keys;
}

} // namespace orva
