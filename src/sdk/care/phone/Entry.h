#ifndef SDK_CARE_PHONE_ENTRY_H
#define SDK_CARE_PHONE_ENTRY_H

#include <string>

// See care/NumberKey.h. Any thread.
extern "C" __attribute__((visibility("default"))) bool
linkhand_phone_1(const std::string& number, const std::string& region, std::string& dialled);

#endif // SDK_CARE_PHONE_ENTRY_H
