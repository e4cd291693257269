#ifndef BENCHMARKS_MODEM_BAREEXCHANGE_H
#define BENCHMARKS_MODEM_BAREEXCHANGE_H

#include <string>
#include <vector>

#include "modem/Tty.h"

namespace bare
{

struct Step {
    std::string sent;
    std::size_t answered = 0; // bytes
};

// Keeps what goes over a port: each command, and how many bytes came back before the next.
class Recorder final : public orva::Channel
{
public:
    explicit Recorder(orva::Channel& port) : m_port(port) {}

    void write(std::string_view bytes) override
    {
        m_steps.push_back({std::string(bytes), 0});
        m_port.write(bytes);
    }
    std::string read(orva::Milliseconds atMost) override
    {
        std::string bytes = m_port.read(atMost);
        if (!m_steps.empty())
            m_steps.back().answered += bytes.size();
        return bytes;
    }
    const std::vector<Step>& steps() const { return m_steps; }

private:
    orva::Channel& m_port;
    std::vector<Step> m_steps;
};

// The same bytes, without a look at them.
inline void exchange(orva::Channel& port, const std::vector<Step>& steps)
{
    for (const Step& step : steps) {
        port.write(step.sent);
        for (std::size_t count = 0; count < step.answered;) {
            const std::string bytes = port.read(orva::Milliseconds(10000));
            if (bytes.empty())
                throw orva::Failure(ORVA_E_ABSENT, "the modem does not answer as it did");
            count += bytes.size();
        }
    }
}

} // namespace bare

#endif // BENCHMARKS_MODEM_BAREEXCHANGE_H
