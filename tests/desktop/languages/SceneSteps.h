#ifndef LINKHAND_TESTS_SCENESTEPS_H
#define LINKHAND_TESTS_SCENESTEPS_H

#include <functional>

namespace Scenes
{

// Does something in a moment, when a window that runs its own loop has come: asks until the step says that it is done.
void later(const std::function<bool()>& step);

} // namespace Scenes

#endif // LINKHAND_TESTS_SCENESTEPS_H
