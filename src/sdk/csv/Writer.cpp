#include "csv/Writer.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

#include "base/Failure.h"
#include "base/OldFile.h"
#include "base/Unicode.h"

namespace orva
{

namespace
{

constexpr std::size_t bufferLength = 256U << 10;
constexpr const char* mark = "\xEF\xBB\xBF";

[[noreturn]] void fail(const char* what)
{
    throw Failure(ORVA_E_STORE, std::string(what) + ": " + std::strerror(errno));
}

std::string folderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

// The file that a path means: a symbolic link stays and what it points to is replaced.
std::string resolved(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    if (path.find('*', slash == std::string::npos ? 0 : slash) != std::string::npos)
        throw Failure(ORVA_E_ARGUMENT, "a pattern is no name of a file");
    struct stat state = {};
    if (stat(path.c_str(), &state) != 0)
        return path;
    if (!S_ISREG(state.st_mode))
        throw Failure(ORVA_E_STORE, "the target is no regular file");
    char* real = realpath(path.c_str(), nullptr);
    if (real == nullptr)
        fail("cannot resolve");
    std::string out = real;
    std::free(real);
    return out;
}

// Characters for which a column needs its quotes, also the separators of other settings.
constexpr std::array<bool, 256> quotedCharacters()
{
    std::array<bool, 256> table{};
    for (const char c : {'"', ',', ';', '\t', '\r', '\n'})
        table[static_cast<unsigned char>(c)] = true;
    return table;
}

constexpr std::array<bool, 256> quoted = quotedCharacters();

// Blanks at the ends count, too: readers take them away.
bool needsQuotes(std::string_view text)
{
    if (text.empty())
        return false;
    return text.front() == ' ' || text.back() == ' ' ||
           std::any_of(text.begin(), text.end(), [](char c) { return quoted[static_cast<unsigned char>(c)]; });
}

} // namespace

Writer::Writer(const std::string& path) : m_path(resolved(path))
{
    std::random_device random;
    for (int attempt = 0; m_file < 0 && attempt < 100; ++attempt) {
        m_unfinished = m_path + "." + std::to_string(random()) + ".tmp";
        m_file = open(m_unfinished.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
        if (m_file < 0 && errno != EEXIST)
            fail("cannot create");
    }
    if (m_file < 0)
        fail("cannot create");
    struct stat old = {};
    if (stat(m_path.c_str(), &old) == 0)
        fchmod(m_file, old.st_mode & 0777U);
    m_buffer.reserve(bufferLength + (64U << 10));
    m_buffer = mark;
}

Writer::~Writer()
{
    if (m_file >= 0) {
        close(m_file);
        unlink(m_unfinished.c_str());
    }
}

void Writer::column(std::u16string_view text)
{
    beginColumn();
    const std::size_t begin = m_buffer.size();
    appendUtf8(text, m_buffer);
    quoteFrom(begin);
}

void Writer::column(std::string_view utf8)
{
    beginColumn();
    const std::size_t begin = m_buffer.size();
    m_buffer.append(utf8);
    quoteFrom(begin);
}

void Writer::beginColumn()
{
    if (m_columns++ > 0)
        m_buffer.push_back(',');
}

void Writer::quoteFrom(std::size_t begin)
{
    const std::string_view text = std::string_view(m_buffer).substr(begin);
    m_rowHasText = m_rowHasText || !text.empty();
    if (!needsQuotes(text))
        return;
    m_scratch = "\"";
    for (const char c : text) {
        if (c == '"')
            m_scratch.push_back('"');
        m_scratch.push_back(c);
    }
    m_scratch.push_back('"');
    m_buffer.replace(begin, std::string::npos, m_scratch);
}

void Writer::endRow()
{
    // A row of one empty column would be a blank line, which is no row.
    if (m_columns == 1 && !m_rowHasText)
        m_buffer += "\"\"";
    m_buffer += "\r\n";
    m_columns = 0;
    m_rowHasText = false;
    if (m_buffer.size() >= bufferLength)
        flush();
}

void Writer::flush()
{
    std::string_view left = m_buffer;
    while (!left.empty()) {
        const ssize_t written = write(m_file, left.data(), left.size());
        if (written < 0 && errno != EINTR)
            fail("cannot write");
        left.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(written, 0)));
    }
    m_buffer.clear();
}

void Writer::commit()
{
    flush();
    if (fsync(m_file) != 0)
        fail("cannot write");
    keepOldFile(m_path);
    const int file = m_file;
    m_file = -1;
    if (close(file) != 0 || rename(m_unfinished.c_str(), m_path.c_str()) != 0) {
        const int error = errno;
        unlink(m_unfinished.c_str());
        errno = error;
        fail("cannot write");
    }
    const int folder = open(folderOf(m_path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0) { // some file systems refuse this for a folder; the name is then safe a little later
        fsync(folder);
        close(folder);
    }
}

} // namespace orva
