#include "modem/ModemState.h"

#include "base/Failure.h"
#include "base/Log.h"

namespace orva
{

namespace
{

// Values of a PIN status that keep a card closed.
constexpr int pinWanted = 2;
constexpr int pukWanted = 3;

constexpr int notInService = 0;
constexpr int deviceAlphaLength = 30;
constexpr int deviceNumberLength = 40;

std::shared_ptr<const Profile> profileOf(const PhonebookStorage& storage)
{
    return std::make_shared<const Profile>(deviceProfile(2, storage.alphaLength, storage.numberLength));
}

// For a storage that has not told its lengths yet.
std::shared_ptr<const Profile> usualProfile()
{
    PhonebookStorage usual;
    usual.alphaLength = deviceAlphaLength;
    usual.numberLength = deviceNumberLength;
    return profileOf(usual);
}

} // namespace

ModemState::ModemState(const std::string& folder, EventHub& events)
    : m_events(events), m_identifiers(folder), m_cardBook(folder, m_identifiers), m_deviceBook(folder, m_identifiers)
{
    m_cardBook.profile = usualProfile();
    m_deviceBook.profile = usualProfile();
}

bool ModemState::cardIn() const
{
    return m_attached && (m_card == CardState::Ready || m_card == CardState::PinNeeded ||
                          m_card == CardState::PukNeeded || m_card == CardState::Busy);
}

bool ModemState::cardOpen() const
{
    return cardIn() && (m_card == CardState::Ready || m_card == CardState::Busy);
}

bool ModemState::present(int memory) const
{
    return m_attached && book(memory).there && (memory == ORVA_MEMORY_DEVICE || cardIn());
}

void ModemState::requirePresent(int memory) const
{
    if (!present(memory))
        throw Failure(ORVA_E_ABSENT, "the memory is not there");
}

void ModemState::touch()
{
    m_changes.fetch_add(1, std::memory_order_acq_rel);
    m_touched.notify_all();
}

// What a closed book holds is never shown.
void ModemState::close(ModemBook& closed)
{
    closed.loaded = false;
    closed.key.clear();
    closed.entries.clear();
}

void ModemState::attach(CardState card, bool cardBook, bool deviceBook, const std::string& problem)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_attached = true;
    m_card = card;
    m_cardBook.there = cardBook;
    m_deviceBook.there = deviceBook;
    if (!problem.empty() && problem != m_problem)
        logLine(problem);
    m_problem = problem;
    touch();
    m_events.post(ORVA_EVENT_DEV_DEVICE_INIT_FINISH);
    m_events.post(ORVA_EVENT_PBM_EVENT_READY);
    if (!deviceBook)
        m_events.post(ORVA_EVENT_PBM_EVENT_NV_READY);
}

void ModemState::detach()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_attached)
        return;
    m_attached = false;
    m_card = CardState::Absent;
    m_network = false;
    m_messagesTold = false;
    close(m_cardBook);
    close(m_deviceBook);
    touch();
    m_events.post(ORVA_EVENT_DEV_DEVICE_INIT_FINISH);
}

void ModemState::setCard(CardState card)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (card == m_card || !m_attached)
        return;
    const bool wasIn = cardIn();
    const bool wasOpen = cardOpen();
    const CardState before = m_card;
    m_card = card;
    if (!cardOpen()) {
        close(m_cardBook);
        m_messagesTold = false;
    }
    touch();
    if (wasIn && !cardIn())
        m_events.post(ORVA_EVENT_DEV_SIM_INVALID);
    else if (!wasIn && cardIn())
        m_events.post(ORVA_EVENT_DEV_CARD_CHANGED);
    else if (cardIn() && (wasOpen != cardOpen() || (!cardOpen() && before != card)))
        m_events.post(ORVA_EVENT_DEV_PIN_CHANGED);
}

void ModemState::replaceCard()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    close(m_cardBook);
    m_messagesTold = false;
    touch();
    m_events.post(ORVA_EVENT_DEV_SIM_INVALID);
    m_events.post(ORVA_EVENT_DEV_CARD_CHANGED);
}

