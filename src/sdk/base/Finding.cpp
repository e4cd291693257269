#include "base/Finding.h"

namespace orva
{

const char* findingText(int reason)
{
    switch (reason) {
    case ORVA_FINDING_QUOTE:
        return "line passed over: a quotation mark that nothing closes";
    case ORVA_FINDING_ROW_LENGTH:
        return "row passed over: too long";
    case ORVA_FINDING_ROW_COLUMNS:
        return "row passed over: too many columns";
    case ORVA_FINDING_ZERO:
        return "row passed over: a zero byte";
    case ORVA_FINDING_NOT_TEXT:
        return "row passed over: not text";
    case ORVA_FINDING_VALUE_LENGTH:
        return "row passed over: value too long";
    case ORVA_FINDING_EMPTY:
        return "not taken: nothing in the columns that have a field";
    case ORVA_FINDING_COLUMN:
    case ORVA_FINDING_PROPERTY:
        return "not taken: no field is for it";
    case ORVA_FINDING_FURTHER:
        return "not taken: a further value, for which there is no field";
    case ORVA_FINDING_SEVERAL:
        return "only the first of several values is taken";
    case ORVA_FINDING_EMAIL:
        return "put into the note: not an e-mail address that the form takes";
    case ORVA_FINDING_NOTE_CUT:
        return "note cut to what its field holds";
    case ORVA_FINDING_NAME_CUT:
        return "name cut to what its field holds";
    case ORVA_FINDING_NUMBER:
        return "not a telephone number";
    case ORVA_FINDING_TOO_LONG:
        return "a value longer than its field";
    case ORVA_FINDING_FULL:
        return "no room for more contacts";
    case ORVA_FINDING_CARD_END:
        return "card has no END:VCARD and was left out";
    case ORVA_FINDING_CARD_LENGTH:
        return "card is larger than 5 MB and was left out";
    case ORVA_FINDING_CARD_LINES:
        return "card has too many lines and was left out";
    case ORVA_FINDING_CARD_OUTSIDE:
        return "text outside of a card was passed over, up to the next card";
    case ORVA_FINDING_CARD_VERSION:
        return "version of vCard is not known and is read as 3.0";
    case ORVA_FINDING_CARD_LINE:
        return "line is no property of a vCard";
    case ORVA_FINDING_CARD_ENCODING:
        return "file is in UTF-16, in which no vCard is written";
    case ORVA_FINDING_CARD_NONE:
        return "file holds no vCard";
    case ORVA_FINDING_GROUPS:
        return "not taken: names of groups";
    case ORVA_FINDING_GROUP:
        return "not put into a group";
    default:
        return "not taken";
    }
}

} // namespace orva
