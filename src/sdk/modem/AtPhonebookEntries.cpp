// Reading and writing entries.

#include <algorithm>
#include <utility>

#include "base/Log.h"
#include "base/Text.h"
#include "modem/AtPhonebook.h"

namespace orva
{

namespace
{

constexpr int international = 145;
constexpr int unknownType = 129;
constexpr int smallerStep = 20;
constexpr int smallStep = 10;
constexpr int stallsAllowed = 8; // of one reading; each takes all of the patience

bool meansEmpty(int error)
{
    switch (error) {
    case cme::none:
    case cme::notAllowed:
    case cme::badIndex:
    case cme::notFound:
    case cme::memoryFailure:
    case cme::badParameters:
    case cme::unknown:
        return true;
    default:
        return false;
    }
}

int nextStep(int step)
{
    return step > smallerStep ? smallerStep : step > smallStep ? smallStep : 1;
}

bool tellsOf(const Reply& reply, int location)
{
    return std::any_of(reply.lines.begin(), reply.lines.end(), [location](const std::string& line) {
        const std::optional<EntryLine> entry = readEntryLine(line);
        return entry && entry->location == location;
    });
}

// Whether `part` is what is left of `whole` when its end is cut off.
template <typename Text>
bool cutOff(const Text& part, const Text& whole)
{
    return part.size() < whole.size() && whole.compare(0, part.size(), part) == 0;
}

} // namespace

std::string cleanNumber(std::string_view number)
{
    std::string clean;
    for (const char c : number) {
        if ((c >= '0' && c <= '9') || c == '+' || c == '*' || c == '#')
            clean.push_back(c);
        else if (c == 'p' || c == 'P' || c == ',')
            clean.push_back('p');
        else if (c == 'w' || c == 'W' || c == ';')
            clean.push_back('w');
    }
    return clean;
}

// ---- Reading

struct AtPhonebook::Reading {
    const PhonebookStorage& storage;
    const std::function<void(int)>& progress;
    std::map<int, EntryLine> found = {};         // by location
    std::vector<std::pair<int, int>> asked = {}; // ranges that came through with an OK
    int stalls = 0;                              // answers that did not come to their end
    bool failed = false;                         // a location could not be read, and may hold something

