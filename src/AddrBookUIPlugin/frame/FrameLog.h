#ifndef ADDRBOOKUIPLUGIN_FRAMELOG_H
#define ADDRBOOKUIPLUGIN_FRAMELOG_H

#include <QtDebug>

// The log lines of the root object and the service.
#define FRAME_LOG_CALLED() qDebug("%s: %s called", __FILE__, __func__)
#define FRAME_LOG_EXIT() qDebug("%s: %s exit", __FILE__, __func__)

#endif // ADDRBOOKUIPLUGIN_FRAMELOG_H
