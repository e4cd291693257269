#include "base/Sha256.h"

namespace orva
{

Sha256::Sha256()
{
    ::SHA256Init(&m_context);
}

void Sha256::add(std::string_view octets)
{
    ::SHA256Update(&m_context, reinterpret_cast<const unsigned char*>(octets.data()), octets.size());
}

std::string Sha256::hex()
{
    char digits[SHA256_DIGEST_STRING_LENGTH] = {};
    ::SHA256End(&m_context, digits);
    return digits;
}

std::string sha256Of(std::string_view octets)
{
    Sha256 digest;
    digest.add(octets);
    return digest.hex();
}

} // namespace orva
