#include "support/modem/Commands.h"

#include "support/modem/Text.h"

namespace modemsim
{

std::string quoted(State& state, size_t port, const std::string& text)
{
    return '"' + encode(text, state.charset(port)) + '"';
}

Answer run(State& state, size_t port, const Command& command)
{
    for (const Handlers* handlers : {&basicHandlers(), &cardHandlers(), &phonebookHandlers(), &networkHandlers(),
                                     &messageHandlers(), &callHandlers()}) {
        const auto found = handlers->find(command.name);
        if (found != handlers->end())
            return found->second(state, port, command);
    }
    return cme(NotSupported);
}

} // namespace modemsim
