#ifndef SDK_MODEM_CHANNEL_H
#define SDK_MODEM_CHANNEL_H

#include <chrono>
#include <string>
#include <string_view>

namespace orva
{

using Milliseconds = std::chrono::milliseconds;

// A way to a modem. One thread.
class Channel
{
public:
    virtual ~Channel() = default;

    // All of it, or Failure(ORVA_E_ABSENT).
    virtual void write(std::string_view bytes) = 0;

    // What has come; nothing when nothing comes within that time. Failure(ORVA_E_ABSENT) when the modem has gone or the
    // caller is to leave.
    virtual std::string read(Milliseconds atMost) = 0;
};

} // namespace orva

#endif // SDK_MODEM_CHANNEL_H
