// A store that cannot be written is read all the same, says so, and is written again as soon as that can be.
//
// What needs a user who is not above the rules runs in a process of its own as one; a full disk is a file system of few
// pages where root may mount one, and a limit on the length of files everywhere.

#include <fcntl.h>
#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <atomic>
#include <csignal>

#include "Child.h"
#include "Phonebook.h"
#include "RawStore.h"
#include "orva/orva_store.h"

using namespace phonebook;
namespace fs = std::filesystem;

namespace
{

constexpr uid_t ordinaryUser = 65534;

std::atomic<int> accessEvents{0};

int onEvent(int event, void* /*data*/)
{
    if (event == ORVA_EVENT_STORE_ACCESS)
        ++accessEvents;
    return 0;
}

// The code that the store of the PC tells of its writing, or 1 + the code below 0 with which that cannot be asked.
long accessOf(int memory = local)
{
    long code = -1;
    const long asked = ORVA_Store_GetAccess(memory, &code);
    return asked == ORVA_OK ? code : -asked;
}

// A folder that other users can reach, which the test's home is not; gone with the object.
class OpenFolder
{
public:
    OpenFolder() : m_base(fs::temp_directory_path() / ("sdk-readonly-" + std::to_string(::getpid())))
    {
        fs::remove_all(m_base);
        fs::create_directories(m_base);
        ::chmod(m_base.c_str(), 0755);
    }
    ~OpenFolder()
    {
        ORVA_Sim_Reset(nullptr);
        std::error_code ignored;
        fs::permissions(data(), fs::perms::owner_all, ignored);
        fs::remove_all(m_base, ignored);
    }
    OpenFolder(const OpenFolder&) = delete;
    OpenFolder& operator=(const OpenFolder&) = delete;

    std::string data() const { return m_base.string() + "/data"; }
    std::string file(const std::string& ending = "") const { return data() + "/local.db" + ending; }

