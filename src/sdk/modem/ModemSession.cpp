// What a session does by itself: it looks at the card, reads what is due, and tells.

#include "modem/ModemSession.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <utility>

#include "base/Log.h"

namespace orva
{

namespace
{

constexpr char cardStorage[] = "SM";
constexpr char deviceStorage[] = "ME";
constexpr Milliseconds idleBeforeRest(1000);
constexpr int looksBetweenNetwork = 6;
constexpr int questionsAtStart = 3;
constexpr int messageAttempts = 2;
constexpr int cardBusyCms = 314; // of 3GPP TS 27.005, 3.2.5

const char* storageName(int memory)
{
    return memory == ORVA_MEMORY_CARD ? cardStorage : deviceStorage;
}

bool contains(const std::vector<std::string>& all, const char* one)
{
    return std::find(all.begin(), all.end(), one) != all.end();
}

// Of "+CREG: 2,1", "+CREG: 1" and "+CREG: 1,\"00C3\"": the state. An answer may come so late that nobody waits for it.
int registration(std::string_view text)
{
    const std::vector<std::string> fields = splitFields(text);
    const std::size_t field = fields.size() > 1 && fields[1].size() == 1 ? 1 : 0;
    return field < fields.size() ? std::atoi(fields[field].c_str()) : 0;
}

bool inService(int state)
{
    return state == 1 || state == 5;
}

std::optional<int> countOf(const std::string& text)
{
    int count = -1;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), count);
    const bool whole = end.ec == std::errc() && end.ptr == text.data() + text.size();
    return whole && count >= 0 ? std::optional<int>(count) : std::nullopt;
}

// Of three storages, each with what is used and what fits, the last is the one for what comes in. A modem that names
// fewer has one for all.
std::optional<MessageStore> messageStoreOf(std::string_view text)
{
    const std::vector<std::string> fields = splitFields(text);
    const std::size_t used = fields.size() >= 9 ? 7 : 1;
    if (fields.size() <= used + 1)
        return std::nullopt;
    const std::optional<int> usedCount = countOf(fields[used]);
    const std::optional<int> totalCount = countOf(fields[used + 1]);
    if (!usedCount || !totalCount || *totalCount == 0)
        return std::nullopt;
    return MessageStore{*usedCount, *totalCount};
}

} // namespace

ModemSession::ModemSession(Channel& channel, DialogRecord* record, ModemState& state, const ModemTimings& timings,
                           std::string backupFolder)
    : m_state(state),
      m_timings(timings),
      m_backupFolder(std::move(backupFolder)),
      m_dialog(channel, timings.patience, record),
      m_book(m_dialog)
{
    m_dialog.setUnsolicited([this](const std::string& line) { heard(line); });
}

bool ModemSession::start()
{
    if (!m_book.start())
        return false;
    CardState card = m_book.cardState();
    for (int asked = 1; card == CardState::Silent && asked < questionsAtStart; ++asked)
        card = m_book.cardState();
    const std::vector<std::string> storages = m_book.storages();
    // A modem that does not list its storages shows what it has when they are opened.
    const bool cardBook = storages.empty() || contains(storages, cardStorage);
    const bool deviceBook = storages.empty() || contains(storages, deviceStorage);
    m_looked = std::chrono::steady_clock::now();
    m_lookAt = m_looked + (card == CardState::Silent ? m_timings.reread : m_timings.question);
    m_used = m_looked;
    lookAtNetwork();
    m_state.attach(card == CardState::Silent ? CardState::Failed : card, cardBook, deviceBook);
    own(ORVA_MEMORY_CARD).due = cardBook;
    own(ORVA_MEMORY_DEVICE).due = deviceBook;
    return true;
}

void ModemSession::heard(const std::string& line)
{
    if (beginsWith(line, "+CREG:")) {
        m_state.setNetwork(inService(registration(answerText(line, "+CREG"))));
        return;
    }
    for (const std::string_view sign : {"+CMTI", "^SMMEMFULL"}) {
        if (beginsWith(line, sign))
            m_messagesAt = Time();
    }
    // Signs that the card went, came or has been read by the modem: hints alone, its state is asked for.
    for (const std::string_view sign :
         {"+CPIN", "+SIM", "^SIMST", "^SSIM READY", "#QSS", "+PBREADY", "PB DONE", "+QIND"}) {
        if (beginsWith(line, sign)) {
            m_lookAt = Time();
            retryNow();
        }
    }
}

// What could not be read may be readable now.
void ModemSession::retryNow()
{
    for (Book& book : m_books) {
        book.retryAt = Time();
        book.pause = Milliseconds(0);
    }
}

void ModemSession::lookNow()
{
    m_lookAt = Time();
    m_looks = looksBetweenNetwork - 1;
}

Milliseconds ModemSession::work()
{
    auto now = std::chrono::steady_clock::now();
    m_dialog.pause();
    if (now >= m_lookAt) {
        lookAtCard();
        if (++m_looks % looksBetweenNetwork == 0)
            lookAtNetwork();
    }
    for (const int memory : {ORVA_MEMORY_CARD, ORVA_MEMORY_DEVICE}) {
        // Nobody tells of changes by others; a list that is looked at must not be older than a minute.
        if (m_state.takeOpened(memory) && own(memory).counted && now - own(memory).countedAt > m_timings.stale)
            own(memory).due = true;
        readWhatIsDue(memory);
    }
    lookAtMessages();
    now = std::chrono::steady_clock::now();
    if (m_foreignSet && now - m_used > idleBeforeRest) {
        m_book.finish();
        m_foreignSet = false;
    }
    Time next = m_lookAt;
    if (asksForMessages())
        next = std::min(next, m_messagesAt);
    if (m_foreignSet)
        next = std::min(next, m_used + idleBeforeRest);
    for (const Book& book : m_books) {
        if (book.due)
            next = std::min(next, book.retryAt);
    }
    return std::max(Milliseconds(0), std::chrono::ceil<Milliseconds>(next - now));
}

