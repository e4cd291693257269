// How a process may end, and a clock that cannot be trusted.

#include <sys/syscall.h>

#include <atomic>
#include <ctime>

#include "Child.h"
#include "Phonebook.h"
#include "RawStore.h"

using namespace phonebook;

namespace
{

std::atomic<bool> clockJumps{false};
std::atomic<long> jumps{0};

// What a clock shows that somebody sets back and forth by years all the time.
std::time_t jump()
{
    static const std::time_t years[] = {0, 100000000, -100000000, 1, -300000000};
    return clockJumps ? years[static_cast<std::size_t>(jumps++) % std::size(years)] : 0;
}

std::atomic<bool> inside{false};

int leave(int /*event*/, void* /*data*/)
{
    std::exit(7);
}

int stay(int /*event*/, void* /*data*/)
{
    inside = true;
    for (;;)
        ::pause();
}

std::string countOf(const std::string& data)
{
    return RawStore(data).ask("SELECT count(*) FROM records");
}

} // namespace

// In front of the C library's: the wall clock is ours, all others are the kernel's.
extern "C" __attribute__((visibility("default"))) int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    const long result = ::syscall(SYS_clock_gettime, clock, time);
    if (result == 0 && clock == CLOCK_REALTIME)
        time->tv_sec += jump();
    return static_cast<int>(result);
}

extern "C" __attribute__((visibility("default"))) std::time_t time(std::time_t* place) noexcept
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    if (place != nullptr)
        *place = now.tv_sec;
    return now.tv_sec;
}

TEST(aProcessThatReturnsFromMainCommitsWhatIsOpen)
{
    const std::string data = useFreshFolder();
    Child child({"--return", data});
    CHECK_EQ(child.wait(), 0);
    CHECK_EQ(countOf(data), "1");
}

TEST(aCallbackMayEndTheProcess)
{
    const std::string data = useFreshFolder();
    Child child({"--exit-in-callback", data});
    CHECK_EQ(child.wait(), 7);
    CHECK_EQ(countOf(data), "1");
}

TEST(aCallbackThatNeverReturnsDoesNotKeepTheProcess)
{
    const std::string data = useFreshFolder();
    Child child({"--exit-beside-callback", data});
    CHECK_EQ(child.wait(), 0);
    CHECK_EQ(countOf(data), "1");
}

TEST(aJumpingClockChangesNothing)
{
    const std::string data = useFreshFolder();
    clockJumps = true;
    REQUIRE(ORVA_PBSrv_BeginTransaction(local) == ORVA_OK);
    add(local, {{"Name", u"Anna"}});
    const auto before = std::chrono::steady_clock::now();
    RawStore raw(data);
    CHECK(waitFor([&] { return raw.ask("SELECT count(*) FROM records") == "1"; }));
    CHECK(std::chrono::steady_clock::now() - before < std::chrono::milliseconds(2500));
    // The log and the names of files that are put aside take the time from it, whatever it is.
    ORVA_PBSrv_DelAddrRec(99, local);
    CHECK(jumps > 0);
    ORVA_Sim_SetDelay(card, 0, 30);
    const auto writing = std::chrono::steady_clock::now();
    add(card, {{"Name", u"Anna"}});
    CHECK(std::chrono::steady_clock::now() - writing >= std::chrono::milliseconds(30));
    clockJumps = false;
}

int main(int argc, char** argv)
{
    if (argc != 3)
        return check::runAll(argc, argv);
    const std::string mode = argv[1];
    ORVA_Sim_Reset(argv[2]);
    ORVA_PBSrv_BeginTransaction(local);
    if (tryAdd(local, {{"Name", u"Anna"}}) != 1)
        return 2;
    if (mode == "--exit-in-callback") {
        ORVA_NetSrv_RegisterNetSrvEvent(leave);
        ORVA_Sim_SendEvent(7);
        for (;;)
            ::pause();
    }
    if (mode == "--exit-beside-callback") {
        ORVA_NetSrv_RegisterNetSrvEvent(stay);
        ORVA_Sim_SendEvent(7);
        while (!inside)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return 0;
}