    void give(uid_t user) const
    {
        if (::geteuid() != 0)
            return;
        for (const auto& entry : fs::recursive_directory_iterator(m_base))
            CHECK_EQ(::lchown(entry.path().c_str(), user, user), 0);
        CHECK_EQ(::lchown(m_base.c_str(), user, user), 0);
    }

private:
    fs::path m_base;
};

void becomeOrdinaryUser()
{
    if (::geteuid() == 0 &&
        (::setgroups(0, nullptr) != 0 || ::setgid(ordinaryUser) != 0 || ::setuid(ordinaryUser) != 0))
        ::_exit(99);
}

int inChild(const std::function<int()>& body)
{
    ORVA_Sim_Reset(nullptr);
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(body());
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

// Anna and Bert, stored by a process that closed its store or was killed.
void storeTwo(const std::string& data, bool killed)
{
    CHECK_EQ(inChild([&] {
                 ORVA_Sim_Reset(data.c_str());
                 add(local, {{"Name", u"Anna"}, {"Mobile", u"1"}});
                 addGroup(u"Friends");
                 ORVA_PBSrv_AddAddrToGroup(1, 1, local);
                 if (killed) {
                     ORVA_Sim_Reset(nullptr);
                     ORVA_Sim_Reset(data.c_str());
                 }
                 add(local, {{"Name", u"Bert"}, {"Mobile", u"2"}});
                 if (killed)
                     ::_exit(0);
                 ORVA_Sim_Reset(nullptr);
                 return 0;
             }),
             0);
    CHECK_EQ(fs::exists(data + "/local.db-wal"), killed);
}

bool readsTwo()
{
    return sizeOf(local) == 2 && valueOf(local, 1, "Name") == u"Anna" && valueOf(local, 2, "Name") == u"Bert" &&
           idsOf(local).size() == 2 && groupIds().size() == 1 && membersOf(1).size() == 1;
}

long tryEverything(long code)
{
    if (tryAdd(local, {{"Name", u"Carl"}}) != -code)
        return 1;
    if (update(local, 1, {{"Name", u"Carl"}}) != code)
        return 2;
    if (ORVA_PBSrv_DelAddrRec(1, local) != code)
        return 3;
    if (tryAddGroup(u"Family") != -code)
        return 4;
    return accessOf() == code ? 0 : 5;
}

void limitFiles(rlim_t length)
{
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{length, RLIM_INFINITY};
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

// In a process whose files may not grow, on a store that is opened there.
int lifeOnAFullDisk(const std::string& data)
{
    ORVA_PBSrv_RegisterPBCallback(&onEvent);
    limitFiles(0);
    ORVA_Sim_Reset(data.c_str());
    ORVA_PBSrv_RegisterPBCallback(&onEvent);
    if (!readsTwo())
        return 10;
    if (const long failed = tryEverything(ORVA_E_NO_SPACE); failed != 0)
        return 20 + static_cast<int>(failed);
    if (!readsTwo())
        return 30;
    if (!waitFor([] { return accessEvents > 0; }))
        return 31;
    const int told = accessEvents;
    limitFiles(RLIM_INFINITY);
    if (accessOf() != ORVA_OK || !waitFor([told] { return accessEvents > told; }))
        return 40;
    // What was refused has used identifiers up.
    if (tryAdd(local, {{"Name", u"Carl"}}) <= 2 || sizeOf(local) != 3)
        return 41;
    ORVA_Sim_Reset(data.c_str());
    return sizeOf(local) == 3 && valueOf(local, 2, "Name") == u"Bert" ? 0 : 50;
}

} // namespace

TEST(aClosedStoreIsReadOnAFullDiskAndWrittenWhenThereIsRoom)
{
    const OpenFolder folder;
    storeTwo(folder.data(), false);
    CHECK_EQ(inChild([&] { return lifeOnAFullDisk(folder.data()); }), 0);
    CHECK_EQ(RawStore(folder.data()).findings(), "");
}

TEST(whatAKilledProcessStoredIsReadOnAFullDiskToo)
{
    const OpenFolder folder;
    storeTwo(folder.data(), true);
    CHECK_EQ(inChild([&] { return lifeOnAFullDisk(folder.data()); }), 0);
    CHECK_EQ(RawStore(folder.data()).findings(), "");
}

TEST(aStoreInUseElsewhereIsReadOnAFullDisk)
{
    const OpenFolder folder;
    storeTwo(folder.data(), false);
    // Another process has it open meanwhile.
    int ends[2];
    REQUIRE(::pipe(ends) == 0);
    const pid_t other = ::fork();
    if (other == 0) {
        ORVA_Sim_Reset(folder.data().c_str());
        const bool open = sizeOf(local) == 2;
        char word = open ? 'y' : 'n';
        if (::write(ends[1], &word, 1) != 1)
            ::_exit(1);
        for (;;)
            ::pause();
    }
    char word = 0;
    REQUIRE(::read(ends[0], &word, 1) == 1 && word == 'y');
    CHECK_EQ(inChild([&] { return lifeOnAFullDisk(folder.data()); }), 0);
    ::kill(other, SIGKILL);
    ::waitpid(other, nullptr, 0);
    ::close(ends[0]);
    ::close(ends[1]);
}

TEST(aDiskThatFillsIsToldAndAllComesBack)
{
    const OpenFolder folder;
    storeTwo(folder.data(), false);
    CHECK_EQ(inChild([&] {
                 ORVA_Sim_Reset(folder.data().c_str());
                 ORVA_PBSrv_RegisterPBCallback(&onEvent);
                 if (!readsTwo() || accessOf() != ORVA_OK)
                     return 1;
                 limitFiles(0);
                 if (const long failed = tryEverything(ORVA_E_NO_SPACE); failed != 0)
                     return 10 + static_cast<int>(failed);
                 if (!readsTwo() || !waitFor([] { return accessEvents > 0; }))
                     return 20;
                 limitFiles(RLIM_INFINITY);
                 if (accessOf() != ORVA_OK)
                     return 30;
                 return tryAdd(local, {{"Name", u"Carl"}}) > 2 ? 0 : 31;
             }),
             0);
}

TEST(aNewStoreOnAFullDiskIsNoEmptyPhonebook)
{
    const OpenFolder folder;
    CHECK_EQ(inChild([&] {
                 limitFiles(0);
                 ORVA_Sim_Reset(folder.data().c_str());
                 int size = -1;
                 if (ORVA_PBSrv_GetSize(local, &size) != ORVA_E_NO_SPACE || accessOf() != -ORVA_E_NO_SPACE)
                     return 1;
                 limitFiles(RLIM_INFINITY);
                 return sizeOf(local) == 0 && accessOf() == ORVA_OK ? 0 : 2;
             }),
             0);
}

TEST(aDamagedStoreOnAFullDiskIsSavedWhenThereIsRoom)
{
    const OpenFolder folder;
    storeTwo(folder.data(), false);
    RawStore(folder.data()).ask("DROP TABLE bin");
    CHECK_EQ(inChild([&] {
                 limitFiles(static_cast<rlim_t>(fs::file_size(folder.file())));
                 ORVA_Sim_Reset(folder.data().c_str());
                 int size = -1;
                 limitFiles(0);
                 if (ORVA_PBSrv_GetSize(local, &size) == ORVA_OK)
                     return 1;
                 limitFiles(RLIM_INFINITY);
                 return sizeOf(local) == 2 && valueOf(local, 2, "Name") == u"Bert" ? 0 : 2;
             }),
             0);
}

TEST(aFolderThatMayNotBeWrittenIsRead)
{
    for (const bool killed : {false, true}) {
        const OpenFolder folder;
        storeTwo(folder.data(), killed);
        if (killed)
            fs::remove(folder.file("-shm"));
        folder.give(ordinaryUser);
        ::chmod(folder.file().c_str(), 0400);
        ::chmod(folder.data().c_str(), 0500);
        CHECK_EQ(inChild([&] {
                     becomeOrdinaryUser();
                     ORVA_Sim_Reset(folder.data().c_str());
                     if (!readsTwo())
                         return 1;
                     if (const long failed = tryEverything(ORVA_E_READ_ONLY); failed != 0)
                         return 10 + static_cast<int>(failed);
                     ::chmod(folder.data().c_str(), 0700);
                     ::chmod(folder.file().c_str(), 0600);
                     // Another program writes meanwhile.
                     RawStore(folder.data()).ask("INSERT INTO records (id, name) VALUES (7, 'Dora')");
                     ::chmod(folder.data().c_str(), 0500);
                     ::chmod(folder.file().c_str(), 0400);
                     if (sizeOf(local) != 3 || accessOf() != ORVA_E_READ_ONLY)
                         return 20;
                     ::chmod(folder.data().c_str(), 0700);
                     ::chmod(folder.file().c_str(), 0600);
                     return tryAdd(local, {{"Name", u"Carl"}}) > 0 && accessOf() == ORVA_OK ? 0 : 30;
                 }),
                 0);
    }
}

TEST(anotherUsersFolderIsReadWhereThatIsAllowed)
{
    if (::geteuid() != 0)
        return; // nobody else's folder to be had
    const OpenFolder folder;
    storeTwo(folder.data(), false);
    ::chmod(folder.data().c_str(), 0755);
    ::chmod(folder.file().c_str(), 0644);
    CHECK_EQ(inChild([&] {
                 becomeOrdinaryUser();
                 ORVA_Sim_Reset(folder.data().c_str());
                 return readsTwo() ? static_cast<int>(tryEverything(ORVA_E_READ_ONLY)) : 10;
             }),
             0);
}

TEST(aFileThatCannotBeReadGivesACodeUntilItCan)
{
    const OpenFolder folder;
    storeTwo(folder.data(), false);
    folder.give(ordinaryUser);
    ::chmod(folder.file().c_str(), 0);
    CHECK_EQ(inChild([&] {
                 becomeOrdinaryUser();
                 ORVA_Sim_Reset(folder.data().c_str());
                 int size = -1;
                 void* set = nullptr;
                 if (ORVA_PBSrv_GetSize(local, &size) != ORVA_E_STORE || accessOf() != -ORVA_E_STORE)
                     return 1;
                 if (ORVA_PBSrv_GetAddrRecList(local, &set) != ORVA_E_STORE)
                     return 2;
                 ::chmod(folder.file().c_str(), 0600);
                 return readsTwo() && accessOf() == ORVA_OK ? 0 : 3;
             }),
             0);
}

// The real thing, where this process may have a disk of its own.
TEST(aSmallDiskThatIsFullAtTheStart)
{
    if (::geteuid() != 0)
        return;
    const OpenFolder folder;
    CHECK_EQ(inChild([&] {
                 fs::create_directories(folder.data());
                 if (::unshare(CLONE_NEWNS) != 0 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
                     ::mount("tmpfs", folder.data().c_str(), "tmpfs", 0, "size=512k") != 0)
                     return 0; // no such right here
                 storeTwo(folder.data(), false);
                 const std::string filler = folder.data() + "/filler";
                 const int file = ::open(filler.c_str(), O_CREAT | O_WRONLY, 0600);
                 const std::string page(4096, 'x');
                 while (::write(file, page.data(), page.size()) > 0) {
                 }
                 ::close(file);
                 ORVA_Sim_Reset(folder.data().c_str());
                 if (!readsTwo())
                     return 1;
                 if (const long failed = tryEverything(ORVA_E_NO_SPACE); failed != 0)
                     return 10 + static_cast<int>(failed);
                 if (!readsTwo())
                     return 20;
                 ::unlink(filler.c_str());
                 return tryAdd(local, {{"Name", u"Carl"}}) > 2 && sizeOf(local) == 3 && accessOf() == ORVA_OK ? 0 : 30;
             }),
             0);
}

TEST(badArgumentsOfAccessAreCodes)
{
    useFreshFolder();
    long code = -1;
    CHECK_EQ(ORVA_Store_GetAccess(local, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Store_GetAccess(3, &code), ORVA_E_ARGUMENT);
    CHECK_EQ(code, -1);
    for (const int memory : {local, card, device})
        CHECK_EQ(accessOf(memory), ORVA_OK);
}

CHECK_MAIN