// False if the modem keeps silent about it: then nothing has changed, and it is asked again soon.
bool ModemSession::lookAtCard()
{
    const CardState card = m_book.cardState();
    const Time now = std::chrono::steady_clock::now();
    if (card == CardState::Silent) {
        m_lookAt = now + std::min(m_timings.question, m_timings.reread);
        if (!m_dialog.recover())
            throw PortGone("the modem does not answer");
        return false;
    }
    m_looked = now;
    m_lookAt = m_looked + m_timings.question;
    const CardState before = m_state.card();
    m_state.setCard(card);
    if (card == before)
        return true;
    m_card.clear();
    for (Book& book : m_books)
        book.counted = false;
    m_messagesAt = Time();
    m_messagesFailed = 0;
    retryNow();
    // A device may show its own phonebook only while a card is in.
    own(ORVA_MEMORY_CARD).due = true;
    return true;
}

void ModemSession::lookAtNetwork()
{
    const Reply power = m_dialog.ask("AT+CFUN?", "+CFUN");
    if (!power.lines.empty())
        m_state.setRadio(answerText(power.lines.front(), "+CFUN").substr(0, 1) == "1");
    const Reply network = m_dialog.ask("AT+CREG?", "+CREG");
    if (!network.lines.empty())
        m_state.setNetwork(inService(registration(answerText(network.lines.front(), "+CREG"))));
}

// A modem that refuses or keeps silent is left alone until another card is in.
bool ModemSession::asksForMessages() const
{
    return m_state.wantsMessages() && m_messagesFailed < messageAttempts && m_state.card() == CardState::Ready;
}

void ModemSession::lookAtMessages()
{
    if (m_state.takeMessagesAsked())
        m_messagesAt = Time();
    const Time now = std::chrono::steady_clock::now();
    if (!asksForMessages() || now < m_messagesAt)
        return;
    const Reply reply = m_dialog.ask("AT+CPMS?", "+CPMS");
    const bool busy = reply.end == Reply::End::Error && (reply.error == cme::cardBusy || reply.error == cardBusyCms);
    m_messagesAt = std::chrono::steady_clock::now() + (reply.ok() ? m_timings.stale : m_timings.reread);
    if (busy)
        return;
    const std::optional<MessageStore> store =
        reply.ok() && !reply.lines.empty() ? messageStoreOf(answerText(reply.lines.front(), "+CPMS")) : std::nullopt;
    m_messagesFailed = store ? 0 : m_messagesFailed + 1;
    if (store || m_messagesFailed >= messageAttempts)
        m_state.setMessages(store);
}

void ModemSession::readWhatIsDue(int memory)
{
    Book& book = own(memory);
    if (!book.due || std::chrono::steady_clock::now() < book.retryAt)
        return;
    if (memory == ORVA_MEMORY_CARD && m_state.card() != CardState::Ready && m_state.card() != CardState::Busy)
        return;
    try {
        read(memory);
    } catch (const PortGone&) {
        throw;
    } catch (const Failure& failure) {
        if (failure.code() == ORVA_E_UNSUPPORTED) {
            book.due = false;
            m_state.miss(memory);
            return;
        }
        logFormat("reading %s: %s", storageName(memory), failure.what());
        if (failure.code() != ORVA_E_ABSENT) {
            book.unreadable = true;
            m_state.setProblem(std::string(storageName(memory)) + " cannot be read: " + failure.what());
        }
        book.pause = std::clamp(book.pause * 2, m_timings.reread, m_timings.longest);
        book.retryAt = std::chrono::steady_clock::now() + book.pause;
        m_lookAt = Time(); // the card may have gone meanwhile
    }
}

std::string ModemSession::keyOf(int memory)
{
    if (memory == ORVA_MEMORY_CARD && m_card.empty())
        m_card = m_book.cardIdentity();
    if (memory == ORVA_MEMORY_DEVICE && m_modem.empty())
        m_modem = m_book.modemIdentity();
    const std::string& identity = memory == ORVA_MEMORY_CARD ? m_card : m_modem;
    return identity.empty() ? identity : std::string(storageName(memory)) + "-" + identity;
}

void ModemSession::read(int memory)
{
    const std::string key = keyOf(memory);
    const PhonebookStorage storage = m_book.open(storageName(memory));
    m_foreignSet = true;
    const std::vector<PhonebookEntry> entries = m_book.readAll(storage);
    if (own(memory).unreadable)
        m_state.setProblem({});
    own(memory).unreadable = false;
    own(memory).due = false;
    own(memory).pause = Milliseconds(0);
    own(memory).counted = true;
    own(memory).countedAt = std::chrono::steady_clock::now();
    m_used = own(memory).countedAt;
    m_state.load(memory, storage, key, entries);
}

} // namespace orva
