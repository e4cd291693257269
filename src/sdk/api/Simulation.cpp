// The switches of the simulated hardware.

#include "orva/orva_sim.h"

#include "api/Boundary.h"
#include "api/Library.h"
#include "devices/SimulatedHardware.h"
#include "events/EventHub.h"
#include "memories/ModemMemory.h"

using namespace orva;

namespace
{

template <typename Change>
long switched(const char* function, Change&& change)
{
    return guarded(function, [&] {
        if (!change(simulatedHardware()))
            throw Failure(ORVA_E_ARGUMENT, "out of range, or not at this moment");
        return ORVA_OK;
    });
}

} // namespace

long ORVA_Sim_SetDevice(int attached)
{
    return switched(__func__, [&](SimulatedHardware& all) { return all.setAttached(attached != 0); });
}

long ORVA_Sim_SetCard(int inserted)
{
    return switched(__func__, [&](SimulatedHardware& all) { return all.setCard(inserted != 0); });
}

long ORVA_Sim_SetPinStatus(int status)
{
    return switched(__func__, [&](SimulatedHardware& all) { return all.setPinStatus(status); });
}

long ORVA_Sim_SetProductType(int type)
{
    return switched(__func__, [&](SimulatedHardware& all) { return all.setProductType(type); });
}

long ORVA_Sim_SetCardType(int type)
{
    return switched(__func__, [&](SimulatedHardware& all) { return all.setCardType(type); });
}

long ORVA_Sim_SetRadio(int first, int second)
{
    return switched(__func__, [&](SimulatedHardware& all) { return all.setRadio(first, second); });
}

long ORVA_Sim_SetNetwork(int status)
{
    return switched(__func__, [&](SimulatedHardware& all) { return all.setNetwork(status); });
}

long ORVA_Sim_SetMultiModeCard(unsigned char first, unsigned char second)
{
    return switched(__func__, [&](SimulatedHardware& all) { return all.setMultiMode(first, second); });
}

long ORVA_Sim_SetAutoReady(int automatic)
{
    return switched(__func__, [&](SimulatedHardware& all) { return all.setAutoReady(automatic != 0); });
}

long ORVA_Sim_SendEvent(int id)
{
    return guarded(__func__, [&] {
        events().post(id);
        return ORVA_OK;
    });
}

long ORVA_Sim_SetDelay(int memory, int read_ms, int write_ms)
{
    return switched(__func__, [&](SimulatedHardware& all) { return all.setDelay(memory, read_ms, write_ms); });
}

long ORVA_Sim_SetCapacity(int memory, int capacity)
{
    return switched(__func__, [&](SimulatedHardware& all) { return all.setCapacity(memory, capacity); });
}

long ORVA_Sim_SetFieldLengths(int memory, int name_length, int number_length)
{
    return switched(__func__,
                    [&](SimulatedHardware& all) { return all.setFieldLengths(memory, name_length, number_length); });
}

long ORVA_Sim_SetDeviceFields(int count)
{
    return switched(__func__, [&](SimulatedHardware& all) { return all.setDeviceFields(count); });
}

long ORVA_Sim_SetNameUnits(int units)
{
    return guarded(__func__, [&] {
        // The host knows this of its product, whatever the hardware is.
        if (ModemMemory* const card = modemMemory(ORVA_MEMORY_CARD))
            card->setCountsUnits(units != 0);
        else
            simulatedHardware().setNameUnits(units != 0);
        return ORVA_OK;
    });
}

long ORVA_Sim_WaitEvents(void)
{
    return guarded(__func__, [&] {
        if (!events().drain())
            throw Failure(ORVA_E_ARGUMENT, "called from within a callback");
        return ORVA_OK;
    });
}

long ORVA_Sim_Reset(const char* data_dir)
{
    return guarded(__func__, [&] {
        if (events().onEventThread())
            throw Failure(ORVA_E_ARGUMENT, "called from within a callback");
        resetLibrary(data_dir);
        return ORVA_OK;
    });
}
