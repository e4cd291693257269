#ifndef SDK_BASE_HEX_H
#define SDK_BASE_HEX_H

namespace orva
{

// The value of a hexadecimal digit in either case; -1 for any other character.
constexpr int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

} // namespace orva

#endif // SDK_BASE_HEX_H
