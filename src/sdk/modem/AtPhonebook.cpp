// Opening: manners, card, identities, storages, character set.

#include "modem/AtPhonebook.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "base/Hex.h"

namespace orva
{

namespace
{

constexpr Milliseconds busyPause(300);

// Of a card's entry, where nothing tells.
constexpr int usualAlphaLength = 14;
constexpr int usualNumberLength = 20;
constexpr int usualCapacity = 250;

constexpr char codesCommand[] = "AT+CMEE=1";

constexpr int alphaFile = 28474; // EF_ADN
constexpr int recordWithoutAlpha = 14;

int hexOctet(std::string_view digits, std::size_t octet)
{
    int value = 0;
    for (std::size_t i = 2 * octet; i < 2 * octet + 2; ++i) {
        if (i >= digits.size())
            return -1;
        const int digit = hexDigit(digits[i]);
        if (digit < 0)
            return -1;
        value = value << 4 | digit;
    }
    return value;
}

// The length of a record in what describes a file: the fixed form of a SIM, or the tagged one of a USIM.
int recordLength(std::string_view description)
{
    if (hexOctet(description, 0) != 0x62)
        return hexOctet(description, 14);
    for (std::size_t at = 2; hexOctet(description, at + 1) >= 0;
         at += 2 + static_cast<std::size_t>(hexOctet(description, at + 1))) {
        if (hexOctet(description, at) == 0x82 && hexOctet(description, at + 1) >= 4) {
            const int high = hexOctet(description, at + 4);
            const int low = hexOctet(description, at + 5);
            return high < 0 || low < 0 ? -1 : high << 8 | low; // an answer may end too early
        }
    }
    return -1;
}

// Digits of an answer that is nothing else, such as an identity.
std::string digitsOf(const Reply& reply, std::string_view prefix)
{
    for (const std::string& line : reply.lines) {
        std::string digits;
        bool all = true;
        for (const char c : answerText(line, prefix)) {
            if (c >= '0' && c <= '9')
                digits.push_back(c);
            else if (c != '"' && c != ' ' && (c | 0x20) != 'f')
                all = false;
        }
        if (all && digits.size() >= 10)
            return digits;
    }
    return {};
}

} // namespace

Failure failureFor(int error, const std::string& what)
{
    switch (error) {
    case cme::noCard:
    case cme::pinNeeded:
    case cme::pukNeeded:
    case cme::cardFailure:
    case cme::cardWrong:
        return Failure(ORVA_E_ABSENT, what + ": the card is out or locked");
    case cme::cardBusy:
        return Failure(ORVA_E_BUSY, what + ": the card is busy");
    case cme::memoryFull:
        return Failure(ORVA_E_FULL, what + ": the memory is full");
    case cme::textTooLong:
    case cme::numberTooLong:
        return Failure(ORVA_E_TOO_LONG, what + ": too long");
    case cme::badIndex:
    case cme::notFound:
        return Failure(ORVA_E_NOT_FOUND, what + ": no such location");
    case cme::badText:
    case cme::badNumber:
    case cme::badParameters:
        return Failure(ORVA_E_ARGUMENT, what + ": not what the modem can store");
    case cme::notAllowed:
    case cme::notSupported:
    case cme::pin2Needed:
    case cme::puk2Needed:
        return Failure(ORVA_E_UNSUPPORTED, what + ": the modem does not do this");
    default:
        return Failure(ORVA_E_STORE, what + ": error " + std::to_string(error) + " of the modem");
    }
}

bool AtPhonebook::start()
{
    if (!m_dialog.recover())
        return false;
    for (const char* const command : {"ATE0", "ATV1"})
        m_dialog.ask(command);
    askForCodes();
    return true;
}

// Without them an error tells nothing of the card.
void AtPhonebook::askForCodes()
{
    if (!m_codesAsked && !mute(codesCommand, silencesBelieved))
        m_codesAsked = !insist(codesCommand, {}, m_dialog.patience().plain).silent();
}

Reply AtPhonebook::askForCard()
{
    return m_dialog.ask("AT+CPIN?", "+CPIN", m_endlessPin ? m_dialog.patience().life : m_dialog.patience().pin);
}

CardState AtPhonebook::cardState()
{
    askForCodes();
    Reply reply = askForCard();
    if (reply.end == Reply::End::Error && reply.error == cme::none && !m_codeless) {
        // The request for codes was lost, or the modem has forgotten it; or it has none.
        if (m_dialog.ask(codesCommand).silent())
            return CardState::Silent;
        reply = askForCard();
        m_codeless = reply.end == Reply::End::Error && reply.error == cme::none;
    }
    if (reply.ok() && reply.lines.empty())
        reply = askForCard(); // what it had to say was lost
    m_endlessPin = reply.silent() && !reply.lines.empty();
    if (!reply.lines.empty()) {
        m_pinTold = true;
        const std::string_view state = answerText(reply.lines.front(), "+CPIN");
        if (state == "READY" || state == "SIM PIN2" || state == "SIM PUK2" || state.substr(0, 3) == "PH-")
            return CardState::Ready;
        if (state == "SIM PIN")
            return CardState::PinNeeded;
        if (state == "SIM PUK")
            return CardState::PukNeeded;
        return CardState::Failed;
    }
    if (reply.silent())
        return CardState::Silent;
    switch (reply.error) {
    case cme::noCard:
        return CardState::Absent;
    case cme::pinNeeded:
        return CardState::PinNeeded;
    case cme::pukNeeded:
        return CardState::PukNeeded;
    case cme::cardBusy:
        return CardState::Busy;
    default:
        break;
    }
    // A modem that does not know the question has no lock to tell of.
    const bool unknown = reply.ok() || reply.error == cme::none || reply.error == cme::notSupported;
    return unknown && !m_pinTold ? CardState::Ready : CardState::Failed;
}

// Of the file of the card that holds it; each octet has its digits swapped.
std::string AtPhonebook::identityFromFile(const Reply& file)
{
    if (!file.ok() || file.lines.empty())
        return {};
    const std::vector<std::string> fields = splitFields(answerText(file.lines.front(), "+CRSM"));
    if (fields.size() < 3 || fields[0] != "144")
        return {};
    std::string digits;
    for (std::size_t i = 0; i + 1 < fields[2].size(); i += 2) {
        digits.push_back(fields[2][i + 1]);
        digits.push_back(fields[2][i]);
    }
    while (!digits.empty() && (digits.back() | 0x20) == 'f')
        digits.pop_back();
    const bool all = std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
    return all && digits.size() >= 10 ? digits : std::string();
}

std::string AtPhonebook::cardIdentity()
{
    for (const auto& [command, prefix] : {std::pair("AT+CRSM=176,12258,0,0,10", "+CRSM"), std::pair("AT+CCID", "+CCID"),
                                          std::pair("AT+ICCID", "+ICCID")}) {
        const Reply reply = insist(command, prefix, m_dialog.patience().pin);
        requireAnswer(reply, command);
        const bool file = std::string_view(prefix) == "+CRSM";
        std::string digits;
        if (reply.ok())
            digits = file ? identityFromFile(reply) : digitsOf(reply, prefix);
        if (!digits.empty())
            return digits;
    }
    return {};
}

std::string AtPhonebook::modemIdentity()
{
    const Reply reply = insist("AT+CGSN", {}, m_dialog.patience().plain);
    requireSound(reply, "AT+CGSN");
    return reply.ok() ? digitsOf(reply, "+CGSN") : std::string();
}

std::vector<std::string> AtPhonebook::product()
{
    std::vector<std::string> told;
    for (const char* const command : {"AT+CGMI", "AT+CGMM", "AT+CGMR"}) {
        const std::string prefix = std::string(command).substr(2);
        const Reply reply = m_dialog.ask(command);
        if (reply.ok() && !reply.lines.empty())
            told.emplace_back(answerText(reply.lines.front(), prefix));
    }
    return told;
}

AtPhonebook::Tries AtPhonebook::triesLeft()
{
    Tries tries;
    const Reply reply = m_dialog.ask("AT+CPINR", "+CPINR", m_dialog.patience().pin);
    for (const std::string& line : reply.lines) {
        const std::vector<std::string> fields = splitFields(answerText(line, "+CPINR"));
        if (fields.size() < 2 || fields[1].empty() || fields[1].size() > 2)
            continue;
        const int left = std::atoi(fields[1].c_str());
        if (fields[0] == "SIM PIN")
            tries.pin = left;
        else if (fields[0] == "SIM PUK")
            tries.puk = left;
    }
    if (tries.pin >= 0)
        return tries;
    // An empty verification tells the tries in its status word, and uses none up.
    const Reply raw = m_dialog.ask("AT+CSIM=10,\"0020000100\"", "+CSIM", m_dialog.patience().pin);
    for (const std::string& line : raw.lines) {
        const std::vector<std::string> fields = splitFields(answerText(line, "+CSIM"));
        if (fields.size() >= 2 && fields[1].size() >= 4 && fields[1].compare(fields[1].size() - 4, 3, "63C") == 0)
            tries.pin = fields[1].back() - '0';
    }
    return tries;
}

std::vector<std::string> AtPhonebook::storages()
{
    const Reply reply = m_dialog.ask("AT+CPBS=?", "+CPBS", m_dialog.patience().read);
    return reply.lines.empty() ? std::vector<std::string>() : readStorageNames(reply.lines.front());
}

Reply AtPhonebook::askWhileBusy(const std::string& command, std::string_view prefix, Milliseconds patience)
{
    const auto until = std::chrono::steady_clock::now() + m_dialog.patience().busy;
    for (;;) {
        Reply reply = m_dialog.ask(command, prefix, patience);
        if (reply.end != Reply::End::Error || reply.error != cme::cardBusy || std::chrono::steady_clock::now() > until)
            return reply;
        m_dialog.pause(busyPause);
    }
}

// Failure for an answer that tells of the card, and not of what was asked.
void AtPhonebook::requireCard(const Reply& reply)
{
    if (reply.silent() && !m_dialog.recover())
        throw PortGone("the modem does not answer");
    if (reply.end != Reply::End::Error)
        return;
    switch (reply.error) {
    case cme::noCard:
    case cme::pinNeeded:
    case cme::pukNeeded:
    case cme::cardFailure:
    case cme::cardBusy:
    case cme::cardWrong:
        throw failureFor(reply.error, "phonebook");
    default:
        break;
    }
}

// ---- Storages

Reply AtPhonebook::askStorage(const std::string& storage, const std::string& command, std::string_view prefix,
                              Milliseconds patience)
{
    chooseCharacterSet();
    const std::string name = m_naming == Naming::Hex ? hexUcs2(storage) : storage;
    if (m_naming != Naming::Apart)
        return askWhileBusy("AT+CPBS=\"" + name + (command.empty() ? "\"" : "\";" + command), prefix, patience);
    Reply selected = askWhileBusy("AT+CPBS=\"" + storage + "\"", {}, patience);
    if (selected.end == Reply::End::Error)
        selected = askWhileBusy("AT+CPBS=\"" + hexUcs2(storage) + "\"", {}, patience);
    return selected.ok() && !command.empty() ? askWhileBusy("AT" + command, prefix, patience) : selected;
}

void AtPhonebook::learnNaming(const std::string& storage)
{
    if (m_namingKnown)
        return;
    for (const Naming naming : {Naming::Plain, Naming::Hex}) {
        const std::string name = naming == Naming::Hex ? hexUcs2(storage) : storage;
        const std::string select = "+CPBS=\"" + name + "\"";
        const std::string twice = std::string("AT").append(select).append(";").append(select);
        const Reply reply = insist(twice, {}, m_dialog.patience().read);
        requireAnswer(reply, twice);
        m_naming = naming;
        m_namingKnown = reply.ok();
        if (m_namingKnown)
            return;
    }
    m_naming = Naming::Apart;
    m_namingKnown = true;
}

PhonebookStorage AtPhonebook::open(const std::string& name)
{
    if (!m_setChosen) {
        // Before the character set, in which some want even this name coded.
        requireStorage(insist("AT+CPBS=\"" + name + "\"", {}, m_dialog.patience().read), name);
    }
    chooseCharacterSet();
    learnNaming(name);
    PhonebookStorage storage;
    storage.name = name;
    describe(storage);
    return storage;
}

// Only a refusal says that there is none.
void AtPhonebook::requireStorage(const Reply& selected, const std::string& name)
{
    requireCard(selected);
    if (selected.silent())
        throw Failure(ORVA_E_BUSY, "the modem keeps silent about the storage " + name);
    if (!selected.ok())
        throw Failure(ORVA_E_UNSUPPORTED, "the modem has no storage " + name);
}

StorageShape AtPhonebook::shapeOf(const std::string& storage)
{
    const std::string question = storage + "+CPBR=?";
    const auto ask = [&] { return askStorage(storage, "+CPBR=?", "+CPBR", m_dialog.patience().read); };
    const Reply range = insist(question, ask);
    requireAnswer(range, question);
    if (!range.lines.empty())
        return readStorageShape(range.lines.front());
    requireStorage(insist(storage, [&] { return askStorage(storage, {}, {}, m_dialog.patience().read); }), storage);
    return {};
}

// What the modem counts; nothing where it does not.
StorageStatus AtPhonebook::statusOf(const std::string& storage)
{
    const std::string question = storage + "+CPBS?";
    if (mute(question, oftenEnough))
        return {};
    const Reply reply =
        insist(question, [&] { return askStorage(storage, "+CPBS?", "+CPBS", m_dialog.patience().plain); });
    requireCard(reply);
    if (isSilence(reply) && !mute(question, oftenEnough))
        throw Failure(ORVA_E_BUSY, "the modem keeps silent about what it counts");
    if (reply.lines.empty())
        return {};
    // A port that shares its storage with another may tell of the other's.
    const StorageStatus told = readStorageStatus(reply.lines.back());
    return told.storage == storage || told.storage.empty() ? told : StorageStatus();
}

void AtPhonebook::describe(PhonebookStorage& storage)
{
    const StorageShape shape = shapeOf(storage.name);
    const StorageStatus status = statusOf(storage.name);
    const int total = status.total;
    storage.used = status.used;
    storage.first = shape.first >= 0 ? shape.first : 1;
    storage.capacity = std::max(shape.first >= 0 ? shape.last - shape.first + 1 : 0, total);
    if (storage.capacity <= 0)
        storage.capacity = usualCapacity;
    storage.last = storage.first + storage.capacity - 1;
    storage.alphaLength = shape.textLength;
    storage.numberLength = shape.numberLength;
    storage.furtherFields = shape.moreLengths > 0;
    if (storage.alphaLength <= 0 || storage.numberLength <= 0)
        lengthsFromCard(storage);
}

void AtPhonebook::lengthsFromCard(PhonebookStorage& storage)
{
    int alpha = usualAlphaLength;
    if (storage.name == "SM") {
        const std::string question = "AT+CRSM=192," + std::to_string(alphaFile);
        const Reply reply = insist(question, "+CRSM", m_dialog.patience().pin);
        requireAnswer(reply, question);
        if (reply.ok() && !reply.lines.empty()) {
            const std::vector<std::string> fields = splitFields(answerText(reply.lines.front(), "+CRSM"));
            const int length = fields.size() >= 3 ? recordLength(fields[2]) : -1;
            if (length > recordWithoutAlpha && length <= 255)
                alpha = length - recordWithoutAlpha;
        }
    }
    if (storage.alphaLength <= 0)
        storage.alphaLength = alpha;
    if (storage.numberLength <= 0)
        storage.numberLength = usualNumberLength;
}

int AtPhonebook::used(const PhonebookStorage& storage)
{
    return statusOf(storage.name).used;
}

} // namespace orva
