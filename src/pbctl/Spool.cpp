#include "Spool.h"

#include <stdlib.h>
#include <strings.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "Sdk.h"

namespace pbctl
{

namespace
{

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

// True if all of it was copied.
bool copy(std::FILE* from, std::FILE* to)
{
    char buffer[65536];
    for (std::size_t got = 0; (got = std::fread(buffer, 1, sizeof buffer, from)) > 0;)
        if (std::fwrite(buffer, 1, got, to) != got)
            return false;
    return std::ferror(from) == 0 && std::fflush(to) == 0;
}

} // namespace

Spool::Spool(const std::string& argument, Way way) : m_path(argument), m_name(argument)
{
    if (argument != "-")
        return;
    m_name = way == Way::In ? "the standard input" : "the standard output";
    const char* const temporary = std::getenv("TMPDIR");
    std::string folder = std::string(temporary != nullptr && *temporary == '/' ? temporary : "/tmp") + "/pbctl-XXXXXX";
    if (::mkdtemp(folder.data()) == nullptr)
        throw SdkError("making a file for " + m_name, ORVA_E_STORE);
    m_folder = folder;
    m_path = folder + "/contacts";
    if (way == Way::Out)
        return;
    const File file(std::fopen(m_path.c_str(), "wb"), std::fclose);
    if (file && copy(stdin, file.get()))
        return;
    ::unlink(m_path.c_str());
    ::rmdir(m_folder.c_str());
    throw SdkError("reading " + m_name, ORVA_E_STORE);
}

Spool::~Spool()
{
    if (m_folder.empty())
        return;
    ::unlink(m_path.c_str());
    ::rmdir(m_folder.c_str());
}

bool Spool::looksLikeCards() const
{
    const File file(std::fopen(m_path.c_str(), "rb"), std::fclose);
    char begin[14 + 1] = "";
    if (!file || std::fread(begin, 1, sizeof begin - 1, file.get()) == 0)
        return false;
    const char* const text = begin + (static_cast<unsigned char>(begin[0]) == 0xEF ? 3 : 0);
    return ::strncasecmp(text, "BEGIN:VCARD", 11) == 0;
}

void Spool::send() const
{
    const File file(std::fopen(m_path.c_str(), "rb"), std::fclose);
    if (!file || !copy(file.get(), stdout))
        throw SdkError("writing to " + m_name, ORVA_E_STORE);
}

} // namespace pbctl
