// Changes that callers ask a session for, and the copy of a card before the first of them.

#include <algorithm>
#include <set>

#include "base/Files.h"
#include "base/Log.h"
#include "modem/ModemSession.h"
#include "modem/PhonebookBackup.h"
#include "modem/PhonebookRepair.h"

namespace orva
{

namespace
{

// Between two looks at a card that fails.
constexpr Milliseconds firstPause(50);
constexpr Milliseconds longestPause(1000);

constexpr std::size_t backupLimit = 4 * 1024 * 1024;
constexpr char straysText[] = "the modem stores at other locations than it is told; nothing is written to it";

Failure gone(const char* text)
{
    return Failure(ORVA_E_NOT_FOUND, text);
}

bool losesCharacters(CharacterSet set)
{
    return set == CharacterSet::Latin1 || set == CharacterSet::Gsm || set == CharacterSet::Ira;
}

} // namespace

PhonebookStorage ModemSession::storageOf(int memory)
{
    return m_state.with(memory, [](ModemBook& book) {
        if (!book.loaded)
            throw Failure(ORVA_E_BUSY, "the memory is not ready");
        return book.storage;
    });
}

PhonebookEntry ModemSession::entryOf(int memory, int id)
{
    return m_state.with(memory, [id](ModemBook& book) {
        // What is not known yet may well hold it.
        if (!book.loaded)
            throw Failure(ORVA_E_BUSY, "the memory is not ready");
        const PhonebookEntry* const found = book.entries.find(id);
        if (found == nullptr)
            throw gone("no such entry");
        return *found;
    });
}

void ModemSession::beginBatch(int memory)
{
    own(memory).counted = false;
}

// The same card, and nobody else's changes: asked for anew unless that was just done.
void ModemSession::prepare(int memory)
{
    m_state.requireOpen(memory);
    storageOf(memory);
    if (m_strays)
        throw Failure(ORVA_E_UNSUPPORTED, straysText);
    m_foreignSet = true;
    if (std::chrono::steady_clock::now() - m_looked > m_timings.fresh) {
        if (!lookAtCard())
            throw Failure(ORVA_E_BUSY, "the modem keeps silent about its card");
        m_state.requireOpen(memory);
        if (memory == ORVA_MEMORY_CARD && !m_card.empty())
            requireSameCard();
    }
    Book& book = own(memory);
    if (!book.counted || std::chrono::steady_clock::now() - book.countedAt > m_timings.fresh) {
        const int used = m_book.used(storageOf(memory));
        book.counted = true;
        book.countedAt = std::chrono::steady_clock::now();
        if (used >= 0 && used != m_state.with(memory, [](ModemBook& all) { return all.entries.size(); }))
            read(memory);
    }
    save(memory);
    m_used = std::chrono::steady_clock::now();
}

void ModemSession::requireSameCard()
{
    const std::string number = m_book.cardIdentity();
    if (number.empty())
        throw Failure(ORVA_E_BUSY, "the card does not tell which one it is");
    if (number != m_card)
        loseCard();
}

// Before the first write to a card in a run of the program, all of it is put aside.
void ModemSession::save(int memory)
{
    const std::string key = keyOf(memory);
    const std::string mark = key.empty() ? std::to_string(memory) : key;
    if (m_state.markSaved(mark))
        return;
    try {
        read(memory);
        preparePrivateFolder(m_backupFolder);
        const std::string name = key.empty() ? "unknown" : key.substr(key.find('-') + 1);
        std::string path = m_backupFolder + "/" + name + "-" + timeStamp();
        while (fileExists(path))
            path += "a";
        backup(memory, path);
    } catch (...) {
        m_state.unmarkSaved(mark);
        throw;
    }
}

void ModemSession::backup(int memory, const std::string& path)
{
    PhonebookBackup copy;
    copy.key = m_state.with(memory, [&copy](ModemBook& book) {
        if (!book.loaded)
            throw Failure(ORVA_E_BUSY, "the memory is not ready");
        for (const auto& [id, entry] : book.entries.entries())
            copy.entries.push_back(entry);
        return book.key;
    });
    std::sort(copy.entries.begin(), copy.entries.end(),
              [](const PhonebookEntry& a, const PhonebookEntry& b) { return a.location < b.location; });
    if (!preparePrivateFile(path))
        throw Failure(ORVA_E_STORE, "the file is there already");
    replacePrivateFile(path, writeBackup(copy));
}

// What is thought to be at a location must still be there, or is told as gone; an entry without content is nothing.
void ModemSession::confirm(int memory, const PhonebookEntry& thought)
{
    const std::optional<PhonebookEntry> now = m_book.read(storageOf(memory), thought.location);
    PhonebookEntry found = now.value_or(PhonebookEntry());
    found.location = thought.location;
    if (found.sameContent(thought))
        return;
    m_state.change(memory, [&found](ModemBook& book) { book.entries.notice(found); });
    throw gone("somebody else has changed the entry");
}

void ModemSession::write(int memory, const PhonebookEntry& entry, const std::optional<PhonebookEntry>& before)
{
    const PhonebookStorage storage = storageOf(memory);
    try {
        try {
            m_book.write(storage, entry, before);
        } catch (const WriteUndecided& undecided) {
            decide(memory, undecided, [&] { m_book.proveWrite(storage, entry, before); });
        }
    } catch (const PortGone&) {
        throw;
    } catch (const Failure& failure) {
        if (failure.code() != ORVA_E_STORE)
            throw;
        if (!lookForStrays(memory, entry.location, &entry)) {
            read(memory);
            throw;
        }
    }
    proveLocations(memory, entry);
    m_used = std::chrono::steady_clock::now();
}

void ModemSession::eraseAt(int memory, int location)
{
    const PhonebookStorage storage = storageOf(memory);
    try {
        try {
            m_book.erase(storage, location);
        } catch (const WriteUndecided& undecided) {
            decide(memory, undecided, [&] { m_book.proveErased(storage, location); });
        }
    } catch (const PortGone&) {
        throw;
    } catch (const Failure& failure) {
        if (failure.code() != ORVA_E_STORE)
            throw;
        if (!lookForStrays(memory, location, nullptr)) {
            read(memory);
            throw;
        }
    }
    m_used = std::chrono::steady_clock::now();
}

// A card that fails behind a write often answers a moment later, and then what stands there decides. While nobody
// knows, what is shown may be wrong, and is read anew.
void ModemSession::decide(int memory, const Failure& undecided, const std::function<void()>& prove)
{
    own(memory).due = true;
    m_lookAt = Time();
    const auto until = std::chrono::steady_clock::now() + m_timings.decide;
    Milliseconds pause = firstPause;
    for (;;) {
        m_dialog.pause(pause);
        pause = std::min(pause * 2, longestPause);
        const bool last = std::chrono::steady_clock::now() > until;
        try {
            if (isSameCard(memory, undecided)) {
                prove();
                return;
            }
        } catch (const WriteUndecided& again) {
            if (!last)
                continue;
            logFormat("%s: nobody knows whether it was stored: %s", storageOf(memory).name.c_str(), again.what());
            throw;
        }
        if (last)
            throw WriteUndecided(undecided);
    }
}

// Nothing of one card is looked for on another, and least of all put back there. False while the card does not tell.
bool ModemSession::isSameCard(int memory, const Failure& undecided)
{
    const CardState card = m_book.cardState();
    if (memory != ORVA_MEMORY_CARD)
        return true;
    if (card == CardState::Absent || card == CardState::PinNeeded || card == CardState::PukNeeded)
        throw Failure(undecided);
    std::string number;
    try {
        if (!m_card.empty())
            number = m_book.cardIdentity();
    } catch (const PortGone&) {
        throw;
    } catch (const Failure&) {
        return false;
    }
    if (!number.empty() && number != m_card)
        loseCard();
    return number == m_card;
}

void ModemSession::loseCard()
{
    m_card.clear();
    m_state.replaceCard();
    own(ORVA_MEMORY_CARD).due = true;
    throw Failure(ORVA_E_ABSENT, "another card is in");
}

// What stands at the location says nothing of the others: behind the first write all of them are looked at.
void ModemSession::proveLocations(int memory, const PhonebookEntry& written)
{
    if (own(memory).proved)
        return;
    try {
        lookForStrays(memory, written.location, &written);
        own(memory).proved = true;
    } catch (const PortGone&) {
        throw;
    } catch (const Failure& failure) {
        if (m_strays)
            throw;
        // The write itself was read back; the next one looks again.
        logFormat("looking at %s after a write: %s", storageOf(memory).name.c_str(), failure.what());
    }
}

// A modem that stores at another location than it was told: what it has hit goes back to what was read before, and
// nothing more is written to it. Without that: whether the list shows what was asked for.
bool ModemSession::lookForStrays(int memory, int asked, const PhonebookEntry* entry)
{
    const PhonebookStorage storage = storageOf(memory);
    const Listing before = m_state.with(memory, [](ModemBook& book) {
        Listing known;
        for (const auto& [id, one] : book.entries.entries())
            known[one.location] = one;
        return known;
    });
    const Listing now = listingOf(m_book.readAll(storage));
    const std::set<int> hit = strayLocations(before, now, asked, entry);
    if (hit.empty()) {
        const auto there = now.find(asked);
        return entry == nullptr ? there == now.end() : there != now.end() && there->second.sameContent(*entry);
    }
    m_strays = true;
    m_state.setProblem(straysText);
    if (!PhonebookRepair(m_book, storage, before).putBack(now, asked, hit, entry == nullptr))
        logFormat("%s, location %d: what stood there is in the copy of the card alone", storage.name.c_str(),
                  *hit.begin());
    read(memory);
    throw Failure(ORVA_E_UNSUPPORTED, straysText);
}

int ModemSession::add(int memory, PhonebookEntry entry)
{
    prepare(memory);
    const PhonebookStorage storage = storageOf(memory);
    for (;;) {
        entry.location = m_state.with(
            memory, [&storage](ModemBook& book) { return book.entries.freeLocation(storage.first, storage.last); });
        if (entry.location < 0)
            throw Failure(ORVA_E_FULL, "the memory is full");
        PhonebookEntry nothing;
        nothing.location = entry.location;
        try {
            confirm(memory, nothing);
            break;
        } catch (const PortGone&) {
            throw;
        } catch (const Failure& failure) {
            // Somebody else's entry is there now; the next location may be free.
            if (failure.code() != ORVA_E_NOT_FOUND)
                throw;
        }
    }
    write(memory, entry, std::nullopt);
    return m_state.change(memory, [&entry](ModemBook& book) { return book.entries.add(entry); });
}

void ModemSession::update(int memory, int id, PhonebookEntry entry)
{
    entryOf(memory, id);
    prepare(memory);
    const PhonebookEntry old = entryOf(memory, id);
    confirm(memory, old);
    // What the character set could not show came as a question mark, and must not be written back as one.
    if (losesCharacters(m_book.characterSet()) && entry.alpha == old.alpha &&
        entry.alpha.find(u'?') != std::u16string::npos)
        throw Failure(ORVA_E_ARGUMENT, "the name may hold characters that the modem does not show");
    entry.location = old.location;
    entry.tail = old.tail;
    write(memory, entry, old);
    m_state.change(memory, [&entry, id](ModemBook& book) { book.entries.replace(id, entry); });
}

void ModemSession::erase(int memory, int id)
{
    entryOf(memory, id);
    prepare(memory);
    const PhonebookEntry old = entryOf(memory, id);
    confirm(memory, old);
    eraseAt(memory, old.location);
    m_state.change(memory, [id](ModemBook& book) { book.entries.erase(id); });
}

void ModemSession::restore(int memory, const std::string& path)
{
    const PhonebookBackup copy = readBackup(readSmallFile(path, backupLimit));
    prepare(memory);
    if (copy.key != keyOf(memory) || copy.key.empty())
        throw Failure(ORVA_E_FORMAT, "a copy of another card or modem");
    const PhonebookStorage storage = storageOf(memory);
    for (const PhonebookEntry& entry : copy.entries) {
        if (entry.location < storage.first || entry.location > storage.last)
            throw Failure(ORVA_E_FORMAT, "a copy with a location that the memory has not");
    }
    read(memory);
    std::map<int, PhonebookEntry> now;
    m_state.with(memory, [&now](ModemBook& book) {
        for (const auto& [id, entry] : book.entries.entries())
            now[entry.location] = entry;
    });
    std::set<int> wanted;
    for (const PhonebookEntry& entry : copy.entries) {
        wanted.insert(entry.location);
        const auto there = now.find(entry.location);
        if (there == now.end())
            write(memory, entry, std::nullopt);
        else if (!there->second.sameContent(entry) || there->second.tail != entry.tail)
            write(memory, entry, there->second);
        else
            continue;
        m_state.change(memory, [&entry](ModemBook& book) { book.entries.notice(entry); });
    }
    for (const auto& [location, entry] : now) {
        if (wanted.count(location) == 0)
            eraseAt(memory, location);
    }
    read(memory);
}

void ModemSession::unlock(const std::string& pin)
{
    if (m_state.card() != CardState::PinNeeded)
        throw Failure(ORVA_E_UNSUPPORTED, "the card asks for no PIN");
    if (pin.size() < 4 || pin.size() > 8 || pin.find_first_not_of("0123456789") != std::string::npos)
        throw Failure(ORVA_E_ARGUMENT, "a PIN has four to eight digits");
    const Reply reply = m_dialog.ask("AT+CPIN=\"" + pin + "\"", "+CPIN", m_timings.patience.write);
    const CardState card = cardBehindPin(reply.ok());
    if (reply.end == Reply::End::Error && reply.error == cme::wrongPassword)
        throw Failure(ORVA_E_ARGUMENT, "a wrong PIN");
    constexpr char what[] = "unlocking the card";
    switch (card) {
    case CardState::Ready:
        return;
    case CardState::PinNeeded:
    case CardState::PukNeeded:
        throw failureFor(reply.error == cme::none ? cme::wrongPassword : reply.error, what);
    case CardState::Absent:
    case CardState::Failed:
        if (!reply.ok())
            throw failureFor(cme::noCard, what);
        return;
    case CardState::Busy:
    case CardState::Silent:
        if (!reply.ok())
            throw failureFor(cme::cardBusy, what);
        return;
    }
}

// The card's own word, which is waited for where it says nothing yet, or where it and the modem's OK do not agree.
CardState ModemSession::cardBehindPin(bool taken)
{
    const auto until = std::chrono::steady_clock::now() + m_timings.patience.busy;
    for (;;) {
        const CardState card = lookAtCard() ? m_state.card() : CardState::Silent;
        const bool unsettled =
            taken ? card == CardState::PinNeeded : card == CardState::Busy || card == CardState::Silent;
        if (!unsettled || std::chrono::steady_clock::now() > until)
            return card;
        m_dialog.pause(longestPause);
    }
}

std::string ModemSession::report()
{
    std::string text;
    static constexpr const char* names[] = {"manufacturer", "model", "revision"};
    const std::vector<std::string> product = m_book.product();
    for (std::size_t i = 0; i < std::min(product.size(), std::size(names)); ++i)
        text += std::string(names[i]) + "=" + product[i] + "\n";
    const AtPhonebook::Tries tries = m_book.triesLeft();
    if (tries.pin >= 0)
        text += "pin-tries=" + std::to_string(tries.pin) + "\n";
    const Reply network = m_dialog.ask("AT+COPS?", "+COPS", m_timings.patience.pin);
    const std::vector<std::string> fields =
        network.lines.empty() ? std::vector<std::string>() : splitFields(answerText(network.lines.front(), "+COPS"));
    if (fields.size() > 2)
        text += "operator=" + asciiOfHexUcs2(fields[2]).value_or(fields[2]) + "\n";
    const Reply signal = m_dialog.ask("AT+CSQ", "+CSQ");
    const std::vector<std::string> strength =
        signal.lines.empty() ? std::vector<std::string>() : splitFields(answerText(signal.lines.front(), "+CSQ"));
    if (!strength.empty() && strength[0] != "99")
        text += "signal=" + strength[0] + "/31\n";
    for (const int memory : {ORVA_MEMORY_CARD, ORVA_MEMORY_DEVICE}) {
        text += m_state.with(memory, [memory](ModemBook& book) {
            if (!book.loaded)
                return std::string();
            return std::string(memory == ORVA_MEMORY_CARD ? "card=" : "device=") + book.storage.name + " " +
                   std::to_string(book.entries.size()) + "/" + std::to_string(book.storage.capacity) + " name " +
                   std::to_string(book.storage.alphaLength) + " number " + std::to_string(book.storage.numberLength) +
                   "\n";
        });
    }
    return text;
}

} // namespace orva
