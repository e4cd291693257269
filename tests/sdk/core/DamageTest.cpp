// That a damaged store was replaced is told, with what came through.

#include <fstream>

#include "Phonebook.h"
#include "RawStore.h"
#include "orva/orva_store.h"

using namespace phonebook;
namespace fs = std::filesystem;

namespace
{

struct Told {
    long code = 0;
    int records = -1;
    int groups = -1;
    long long time = 0;
    std::string file;
    Text what;
};

Told damage(int once, int memory = local)
{
    ORVA_STORE_DAMAGE damage = {};
    Told told;
    told.code = ORVA_Store_GetDamage(memory, once, &damage);
    if (told.code != ORVA_OK)
        return told;
    told.records = damage.records;
    told.groups = damage.groups;
    told.time = damage.time;
    const Text file = take(damage.file);
    told.file.assign(file.begin(), file.end());
    told.what = take(damage.what);
    return told;
}

// A store with two records and a group that has lost a table, seen by the next process.
std::string damagedStore()
{
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"Anna"}});
    add(local, {{"Name", u"Bert"}});
    addGroup(u"group");
    ORVA_Sim_Reset(nullptr);
    CHECK_EQ(RawStore(data).ask("DROP TABLE memberships"), "");
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    return data;
}

} // namespace

TEST(aSoundStoreHasNoDamageToTell)
{
    useFreshFolder();
    add(local, {{"Name", u"Anna"}});
    for (const int memory : {local, card, device})
        CHECK_EQ(damage(0, memory).code, ORVA_E_NOT_FOUND);
    CHECK_EQ(ORVA_Store_GetDamage(local, 0, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(damage(0, 9).code, ORVA_E_ARGUMENT);
    ORVA_Sim_SetCard(0);
    CHECK_EQ(damage(0, card).code, ORVA_E_ABSENT);
}

TEST(aReplacedStoreIsToldOfWithWhatCameThrough)
{
    const auto before = static_cast<long long>(::time(nullptr));
    const std::string data = damagedStore();
    // The question itself opens the store.
    const Told told = damage(0);
    CHECK_EQ(told.code, ORVA_OK);
    CHECK_EQ(told.records, 2);
    CHECK_EQ(told.groups, 1);
    CHECK(told.time >= before && told.time <= static_cast<long long>(::time(nullptr)));
    CHECK(fs::exists(told.file));
    CHECK(told.file.find("damaged") != std::string::npos);
    CHECK(told.what.find(u"memberships") != Text::npos);
    CHECK_EQ(sizeOf(local), 2);
    CHECK_EQ(damage(0, card).code, ORVA_E_NOT_FOUND);
    // The next process is told as well, until somebody has put the file away.
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    CHECK_EQ(damage(0).code, ORVA_OK);
    fs::remove(told.file);
    CHECK_EQ(damage(0).code, ORVA_E_NOT_FOUND);
}

TEST(whoAsksForItOnceIsToldOnceForAllProcesses)
{
    const std::string data = damagedStore();
    CHECK_EQ(damage(1).code, ORVA_OK);
    CHECK_EQ(damage(1).code, ORVA_E_NOT_FOUND);
    CHECK_EQ(damage(0).code, ORVA_OK);
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    CHECK_EQ(damage(1).code, ORVA_E_NOT_FOUND);
    // The next damage is another one.
    ORVA_Sim_Reset(nullptr);
    CHECK_EQ(RawStore(data).ask("DROP TABLE memberships"), "");
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    CHECK_EQ(damage(1).code, ORVA_OK);
}

TEST(aFileOfNothingButRubbishIsToldOfAsWell)
{
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"Anna"}});
    ORVA_Sim_Reset(nullptr);
    std::ofstream(data + "/local.db", std::ios::binary) << std::string(5000, 'x');
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    const Told told = damage(0);
    CHECK_EQ(told.code, ORVA_OK);
    CHECK_EQ(told.records, 0);
    CHECK(fs::exists(told.file));
}

CHECK_MAIN
