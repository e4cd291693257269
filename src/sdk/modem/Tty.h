#ifndef SDK_MODEM_TTY_H
#define SDK_MODEM_TTY_H

#include <functional>
#include <string>

#include "modem/Channel.h"

namespace orva
{

/*
 * A port of a modem: a tty, raw, for this process alone (TIOCEXCL), that neither opening nor closing hangs up. One
 * thread uses it; only `waker` may be used from others, a file descriptor that becomes readable when the port is to be
 * left.
 */
class Tty final : public Channel
{
public:
    // Opens the port. Failure(ORVA_E_BUSY) if another program has it, ORVA_E_ABSENT if it is not there or no tty,
    // ORVA_E_STORE without the right to use it. `waker` may be -1.
    Tty(const std::string& path, int waker);
    ~Tty() override;
    Tty(const Tty&) = delete;
    Tty& operator=(const Tty&) = delete;

    void write(std::string_view bytes) override;
    std::string read(Milliseconds atMost) override;

    int file() const { return m_file; }

private:
    bool wait(short events, Milliseconds atMost);
    void prepare();

    int m_file = -1;
    const int m_waker;
};

} // namespace orva

#endif // SDK_MODEM_TTY_H
