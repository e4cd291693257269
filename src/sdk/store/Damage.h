#ifndef SDK_STORE_DAMAGE_H
#define SDK_STORE_DAMAGE_H

#include <optional>
#include <string>

namespace orva
{

// That a store was damaged and replaced, and what came of it.
struct Damage {
    long long time = 0;
    int records = 0; // that came through
    int groups = 0;
    std::string file; // where the damaged one lies
    std::string what; // was found
    bool told = false;
};

// Remembers it beside the store at `path`. What cannot be written is logged.
void rememberDamage(const std::string& path, const Damage& damage);

// The last one, as long as the damaged file is still there.
std::optional<Damage> rememberedDamage(const std::string& path);

} // namespace orva

#endif // SDK_STORE_DAMAGE_H