    bool complete() const { return storage.used >= 0 && static_cast<int>(found.size()) >= storage.used; }
};

PhonebookEntry AtPhonebook::entryFrom(const EntryLine& line) const
{
    PhonebookEntry entry;
    entry.location = line.location;
    entry.alpha = textFrom(line.text, m_set);
    std::string number = line.number;
    if (m_set == CharacterSet::Ucs2 && m_numbersInHex.value_or(false))
        number = asciiOfHexUcs2(number).value_or(number);
    entry.number = cleanNumber(number);
    if (line.type == international && !entry.number.empty() && entry.number.front() != '+')
        entry.number.insert(entry.number.begin(), '+');
    entry.tail = line.tail;
    return entry;
}

// In UCS2 some code numbers as they code names. One number that cannot be that tells for all.
void AtPhonebook::learnNumbers(const std::vector<EntryLine>& lines)
{
    if (m_set != CharacterSet::Ucs2)
        return;
    bool any = false;
    for (const EntryLine& line : lines) {
        if (line.number.empty())
            continue;
        any = true;
        const std::optional<std::string> spelt = asciiOfHexUcs2(line.number);
        if (!spelt || spelt->find_first_not_of("0123456789+*#pPwW,;?") != std::string::npos) {
            m_numbersInHex = false;
            return;
        }
    }
    if (any && !m_numbersInHex)
        m_numbersInHex = true;
}

// Asks for one range; false if it has to be asked for in smaller steps.
bool AtPhonebook::readStep(Reading& reading, int from, int to)
{
    std::string command = "+CPBR=" + std::to_string(from);
    if (to > from)
        command += "," + std::to_string(to);
    Reply reply = askStorage(reading.storage.name, command, "+CPBR", m_dialog.patience().read);
    // A location whose line has come is read, whatever became of the end.
    while (reply.silent() && !(from == to && tellsOf(reply, from))) {
        requireCard(reply);
        takeLines(reading, reply, from, to);
        ++reading.stalls;
        if (reading.complete())
            return true;
        if (reading.stalls > stallsAllowed)
            throw Failure(ORVA_E_BUSY, "the modem falls silent in the middle of its entries");
        if (to > from)
            return false;
        reply = askStorage(reading.storage.name, command, "+CPBR", m_dialog.patience().read);
    }
    requireCard(reply);
    takeLines(reading, reply, from, to);
    if (reply.end != Reply::End::Error) {
        reading.asked.emplace_back(from, to);
        return true;
    }
    if (from == to && !meansEmpty(reply.error))
        throw failureFor(reply.error, "reading an entry");
    reading.failed =
        reading.failed || (from == to && (reply.error == cme::memoryFailure || reply.error == cme::unknown));
    return from == to || reading.complete();
}

void AtPhonebook::takeLines(Reading& reading, const Reply& reply, int from, int to)
{
    for (const std::string& line : reply.lines) {
        std::optional<EntryLine> entry = readEntryLine(line);
        if (entry && !entry->empty() && entry->location >= from && entry->location <= to)
            reading.found.insert_or_assign(entry->location, std::move(*entry));
    }
    if (reading.progress)
        reading.progress(static_cast<int>(reading.found.size()));
}

void AtPhonebook::readStepwise(Reading& reading, int from, int to)
{
    for (int at = from; at <= to;) {
        const int end = std::min(to, at + m_step - 1);
        const int stalls = reading.stalls;
        if (readStep(reading, at, end)) {
            if (reading.complete() && (m_step == 1 || reading.stalls > 0))
                return;
            at = end + 1;
            continue;
        }
        // What came before an error counts; behind it, in smaller steps. After a silence all is asked for again.
        const auto behind = reading.found.upper_bound(end);
        if (reading.stalls == stalls && behind != reading.found.begin() && std::prev(behind)->first >= at)
            at = std::prev(behind)->first + 1;
        m_step = nextStep(m_step);
    }
}

// Some answer with the first few entries of a range and a plain OK.
void AtPhonebook::readBehind(Reading& reading)
{
    const std::vector<std::pair<int, int>> ranges = reading.asked;
    for (auto [from, to] : ranges) {
        for (;;) {
            if (reading.complete())
                return;
            const auto behind = reading.found.upper_bound(to);
            if (behind == reading.found.begin() || std::prev(behind)->first < from)
                break;
            from = std::prev(behind)->first + 1;
            if (from > to)
                break;
            const std::size_t before = reading.found.size();
            const int stalls = reading.stalls;
            const bool through = readStep(reading, from, to);
            if (!through && reading.stalls > stalls) {
                m_step = nextStep(m_step);
                readStepwise(reading, from, to);
            }
            if (!through || reading.found.size() == before)
                break;
        }
    }
}

std::vector<PhonebookEntry> AtPhonebook::readAll(const PhonebookStorage& storage,
                                                 const std::function<void(int)>& progress)
{
    Reading reading{storage, progress};
    m_step = 50;
    readStepwise(reading, storage.first, storage.last);
    if (!reading.complete())
        readBehind(reading);
    const bool fewer = storage.used >= 0 && !reading.complete();
    if (fewer && reading.failed)
        throw Failure(ORVA_E_STORE, "the modem fails at one of its entries");
    if (fewer && reading.stalls > 0)
        throw Failure(ORVA_E_BUSY, "the modem has fallen silent and gives fewer entries than it counts");
    if (fewer)
        logFormat("the modem counts %d entries in %s and gives %d", storage.used, storage.name.c_str(),
                  static_cast<int>(reading.found.size()));
    std::vector<EntryLine> lines;
    for (const auto& [location, line] : reading.found)
        lines.push_back(line);
    learnNumbers(lines);
    std::vector<PhonebookEntry> entries;
    entries.reserve(lines.size());
    for (const EntryLine& line : lines)
        entries.push_back(entryFrom(line));
    return entries;
}

std::optional<PhonebookEntry> AtPhonebook::read(const PhonebookStorage& storage, int location)
{
    for (int attempt = 0; attempt < 2; ++attempt) {
        const Reply reply =
            askStorage(storage.name, "+CPBR=" + std::to_string(location), "+CPBR", m_dialog.patience().read);
        requireCard(reply);
        if (reply.end == Reply::End::Error && !meansEmpty(reply.error))
            throw failureFor(reply.error, "reading an entry");
        for (const std::string& line : reply.lines) {
            const std::optional<EntryLine> entry = readEntryLine(line);
            if (!entry || entry->empty() || entry->location != location)
                continue;
            learnNumbers({*entry});
            return entryFrom(*entry);
        }
        if (!reply.silent())
            return std::nullopt;
    }
    throw Failure(ORVA_E_BUSY, "the modem keeps silent about an entry");
}

// ---- Writing

std::optional<std::string> AtPhonebook::writeCommand(const PhonebookStorage& storage, const PhonebookEntry& entry) const
{
    const std::optional<std::string> text = fieldFor(entry.alpha, m_set);
    if (!text)
        return std::nullopt;
    const bool hex = m_set == CharacterSet::Ucs2 && m_numbersInHex.value_or(false);
    const int type = !entry.number.empty() && entry.number.front() == '+' ? international : unknownType;
    return "+CPBW=" + std::to_string(entry.location) + ",\"" + (hex ? hexUcs2(entry.number) : entry.number) + "\"," +
           std::to_string(type) + ",\"" + *text + "\"" + (storage.furtherFields ? writableTail(entry.tail) : "");
}

Reply AtPhonebook::store(const PhonebookStorage& storage, const PhonebookEntry& entry)
{
    chooseCharacterSet();
    const std::optional<std::string> command = writeCommand(storage, entry);
    if (!command)
        throw Failure(ORVA_E_ARGUMENT, "the modem's character set has no such name");
    Reply reply = askStorage(storage.name, *command, "+CPBW", m_dialog.patience().write);
    const bool undecided = m_set == CharacterSet::Ucs2 && !m_numbersInHex;
    if (undecided && reply.end == Reply::End::Error && (reply.error == cme::badNumber || reply.error == cme::none)) {
        m_numbersInHex = true;
        reply = askStorage(storage.name, *writeCommand(storage, entry), "+CPBW", m_dialog.patience().write);
        if (!reply.ok())
            m_numbersInHex.reset();
    }
    return reply;
}

// A card that has failed at a write may have stored it all the same; any other trouble has kept the write from it.
void AtPhonebook::requireWritable(const Reply& reply)
{
    if (reply.end == Reply::End::Error && reply.error != cme::cardFailure)
        requireCard(reply);
}

// Behind a write, where a failure tells nothing of what has been done.
std::optional<PhonebookEntry> AtPhonebook::readBack(const PhonebookStorage& storage, int location)
{
    try {
        return read(storage, location);
    } catch (const PortGone&) {
        throw;
    } catch (const Failure& failure) {
        throw WriteUndecided(failure);
    }
}

void AtPhonebook::write(const PhonebookStorage& storage, const PhonebookEntry& entry,
                        const std::optional<PhonebookEntry>& before)
{
    const Reply reply = store(storage, entry);
    requireWritable(reply);
    compare(storage, entry, before, reply);
}

void AtPhonebook::proveWrite(const PhonebookStorage& storage, const PhonebookEntry& entry,
                             const std::optional<PhonebookEntry>& before)
{
    compare(storage, entry, before, Reply());
}

// What stands there decides, whatever the modem has said of the write.
void AtPhonebook::compare(const PhonebookStorage& storage, const PhonebookEntry& entry,
                          const std::optional<PhonebookEntry>& before, const Reply& reply)
{
    const std::optional<PhonebookEntry> stored = readBack(storage, entry.location);
    if (stored && stored->sameContent(entry))
        return;
    const bool unchanged = before ? stored && stored->sameContent(*before) : !stored;
    if (!unchanged)
        undo(storage, entry, stored, before);
    if (reply.end == Reply::End::Error)
        throw failureFor(reply.error, "writing an entry");
    throw Failure(ORVA_E_STORE, "the modem has not stored the entry");
}

void AtPhonebook::undo(const PhonebookStorage& storage, const PhonebookEntry& asked,
                       const std::optional<PhonebookEntry>& stored, const std::optional<PhonebookEntry>& before)
{
    if (before) {
        PhonebookEntry old = *before;
        old.location = asked.location;
        store(storage, old);
    } else {
        askStorage(storage.name, "+CPBW=" + std::to_string(asked.location), "+CPBW", m_dialog.patience().write);
    }
    const std::optional<PhonebookEntry> now = readBack(storage, asked.location);
    if (before ? !now || !now->sameContent(*before) : now.has_value())
        logFormat("%s, location %d: what the modem stored instead could not be undone", storage.name.c_str(),
                  asked.location);
    if (stored && (cutOff(stored->alpha, asked.alpha) || cutOff(stored->number, asked.number)))
        throw Failure(ORVA_E_TOO_LONG, "the modem cuts the entry off");
    throw Failure(ORVA_E_ARGUMENT, "the modem stores something else");
}

void AtPhonebook::erase(const PhonebookStorage& storage, int location)
{
    const Reply reply =
        askStorage(storage.name, "+CPBW=" + std::to_string(location), "+CPBW", m_dialog.patience().write);
    requireWritable(reply);
    compareErased(storage, location, reply);
}

void AtPhonebook::proveErased(const PhonebookStorage& storage, int location)
{
    compareErased(storage, location, Reply());
}

void AtPhonebook::compareErased(const PhonebookStorage& storage, int location, const Reply& reply)
{
    if (!readBack(storage, location))
        return;
    if (reply.end == Reply::End::Error)
        throw failureFor(reply.error, "erasing an entry");
    throw Failure(ORVA_E_STORE, "the modem has not erased the entry");
}

} // namespace orva
