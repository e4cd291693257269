#include "support/modem/CommandLine.h"

#include <cctype>
#include <cstdlib>
#include <cstring>

namespace modemsim
{

std::vector<Field> splitFields(const std::string& value)
{
    std::vector<Field> fields(1);
    bool quoted = false;
    for (const char c : value) {
        Field& last = fields.back();
        if (c == '"') {
            quoted = !quoted;
            last.quoted = last.given = true;
        } else if (c == ',' && !quoted) {
            fields.emplace_back();
        } else if (quoted || c != ' ') {
            last.text += c;
            last.given = true;
        }
    }
    return fields;
}

Field Command::field(size_t place) const
{
    return place < fields.size() ? fields[place] : Field();
}

int Command::number(size_t place, int without) const
{
    const Field found = field(place);
    return found.given ? std::atoi(found.text.c_str()) : without;
}

std::string Command::text() const
{
    static const char* const marks[] = {"", "?", "=?", "="};
    const bool basic = std::isalpha(static_cast<unsigned char>(name[0])) || name[0] == '&';
    return "AT" + name + (basic && form == Set ? "" : marks[form]) + (form == Set ? value : std::string());
}

// Where an extended command ends: at a semicolon outside of quotation marks.
static size_t endOf(const std::string& line, size_t from)
{
    bool quoted = false;
    for (size_t i = from; i < line.size(); ++i) {
        if (line[i] == '"')
            quoted = !quoted;
        else if (line[i] == ';' && !quoted)
            return i;
    }
    return line.size();
}

static Command extended(const std::string& text)
{
    Command command;
    const size_t mark = text.find_first_of("=?");
    for (const char c : text.substr(0, mark))
        command.name += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    if (mark == std::string::npos)
        return command;
    const std::string rest = text.substr(mark);
    if (rest == "?") {
        command.form = Command::Read;
    } else if (rest == "=?") {
        command.form = Command::Test;
    } else {
        command.form = Command::Set;
        command.value = rest.substr(1);
        command.fields = splitFields(command.value);
    }
    return command;
}

static Command basic(const std::string& line, size_t& at)
{
    Command command;
    command.name += static_cast<char>(std::toupper(static_cast<unsigned char>(line[at++])));
    if (command.name == "&" && at < line.size())
        command.name += static_cast<char>(std::toupper(static_cast<unsigned char>(line[at++])));
    size_t end = at;
    if (command.name == "D") {
        end = line.find(';', at);
        end = end == std::string::npos ? line.size() : end + 1;
    } else {
        while (end < line.size() && (std::isdigit(static_cast<unsigned char>(line[end])) ||
                                     (command.name == "S" && std::strchr("=?", line[end]) != nullptr)))
            ++end;
    }
    command.value = line.substr(at, end - at);
    if (!command.value.empty())
        command.form = Command::Set;
    at = end;
    return command;
}

std::vector<Command> parseLine(const std::string& line)
{
    std::vector<Command> commands;
    for (size_t at = 2; at < line.size();) {
        if (line[at] == ' ' || line[at] == ';') {
            ++at;
        } else if (std::isalpha(static_cast<unsigned char>(line[at])) || line[at] == '&') {
            commands.push_back(basic(line, at));
        } else {
            const size_t end = endOf(line, at);
            commands.push_back(extended(line.substr(at, end - at)));
            at = end;
        }
    }
    return commands;
}

} // namespace modemsim
