#include "modem/bus/Entry.h"

#include "modem/bus/ManagerWatch.h"
#include "modem/bus/PlugWatch.h"

orva::ModemWatch* linkhand_modem_watch_1(orva::WatchKind kind)
{
    if (kind == orva::WatchKind::Modems)
        return new orva::ManagerWatch;
    return new orva::PlugWatch;
}
