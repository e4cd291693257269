#ifndef LINKHAND_CORE_PARENTHESES_H
#define LINKHAND_CORE_PARENTHESES_H

#include <QString>

namespace Parentheses
{

// Adds directional marks (Unicode Bidirectional Algorithm, UAX #9) to a text that will be shown in a right-to-left
// paragraph, so that its parentheses enclose what they enclose when it is read. What stands in front of a count such
// as "(3)" or "(3/250)" at the end stays untouched. A second call changes nothing.
void correct(QString& strText);

} // namespace Parentheses

#endif // LINKHAND_CORE_PARENTHESES_H
