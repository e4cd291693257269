#include "support/modem/Commands.h"

#include <cctype>

namespace modemsim
{

namespace
{

constexpr int ringPause = 500;

// The number behind ATD: digits, or a phonebook's location as ">SM5".
std::string dialledNumber(State& state, size_t port, std::string value)
{
    while (!value.empty() && (value.back() == ';' || value.back() == ' '))
        value.pop_back();
    if (value.empty() || value[0] != '>')
        return value;
    const size_t digits = value.find_first_of("0123456789");
    if (digits == std::string::npos)
        return std::string();
    const std::string name = digits > 1 ? value.substr(1, digits - 1) : state.selectedStorage(port);
    const Storage* storage = state.storage(name);
    const Entry* entry = storage != nullptr ? storage->find(std::stoi(value.substr(digits))) : nullptr;
    return entry != nullptr ? entry->number : std::string();
}

void finish(State& state, const char* result)
{
    if (!state.call)
        return;
    state.call.reset();
    state.sendUnsolicited(result, -1);
}

// Alerting, then what becomes of the call.
void proceed(State& state)
{
    if (!state.call || state.call->incoming)
        return;
    if (state.call->status == Call::Dialling) {
        state.call->status = Call::Alerting;
        state.later(state.plan.dialMs, [&state] { proceed(state); });
        return;
    }
    if (state.callOutcome == "answer")
        state.call->status = Call::Active;
    else if (state.callOutcome == "busy")
        finish(state, "BUSY");
    else if (state.callOutcome == "no_answer")
        finish(state, "NO ANSWER");
    else if (state.callOutcome == "no_carrier")
        finish(state, "NO CARRIER");
}

Answer dial(State& state, size_t port, const Command& command)
{
    const std::string number = dialledNumber(state, port, command.value);
    if (const int trouble = state.cardTrouble())
        return cme(trouble);
    if (number.empty() || command.value.back() != ';' || state.call)
        return finalOnly(Answer::NoCarrier);
    state.dialled.push_back(number);
    if (!state.plan.radioOn || (state.plan.registration != 1 && state.plan.registration != 5) ||
        state.callOutcome == "no_credit")
        return finalOnly(Answer::NoCarrier);
    state.call = std::make_unique<Call>();
    state.call->number = number;
    state.later(state.plan.dialMs, [&state] { proceed(state); });
    return Answer();
}

Answer list(State& state, size_t port, const Command& command)
{
    Answer answer;
    if (command.form != Command::Test && state.call) {
        const Call& call = *state.call;
        const bool plus = call.number[0] == '+';
        answer.add("+CLCC: 1," + std::to_string(call.incoming ? 1 : 0) + ',' + std::to_string(call.status) + ",0,0," +
                   quoted(state, port, call.number) + (plus ? ",145" : ",129"));
    }
    return answer;
}

Answer hangUp(State& state, size_t, const Command&)
{
    state.call.reset();
    return Answer();
}

Answer accept(State& state, size_t, const Command&)
{
    if (!state.call || state.call->status != Call::Incoming)
        return finalOnly(Answer::NoCarrier);
    state.call->status = Call::Active;
    return Answer();
}

Answer callerNumber(State& state, size_t port, const Command& command)
{
    if (command.form == Command::Set)
        state.settings(port).callerNumber = command.number(0, 0) == 1;
    return command.form == Command::Read ? Answer("+CLIP: 1,1") : Answer();
}

Answer ringWithType(State& state, size_t port, const Command& command)
{
    if (command.form == Command::Set)
        state.settings(port).ringWithType = command.number(0, 0) == 1;
    return Answer();
}

Answer waiting(State&, size_t, const Command& command)
{
    return command.form == Command::Test ? Answer("+CCWA: (0,1)") : Answer();
}

Answer tones(State& state, size_t, const Command&)
{
    return state.call ? Answer() : cme(NotAllowed);
}

Answer cause(State& state, size_t, const Command&)
{
    return Answer(state.callOutcome == "no_credit" ? "+CEER: No credit" : "+CEER: Normal call clearing");
}

void ringOnce(State& state)
{
    if (!state.call || state.call->status != Call::Incoming)
        return;
    const std::string& number = state.call->number;
    for (size_t port = 0; port < state.ports.size(); ++port) {
        const PortSettings& settings = state.settings(port);
        state.sendUnsolicited(settings.ringWithType ? "+CRING: VOICE" : "RING", static_cast<int>(port));
        if (settings.callerNumber)
            state.sendUnsolicited("+CLIP: \"" + number + "\"," + (number[0] == '+' ? "145" : "129"),
                                  static_cast<int>(port));
    }
    state.later(ringPause, [&state] { ringOnce(state); });
}

} // namespace

void ring(State& state, const std::string& number)
{
    if (state.call)
        return;
    state.call = std::make_unique<Call>();
    state.call->incoming = true;
    state.call->status = Call::Incoming;
    state.call->number = number;
    ringOnce(state);
}

void endCallByOther(State& state)
{
    finish(state, "NO CARRIER");
}

const Handlers& callHandlers()
{
    static const Handlers all = {
        {"D", dial},     {"H", hangUp},           {"A", accept},          {"+CHUP", hangUp},
        {"+CLCC", list}, {"+CLIP", callerNumber}, {"+CRC", ringWithType}, {"+CCWA", waiting},
        {"+VTS", tones}, {"+CEER", cause},
    };
    return all;
}

} // namespace modemsim
