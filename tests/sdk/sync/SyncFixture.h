#ifndef TESTS_SDK_SYNC_SYNCFIXTURE_H
#define TESTS_SDK_SYNC_SYNCFIXTURE_H

// A folder of vCards beside a phonebook, in the words of a test.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "orva/orva_care.h"
#include "orva/orva_sync.h"
#include "sdk/core/Phonebook.h"

namespace phonebook
{

struct Synced {
    long code = ORVA_OK;
    ORVA_SYNC_COUNTS counts = {};
    struct Event {
        int kind = 0;
        int record = 0;
        bool hereWon = false;
        Text file;
        Text name;
        Text what;
        int reason = 0;
    };
    std::vector<Event> events;

    int changes() const
    {
        return counts.added_here + counts.changed_here + counts.deleted_here + counts.added_there +
               counts.changed_there + counts.deleted_there;
    }
};

inline Text wide(const std::string& text)
{
    return Text(text.begin(), text.end());
}

inline std::vector<Synced::Event> eventsOf(void* result)
{
    const auto text = [](const unsigned short* units) { return Text(reinterpret_cast<const char16_t*>(units)); };
    std::vector<Synced::Event> events;
    ORVA_SYNC_EVENT event = {};
    for (int i = 0; ORVA_Sync_Result_GetEvent(result, i, &event) == ORVA_OK; ++i) {
        int reason = -1;
        CHECK_EQ(ORVA_Sync_Result_GetReason(result, i, &reason), ORVA_OK);
        events.push_back({event.kind, event.record, event.here_won != 0, text(event.file), text(event.name),
                          text(event.what), reason});
    }
    return events;
}

inline Synced synchronise(const std::string& folder, int options = 0, int wait = 20000)
{
    Synced synced;
    void* result = nullptr;
    synced.code = ORVA_Sync_Run(local, api(wide(folder)), options, wait, &result);
    if (synced.code != ORVA_OK)
        return synced;
    CHECK_EQ(ORVA_Sync_Result_GetCounts(result, &synced.counts), ORVA_OK);
    synced.events = eventsOf(result);
    CHECK_EQ(static_cast<int>(synced.events.size()), synced.counts.events);
    CHECK_EQ(ORVA_Sync_Result_Release(result), ORVA_OK);
    return synced;
}

// A folder for cards of the test's own, empty.
inline std::string freshCards()
{
    static int number = 0;
    const std::string path = folder() + "/cards-" + std::to_string(::getpid()) + "-" + std::to_string(++number);
    std::filesystem::remove_all(path);
    std::filesystem::create_directories(path);
    return std::filesystem::canonical(path).string();
}

inline std::string readFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// As other programs do it: another name, then a rename.
inline void writeFile(const std::string& path, const std::string& octets)
{
    std::ofstream(path + ".tmp", std::ios::binary) << octets;
    std::filesystem::rename(path + ".tmp", path);
}

// A card of version 3.0 with lines of its own.
inline std::string cardText(const std::string& uid, const std::string& name, const std::string& lines = std::string())
{
    return "BEGIN:VCARD\r\nVERSION:3.0\r\nUID:" + uid + "\r\nFN:" + name + "\r\nN:" + name + ";;;;\r\n" + lines +
           "END:VCARD\r\n";
}

// The names of the cards in a folder.
inline std::vector<std::string> cardNames(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".vcf")
            names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

// The only card of a folder.
inline std::string onlyCardIn(const std::string& folder)
{
    const std::vector<std::string> names = cardNames(folder);
    CHECK_EQ(names.size(), 1U);
    return names.empty() ? std::string() : readFile(folder + "/" + names.front());
}

inline bool holds(const std::string& text, const std::string& part)
{
    if (text.find(part) != std::string::npos)
        return true;
    std::fprintf(stderr, "no \"%s\" in:\n%s\n", part.c_str(), text.c_str());
    return false;
}

// A text with one part replaced, which has to be there.
inline std::string replaced(std::string text, const std::string& part, const std::string& by)
{
    const std::size_t at = text.find(part);
    CHECK(at != std::string::npos);
    return at == std::string::npos ? text : text.replace(at, part.size(), by);
}

inline std::string keptOf(int id)
{
    void* record = nullptr;
    if (ORVA_PBSrv_GetAddrRecord(id, local, &record) != ORVA_OK)
        return "(none)";
    char* text = nullptr;
    int octets = 0;
    std::string kept = "(failed)";
    if (ORVA_Care_GetKept(record, &text, &octets) == ORVA_OK)
        kept.assign(text, static_cast<std::size_t>(octets));
    delete[] text;
    ORVA_PBSrv_AddrRecord_Release(record);
    return kept;
}

// Changes some fields of a record and leaves the others.
inline void change(int id, const Fields& fields)
{
    void* record = nullptr;
    REQUIRE(ORVA_PBSrv_GetAddrRecord(id, local, &record) == ORVA_OK);
    for (const auto& field : fields)
        CHECK_EQ(ORVA_PBSrv_AddrRecord_SetValue(record, field.first.c_str(), api(field.second)), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_UpdateAddrRec(record, id), ORVA_OK);
    ORVA_PBSrv_AddrRecord_Release(record);
}

// What the entries of the bin had as a field, the newest first.
inline std::vector<Text> binValues(const char* key)
{
    std::vector<Text> values;
    ORVA_BIN_ENTRY* entries = nullptr;
    int count = 0;
    CHECK_EQ(ORVA_Care_GetBin(local, &entries, &count), ORVA_OK);
    for (int i = 0; i < count; ++i) {
        void* record = nullptr;
        unsigned short* value = nullptr;
        CHECK_EQ(ORVA_Care_GetBinRecord(local, entries[i].id, &record), ORVA_OK);
        CHECK_EQ(ORVA_PBSrv_AddrRecord_GetValue(record, key, &value), ORVA_OK);
        values.push_back(take(value));
        ORVA_PBSrv_AddrRecord_Release(record);
    }
    ORVA_Care_BinRelease(local, &entries);
    return values;
}

// Whether another sync finds nothing to do.
inline bool isQuiet(const std::string& folder)
{
    const Synced again = synchronise(folder);
    return again.code == ORVA_OK && again.changes() == 0;
}

} // namespace phonebook

#endif // TESTS_SDK_SYNC_SYNCFIXTURE_H
