#include "support/modem/Commands.h"

namespace modemsim
{

namespace
{

Answer nothing(State&, size_t, const Command&)
{
    return Answer();
}

Answer echo(State& state, size_t port, const Command& command)
{
    if (!state.quirks.has("echo_stays"))
        state.settings(port).echo = command.value != "0" && !command.value.empty();
    return Answer();
}

Answer verbose(State& state, size_t port, const Command& command)
{
    if (state.quirks.has("no_verbose_choice"))
        return finalOnly(Answer::Error);
    state.settings(port).verbose = command.value != "0" && !command.value.empty();
    return Answer();
}

Answer quiet(State& state, size_t port, const Command& command)
{
    state.settings(port).quiet = command.value == "1";
    return Answer();
}

Answer reset(State& state, size_t port, const Command&)
{
    state.settings(port) = PortSettings();
    return Answer();
}

Answer reportErrors(State& state, size_t port, const Command& command)
{
    int& chosen = state.settings(port).errors;
    if (state.quirks.has("no_cmee"))
        return finalOnly(Answer::Error);
    if (command.form == Command::Test)
        return Answer("+CMEE: (0-2)");
    if (command.form == Command::Read)
        return Answer("+CMEE: " + std::to_string(chosen));
    chosen = command.number(0, 0);
    return Answer();
}

Answer tell(const Command& command, const std::string& text)
{
    return command.form == Command::Test ? Answer() : Answer(text);
}

Answer manufacturer(State& state, size_t, const Command& command)
{
    return tell(command, state.plan.manufacturer);
}

Answer model(State& state, size_t, const Command& command)
{
    return tell(command, state.plan.model);
}

Answer revision(State& state, size_t, const Command& command)
{
    return tell(command, state.plan.revision);
}

Answer serial(State& state, size_t, const Command& command)
{
    return tell(command, state.plan.imei);
}

Answer identification(State& state, size_t, const Command&)
{
    Answer answer("Manufacturer: " + state.plan.manufacturer);
    answer.add("Model: " + state.plan.model);
    answer.add("Revision: " + state.plan.revision);
    answer.add("IMEI: " + state.plan.imei);
    answer.add("+GCAP: +CGSM");
    return answer;
}

Answer capabilities(State&, size_t, const Command& command)
{
    return tell(command, "+GCAP: +CGSM");
}

Answer accessTechnologies(State&, size_t, const Command& command)
{
    if (command.form == Command::Test)
        return Answer("+WS46: (12,22,25,28,29,30,31)");
    return command.form == Command::Read ? Answer("+WS46: 25") : Answer();
}

Answer flowControl(State&, size_t, const Command& command)
{
    if (command.form == Command::Test)
        return Answer("+IFC: (0-2),(0-2)");
    return command.form == Command::Read ? Answer("+IFC: 0,0") : Answer();
}

Answer battery(State&, size_t, const Command&)
{
    return Answer("+CBC: 0,100");
}

} // namespace

const Handlers& basicHandlers()
{
    static const Handlers all = {
        {"E", echo},
        {"V", verbose},
        {"Q", quiet},
        {"Z", reset},
        {"&F", reset},
        {"&C", nothing},
        {"&D", nothing},
        {"&W", nothing},
        {"X", nothing},
        {"S", nothing},
        {"L", nothing},
        {"M", nothing},
        {"I", identification},
        {"+CMEE", reportErrors},
        {"+CGMI", manufacturer},
        {"+GMI", manufacturer},
        {"+CGMM", model},
        {"+GMM", model},
        {"+CGMR", revision},
        {"+GMR", revision},
        {"+CGSN", serial},
        {"+GSN", serial},
        {"+GCAP", capabilities},
        {"+WS46", accessTechnologies},
        {"+IFC", flowControl},
        {"+CBC", battery},
    };
    return all;
}

} // namespace modemsim
