#ifndef TESTS_SUPPORT_CHECK_H
#define TESTS_SUPPORT_CHECK_H

// Just enough of a test frame for programs without Qt. A test is a function named after a behaviour:
//
//     TEST(emptyTextHasNoLength) { CHECK_EQ(alphaLength(u""), 0); }
//     CHECK_MAIN
//
// CHECK and CHECK_EQ report and go on, REQUIRE leaves the test. An argument on the command line runs the tests whose
// name holds it.

#include <cstdio>
#include <cstring>
#include <exception>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace check
{

struct Case {
    const char* name;
    void (*body)();
};

struct Abandoned {
};

inline std::vector<Case>& cases()
{
    static std::vector<Case> all;
    return all;
}

inline int& failures()
{
    static int count = 0;
    return count;
}

struct Registration {
    Registration(const char* name, void (*body)()) { cases().push_back({name, body}); }
};

inline void report(const char* file, int line, const std::string& text)
{
    ++failures();
    std::fprintf(stderr, "%s:%d: %s\n", file, line, text.c_str());
}

// Text is shown with everything but plain ASCII escaped, so that a wrong character can be told.
inline std::string shown(std::string_view text)
{
    std::string out = "\"";
    for (const char c : text) {
        char escaped[8];
        if (c >= ' ' && c < 0x7F) {
            out += c;
        } else {
            std::snprintf(escaped, sizeof escaped, "\\x%02X", static_cast<unsigned char>(c));
            out += escaped;
        }
    }
    return out + '"';
}

inline std::string shown(std::u16string_view text)
{
    std::string out = "u\"";
    for (const char16_t c : text) {
        char escaped[8];
        if (c >= u' ' && c < 0x7F) {
            out += static_cast<char>(c);
        } else {
            std::snprintf(escaped, sizeof escaped, "\\u%04X", static_cast<unsigned>(c));
            out += escaped;
        }
    }
    return out + '"';
}

template <typename T>
std::string show(const T& value)
{
    if constexpr (std::is_convertible_v<T, std::string_view>) {
        return shown(std::string_view(value));
    } else if constexpr (std::is_convertible_v<T, std::u16string_view>) {
        return shown(std::u16string_view(value));
    } else if constexpr (std::is_enum_v<T>) {
        return std::to_string(static_cast<long long>(value));
    } else {
        std::ostringstream out;
        out << std::boolalpha << value;
        return out.str();
    }
}

template <typename A, typename B>
bool equal(const A& actual, const B& expected, const char* text, const char* file, int line)
{
    if (actual == expected)
        return true;
    report(file, line, std::string(text) + ": " + show(actual) + ", expected " + show(expected));
    return false;
}

inline int runAll(int argc, char** argv)
{
    int ran = 0;
    for (const Case& test : cases()) {
        if (argc > 1 && std::strstr(test.name, argv[1]) == nullptr)
            continue;
        ++ran;
        const int before = failures();
        try {
            test.body();
        } catch (const Abandoned&) {
        } catch (const std::exception& e) {
            report(test.name, 0, std::string("left by an exception: ") + e.what());
        }
        std::printf("%s %s\n", failures() == before ? "PASS" : "FAIL", test.name);
        std::fflush(stdout);
    }
    std::printf("%d tests, %d failures\n", ran, failures());
    return ran > 0 && failures() == 0 ? 0 : 1;
}

} // namespace check

#define TEST(name)                                                                                                     \
    static void test_##name();                                                                                         \
    static const check::Registration registration_##name(#name, test_##name);                                          \
    static void test_##name()

#define CHECK(condition)                                                                                               \
    do {                                                                                                               \
        if (!(condition))                                                                                              \
            check::report(__FILE__, __LINE__, "not true: " #condition);                                                \
    } while (false)

#define CHECK_EQ(actual, expected) check::equal((actual), (expected), #actual, __FILE__, __LINE__)

#define REQUIRE(condition)                                                                                             \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            check::report(__FILE__, __LINE__, "not true: " #condition);                                                \
            throw check::Abandoned();                                                                                  \
        }                                                                                                              \
    } while (false)

#define CHECK_MAIN                                                                                                     \
    int main(int argc, char** argv)                                                                                    \
    {                                                                                                                  \
        return check::runAll(argc, argv);                                                                              \
    }

#endif // TESTS_SUPPORT_CHECK_H
