#include "support/modem/Plan.h"

#include <tuple>

namespace modemsim
{

bool operator==(const Entry& a, const Entry& b)
{
    return std::tie(a.location, a.number, a.name, a.hiddenFields) ==
           std::tie(b.location, b.number, b.name, b.hiddenFields);
}

namespace
{

StoragePlan storage(const char* name, int total, int textLength, bool readOnly, std::vector<Entry> entries)
{
    StoragePlan plan;
    plan.name = name;
    plan.total = total;
    plan.textLength = textLength;
    plan.readOnly = readOnly;
    plan.entries = std::move(entries);
    return plan;
}

Entry entry(int location, const char* number, const char* name)
{
    Entry made;
    made.location = location;
    made.number = number;
    made.name = name;
    return made;
}

} // namespace

CardPlan standardCard()
{
    CardPlan card;
    card.storages = {
        storage("SM", 20, 18, false,
                {entry(1, "+491711234567", "Anna"), entry(2, "0301234567", "Zo\u00EB M\u00FCller"),
                 entry(5, "+79161234567", "\u0418\u0432\u0430\u043D"), entry(7, "+861012345678", "\u5317\u4EAC"),
                 entry(20, "112", "Last \"one\", ok")}),
        storage("FD", 10, 18, true, {entry(1, "+4930555", "Office")}),
        storage("ON", 4, 18, false, {entry(1, card.ownNumber.c_str(), "Mine")}),
    };
    return card;
}

std::vector<StoragePlan> standardDevice()
{
    return {
        storage("ME", 50, 40, false, {entry(1, "+33123456789", "R\u00E9my"), entry(3, "555", "Device entry")}),
        storage("LD", 10, 18, false, {entry(1, "+491711234567", "")}),
        storage("RC", 10, 18, true, {}),
        storage("MC", 10, 18, true, {}),
    };
}

Plan standardPlan()
{
    Plan plan;
    plan.card = standardCard();
    plan.deviceStorages = standardDevice();
    return plan;
}

} // namespace modemsim
