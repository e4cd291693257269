#ifndef SDK_MODEM_BUS_ENTRY_H
#define SDK_MODEM_BUS_ENTRY_H

#include "modem/ModemWatch.h"

extern "C" __attribute__((visibility("default"))) orva::ModemWatch* linkhand_modem_watch_1(orva::WatchKind kind);

#endif // SDK_MODEM_BUS_ENTRY_H
