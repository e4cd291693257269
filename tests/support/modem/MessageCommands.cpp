#include "support/modem/Commands.h"
#include "support/modem/Pdu.h"

#include <cstdlib>

namespace modemsim
{

namespace
{

enum Cms { InvalidPdu = 304, CardMissing = 310, PinMissing = 311, NoIndex = 321, StoreFull = 322, NoService = 331 };

std::map<int, StoredMessage>& stored(State& state, size_t port)
{
    return state.messages[state.settings(port).messageStorage];
}

int total(const State& state, const std::string& storage)
{
    return storage == "SM" ? state.card->plan.messageTotal : state.plan.deviceMessageTotal;
}

Answer trouble(const State& state)
{
    return cms(state.cardIn ? PinMissing : CardMissing);
}

int pduLength(const std::string& pdu)
{
    return static_cast<int>(pdu.size() / 2) - 1 - static_cast<int>(std::strtol(pdu.substr(0, 2).c_str(), nullptr, 16));
}

Answer format(State&, size_t, const Command& command)
{
    if (command.form == Command::Test)
        return Answer("+CMGF: (0)");
    if (command.form == Command::Read)
        return Answer("+CMGF: 0");
    return command.number(0, 0) == 0 ? Answer() : cms(303);
}

bool offered(const State& state, const std::string& storage)
{
    return storage == "SM" || (storage == "ME" && state.plan.deviceMessageTotal > 0);
}

std::string counts(State& state, const std::string& storage)
{
    return std::to_string(state.messages[storage].size()) + ',' + std::to_string(total(state, storage));
}

// The storages for reading, for writing and for receiving; what is written lies where it is read here.
Answer storage(State& state, size_t port, const Command& command)
{
    if (command.form == Command::Test) {
        const std::string list = state.plan.deviceMessageTotal > 0 ? "(\"SM\",\"ME\")" : "(\"SM\")";
        return Answer("+CPMS: " + list + ',' + list + ',' + list);
    }
    if (state.cardTrouble() != 0)
        return trouble(state);
    std::string& chosen = state.settings(port).messageStorage;
    std::string& receiving = state.receivingStorage;
    if (command.form == Command::Set) {
        for (const Field& field : command.fields) {
            if (!offered(state, field.text))
                return cms(302);
        }
        chosen = command.field(0).text;
        if (command.field(2).given)
            receiving = command.field(2).text;
        return Answer("+CPMS: " + counts(state, chosen) + ',' + counts(state, chosen) + ',' + counts(state, receiving));
    }
    const std::string one = '"' + chosen + "\"," + counts(state, chosen);
    return Answer("+CPMS: " + one + ',' + one + ",\"" + receiving + "\"," + counts(state, receiving));
}

Answer list(State& state, size_t port, const Command& command)
{
    constexpr int everything = 4;
    if (command.form == Command::Test)
        return Answer("+CMGL: (0-4)");
    if (state.cardTrouble() != 0)
        return trouble(state);
    const int wanted = command.number(0, 0);
    Answer answer;
    for (auto& [index, message] : stored(state, port)) {
        if (wanted != everything && wanted != message.status)
            continue;
        answer.add("+CMGL: " + std::to_string(index) + ',' + std::to_string(message.status) + ",," +
                   std::to_string(pduLength(message.pdu)));
        answer.add(message.pdu);
        message.status = message.status == 0 ? 1 : message.status;
    }
    return answer;
}

Answer read(State& state, size_t port, const Command& command)
{
    if (state.cardTrouble() != 0)
        return trouble(state);
    auto& all = stored(state, port);
    const auto found = all.find(command.number(0, 0));
    if (found == all.end())
        return cms(NoIndex);
    Answer answer("+CMGR: " + std::to_string(found->second.status) + ",," +
                  std::to_string(pduLength(found->second.pdu)));
    answer.add(found->second.pdu);
    found->second.status = found->second.status == 0 ? 1 : found->second.status;
    return answer;
}

Answer remove(State& state, size_t port, const Command& command)
{
    if (command.form == Command::Test)
        return Answer("+CMGD: (1-" + std::to_string(total(state, state.settings(port).messageStorage)) + "),(0-4)");
    if (state.cardTrouble() != 0)
        return trouble(state);
    auto& all = stored(state, port);
    if (command.number(1, 0) == 4) {
        all.clear();
        return Answer();
    }
    return all.erase(command.number(0, 0)) != 0 ? Answer() : cms(NoIndex);
}

Answer notifications(State& state, size_t port, const Command& command)
{
    if (command.form == Command::Test)
        return Answer("+CNMI: (0-2),(0-2),(0-2),(0-1),(0-1)");
    if (command.form == Command::Set)
        state.settings(port).newMessages = command.number(1, 0);
    return Answer();
}

Answer serviceCentre(State&, size_t, const Command& command)
{
    return command.form == Command::Read ? Answer("+CSCA: \"+491710760000\",145") : Answer();
}

Answer service(State&, size_t, const Command& command)
{
    if (command.form == Command::Test)
        return Answer("+CSMS: (0,1)");
    return Answer(command.form == Command::Read ? "+CSMS: 1,1,1,1" : "+CSMS: 1,1,1");
}

Answer parameters(State&, size_t, const Command&)
{
    return Answer();
}

// The length is kept in the port's pending message until the PDU comes.
Answer send(State& state, size_t port, const Command& command)
{
    if (command.form == Command::Test)
        return Answer();
    if (state.cardTrouble() != 0)
        return trouble(state);
    if (command.form != Command::Set)
        return cms(InvalidPdu);
    state.settings(port).pendingLength = command.number(0, 0);
    return finalOnly(Answer::Prompt);
}

} // namespace

Answer takeMessage(State& state, size_t port, const std::string& typed)
{
    SentMessage message;
    if (!readSubmit(typed, state.settings(port).pendingLength, message))
        return cms(InvalidPdu);
    if (!state.plan.radioOn || (state.plan.registration != 1 && state.plan.registration != 5))
        return cms(NoService);
    if (state.messageError != 0 && message.part >= state.messageErrorFromPart)
        return cms(state.messageError);
    state.sent.push_back(message);
    state.messageReference = state.messageReference % 255 + 1;
    return Answer("+CMGS: " + std::to_string(state.messageReference));
}

// Into the first free place; a full storage leaves the message with the network.
void receiveMessage(State& state, const std::string& number, const std::string& text)
{
    const std::string& storage = state.receivingStorage;
    for (const std::string& pdu : makeDeliver(number, text)) {
        auto& all = state.messages[storage];
        int index = 1;
        while (all.count(index) != 0)
            ++index;
        if (index > total(state, storage))
            return;
        all[index].pdu = pdu;
        for (size_t port = 0; port < state.ports.size(); ++port) {
            if (state.settings(port).newMessages != 0)
                state.sendUnsolicited("+CMTI: \"" + storage + "\"," + std::to_string(index), static_cast<int>(port));
        }
    }
}

const Handlers& messageHandlers()
{
    static const Handlers all = {
        {"+CMGF", format},     {"+CPMS", storage},       {"+CMGL", list},          {"+CMGR", read},
        {"+CMGD", remove},     {"+CNMI", notifications}, {"+CSCA", serviceCentre}, {"+CSMS", service},
        {"+CSMP", parameters}, {"+CSDH", parameters},    {"+CSCB", parameters},    {"+CMGS", send},
    };
    return all;
}

} // namespace modemsim
