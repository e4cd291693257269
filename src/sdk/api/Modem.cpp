// Card and device behind a real modem.

#include "orva/orva_modem.h"

#include "api/Boundary.h"
#include "api/Library.h"
#include "base/DataFolder.h"
#include "base/Text.h"
#include "modem/HardwareChoice.h"
#include "modem/ModemHardware.h"

using namespace orva;

namespace
{

constexpr int longestWait = 3600 * 1000;

ModemHardware& realHardware()
{
    ModemHardware* const modem = modemHardware();
    if (modem == nullptr)
        throw Failure(ORVA_E_UNSUPPORTED, "the hardware is simulated");
    return *modem;
}

} // namespace

long ORVA_Modem_GetHardware(unsigned short** choice)
{
    return guarded(__func__, [&] {
        require(choice);
        const ModemHardware* const modem = modemHardware();
        *choice = toApi(fromUtf8(modem != nullptr ? modem->choice() : simulatedChoice));
        return ORVA_OK;
    });
}

long ORVA_Modem_IsChosen(int* chosen)
{
    return guarded(__func__, [&] {
        require(chosen);
        *chosen = hasHardwareChoice(dataFolder()) ? 1 : 0;
        return ORVA_OK;
    });
}

long ORVA_Modem_SetHardware(const unsigned short* choice)
{
    return guarded(__func__, [&] {
        hardware(); // this process's own is settled
        keepHardwareChoice(dataFolder(), toUtf8(fromApi(choice)));
        return ORVA_OK;
    });
}

long ORVA_Modem_WaitReady(int memory, int timeout_ms)
{
    return guarded(__func__, [&] {
        if ((memory != ORVA_MEMORY_CARD && memory != ORVA_MEMORY_DEVICE) || timeout_ms < 0 || timeout_ms > longestWait)
            throw Failure(ORVA_E_ARGUMENT, "no such memory or time");
        ModemHardware* const modem = modemHardware();
        if (modem != nullptr && !modem->state().waitLoaded(memory, Milliseconds(timeout_ms)))
            throw Failure(ORVA_E_BUSY, "the memory has not been read yet");
        hardware().requireOpen(memory);
        return ORVA_OK;
    });
}

long ORVA_Modem_GetReport(unsigned short** report)
{
    return guarded(__func__, [&] {
        require(report);
        *report = toApi(fromUtf8(realHardware().report()));
        return ORVA_OK;
    });
}

long ORVA_Modem_GetProblem(unsigned short** problem)
{
    return guarded(__func__, [&] {
        require(problem);
        *problem = toApi(fromUtf8(realHardware().state().problem()));
        return ORVA_OK;
    });
}

long ORVA_Modem_GetMessageStore(int look, int* used, int* total)
{
    return guarded(__func__, [&] {
        int unheeded = 0;
        int& usedGiven = used != nullptr ? *used : unheeded;
        int& totalGiven = total != nullptr ? *total : unheeded;
        usedGiven = totalGiven = 0;
        const MessageStore store = realHardware().messageStore(look != 0);
        usedGiven = store.used;
        totalGiven = store.total;
        return ORVA_OK;
    });
}

long ORVA_Modem_Unlock(const unsigned short* pin)
{
    return guarded(__func__, [&] {
        const std::string digits = toUtf8(fromApi(pin));
        realHardware().perform([&digits](ModemSession& session) { session.unlock(digits); });
        return ORVA_OK;
    });
}
