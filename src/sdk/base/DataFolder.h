#ifndef SDK_BASE_DATAFOLDER_H
#define SDK_BASE_DATAFOLDER_H

#include <string>

namespace orva
{

// The folder that this process keeps everything in: the one chosen, else what the environment says (LINKHAND_DATA_DIR,
// else $XDG_DATA_HOME/linkhand, else ~/.local/share/linkhand). No slash at the end; it need not be there yet.
std::string dataFolder();

// The folder for logs in it.
std::string logFolder();

// An empty one stands for what the environment says. What is open already stays where it is.
void chooseDataFolder(const std::string& folder);

} // namespace orva

#endif // SDK_BASE_DATAFOLDER_H
