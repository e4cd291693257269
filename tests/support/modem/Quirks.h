#ifndef TESTS_SUPPORT_MODEM_QUIRKS_H
#define TESTS_SUPPORT_MODEM_QUIRKS_H

#include <map>
#include <string>
#include <vector>

namespace modemsim
{

// What a quirk leaves possible to a program that wants to read the phonebook.
enum class QuirkKind {
    Reading,  // the same entries can be read, whatever the trouble
    Writing,  // reading is not touched, writing is
    Different // what can be read is not the same: characters or lengths are lost, time passes
};

struct QuirkInfo {
    const char* name;
    const char* sample; // a value that makes sense, "" for a switch
    QuirkKind kind;
    const char* what;
};

// All quirks that the simulated modem can play, for tests that walk them and for --help.
const std::vector<QuirkInfo>& knownQuirks();

// The quirks that are switched on, each with its value. An unknown name throws std::invalid_argument.
class Quirks
{
public:
    Quirks() = default;
    // "no_space", "first_index=101"; several at once behind each other.
    Quirks(std::initializer_list<const char*> settings);
    void set(const std::string& setting);
    void clear(const std::string& name);
    bool has(const char* name) const;
    int number(const char* name, int without) const;
    std::string text(const char* name) const;

private:
    std::map<std::string, std::string> m_values;
};

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_QUIRKS_H
