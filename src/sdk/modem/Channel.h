#ifndef SDK_MODEM_CHANNEL_H
#define SDK_MODEM_CHANNEL_H

#include <chrono>
#include <string>
#include <string_view>
#include <utility>

#include "base/Failure.h"

namespace orva
{

using Milliseconds = std::chrono::milliseconds;

// The modem has gone, or is being left: nothing more can be asked.
class PortGone final : public Failure
{
public:
    explicit PortGone(std::string text) : Failure(ORVA_E_ABSENT, std::move(text)) {}
};

// A way to a modem. One thread.
class Channel
{
public:
    virtual ~Channel() = default;

    // All of it, or PortGone.
    virtual void write(std::string_view bytes) = 0;

    // What has come; nothing when nothing comes within that time. PortGone when the modem has gone or the caller is to
    // leave.
    virtual std::string read(Milliseconds atMost) = 0;
};

} // namespace orva

#endif // SDK_MODEM_CHANNEL_H
