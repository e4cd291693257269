#ifndef TESTS_SUPPORT_MODEM_PROGRAM_H
#define TESTS_SUPPORT_MODEM_PROGRAM_H

#include <chrono>
#include <map>
#include <string>
#include <sys/types.h>
#include <vector>

namespace modemsim
{

using Milliseconds = std::chrono::milliseconds;
// Variables that a child gets besides those of this process; an empty value takes one away.
using Environment = std::map<std::string, std::string>;

struct Outcome {
    int status = -1;    // as the shell has it; -1 if it could not be started or was ended after its time
    std::string output; // standard output and error
};

// Runs a program to its end.
Outcome runProgram(const std::vector<std::string>& command, const Environment& environment = Environment(),
                   const std::string& input = std::string(), Milliseconds time = Milliseconds(120000));

// A program that runs beside this one and ends with the thread that started it, at the latest. Its standard input and
// output are pipes; with an output file the output goes there, with "-" all three are those of this process.
class Child
{
public:
    explicit Child(const std::vector<std::string>& command, const Environment& environment = Environment(),
                   const std::string& outputFile = std::string());
    ~Child();
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    pid_t pid() const { return m_pid; }
    bool running();
    void write(const std::string& text) const;
    void closeInput();
    // A line of its output without its end; false at its end or after the time.
    bool readLine(std::string& line, Milliseconds time = Milliseconds(10000));
    // Sends the signal and waits for the end; kills it after the time.
    void end(int signal, Milliseconds time = Milliseconds(5000));
    int wait(Milliseconds time); // its status as the shell has it, -1 after the time

private:
    pid_t m_pid = -1;
    int m_in = -1;
    int m_out = -1;
    int m_status = -1;
    std::string m_pending;
};

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_PROGRAM_H
