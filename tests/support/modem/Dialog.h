#ifndef TESTS_SUPPORT_MODEM_DIALOG_H
#define TESTS_SUPPORT_MODEM_DIALOG_H

#include <chrono>
#include <string>
#include <vector>

namespace modemsim
{

// The bare client of one terminal: a command out, lines in. It knows no phonebook and mends no quirk; tests look with
// it at what a modem really says, and benchmarks take it as the floor.
class Dialog
{
public:
    // Opens the terminal raw; isOpen() tells whether it could.
    explicit Dialog(const std::string& terminal);
    ~Dialog();
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    bool isOpen() const { return m_fd >= 0; }
    int descriptor() const { return m_fd; }
    // The lines of the answer, the final result last, blank lines and the echo left out; what there is when the time is
    // over or the terminal has gone.
    std::vector<std::string> say(const std::string& command,
                                 std::chrono::milliseconds time = std::chrono::milliseconds(5000));
    // The same joined with '|', for comparing.
    std::string heard(const std::string& command, std::chrono::milliseconds time = std::chrono::milliseconds(5000));
    // Every byte of the answer up to its final result.
    std::string raw(const std::string& command, std::chrono::milliseconds time = std::chrono::milliseconds(5000));
    void write(const std::string& bytes) const;
    // All that comes until the text has been seen.
    std::string readUntil(const std::string& text, std::chrono::milliseconds time = std::chrono::milliseconds(5000));
    // True once the terminal has gone, as after an unplug.
    bool gone(std::chrono::milliseconds time = std::chrono::milliseconds(5000));

private:
    bool more(std::chrono::steady_clock::time_point end);

    int m_fd = -1;
    std::string m_pending;
    bool m_gone = false;
};

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_DIALOG_H
