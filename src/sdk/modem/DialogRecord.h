#ifndef SDK_MODEM_DIALOGRECORD_H
#define SDK_MODEM_DIALOGRECORD_H

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace orva
{

/*
 * A dialog with a modem as a text file that its owner can give away: "> " before what was sent, "< " before what came,
 * with the seconds since the start. Names, numbers, PINs, identities of card and modem and anything else that is not
 * known to be harmless are replaced by others of the same shape, in hexadecimal forms too: equal values become equal
 * ones and equal beginnings equal beginnings, so that the file still replays. The key for that is made anew for each
 * file and never written.
 */
class DialogRecord
{
public:
    // The record that LINKHAND_MODEM_LOG asks for; null without. The file is the user's alone, and begins anew.
    static std::unique_ptr<DialogRecord> fromEnvironment();

    // Takes over a file descriptor.
    DialogRecord(int file, std::uint64_t key);
    ~DialogRecord();
    DialogRecord(const DialogRecord&) = delete;
    DialogRecord& operator=(const DialogRecord&) = delete;

    void sent(std::string_view command);
    void received(std::string_view line);

    // A remark of ours, such as the port's name.
    void note(std::string_view text);

private:
    void write(char mark, const std::string& text);

    const int m_file;
    const std::uint64_t m_key;
    const std::chrono::steady_clock::time_point m_start;
    std::string m_command; // sent last: says what an answer without a name is
};

// A command or a line of an answer with all that is somebody's replaced. `command` is what a line answers to.
std::string maskedCommand(std::string_view command, std::uint64_t key);
std::string maskedLine(std::string_view line, std::string_view command, std::uint64_t key);

} // namespace orva

#endif // SDK_MODEM_DIALOGRECORD_H