void ModemState::setRadio(bool on)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (on == m_radio)
        return;
    m_radio = on;
    touch();
    m_events.post(ORVA_EVENT_DEV_RF_SWITCH);
}

void ModemState::setNetwork(bool inService)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (inService == m_network)
        return;
    m_network = inService;
    touch();
    m_events.post(ORVA_EVENT_NET_STATUS);
}

void ModemState::load(int memory, const PhonebookStorage& storage, const std::string& key,
                      const std::vector<PhonebookEntry>& entries)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    ModemBook& loaded = book(memory);
    const bool first = !loaded.loaded;
    const bool changed = loaded.entries.take(key, entries);
    loaded.storage = storage;
    loaded.profile = profileOf(storage);
    loaded.key = key;
    loaded.there = true;
    loaded.loaded = true;
    if (first || changed)
        touch();
    if (first)
        m_events.post(memory == ORVA_MEMORY_CARD ? ORVA_EVENT_PBM_EVENT_SIM_READY : ORVA_EVENT_PBM_EVENT_NV_READY);
}

void ModemState::miss(int memory)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!book(memory).there)
        return;
    book(memory).there = false;
    close(book(memory));
    touch();
    m_events.post(ORVA_EVENT_DEV_DEVICE_INIT_FINISH);
    if (memory == ORVA_MEMORY_DEVICE)
        m_events.post(ORVA_EVENT_PBM_EVENT_NV_READY);
}

void ModemState::setProblem(const std::string& text)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_problem == text)
        return;
    m_problem = text;
    if (!text.empty())
        logLine(text);
    m_touched.notify_all();
}

void ModemState::setMessages(const std::optional<MessageStore>& store)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_messagesTold = true;
    m_messages = store;
}

bool ModemState::wantMessages(bool anew)
{
    const bool first = !m_messagesWanted.exchange(true);
    const bool again = anew && !m_messagesAsked.exchange(true);
    return first || again;
}

MessageStore ModemState::messages() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!cardOpen())
        throw Failure(ORVA_E_ABSENT, "no modem with an open card");
    if (!m_messagesTold)
        throw Failure(ORVA_E_BUSY, "the modem has not said how many messages it holds");
    if (!m_messages)
        throw Failure(ORVA_E_UNSUPPORTED, "the modem does not say how many messages it holds");
    return *m_messages;
}

bool ModemState::markSaved(const std::string& key)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return !m_saved.insert(key).second;
}

void ModemState::unmarkSaved(const std::string& key)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_saved.erase(key);
}

DeviceStatus ModemState::status() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    DeviceStatus status;
    status.attached = m_attached ? 1 : 0;
    status.card = cardIn() ? 1 : 0;
    status.pinStatus = cardOpen() ? ORVA_PIN_NOT_NEEDED : m_card == CardState::PukNeeded ? pukWanted : pinWanted;
    status.radioFirst = m_radio ? 1 : 0;
    status.radioSecond = m_radio ? 1 : 0;
    status.network = m_network ? ORVA_NETWORK_IN_SERVICE : notInService;
    return status;
}

std::vector<int> ModemState::memories() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<int> there;
    for (const int memory : {ORVA_MEMORY_CARD, ORVA_MEMORY_DEVICE}) {
        if (present(memory))
            there.push_back(memory);
    }
    return there;
}

CardState ModemState::card() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_card;
}

std::string ModemState::problem() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_problem;
}

void ModemState::requireOpen(int memory) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    requirePresent(memory);
    if (memory == ORVA_MEMORY_CARD && !cardOpen())
        throw Failure(ORVA_E_ABSENT, "the card is locked");
}

std::shared_ptr<const Profile> ModemState::profile(int memory) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    requirePresent(memory);
    return book(memory).profile;
}

int ModemState::capacity(int memory) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    requirePresent(memory);
    return book(memory).loaded ? book(memory).storage.capacity : 0;
}

bool ModemState::waitLoaded(int memory, Milliseconds atMost) const
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_touched.wait_for(lock, atMost, [&] {
        if (!m_attached)
            return !m_problem.empty();
        return present(memory) ? book(memory).loaded || (memory == ORVA_MEMORY_CARD && !cardOpen()) : true;
    });
}

} // namespace orva
