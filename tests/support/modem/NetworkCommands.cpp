#include "support/modem/Commands.h"

namespace modemsim
{

namespace
{

constexpr char networkCode[] = "00101";

bool registered(const State& state)
{
    return state.plan.radioOn && state.cardTrouble() == 0 &&
           (state.plan.registration == 1 || state.plan.registration == 5);
}

Answer registration(State& state, size_t port, const Command& command)
{
    const int which = command.name == "+CREG" ? 0 : command.name == "+CGREG" ? 1 : 2;
    int& reports = state.settings(port).registration[which];
    if (command.form == Command::Test)
        return Answer(command.name + ": (0-2)");
    if (command.form == Command::Set) {
        reports = command.number(0, 0);
        return Answer();
    }
    const int now = registered(state)              ? state.plan.registration
                    : state.plan.registration == 1 ? 0
                                                   : state.plan.registration;
    std::string line = command.name + ": " + std::to_string(reports) + ',' + std::to_string(now);
    if (reports == 2 && registered(state))
        line += ",\"0001\",\"00000001\",7";
    return Answer(line);
}

Answer operatorName(State& state, size_t port, const Command& command)
{
    int& format = state.settings(port).operatorFormat;
    if (command.form == Command::Test)
        return Answer("+COPS: (2," + quoted(state, port, state.plan.operatorName) +
                      ",\"Test\",\"00101\",7),,(0-4),(0-2)");
    if (command.form == Command::Set) {
        if (command.number(0, 0) == 3)
            format = command.number(1, 0);
        return Answer();
    }
    if (!registered(state))
        return Answer("+COPS: 0");
    return Answer("+COPS: 0," + std::to_string(format) + ',' +
                  quoted(state, port, format == 2 ? std::string(networkCode) : state.plan.operatorName) + ",7");
}

Answer signal(State& state, size_t, const Command& command)
{
    if (command.form == Command::Test)
        return Answer("+CSQ: (0-31,99),(0-7,99)");
    return Answer("+CSQ: " + std::to_string(registered(state) ? state.plan.signal : 99) + ",99");
}

Answer functionality(State& state, size_t, const Command& command)
{
    if (command.form == Command::Test)
        return Answer("+CFUN: (0,1,4),(0-1)");
    if (command.form == Command::Read)
        return Answer(state.plan.radioOn ? "+CFUN: 1" : "+CFUN: 4");
    state.plan.radioOn = command.number(0, 1) == 1;
    return Answer();
}

Answer contexts(State&, size_t, const Command& command)
{
    if (command.form == Command::Test)
        return Answer("+CGDCONT: (1-16),\"IP\",,,(0-2),(0-4)");
    return command.form == Command::Read ? Answer("+CGDCONT: 1,\"IP\",\"internet\",\"\",0,0") : Answer();
}

Answer attached(State& state, size_t, const Command& command)
{
    return command.form == Command::Read ? Answer(registered(state) ? "+CGATT: 1" : "+CGATT: 0") : Answer();
}

Answer packetEvents(State&, size_t, const Command& command)
{
    return command.form == Command::Test ? Answer("+CGEREP: (0-2),(0-1)") : Answer();
}

Answer preferred(State&, size_t, const Command& command)
{
    return command.form == Command::Test ? Answer("+CPOL: (1-10),(0-2)") : Answer();
}

Answer service(State&, size_t, const Command& command)
{
    return command.form == Command::Test ? Answer("+CUSD: (0-2)") : Answer();
}

// Set by clients, told by nobody's clock.
Answer clock(State& state, size_t, const Command& command)
{
    if (command.form == Command::Set)
        state.clock = command.field(0).text;
    return command.form == Command::Read ? Answer("+CCLK: \"" + state.clock + '"') : Answer();
}

} // namespace

const Handlers& networkHandlers()
{
    static const Handlers all = {
        {"+CREG", registration},   {"+CGREG", registration}, {"+CEREG", registration}, {"+COPS", operatorName},
        {"+CSQ", signal},          {"+CFUN", functionality}, {"+CGDCONT", contexts},   {"+CGATT", attached},
        {"+CGEREP", packetEvents}, {"+CPOL", preferred},     {"+CUSD", service},       {"+CCLK", clock},
    };
    return all;
}

} // namespace modemsim
