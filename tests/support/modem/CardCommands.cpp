#include "support/modem/CardFiles.h"
#include "support/modem/Commands.h"
#include "support/modem/Text.h"

namespace modemsim
{

namespace
{

Answer tellState(const State& state)
{
    if (!state.cardIn)
        return cme(state.quirks.number("card_out_error", NoCard));
    if (state.locked())
        return Answer(state.card->pinTries > 0 ? "+CPIN: SIM PIN" : "+CPIN: SIM PUK");
    return Clock::now() < state.busyUntil ? cme(CardBusy) : Answer("+CPIN: READY");
}

void unlock(State& state)
{
    Card& card = *state.card;
    card.pinVerified = true;
    ++card.unlocks;
    card.pinTries = card.plan.pinTries;
    state.startBusy(state.quirks.number("simbusy", 0));
}

Answer unblock(State& state, const Command& command)
{
    Card& card = *state.card;
    if (card.pukTries == 0)
        return cme(CardFailure);
    if (command.field(0).text != card.plan.puk || !command.field(1).given) {
        --card.pukTries;
        return cme(WrongPassword);
    }
    card.plan.pin = command.field(1).text;
    card.pukTries = card.plan.pukTries;
    unlock(state);
    return Answer();
}

Answer pin(State& state, size_t, const Command& command)
{
    Card& card = *state.card;
    if (command.form == Command::Read)
        return tellState(state);
    if (command.form == Command::Test)
        return Answer();
    if (!state.cardIn)
        return cme(state.quirks.number("card_out_error", NoCard));
    if (!state.locked())
        return cme(NotAllowed);
    if (card.pinTries == 0)
        return unblock(state, command);
    if (command.field(0).text != card.plan.pin)
        return cme(--card.pinTries > 0 ? WrongPassword : PukNeeded);
    unlock(state);
    return Answer();
}

Answer tries(State& state, size_t, const Command& command)
{
    if (!state.cardIn)
        return cme(state.quirks.number("card_out_error", NoCard));
    const Card& card = *state.card;
    Answer answer;
    if (command.form == Command::Test)
        return answer;
    answer.add("+CPINR: SIM PIN," + std::to_string(card.pinTries) + ',' + std::to_string(card.plan.pinTries));
    answer.add("+CPINR: SIM PUK," + std::to_string(card.pukTries) + ',' + std::to_string(card.plan.pukTries));
    answer.add("+CPINR: SIM PIN2,3,3");
    answer.add("+CPINR: SIM PUK2,10,10");
    return answer;
}

// PIN2 opens the fixed numbers.
Answer pin2(State& state, size_t, const Command& command)
{
    if (command.form != Command::Set)
        return Answer();
    if (command.field(0).text != state.card->plan.pin2)
        return cme(WrongPassword);
    state.card->pin2Verified = true;
    return Answer();
}

Answer facilityLock(State& state, size_t, const Command& command)
{
    if (command.form == Command::Test)
        return Answer("+CLCK: (\"SC\",\"FD\")");
    if (const int trouble = state.cardTrouble())
        return cme(trouble);
    Card& card = *state.card;
    const int mode = command.number(1, 2);
    const bool cardLock = command.field(0).text == "SC";
    if (mode == 2)
        return Answer(cardLock && !card.plan.pin.empty() ? "+CLCK: 1" : "+CLCK: 0");
    if (!cardLock)
        return cme(Pin2Needed);
    const std::string given = command.field(2).text;
    if (mode == 0 && given != card.plan.pin)
        return cme(WrongPassword);
    card.plan.pin = mode == 0 ? std::string() : given;
    return Answer();
}

Answer password(State& state, size_t, const Command& command)
{
    if (command.form == Command::Test)
        return Answer("+CPWD: (\"SC\",8),(\"P2\",8)");
    if (const int trouble = state.cardTrouble())
        return cme(trouble);
    if (command.field(0).text != "SC" || command.field(1).text != state.card->plan.pin)
        return cme(WrongPassword);
    state.card->plan.pin = command.field(2).text;
    return Answer();
}

Answer subscriber(State& state, size_t, const Command& command)
{
    if (command.form == Command::Test)
        return Answer();
    const int trouble = state.cardTrouble();
    return trouble != 0 ? cme(trouble) : Answer(state.card->plan.imsi);
}

// The card's number can be read before the PIN is given.
Answer restrictedAccess(State& state, size_t, const Command& command)
{
    constexpr int iccid = 0x2FE2;
    if (state.quirks.has("no_crsm"))
        return cme(NotSupported);
    if (command.form == Command::Test)
        return Answer();
    const int file = command.number(1, 0);
    const int trouble = state.cardTrouble();
    if (trouble != 0 && (file != iccid || !state.cardIn))
        return cme(trouble);
    const CardAnswer card = accessCard(state, command.number(0, 0), file, command.number(2, 0), command.number(4, 0),
                                       command.field(5).text);
    return Answer("+CRSM: " + std::to_string(card.sw1) + ',' + std::to_string(card.sw2) +
                  (card.data.empty() ? "" : ",\"" + card.data + '"'));
}

// Of the bare card commands only the question for the tries left: VERIFY or UNBLOCK without a secret.
Answer genericAccess(State& state, size_t, const Command& command)
{
    if (state.quirks.has("no_crsm"))
        return cme(NotSupported);
    if (command.form == Command::Test)
        return Answer();
    if (!state.cardIn)
        return cme(state.quirks.number("card_out_error", NoCard));
    const std::string header = command.field(1).text;
    const Card& card = *state.card;
    int left = 0;
    if (header == "0020000100")
        left = card.pinTries;
    else if (header == "002C000100")
        left = card.pukTries;
    else if (header == "0020008100")
        left = 3;
    else if (header == "002C008100")
        left = 10;
    else
        return cme(NotSupported);
    return Answer("+CSIM: 4,\"63C" + toHex(std::string(1, static_cast<char>(left))).substr(1) + '"');
}

Answer cardNumber(State& state, size_t, const Command& command)
{
    if (!state.quirks.has("ccid"))
        return cme(NotSupported);
    if (!state.cardIn)
        return cme(state.quirks.number("card_out_error", NoCard));
    return Answer(command.name + ": " + state.card->plan.iccid);
}

Answer ownNumbers(State& state, size_t port, const Command& command)
{
    if (const int trouble = state.cardTrouble())
        return cme(trouble);
    Answer answer;
    const Storage* own = state.storage("ON");
    if (command.form == Command::Test || own == nullptr)
        return answer;
    for (const Entry& entry : own->entries())
        answer.add("+CNUM: " + quoted(state, port, entry.name) + ',' + quoted(state, port, entry.number) + ",145");
    return answer;
}

} // namespace

const Handlers& cardHandlers()
{
    static const Handlers all = {
        {"+CPIN", pin},
        {"+CPINR", tries},
        {"+CPIN2", pin2},
        {"+CLCK", facilityLock},
        {"+CPWD", password},
        {"+CIMI", subscriber},
        {"+CRSM", restrictedAccess},
        {"+CSIM", genericAccess},
        {"+CCID", cardNumber},
        {"^ICCID", cardNumber},
        {"+CNUM", ownNumbers},
    };
    return all;
}

} // namespace modemsim
