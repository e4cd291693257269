#ifndef TESTS_SUPPORT_MODEM_COMMANDLINE_H
#define TESTS_SUPPORT_MODEM_COMMANDLINE_H

#include <string>
#include <vector>

namespace modemsim
{

struct Field {
    std::string text;
    bool quoted = false;
    bool given = false;
};

// One command of a line: "+CPBR=1,20" has the name "+CPBR", the form Set and two fields.
struct Command {
    enum Form { Run, Read, Test, Set };
    std::string name; // upper case
    Form form = Run;
    std::string value; // behind '=' or, for basic commands, behind the letter
    std::vector<Field> fields;

    // The field at a place, an empty one if it is not there.
    Field field(size_t place) const;
    int number(size_t place, int without) const;
    std::string text() const; // as it came, with "AT" before it
};

// The commands of a line that begins with AT (V.250, 5.2.1); empty for "AT" alone.
std::vector<Command> parseLine(const std::string& line);
std::vector<Field> splitFields(const std::string& value);

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_COMMANDLINE_H
