// What a modem never answers, and its character sets.

#include <algorithm>

#include "base/Hex.h"
#include "modem/AtPhonebook.h"

namespace orva
{

namespace
{

constexpr int attempts = 2; // at one question, with a sign of life in between
constexpr char setQuestion[] = "AT+CSCS?";
constexpr char setPrefix[] = "+CSCS";

} // namespace

// ---- Silence

bool AtPhonebook::isSilence(const Reply& reply)
{
    return reply.silent() && reply.lines.empty();
}

bool AtPhonebook::mute(const std::string& question, int silences) const
{
    const auto found = m_heard.find(question);
    return found != m_heard.end() && !found->second.answered && found->second.silences >= silences;
}

// Asks again after a silence, which is nothing but a time that has passed.
Reply AtPhonebook::insist(const std::string& question, const std::function<Reply()>& ask)
{
    const int most = mute(question, oftenEnough) ? 1 : attempts;
    for (int attempt = 1;; ++attempt) {
        Reply reply = ask();
        const bool silence = isSilence(reply);
        Heard& heard = m_heard[question];
        heard.silences += silence ? 1 : 0;
        heard.answered = heard.answered || !silence;
        if (!silence || attempt >= most)
            return reply;
        requireCard(reply);
    }
}

Reply AtPhonebook::insist(const std::string& command, std::string_view prefix, Milliseconds patience)
{
    return insist(command, [&] { return askWhileBusy(command, prefix, patience); });
}

// A question without an answer is asked again later, unless it has stayed without one so often that the modem must be
// thought not to know it.
void AtPhonebook::requireSound(const Reply& reply, const std::string& question) const
{
    if (isSilence(reply) && !mute(question, silencesBelieved))
        throw Failure(ORVA_E_BUSY, "the modem does not answer " + question);
}

void AtPhonebook::requireAnswer(const Reply& reply, const std::string& question)
{
    requireCard(reply);
    requireSound(reply, question);
}

// ---- Character set

std::optional<CharacterSet> AtPhonebook::activeSet(std::string* name)
{
    // A modem that never tells is taken at its word.
    if (mute(setQuestion, oftenEnough))
        return std::nullopt;
    const Reply reply = insist(setQuestion, setPrefix, m_dialog.patience().plain);
    if (reply.lines.empty())
        return std::nullopt;
    const std::string_view told = answerText(reply.lines.front(), setPrefix);
    if (name != nullptr)
        *name = told;
    return characterSetNamed(told);
}

bool AtPhonebook::setCharacterSet(CharacterSet set)
{
    const std::string command = std::string("AT+CSCS=\"") + nameOf(set) + "\"";
    const Reply taken = insist(command, {}, m_dialog.patience().plain);
    requireAnswer(taken, command);
    if (!taken.ok())
        return false;
    // Some promise a set and stay with another.
    const std::optional<CharacterSet> now = activeSet();
    m_setActive = !now || *now == set;
    return m_setActive;
}

void AtPhonebook::chooseCharacterSet()
{
    if (m_setChosen && m_setActive)
        return;
    if (m_setChosen) {
        // In another set each name would be another one.
        if (!setCharacterSet(m_set) && activeSet() != m_set)
            throw Failure(ORVA_E_BUSY, "the modem does not take its character set again");
        m_setActive = true;
        return;
    }
    if (m_ownSet.empty())
        activeSet(&m_ownSet);
    const Reply list = insist("AT+CSCS=?", setPrefix, m_dialog.patience().plain);
    std::vector<CharacterSet> sets;
    for (const std::string& line : list.lines) {
        for (const CharacterSet set : characterSetsIn(answerText(line, setPrefix)))
            sets.push_back(set);
    }
    if (sets.empty())
        sets = {CharacterSet::Ucs2, CharacterSet::Utf8, CharacterSet::Gsm, CharacterSet::Ira};
    m_set = characterSetNamed(m_ownSet).value_or(CharacterSet::Ira);
    for (const CharacterSet set : sets) {
        if (setCharacterSet(set)) {
            m_set = set;
            break;
        }
    }
    m_setChosen = true;
    m_setActive = true;
}

void AtPhonebook::finish()
{
    if (!m_setActive || m_ownSet.empty() || characterSetNamed(m_ownSet) == m_set)
        return;
    m_setActive = false;
    std::string name = m_ownSet;
    name.erase(std::remove(name.begin(), name.end(), '"'), name.end());
    name = asciiOfHexUcs2(name).value_or(name);
    // In UCS2 some want even its name in that coding.
    if (!m_dialog.ask("AT+CSCS=\"" + name + "\"").ok())
        m_dialog.ask("AT+CSCS=\"" + hexUcs2(name) + "\"");
}

} // namespace orva
