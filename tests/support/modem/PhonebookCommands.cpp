#include "support/modem/Commands.h"
#include "support/modem/Text.h"

#include <algorithm>

namespace modemsim
{

namespace
{

// Names in a list, as +CPBS=? and +CSCS=? give them.
std::string listed(State& state, size_t port, const std::vector<std::string>& names)
{
    const bool inHex = state.quirks.has("ucs2_memory");
    std::string list;
    for (const std::string& name : names)
        list += (list.empty() ? "" : ",") + (inHex ? quoted(state, port, name) : '"' + name + '"');
    if (state.quirks.has("no_parens"))
        return list;
    return state.quirks.has("double_parens") ? "((" + list + "))" : '(' + list + ')';
}

// A name that a client gives; in UCS2 some modems take it in hex alone, and all of them take it so.
std::string givenName(State& state, size_t port, const std::string& text)
{
    std::string bytes;
    if (state.charset(port) != "UCS2")
        return text;
    if (text.size() >= 4 && fromHex(text, bytes))
        return decode(text, "UCS2");
    return state.quirks.has("ucs2_memory") ? std::string() : text;
}

std::vector<std::string> offeredCharsets(const State& state)
{
    std::vector<std::string> all;
    std::string text = state.quirks.has("charsets") ? state.quirks.text("charsets") : "GSM/IRA/UCS2/UTF-8/8859-1";
    for (size_t at = 0; at <= text.size();) {
        const size_t end = std::min(text.find('/', at), text.size());
        all.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    return all;
}

Answer charset(State& state, size_t port, const Command& command)
{
    std::string& chosen = state.charset(port);
    if (command.form == Command::Test)
        return Answer("+CSCS: " + listed(state, port, offeredCharsets(state)));
    if (command.form == Command::Read)
        return Answer("+CSCS: " + (state.quirks.has("ucs2_memory") ? quoted(state, port, chosen) : '"' + chosen + '"'));
    const std::string name = givenName(state, port, command.field(0).text);
    const std::vector<std::string> offered = offeredCharsets(state);
    if (command.form != Command::Set || std::find(offered.begin(), offered.end(), name) == offered.end())
        return cme(NotSupported);
    if (name != "UCS2" || !state.quirks.has("ucs2_ignored"))
        chosen = name;
    return Answer();
}

Answer select(State& state, size_t port, const Command& command)
{
    std::string& chosen = state.selectedStorage(port);
    if (state.quirks.has("no_phonebook"))
        return cme(NotSupported);
    if (command.form == Command::Test)
        return Answer("+CPBS: " + listed(state, port, state.storageNames()));
    if (command.form == Command::Read) {
        const Storage* storage = state.storage(chosen);
        if (storage == nullptr || state.quirks.has("cpbs_error"))
            return cme(NotAllowed);
        if (const int trouble = state.storageTrouble(*storage))
            return cme(trouble);
        const std::string name =
            "+CPBS: " + (state.quirks.has("ucs2_memory") ? quoted(state, port, chosen) : '"' + chosen + '"');
        if (state.quirks.has("cpbs_short"))
            return Answer(name);
        return Answer(name + ',' + std::to_string(storage->used()) + ',' + std::to_string(storage->total()));
    }
    const Storage* storage = state.storage(givenName(state, port, command.field(0).text));
    if (command.form != Command::Set || storage == nullptr)
        return cme(NotAllowed);
    if (storage->name() == "SM" && state.quirks.has("fdn_on"))
        return cme(NotAllowed);
    if (const int trouble = state.storageTrouble(*storage))
        return cme(trouble);
    chosen = storage->name();
    return Answer();
}

int firstShown(const State& state)
{
    return state.quirks.number("first_index", 1);
}

std::string testLine(const State& state, const Storage& storage)
{
    const std::string form = state.quirks.text("cpbr_test");
    const int first = firstShown(state);
    const int last = first - 1 + (form == "used" ? std::max(storage.lastUsed(), 1) : storage.total());
    const std::string range = std::to_string(first) + '-' + std::to_string(last);
    const std::string lengths = std::to_string(storage.numberLength()) + ',' + std::to_string(storage.textLength());
    if (form == "bare")
        return "+CPBR: " + range + ',' + lengths;
    if (form == "sharp")
        return "+CPBR: ()," + lengths;
    if (form == "nolen")
        return "+CPBR: (" + range + "),,";
    if (form == "short")
        return "+CPBR: (" + range + ')';
    if (form == "extra")
        return "+CPBR: (" + range + ")," + lengths + ",0,16,255";
    if (form == "full")
        return "+CPBR: (" + range + ")," + lengths + ",16,18,40,255,255";
    if (form == "tight")
        return "+CPBR:(" + range + ")," + lengths;
    return "+CPBR: (" + range + ")," + lengths;
}

// The name as the line has it, in quotation marks where the modem gives them.
std::string nameField(const State& state, const std::string& charset, const std::string& name)
{
    const Quirks& quirks = state.quirks;
    std::string text = name;
    if (quirks.has("utf8_anyway"))
        return '"' + text + '"';
    if (charset == "UCS2") {
        text = encode(text, charset) + (quirks.has("ffff") && !text.empty() ? "FFFF" : "");
        if (quirks.has("lower_hex"))
            std::transform(text.begin(), text.end(), text.begin(), [](char c) { return c < 'A' ? c : c | 0x20; });
        return quirks.has("unquoted_hex") ? text : '"' + text + '"';
    }
    std::string septets;
    if (quirks.has("raw_alpha") && !toGsm(fromUtf8(text), septets))
        return '"' + toHex(toAlpha(fromUtf8(text))) + '"';
    text = encode(text, charset);
    if (!quirks.has("escape_quotes"))
        return '"' + text + '"';
    std::string escaped;
    for (const char c : text)
        escaped += c == '"' ? "\\22" : c == '\\' ? "\\5C" : std::string(1, c);
    return '"' + escaped + '"';
}

std::string tailFields(const Quirks& quirks, const Entry& entry)
{
    const std::string tail = quirks.text("tail");
    if (tail == "zero")
        return ",0";
    if (tail == "commas")
        return ",,,,,,,";
    if (tail == "date")
        return ",\"2007/11/02,09:27\"";
    return entry.hiddenFields;
}

std::string entryLine(State& state, size_t port, const Entry& entry)
{
    const Quirks& quirks = state.quirks;
    const std::string& charset = state.charset(port);
    const bool plus = !entry.number.empty() && entry.number[0] == '+';
    std::string number = quirks.has("strip_plus") && plus ? entry.number.substr(1) : entry.number;
    if (charset == "UCS2" && quirks.has("ucs2_number"))
        number = encode(number, charset);
    const std::string comma = quirks.has("comma_space") ? ", " : ",";
    return "+CPBR: " + std::to_string(entry.location - 1 + firstShown(state)) +
           (quirks.text("tail") == "before" ? comma + "\"\"" : "") + comma + '"' + number + '"' + comma +
           (quirks.has("no_type") ? ""
            : plus                ? "145"
                                  : "129") +
           comma + nameField(state, charset, entry.name) + tailFields(quirks, entry);
}

// The lines of a range of locations, counted from 1.
Answer readRange(State& state, size_t port, const Storage& storage, int from, int to)
{
    const Quirks& quirks = state.quirks;
    Answer answer;
    int hits = 0;
    int time = quirks.number("read_ms", 0);
    for (int location = from; location <= to; ++location) {
        if (location == quirks.number("stall_at", 0)) {
            answer.stalls = true;
            return answer;
        }
        const Entry* entry = storage.find(location);
        time += state.plan.entryMs;
        Entry empty;
        empty.location = location;
        if (entry == nullptr && !quirks.has("empty_lines"))
            continue;
        for (int times = quirks.has("twice") ? 2 : 1; times > 0; --times)
            answer.add(entryLine(state, port, entry != nullptr ? *entry : empty), time);
        time = 0;
        hits += entry != nullptr ? 1 : 0;
        if (quirks.has("first_hits") && hits >= quirks.number("first_hits", 1))
            break;
    }
    answer.milliseconds = time;
    if (answer.lines.empty() && quirks.has("empty_error")) {
        answer.final = Answer::CmeError;
        answer.code = quirks.number("empty_error", NotFound);
    }
    return answer;
}

Answer read(State& state, size_t port, const Command& command)
{
    const Quirks& quirks = state.quirks;
    const Storage* storage = state.storage(state.selectedStorage(port));
    if (quirks.has("no_phonebook"))
        return cme(NotSupported);
    if (storage == nullptr)
        return cme(NotAllowed);
    if (const int trouble = state.storageTrouble(*storage))
        return cme(trouble);
    if (command.form == Command::Test)
        return quirks.text("cpbr_test") == "error" ? cme(NotSupported) : Answer(testLine(state, *storage));
    if (command.form != Command::Set || !command.field(0).given)
        return cme(BadParameters);
    const int shift = firstShown(state) - 1;
    const int from = command.number(0, 0) - shift;
    const int to = command.number(1, command.number(0, 0)) - shift;
    const int announced = quirks.text("cpbr_test") == "used" ? std::max(storage->lastUsed(), 1) : storage->total();
    const int readable = quirks.has("max_index") ? std::min(announced, quirks.number("max_index", 255)) : announced;
    if (quirks.has("max_range") && to - from + 1 > quirks.number("max_range", 1))
        return cme(NotAllowed);
    const bool outside = from < 1 || from > readable || to < from || to > readable;
    if (outside && !quirks.has("range_any_ok") && !(quirks.has("late_range_error") && from >= 1))
        return cme(InvalidIndex);
    Answer answer = readRange(state, port, *storage, std::max(from, 1), std::min(to, readable));
    if (outside && quirks.has("late_range_error")) {
        answer.final = Answer::CmeError;
        answer.code = InvalidIndex;
    }
    return answer;
}

Answer erase(const State& state, Storage& storage, int location)
{
    Answer answer;
    answer.milliseconds = state.plan.writeMs;
    if (!storage.remove(location) && state.quirks.has("delete_empty_error"))
        return cme(state.quirks.number("delete_empty_error", NotFound));
    return answer;
}

// What the fields of +CPBW say, in the port's character set.
Entry givenEntry(State& state, size_t port, const Command& command)
{
    const std::string& charset = state.charset(port);
    Entry entry;
    entry.number = command.field(1).text;
    if (charset == "UCS2" && state.quirks.has("ucs2_number"))
        entry.number = decode(entry.number, charset);
    if (command.number(2, 129) == 145 && !entry.number.empty() && entry.number[0] != '+')
        entry.number = '+' + entry.number;
    entry.name = decode(command.field(3).text, charset);
    for (size_t i = 4; i < command.fields.size(); ++i) {
        const Field& field = command.fields[i];
        entry.hiddenFields += ',' + (field.quoted ? '"' + field.text + '"' : field.text);
    }
    return entry;
}

Answer writeTestLine(const State& state, const Storage& storage)
{
    const int first = firstShown(state);
    return Answer("+CPBW: (" + std::to_string(first) + '-' + std::to_string(first - 1 + storage.total()) + ")," +
                  std::to_string(storage.numberLength()) + ",(129,145,161)," + std::to_string(storage.textLength()));
}

Answer write(State& state, size_t port, const Command& command)
{
    const Quirks& quirks = state.quirks;
    Storage* storage = state.storage(state.selectedStorage(port));
    if (quirks.has("no_phonebook") || quirks.has("no_write"))
        return cme(NotSupported);
    if (storage == nullptr)
        return cme(NotAllowed);
    if (const int trouble = state.storageTrouble(*storage))
        return cme(trouble);
    if (command.form == Command::Test)
        return writeTestLine(state, *storage);
    // Lists of calls can be emptied, not written.
    const bool erasing = command.fields.size() == 1;
    if (command.form != Command::Set || (storage->readOnly() && storage->name() != "FD" && !erasing))
        return cme(NotAllowed);
    if (storage->name() == "FD" && !state.card->pin2Verified)
        return cme(Pin2Needed);
    const bool located = command.field(0).given;
    if (!located && quirks.has("no_index_write"))
        return cme(InvalidIndex);
    int location = located ? command.number(0, 0) - firstShown(state) + 1 : storage->firstFree();
    if (location == 0 && !located)
        return cme(MemoryFull);
    if (location < 1 || location > storage->total())
        return cme(InvalidIndex);
    if (erasing && quirks.text("write_other") == "all")
        location = location % storage->total() + 1;
    if (erasing)
        return quirks.has("write_lost") ? Answer() : erase(state, *storage, location);
    Entry entry = givenEntry(state, port, command);
    if (const int error = storage->fit(entry, quirks))
        return cme(error);
    if (quirks.has("write_other"))
        location = location % storage->total() + 1;
    entry.location = location;
    if (!quirks.has("write_lost"))
        storage->put(entry);
    Answer answer;
    if (quirks.has("written_index"))
        answer.add("+CPBW: " + std::to_string(location - 1 + firstShown(state)));
    answer.milliseconds = state.plan.writeMs;
    return answer;
}

Answer find(State& state, size_t port, const Command& command)
{
    const Storage* storage = state.storage(state.selectedStorage(port));
    if (storage == nullptr)
        return cme(NotAllowed);
    if (const int trouble = state.storageTrouble(*storage))
        return cme(trouble);
    if (command.form != Command::Set)
        return Answer("+CPBF: " + std::to_string(storage->numberLength()) + ',' +
                      std::to_string(storage->textLength()));
    const std::string wanted = decode(command.field(0).text, state.charset(port));
    Answer answer;
    for (const Entry& entry : storage->entries()) {
        if (entry.name.compare(0, wanted.size(), wanted) == 0)
            answer.add("+CPBF" + entryLine(state, port, entry).substr(5));
    }
    return answer.lines.empty() ? cme(NotFound) : answer;
}

} // namespace

const Handlers& phonebookHandlers()
{
    static const Handlers all = {
        {"+CSCS", charset}, {"+CPBS", select}, {"+CPBR", read}, {"+CPBW", write}, {"+CPBF", find}};
    return all;
}

} // namespace modemsim
