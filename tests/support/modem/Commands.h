#ifndef TESTS_SUPPORT_MODEM_COMMANDS_H
#define TESTS_SUPPORT_MODEM_COMMANDS_H

#include "support/modem/Answer.h"
#include "support/modem/CommandLine.h"
#include "support/modem/State.h"

namespace modemsim
{

// Carries out one command for a port.
Answer run(State& state, size_t port, const Command& command);
// What was typed at the prompt of +CMGS or +CMGW, without the closing control character.
Answer takeMessage(State& state, size_t port, const std::string& typed);

using Handler = Answer (*)(State& state, size_t port, const Command& command);
using Handlers = std::map<std::string, Handler>;

// One table a topic.
const Handlers& basicHandlers();     // echo, errors, character sets, who the modem is
const Handlers& cardHandlers();      // PIN, the card's files
const Handlers& phonebookHandlers(); // +CPB...
const Handlers& networkHandlers();   // radio, registration, operator, contexts
const Handlers& messageHandlers();   // 3GPP TS 27.005
const Handlers& callHandlers();

// A text of the modem in quotation marks and in the port's character set.
std::string quoted(State& state, size_t port, const std::string& text);

// Events of the network.
void receiveMessage(State& state, const std::string& number, const std::string& text);
void ring(State& state, const std::string& number);
void endCallByOther(State& state);

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_COMMANDS_H
