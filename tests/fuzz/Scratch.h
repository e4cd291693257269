#ifndef TESTS_FUZZ_SCRATCH_H
#define TESTS_FUZZ_SCRATCH_H

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// Ends the program, in a way that a fuzzer takes for a finding, unless the condition holds.
#define MUST(condition)                                                                                                \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            std::fprintf(stderr, "%s:%d: not true: %s\n", __FILE__, __LINE__, #condition);                             \
            std::abort();                                                                                              \
        }                                                                                                              \
    } while (false)

namespace fuzz
{

// A file in memory that has a path.
class ScratchFile
{
public:
    ScratchFile(const std::uint8_t* data, std::size_t size) : m_file(memfd_create("input", MFD_CLOEXEC))
    {
        MUST(m_file >= 0);
        MUST(::write(m_file, data, size) == static_cast<ssize_t>(size));
    }
    ~ScratchFile() { close(m_file); }
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;

    std::string path() const { return "/proc/self/fd/" + std::to_string(m_file); }

private:
    int m_file;
};

} // namespace fuzz

#endif // TESTS_FUZZ_SCRATCH_H
