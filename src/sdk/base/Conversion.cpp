#include "base/Conversion.h"

#include <algorithm>
#include <cerrno>
#include <iconv.h>

namespace orva
{

namespace
{

// Input for which room is made at a time: a text of nothing but what cannot be converted comes back here for each.
constexpr std::size_t chunk = 4096;

const iconv_t noConversion = reinterpret_cast<iconv_t>(-1); // NOLINT: what iconv_open gives

} // namespace

Conversion::Conversion(const char* to, const char* from) : m_conversion(iconv_open(to, from)) {}

Conversion::~Conversion()
{
    if (usable())
        iconv_close(m_conversion);
}

bool Conversion::usable() const
{
    return m_conversion != noConversion;
}

bool Conversion::convert(std::string_view& in, std::string& out, bool* cut)
{
    while (!in.empty()) {
        char* from = const_cast<char*>(in.data()); // iconv's argument is not const and is not written through
        std::size_t fromLeft = in.size();
        const std::size_t before = out.size();
        out.resize(before + 2 * std::min(in.size(), chunk) + 16);
        char* to = out.data() + before;
        std::size_t toLeft = out.size() - before;
        const std::size_t result = iconv(m_conversion, &from, &fromLeft, &to, &toLeft);
        const int error = errno;
        out.resize(out.size() - toLeft);
        in.remove_prefix(in.size() - fromLeft);
        if (result != static_cast<std::size_t>(-1) || error == E2BIG)
            continue;
        if (error == EINVAL && cut != nullptr)
            *cut = true;
        return false;
    }
    return true;
}

void Conversion::restart()
{
    iconv(m_conversion, nullptr, nullptr, nullptr, nullptr);
}

} // namespace orva
