#ifndef LINKHAND_TESTS_SIZESCENES_H
#define LINKHAND_TESTS_SIZESCENES_H

#include <QList>

struct Scene;

namespace SizeScenes
{

// The windows and states of the program in which something may have too little room, those of the host's own pages
// among them.
QList<Scene> All();

} // namespace SizeScenes

#endif // LINKHAND_TESTS_SIZESCENES_H
