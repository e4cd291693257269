#ifndef SDK_VCARD_KEPTLINES_H
#define SDK_VCARD_KEPTLINES_H

#include <string>
#include <vector>

#include "vcard/Card.h"

namespace orva
{

// What of cards has no field, as it is kept with a record: lines of a vCard 3.0 (RFC 2426) in UTF-8, one after the
// other, without BEGIN, VERSION and END. What was of version 3.0 or 4.0 stays octet for octet; what was of 2.1 is
// written as 3.0 has it. What cannot be, such as a card inside a card, is passed over.
std::string keptLines(const std::vector<CardProperty>& properties, CardVersion version);

// Whether one property can be kept.
bool canKeep(const CardProperty& property, CardVersion version);

// The properties of kept lines; each comes out again as it is, until it is changed.
std::vector<CardProperty> keptProperties(const std::string& lines);

// The head of a property, as "ADR;TYPE=HOME".
std::string headOf(const CardProperty& property);

// Whether a property of that name can be kept beside the fields; a name that is none is more likely a slip of the
// finger.
bool isKeptName(const std::string& name);

// The lines of properties of version 3.0.
std::string linesOf(const std::vector<CardProperty>& properties);

} // namespace orva

#endif // SDK_VCARD_KEPTLINES_H
