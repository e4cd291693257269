// Why a sync has left something, as a code.

#include "SyncFixture.h"

#include <linux/capability.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include "orva/orva_sim.h"

using namespace phonebook;
namespace fs = std::filesystem;

namespace
{

// As root, too, a file's mode says who may read it.
class OrdinaryReader
{
public:
    OrdinaryReader()
    {
        __user_cap_data_struct fewer[2] = {};
        CHECK_EQ(::syscall(SYS_capget, &m_header, m_before), 0);
        std::copy(m_before, m_before + 2, fewer);
        fewer[0].effective &= ~((1U << CAP_DAC_OVERRIDE) | (1U << CAP_DAC_READ_SEARCH));
        CHECK_EQ(::syscall(SYS_capset, &m_header, fewer), 0);
    }
    ~OrdinaryReader() { CHECK_EQ(::syscall(SYS_capset, &m_header, m_before), 0); }
    OrdinaryReader(const OrdinaryReader&) = delete;
    OrdinaryReader& operator=(const OrdinaryReader&) = delete;

private:
    __user_cap_header_struct m_header = {_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct m_before[2] = {};
};

// The reason of each file that was left.
std::map<Text, int> reasonsOf(const std::vector<Synced::Event>& events)
{
    std::map<Text, int> reasons;
    for (const Synced::Event& event : events)
        reasons[event.file] = event.reason;
    return reasons;
}

std::string octetsOfPhoto()
{
    return "PHOTO;ENCODING=b:" + std::string(6U << 20, 'A') + "\r\n";
}

} // namespace

TEST(eachFileThatIsLeftHasTheCodeOfItsReason)
{
    useFreshFolder();
    const std::string cards = freshCards();
    fs::create_symlink("elsewhere", cards + "/link.vcf");
    fs::create_directory(cards + "/folder.vcf");
    writeFile(cards + "/large.vcf", cardText("l", "Large", octetsOfPhoto()));
    writeFile(cards + "/none.vcf", "nothing\r\n");
    writeFile(cards + "/two.vcf", cardText("t", "One") + cardText("v", "Two"));
    writeFile(cards + "/empty.vcf", cardText("e", ""));
    writeFile(cards + "/a.vcf", cardText("a", "Anna"));
    synchronise(cards);
    writeFile(cards + "/b.vcf", cardText("a", "Anna again"));
    writeFile(cards + "/secret.vcf", cardText("s", "Secret"));
    CHECK_EQ(::chmod((cards + "/secret.vcf").c_str(), 0), 0);
    const OrdinaryReader ordinary;
    const std::map<Text, int> expected = {
        {u"link.vcf", ORVA_SYNC_REASON_LINK},    {u"folder.vcf", ORVA_SYNC_REASON_NO_FILE},
        {u"large.vcf", ORVA_SYNC_REASON_LARGE},  {u"secret.vcf", ORVA_SYNC_REASON_UNREADABLE},
        {u"none.vcf", ORVA_SYNC_REASON_NO_CARD}, {u"two.vcf", ORVA_SYNC_REASON_NO_CARD},
        {u"empty.vcf", ORVA_SYNC_REASON_EMPTY},  {u"b.vcf", ORVA_SYNC_REASON_COPY},
    };
    CHECK(reasonsOf(synchronise(cards).events) == expected);
}

TEST(aContactThatIsLeftHasTheCodeOfItsReason)
{
    useFreshFolder();
    const std::string cards = freshCards();
    void* record = nullptr;
    REQUIRE(newRecord(local, {{"Name", u"Anna"}}, &record) == ORVA_OK);
    const std::string kept = octetsOfPhoto();
    CHECK_EQ(ORVA_Care_SetKept(record, kept.data(), static_cast<int>(kept.size())), ORVA_OK);
    int id = 0;
    CHECK_EQ(ORVA_PBSrv_AddAddrRec(record, &id), ORVA_OK);
    ORVA_PBSrv_AddrRecord_Release(record);
    writeFile(cards + "/b.vcf", cardText("b", "Bert"));
    CHECK_EQ(ORVA_Sim_SetCapacity(local, 1), ORVA_OK);
    const Synced synced = synchronise(cards);
    CHECK_EQ(ORVA_Sim_SetCapacity(local, 10), ORVA_OK);
    REQUIRE(synced.events.size() == 2);
    for (const Synced::Event& event : synced.events)
        CHECK_EQ(event.reason, event.record == id ? ORVA_SYNC_REASON_LARGE_CARD : ORVA_SYNC_REASON_FULL);
}

TEST(theLastRunKeepsTheReasons)
{
    const std::string data = useFreshFolder();
    const std::string cards = freshCards();
    writeFile(cards + "/none.vcf", "nothing\r\n");
    REQUIRE(ORVA_Sync_SetUpFolder(api(wide(cards))) == ORVA_OK);
    void* result = nullptr;
    REQUIRE(ORVA_Sync_RunSetUp(local, 0, 0, nullptr, nullptr, &result) == ORVA_OK);
    CHECK_EQ(ORVA_Sync_Result_Release(result), ORVA_OK);
    REQUIRE(ORVA_Sync_GetLastRun(&result) == ORVA_OK);
    const std::vector<Synced::Event> kept = eventsOf(result);
    CHECK_EQ(ORVA_Sync_Result_Release(result), ORVA_OK);
    REQUIRE(kept.size() == 1);
    CHECK_EQ(kept[0].kind, ORVA_SYNC_LEFT);
    CHECK_EQ(kept[0].reason, ORVA_SYNC_REASON_NO_CARD);
    // A file of a release without reasons tells its events all the same.
    const std::string file = data + "/sync/last";
    writeFile(file, replaced(readFile(file), "left 5\t", "left\t"));
    REQUIRE(ORVA_Sync_GetLastRun(&result) == ORVA_OK);
    const std::vector<Synced::Event> older = eventsOf(result);
    CHECK_EQ(ORVA_Sync_Result_Release(result), ORVA_OK);
    REQUIRE(older.size() == 1);
    CHECK_EQ(older[0].reason, ORVA_SYNC_REASON_NONE);
    CHECK_EQ(older[0].what, kept[0].what);
}

TEST(aConflictHasNoReasonAndAnEventThatIsNotThereNone)
{
    useFreshFolder();
    const std::string cards = freshCards();
    writeFile(cards + "/a.vcf", cardText("a", "Anna", "TEL;TYPE=CELL:1\r\n"));
    synchronise(cards);
    change(1, {{"Mobile", u"2"}});
    writeFile(cards + "/a.vcf", cardText("a", "Anna", "TEL;TYPE=CELL:3\r\n"));
    void* result = nullptr;
    REQUIRE(ORVA_Sync_Run(local, api(wide(cards)), 0, 0, &result) == ORVA_OK);
    int reason = -1;
    CHECK_EQ(ORVA_Sync_Result_GetReason(result, 0, &reason), ORVA_OK);
    CHECK_EQ(reason, ORVA_SYNC_REASON_NONE);
    CHECK_EQ(ORVA_Sync_Result_GetReason(result, 1, &reason), ORVA_E_END);
    CHECK_EQ(ORVA_Sync_Result_GetReason(result, -1, &reason), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Sync_Result_GetReason(result, 0, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Sync_Result_Release(result), ORVA_OK);
}

CHECK_MAIN
