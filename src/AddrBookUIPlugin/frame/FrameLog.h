#ifndef ADDRBOOKUIPLUGIN_FRAMELOG_H
#define ADDRBOOKUIPLUGIN_FRAMELOG_H

#include "logic/Log.h"

// The log lines of the root object and the service: source file and function.
#define FRAME_LOG_CALLED() qDebug("%s: %s called", ADDRBOOK_FILE, __func__)
#define FRAME_LOG_EXIT() qDebug("%s: %s exit", ADDRBOOK_FILE, __func__)

#endif // ADDRBOOKUIPLUGIN_FRAMELOG_H
