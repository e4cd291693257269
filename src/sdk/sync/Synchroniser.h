#ifndef SDK_SYNC_SYNCHRONISER_H
#define SDK_SYNC_SYNCHRONISER_H

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "store/Store.h"
#include "sync/ContactMerge.h"
#include "sync/FolderScan.h"
#include "sync/SyncReport.h"
#include "sync/VdirFolder.h"

namespace orva
{

struct SyncSettings {
    bool force = false;           // deletes however much is gone, and takes a folder without its marker as it is
    bool dryRun = false;          // only tells what would be done
    int capacity = 0;             // of the phonebook
    std::string region;           // as for numberKey()
    std::function<void()> backUp; // before a first sync changes anything, and before a forced one
};

// The groups that somebody was in at the last sync, whatever held the memberships.
std::vector<std::string> groupsOfLink(const SyncLink& link);

/*
 * Keeps the records of a store and a folder of vCards the same, in both directions.
 *
 * A card that a file and a record have in common is the base for the next merge, and lies in the store. Of each contact
 * the file is written first and the record, with its base, after; so a sync that breaks off in between finds the file's
 * changes again, merged with the same outcome. What either side loses to the other is in the bin before it is gone.
 */
class Synchroniser
{
public:
    // `path` is without symbolic links.
    Synchroniser(Store& store, std::string path, SyncSettings settings);

    // Failure(ORVA_E_BUSY) while another sync has the folder, ORVA_E_MARKER for one that is not what it was,
    // ORVA_E_NOT_FOUND if it is not there and cannot be made.
    SyncReport run();

private:
    // One contact's part, from what was read to what is done.
    struct Task {
        enum class File { Leave, Write, Remove };
        SyncStep step;
        File file = File::Leave;
        std::string fileDigest; // of the file as it was read; empty for none
        std::string octets;     // to be written
        std::optional<SyncStep> lost;
        std::vector<SyncEvent> events;
        MergedContact merged; // only what it says of groups
        int SyncReport::*here = nullptr;
        int SyncReport::*there = nullptr;
    };

    void openFolder();
    bool pass();
    void countGone(FolderScan& scan);
    void settleLink(FolderScan& scan, ScannedLink& link);
    void settleGone(FolderScan& scan, ScannedLink& link);
    void settleAbsent(FolderScan& scan, ScannedLink& link);
    void settleBoth(FolderScan& scan, ScannedLink& link);
    void settleStrangers(FolderScan& scan);
    bool takeBack(FolderScan& scan, const SyncLink& record, const SyncContent& content);
    void addHere(FolderScan& scan, const ScannedCard& card, int was);
    void addThere(FolderScan& scan, SyncLink link, const SyncContent& content, const std::string& expected);
    void writeThere(FolderScan& scan, SyncLink link, const SyncContent& content, const Card& base);
    void merge(FolderScan& scan, SyncLink link, const SyncContent& content, const ScannedCard& card,
               const std::optional<Card>& base, int was = 0);
    void noteLook(const ScannedLink& link, const std::string& expected);
    std::optional<std::string> read(const ScannedCard& card);
    std::optional<Card> baseOf(const SyncLink& link);
    long long timeHere(const SyncLink& link);
    std::string freeName(const SyncLink& link) const;
    void add(FolderScan& scan, Task task);
    void flush(FolderScan& scan);
    void settle(std::vector<Task>& tasks);
    bool writeFile(Task& task);
    void reserve(FolderScan& scan, std::vector<SyncLink>& records, const std::vector<SyncContent>& contents);
    void count(const Task& task);

    Store& m_store;
    std::string m_path;
    const SyncSettings m_settings;
    std::optional<VdirFolder> m_folder;
    std::string m_identifier;
    bool m_backedUp = false;
    bool m_again = false;
    bool m_holdHere = false;
    bool m_holdThere = false;
    int m_present = 0; // records that have a link
    std::vector<Task> m_tasks;
    std::size_t m_gathered = 0; // octets of those
    SyncReport m_report;
};

} // namespace orva

#endif // SDK_SYNC_SYNCHRONISER_H
