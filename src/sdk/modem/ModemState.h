#ifndef SDK_MODEM_MODEMSTATE_H
#define SDK_MODEM_MODEMSTATE_H

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>

#include "devices/Hardware.h"
#include "events/EventHub.h"
#include "modem/EntryTable.h"

namespace orva
{

// One of a modem's phonebook storages as the library sees it.
struct ModemBook {
    ModemBook(const std::string& folder, Identifiers& identifiers) : entries(folder, identifiers) {}

    bool there = false;  // the modem has such a storage
    bool loaded = false; // entries are what it holds
    std::string key;     // of the card or modem
    PhonebookStorage storage;
    EntryTable entries;
    std::shared_ptr<const Profile> profile;
    std::atomic<bool> opened{false}; // its list, without the lock
};

// Room for messages that come in.
struct MessageStore {
    int used = 0;
    int total = 0;
};

/*
 * What is known of a modem: written by the thread that speaks to it, read by any. Each change sends its events, in the
 * order of the changes; the lock is held meanwhile, but no callback runs under it.
 */
class ModemState
{
public:
    ModemState(const std::string& folder, EventHub& events);

    // ---- For the modem's thread

    // The modem is there, with what it has, and with what is in the way.
    void attach(CardState card, bool cardBook, bool deviceBook, const std::string& problem = std::string());
    void detach();
    void setCard(CardState card);
    void replaceCard(); // by another one, without anybody having seen it out
    void setRadio(bool on);
    void setNetwork(bool inService);

    // A storage has been read; or the modem turns out not to have it.
    void load(int memory, const PhonebookStorage& storage, const std::string& key,
              const std::vector<PhonebookEntry>& entries);
    void miss(int memory);

    // What is in the way, for people; empty for nothing.
    void setProblem(const std::string& text);

    // The modem's room for messages; nothing for a modem that does not say.
    void setMessages(const std::optional<MessageStore>& store);

    // Whether somebody wants to know of it, and whether anew since the last such question.
    bool wantsMessages() const { return m_messagesWanted; }
    bool takeMessagesAsked() { return m_messagesAsked.exchange(false); }

    // Whether this run of the program has put a copy of a card aside already; it has from the second call on.
    bool markSaved(const std::string& key);
    void unmarkSaved(const std::string& key);

    // Whether somebody has opened a memory's list since the last such question.
    bool takeOpened(int memory) { return book(memory).opened.exchange(false); }

    // ---- For any thread

    void noteOpened(int memory) { book(memory).opened = true; }

    // Somebody wants to know of the room for messages, with `anew` as it is now. True if that is news.
    bool wantMessages(bool anew);

    // Throws Failure as long as nothing is known.
    MessageStore messages() const;

    DeviceStatus status() const;
    std::vector<int> memories() const;
    CardState card() const;
    std::string problem() const;
    void requireOpen(int memory) const;
    std::shared_ptr<const Profile> profile(int memory) const;
    int capacity(int memory) const;
    std::uint64_t changes() const { return m_changes.load(std::memory_order_acquire); }

    // Runs `use` on a memory's book with the lock held.
    template <typename Use>
    auto with(int memory, Use&& use)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return use(book(memory));
    }

    // The same for a change, which readers hear of.
    template <typename Change>
    auto change(int memory, Change&& change)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_changes.fetch_add(1, std::memory_order_acq_rel);
        return change(book(memory));
    }

    // Waits until a memory can be used or will not be; false if it is neither in time.
    bool waitLoaded(int memory, Milliseconds atMost) const;

private:
    ModemBook& book(int memory) { return memory == ORVA_MEMORY_CARD ? m_cardBook : m_deviceBook; }
    const ModemBook& book(int memory) const { return memory == ORVA_MEMORY_CARD ? m_cardBook : m_deviceBook; }
    bool cardIn() const;
    bool cardOpen() const;
    bool present(int memory) const;
    void requirePresent(int memory) const;
    void close(ModemBook& closed);
    void touch();

    EventHub& m_events;
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_touched;
    Identifiers m_identifiers;
    ModemBook m_cardBook;
    ModemBook m_deviceBook;
    bool m_attached = false;
    CardState m_card = CardState::Absent;
    bool m_radio = true;
    bool m_network = false;
    std::string m_problem;
    bool m_messagesTold = false;            // the modem has said, or has been found not to
    std::optional<MessageStore> m_messages; // what it said
    std::atomic<bool> m_messagesWanted{false};
    std::atomic<bool> m_messagesAsked{false};
    std::set<std::string> m_saved; // keys
    std::atomic<std::uint64_t> m_changes{0};
};

} // namespace orva

#endif // SDK_MODEM_MODEMSTATE_H
