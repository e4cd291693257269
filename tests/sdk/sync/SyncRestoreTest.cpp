// A restore that is killed at any moment: what the backup knew of the last sync is never in force.

#include "SyncFixture.h"
#include "orva/orva_store.h"
#include "sdk/core/Child.h"
#include "sdk/core/FaultyVfs.h"
#include "sdk/core/RawStore.h"

using namespace phonebook;
namespace fs = std::filesystem;

namespace
{

constexpr int people = 12;

std::string cardOf(const std::string& cards, int i)
{
    return cards + "/" + std::to_string(i) + ".vcf";
}

// A backup, after which another phonebook of the folder has changed some and added one.
std::string prepare(const std::string& data, const std::string& cards)
{
    for (int i = 0; i < people; ++i)
        writeFile(cardOf(cards, i), cardText("uid-" + std::to_string(i), "Person " + std::to_string(i)));
    CHECK_EQ(synchronise(cards).counts.added_here, people);
    std::string backup = data + "/copy.db";
    CHECK_EQ(ORVA_Store_Backup(local, api(wide(backup))), ORVA_OK);
    const std::vector<int> ids = idsOf(local);
    for (int i = 0; i < 4; ++i)
        CHECK_EQ(ORVA_PBSrv_DelAddrRec(ids[static_cast<std::size_t>(i)], local), ORVA_OK);
    add(local, {{"Name", u"Later"}});
    CHECK_EQ(synchronise(cards).counts.deleted_there, 4);
    ORVA_Sim_Reset(nullptr);
    fs::remove_all(data + "/backups");
    return backup;
}

// True for a store as it was restored.
bool isRestored(RawStore& raw)
{
    return raw.ask("SELECT count(*) FROM records WHERE name = 'Later'") == "0";
}

} // namespace

TEST(aRestoreThatIsKilledLeavesNoOldBaseInForce)
{
    const std::string before = useFreshFolder();
    const std::string cards = freshCards();
    prepare(before, cards);
    const std::string data = before + "-run";
    int restored = 0;
    int kept = 0;
    bool killed = true;
    for (int at = 0; killed; ++at) {
        ORVA_Sim_Reset(nullptr);
        fs::remove_all(data);
        fs::copy(before, data, fs::copy_options::recursive);
        const int end = Child({"--restore", data, data + "/copy.db", std::to_string(at)}).wait();
        killed = end == -SIGKILL;
        CHECK(killed || end == 0);
        RawStore raw(data);
        CHECK_EQ(raw.findings(), "");
        if (!isRestored(raw)) {
            CHECK_EQ(raw.ask("SELECT count(*) FROM sync_links WHERE card IS NOT NULL"), std::to_string(people - 3));
            ++kept;
            continue;
        }
        ++restored;
        CHECK_EQ(raw.ask("SELECT count(*) FROM sync_links WHERE card IS NOT NULL OR touched = 0"), "0");
        // Nor is an identifier given out twice.
        CHECK_EQ(raw.ask("SELECT value FROM counters WHERE name = 'record'"), std::to_string(people + 1));
    }
    CHECK(kept > 10 && restored > 1);
    // What the restore brought back is not deleted, and what came since stays.
    ORVA_Sim_Reset(data.c_str());
    const Synced synced = synchronise(cards);
    CHECK_EQ(synced.counts.deleted_here + synced.counts.deleted_there, 0);
    CHECK_EQ(sizeOf(local), people + 1);
}

int main(int argc, char** argv)
{
    if (argc == 5 && std::string(argv[1]) == "--restore") {
        faulty::install();
        ORVA_Sim_Reset(argv[2]);
        sizeOf(local); // it is open as that of a program that runs
        faulty::arm(faulty::Fault::Death, std::stol(argv[4]), false);
        const long code = ORVA_Store_Restore(local, api(wide(argv[3])));
        faulty::disarm();
        return code == ORVA_OK ? 0 : 1;
    }
    return check::runAll(argc, argv);
}
