// The files of the store: whose they are, and what becomes of damaged ones.

#include <fcntl.h>
#include <grp.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <csignal>
#include <fstream>
#include <set>

#include "Phonebook.h"
#include "RawStore.h"

using namespace phonebook;
namespace fs = std::filesystem;

namespace
{

int modeOf(const fs::path& path)
{
    struct stat state = {};
    return ::lstat(path.c_str(), &state) == 0 ? static_cast<int>(state.st_mode & 07777) : -1;
}

std::string contentOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

void fill(int count)
{
    REQUIRE(ORVA_PBSrv_BeginTransaction(local) == ORVA_OK);
    for (int i = 0; i < count; ++i) {
        const std::string number = std::to_string(i);
        add(local, {{"Name", u"Contact"}, {"Mobile", Text(number.begin(), number.end())}, {"remark", Text(100, u'r')}});
    }
    REQUIRE(ORVA_PBSrv_EndTransaction(local) == ORVA_OK);
}

std::vector<fs::path> asideFiles(const std::string& data, const std::string& word)
{
    std::vector<fs::path> found;
    for (const auto& entry : fs::directory_iterator(data)) {
        const std::string name = entry.path().filename().string();
        if (name.find(word) != std::string::npos && name.find("-wal") == std::string::npos &&
            name.find("-shm") == std::string::npos)
            found.push_back(entry.path());
    }
    return found;
}

std::string logOf(const std::string& data)
{
    return contentOf(data + "/log/sdk.log");
}

void overwrite(const fs::path& path, std::streamoff offset, const std::string& bytes)
{
    std::fstream file(path, std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(offset);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

// Runs in a process of its own, as a user who is not above the rules; the exit status.
int asOrdinaryUser(const std::function<int()>& body)
{
    ORVA_Sim_Reset(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        if (::geteuid() == 0 && (::setgroups(0, nullptr) != 0 || ::setgid(65534) != 0 || ::setuid(65534) != 0))
            ::_exit(99);
        ::_exit(body());
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

void giveToOrdinaryUser(const std::string& folder)
{
    if (::geteuid() != 0)
        return;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        CHECK_EQ(::lchown(entry.path().c_str(), 65534, 65534), 0);
    CHECK_EQ(::lchown(folder.c_str(), 65534, 65534), 0);
}

// A folder that another user can reach, which the test's home is not.
std::string openFolder(const std::string& name)
{
    const fs::path folder = fs::temp_directory_path() / ("sdk-storage-" + std::to_string(::getpid()) + "-" + name);
    fs::remove_all(folder);
    fs::create_directories(folder);
    return folder.string();
}

} // namespace

// ---- Rights

TEST(everyFileIsTheUsersAloneWhateverTheUmask)
{
    for (const mode_t mask : {mode_t{0}, mode_t{0777}, mode_t{022}}) {
        const mode_t old = ::umask(mask);
        const std::string data = useFreshFolder();
        add(local, {{"Name", u"Anna"}});
        add(card, {{"Name", u"Anna"}});
        ORVA_Sim_SetNetwork(1);
        unsigned short* log = nullptr;
        CHECK_EQ(ORVA_GetLogDirectory(&log), ORVA_OK);
        take(log);
        ORVA_PBSrv_DelAddrRec(99, local); // a line in the log
        ::umask(old);
        CHECK_EQ(modeOf(data), 0700);
        int files = 0;
        for (const auto& entry : fs::recursive_directory_iterator(data)) {
            if (entry.is_directory())
                CHECK_EQ(modeOf(entry.path()), 0700);
            else if (!CHECK_EQ(modeOf(entry.path()), 0600))
                std::fprintf(stderr, "  of %s\n", entry.path().c_str());
            ++files;
        }
        CHECK(files >= 6);
    }
}

TEST(rightsOfOthersAreTakenOffAnExistingFolder)
{
    const std::string data = folder() + "/open";
    fs::create_directories(data);
    fs::permissions(data, fs::perms::all);
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    add(local, {{"Name", u"Anna"}});
    CHECK_EQ(modeOf(data), 0700);
    ORVA_Sim_Reset(nullptr);
    fs::permissions(data + "/local.db", fs::perms::owner_all | fs::perms::group_all | fs::perms::others_read);
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    CHECK_EQ(sizeOf(local), 1);
    CHECK_EQ(modeOf(data + "/local.db") & 077, 0);
}

TEST(aSymbolicLinkInPlaceOfAStoreIsNotFollowed)
{
    const std::string data = useFreshFolder();
    fs::create_directories(data);
    const std::string target = folder() + "/target";
    fs::create_symlink(target, data + "/local.db");
    CHECK_EQ(tryAdd(local, {{"Name", u"Anna"}}), -ORVA_E_STORE);
    CHECK(!fs::exists(target));
    std::ofstream(target) << "mine";
    CHECK_EQ(tryAdd(local, {{"Name", u"Anna"}}), -ORVA_E_STORE);
    CHECK_EQ(contentOf(target), "mine");
    CHECK(fs::is_symlink(data + "/local.db"));
    // Nor in place of the log or the hardware's state.
    fs::create_directories(data + "/log");
    fs::remove(data + "/log/sdk.log");
    fs::create_symlink(target, data + "/log/sdk.log");
    ORVA_PBSrv_DelAddrRec(1, local);
    fs::create_symlink(target, data + "/sim.ini");
    ORVA_Sim_SetNetwork(1);
    CHECK_EQ(contentOf(target), "mine");
}

TEST(aStoreThatIsNoFileIsRefused)
{
    const std::string data = useFreshFolder();
    fs::create_directories(data + "/local.db");
    CHECK_EQ(tryAdd(local, {{"Name", u"Anna"}}), -ORVA_E_STORE);
    fs::remove(data + "/local.db");
    CHECK_EQ(::mkfifo((data + "/local.db").c_str(), 0600), 0);
    CHECK_EQ(tryAdd(local, {{"Name", u"Anna"}}), -ORVA_E_STORE);
    fs::remove(data + "/local.db");
    CHECK(tryAdd(local, {{"Name", u"Anna"}}) > 0);
}

TEST(aFolderThatCannotBeWrittenGivesACode)
{
    const std::string base = openFolder("readonly");
    const std::string data = base + "/data";
    ORVA_Sim_Reset(data.c_str());
    add(local, {{"Name", u"Anna"}});
    ORVA_Sim_Reset(nullptr);
    giveToOrdinaryUser(base);
    CHECK_EQ(::chmod(base.c_str(), 0755), 0);
    CHECK_EQ(::chmod(data.c_str(), 0500), 0);
    const int status = asOrdinaryUser([&] {
        ORVA_Sim_Reset(data.c_str());
        if (tryAdd(local, {{"Name", u"Berta"}}) != -ORVA_E_READ_ONLY)
            return 1;
        ORVA_Sim_Reset((base + "/none").c_str());
        ::chmod(base.c_str(), 0500);
        int number = 0;
        if (tryAdd(local, {{"Name", u"Berta"}}) != -ORVA_E_STORE)
            return 2;
        // The hardware needs no folder.
        if (ORVA_DevSrv_GetDevStatus(&number) != ORVA_OK || number != 3)
            return 3;
        unsigned short* log = nullptr;
        if (ORVA_GetLogDirectory(&log) != ORVA_E_STORE)
            return 4;
        ::chmod(data.c_str(), 0700);
        ORVA_Sim_Reset(data.c_str());
        return valueOf(local, 1, "Name") == u"Anna" ? 0 : 5;
    });
    CHECK_EQ(status, 0);
    ::chmod(base.c_str(), 0700);
    ::chmod(data.c_str(), 0700);
    fs::remove_all(base);
}

TEST(aFileThatMayNotGrowGivesACodeAndLosesNothing)
{
    const std::string base = openFolder("full");
    const std::string data = base + "/data";
    ORVA_Sim_Reset(data.c_str());
    fill(200);
    ORVA_Sim_Reset(nullptr);
    giveToOrdinaryUser(base);
    const int status = asOrdinaryUser([&] {
        ORVA_Sim_Reset(data.c_str());
        if (sizeOf(local) != 200)
            return 1;
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit small{static_cast<rlim_t>(fs::file_size(data + "/local.db")), RLIM_INFINITY};
        ::setrlimit(RLIMIT_FSIZE, &small);
        int added = 0;
        long code = 0;
        for (; added < 3000; ++added) {
            code = tryAdd(local, {{"Name", u"more"}, {"remark", Text(500, u'x')}});
            if (code < 0)
                break;
        }
        if (code != -ORVA_E_NO_SPACE)
            return 2;
        const rlimit none{RLIM_INFINITY, RLIM_INFINITY};
        ::setrlimit(RLIMIT_FSIZE, &none);
        if (tryAdd(local, {{"Name", u"after"}}) < 0)
            return 3;
        ORVA_Sim_Reset(data.c_str());
        return sizeOf(local) == 200 + added + 1 ? 0 : 4;
    });
    CHECK_EQ(status, 0);
    CHECK_EQ(RawStore(data).findings(), "");
    fs::remove_all(base);
}

TEST(theDataFolderFollowsTheEnvironment)
{
    const std::string own = folder();
    ORVA_Sim_Reset(nullptr);
    add(local, {{"Name", u"Anna"}});
    CHECK(fs::exists(own + "/local.db"));
    ORVA_Sim_Reset(nullptr);
    const std::string xdg = own + "/xdg";
    ::unsetenv("LINKHAND_DATA_DIR");
    ::setenv("XDG_DATA_HOME", xdg.c_str(), 1);
    CHECK_EQ(sizeOf(local), 0);
    CHECK(fs::exists(xdg + "/linkhand/local.db"));
    ORVA_Sim_Reset(nullptr);
    ::unsetenv("XDG_DATA_HOME");
    ::setenv("HOME", own.c_str(), 1);
    CHECK_EQ(sizeOf(local), 0);
    CHECK(fs::exists(own + "/.local/share/linkhand/local.db"));
    ORVA_Sim_Reset(nullptr);
    ::setenv("LINKHAND_DATA_DIR", own.c_str(), 1);
    CHECK_EQ(sizeOf(local), 1);
}

// ---- Damage

TEST(aFileThatIsNoDatabaseIsKeptBesideANewOne)
{
    const std::string data = useFreshFolder();
    fs::create_directories(data);
    const std::string rubbish(20000, 'x');
    std::ofstream(data + "/local.db") << rubbish;
    CHECK_EQ(sizeOf(local), 0);
    CHECK(tryAdd(local, {{"Name", u"Anna"}}) > 0);
    const auto aside = asideFiles(data, "damaged");
    REQUIRE(aside.size() == 1);
    CHECK_EQ(contentOf(aside.front()), rubbish);
    CHECK(logOf(data).find("is damaged") != std::string::npos);
}

TEST(aTruncatedStoreIsKeptAndWhatIsReadableComesBack)
{
    const std::string data = useFreshFolder();
    fill(2000);
    const int group = addGroup(u"group");
    CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(group, 1, local), ORVA_OK);
    ORVA_Sim_Reset(nullptr);
    const auto size = fs::file_size(data + "/local.db");
    fs::resize_file(data + "/local.db", size / 2);
    ORVA_Sim_Reset(data.c_str());
    const int left = sizeOf(local);
    std::printf("%d of 2000 records came back\n", left);
    CHECK(left > 200);
    CHECK(left < 2000);
    for (const int id : idsOf(local)) {
        const std::string number = std::to_string(id - 1);
        CHECK_EQ(valueOf(local, id, "Mobile"), Text(number.begin(), number.end()));
    }
    const auto aside = asideFiles(data, "damaged");
    REQUIRE(aside.size() == 1);
    CHECK_EQ(fs::file_size(aside.front()), size / 2);
    CHECK_EQ(RawStore(data).findings(), "");
    const int last = idsOf(local).back();
    CHECK(add(local, {{"Name", u"new"}}) > last);
}

TEST(damageMetOnTheWayIsRepairedOnTheWay)
{
    const std::string data = useFreshFolder();
    fill(3000);
    const int group = addGroup(u"group");
    for (const int member : {1, 2, 2999})
        CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(group, member, local), ORVA_OK);
    ORVA_Sim_Reset(nullptr);
    const auto size = fs::file_size(data + "/local.db");
    const std::streamoff middle = static_cast<std::streamoff>(size / 2 / 4096 * 4096);
    overwrite(data + "/local.db", middle, std::string(4096, '\xa5'));
    ORVA_Sim_Reset(data.c_str());
    // A point read elsewhere in the file does not meet it; the walk does.
    CHECK_EQ(valueOf(local, 1, "Mobile"), u"0");
    CHECK(asideFiles(data, "damaged").empty());
    const std::vector<int> ids = idsOf(local);
    std::printf("%zu of 3000 records came back\n", ids.size());
    REQUIRE(ids.size() > 2900);
    CHECK(ids.size() < 3000);
    CHECK_EQ(ids.front(), 1);
    CHECK_EQ(ids.back(), 3000);
    CHECK(membersOf(group) == (std::vector<int>{1, 2, 2999}));
    CHECK_EQ(asideFiles(data, "damaged").size(), 1U);
    CHECK_EQ(RawStore(data).findings(), "");
    CHECK_EQ(add(local, {{"Name", u"new"}}), 3001);
    CHECK(logOf(data).find("met damage") != std::string::npos);
}

TEST(randomBytesAnywhereNeverCrash)
{
    const std::string data = useFreshFolder();
    fill(500);
    addGroup(u"group");
    ORVA_Sim_Reset(nullptr);
    const std::string sound = contentOf(data + "/local.db");
    unsigned state = 12345;
    const auto random = [&state] {
        state = state * 1103515245U + 12345U;
        return state >> 8;
    };
    const int rounds = std::getenv("LINKHAND_FULL") != nullptr ? 500 : 40;
    for (int round = 0; round < rounds; ++round) {
        const std::string other = useFreshFolder();
        fs::create_directories(other);
        std::string bytes = sound;
        for (unsigned i = 0; i <= random() % 40; ++i)
            bytes[random() % bytes.size()] = static_cast<char>(random());
        std::ofstream(other + "/local.db", std::ios::binary) << bytes;
        for (int twice = 0; twice < 2; ++twice) {
            idsOf(local);
            sizeOf(local);
            membersOf(1);
            groupIds();
            ORVA_PBSrv_DelAddrRec(250, local);
            tryAdd(local, {{"Name", u"new"}});
        }
        ORVA_Sim_Reset(nullptr);
        fs::remove_all(other);
    }
}

TEST(aStoreWhoseTablesAreGoneIsKeptBesideANewOne)
{
    const std::string data = useFreshFolder();
    fill(10);
    ORVA_Sim_Reset(nullptr);
    {
        RawStore raw(data);
        raw.ask("DROP TABLE memberships");
        raw.ask("DROP TABLE groups");
    }
    ORVA_Sim_Reset(data.c_str());
    CHECK_EQ(sizeOf(local), 10);
    CHECK(addGroup(u"group") > 0);
    CHECK_EQ(asideFiles(data, "damaged").size(), 1U);
}

TEST(aNewerStoreAndAForeignOneAreLeftAlone)
{
    const std::string data = useFreshFolder();
    fill(3);
    ORVA_Sim_Reset(nullptr);
    RawStore(data).ask("PRAGMA user_version = 99");
    ORVA_Sim_Reset(data.c_str());
    int size = 0;
    CHECK_EQ(ORVA_PBSrv_GetSize(local, &size), ORVA_E_VERSION);
    CHECK_EQ(tryAdd(local, {{"Name", u"x"}}), -ORVA_E_VERSION);
    CHECK_EQ(RawStore(data).ask("SELECT count(*) FROM records"), "3");
    CHECK(logOf(data).find("newer release") != std::string::npos);

    const std::string other = useFreshFolder();
    fs::create_directories(other);
    std::ofstream(other + "/local.db").close();
    RawStore(other).ask("CREATE TABLE recipes (name TEXT)");
    CHECK_EQ(ORVA_PBSrv_GetSize(local, &size), ORVA_E_STORE);
    CHECK_EQ(RawStore(other).ask("SELECT count(*) FROM recipes"), "0");
    CHECK(asideFiles(other, "damaged").empty());
}

TEST(aStoreThatIsReplacedWhileOpenIsOpenedAnew)
{
    const std::string data = useFreshFolder();
    fill(5);
    fs::remove(data + "/local.db-wal");
    fs::remove(data + "/local.db-shm");
    fs::remove(data + "/local.db");
    CHECK_EQ(sizeOf(local), 0);
    // Never down, not even now.
    CHECK_EQ(add(local, {{"Name", u"new"}}), 6);
    CHECK_EQ(RawStore(data).ask("SELECT count(*) FROM records"), "1");
}

TEST(theLogStaysSmallAndHoldsNoContact)
{
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"Geheimrat"}, {"Mobile", u"0170998877"}});
    CHECK_EQ(tryAdd(local, {{"Name", u"Geheimrat"}, {"Mobile", Text(41, u'7')}}), -ORVA_E_TOO_LONG);
    CHECK_EQ(tryAdd(card, {{"Name", u"Geheimrat Geheimrat"}}), -ORVA_E_TOO_LONG);
    const std::string log = logOf(data);
    CHECK(!log.empty());
    CHECK(log.find("Geheimrat") == std::string::npos);
    CHECK(log.find("7777") == std::string::npos);
    for (int i = 0; i < 15000; ++i)
        ORVA_PBSrv_DelAddrRec(1, 7);
    CHECK(fs::file_size(data + "/log/sdk.log") <= 1100000);
    CHECK(fs::file_size(data + "/log/sdk.log.1") <= 1100000);
}

CHECK_MAIN
