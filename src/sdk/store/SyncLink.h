#ifndef SDK_STORE_SYNCLINK_H
#define SDK_STORE_SYNCLINK_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Values.h"

namespace orva
{

// What stands for one person on both sides, as the last sync left it. Texts are UTF-8 or octets.
struct SyncLink {
    int record = 0;
    std::string uid;
    std::string file;      // its name in the folder
    std::string look;      // of the file then; empty for one whose content has to be looked at
    std::string remote;    // the digest of the file's octets
    std::string local;     // the digest of the record
    std::string groups;    // the paths of those it was in, one a line; a tab before those that a card of a group holds
    long long changed = 0; // when the record was written last, as far as is known beside the bin; seconds since 1970
    bool hasCard = false;  // else nothing is known but who is who
    bool touched = false;  // the record may have changed since
    bool doubtful = false; // the store was damaged since
    bool gone = false;     // the record is not there any more
};

// What tells of a link that there is nothing to do for it.
struct SyncLook {
    int record = 0;
    bool settled = false; // untouched, with a card, and in no group that a card of its own holds
    std::string_view file;
    std::string_view look;
};

// Those of a folder, each with its texts in one place of one piece of memory, since thousands are looked at once each.
class SyncLooks
{
public:
    using Place = std::uint32_t;

    void reserve(std::size_t count) { m_words.reserve(count * 14); } // most need less
    void add(const SyncLook& look);
    std::size_t size() const { return m_size; }

    // From the first, 0, to the end.
    Place end() const { return static_cast<Place>(m_words.size()); }
    Place next(Place place) const { return place + wordsOf(headAt(place)); }

    // Has one brought near that is about to be looked at.
    void fetch(Place place) const
    {
        constexpr std::size_t line = 64 / sizeof(std::uint64_t);
        __builtin_prefetch(m_words.data() + place);
        __builtin_prefetch(m_words.data() + std::min(place + line, m_words.size()));
    }

    SyncLook operator[](Place place) const
    {
        const Head head = headAt(place);
        const char* const text = reinterpret_cast<const char*>(m_words.data() + place + headWords);
        return {head.record, head.settled, std::string_view(text, head.file),
                std::string_view(text + head.file, head.look)};
    }

private:
    struct Head {
        int record;
        std::uint32_t file;
        std::uint32_t look;
        bool settled;
    };
    static constexpr Place headWords = (sizeof(Head) + 7) / 8;

    static Place wordsOf(const Head& head)
    {
        return static_cast<Place>(headWords + (std::size_t(head.file) + head.look + 7) / 8);
    }
    Head headAt(Place place) const
    {
        Head head;
        std::memcpy(&head, &m_words[place], sizeof head);
        return head;
    }

    std::size_t m_size = 0;
    std::vector<std::uint64_t> m_words;
};

// All of one record.
struct SyncContent {
    Content content;
    std::vector<std::string> groups; // paths, sorted, each once
};

std::string digestOf(const SyncContent& content);
std::string joinedGroups(const std::vector<std::string>& groups);
std::vector<std::string> splitGroupLines(const std::string& lines);

// One person's part of a sync as the store takes it.
struct SyncStep {
    enum class Kind {
        Reserve, // writes the link of a record that is there, without a card
        Keep,    // puts what the other side said, and has to give up, into the bin
        Settle,  // writes the link with its card, and before that the record where there is content for it
        Erase,   // removes the record and the link
        Forget,  // removes the link
        Look,    // writes only how the file looks, and with an expected digest that the record is as it was
    };
    Kind kind = Kind::Settle;
    SyncLink link;        // a record of 0 is added
    int was = 0;          // the record that the link had, if another
    std::string expected; // the record's digest as it was read; a step on a record that has changed since is left out
    std::string card;
    std::optional<SyncContent> content;

    // What became of it.
    bool done = false;
    long failure = 0; // ORVA_E_FULL
};

} // namespace orva

#endif // SDK_STORE_SYNCLINK_H
