#ifndef PBCTL_ARGUMENTS_H
#define PBCTL_ARGUMENTS_H

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace pbctl
{

// A command line that cannot be understood; what() says why.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// A command line taken apart as getopt_long does it: "--key value", "--key=value" and, for the options that have no
// value, "--key", each as short as it is clear; the rest are words. Behind "--" everything is a word. Options that
// people read, such as a group, are UTF-8; paths and words are what was given.
class Arguments
{
public:
    Arguments(int argc, char** argv);

    const std::vector<std::string>& words() const { return m_words; }
    bool has(const std::string& option) const { return m_options.count(option) != 0; }

    // The last value given, or `otherwise`.
    std::string value(const std::string& option, const std::string& otherwise = std::string()) const;

    // Every value given, in order.
    std::vector<std::string> values(const std::string& option) const;

    // UsageError unless there are so many words behind the command, and no option but these.
    void require(std::size_t atLeast, std::size_t atMost, const std::vector<std::string>& options) const;

    // The number of the memory that --memory names; the PC's without one.
    int memory() const;

private:
    std::vector<std::string> m_words;
    std::map<std::string, std::vector<std::string>> m_options;
};

// Text as UTF-8. A terminal sends it in the encoding of its locale, a script mostly in UTF-8; UsageError for what is
// neither.
std::string textIn(const std::string& argument);

// The identifier that a word names; UsageError for one that names none.
int identifierIn(const std::string& word);

} // namespace pbctl

#endif // PBCTL_ARGUMENTS_H
