#ifndef SDK_BASE_EMAILTEXT_H
#define SDK_BASE_EMAILTEXT_H

#include <algorithm>
#include <string_view>

namespace orva
{

// Whether a text may stand in a field for an e-mail address: the form for contacts would let no other be saved.
inline bool isEmailText(std::u16string_view text)
{
    return text.empty() || (text.find(u'@') != std::u16string_view::npos &&
                            std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit < 0x80; }));
}

} // namespace orva

#endif // SDK_BASE_EMAILTEXT_H
