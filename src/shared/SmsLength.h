#ifndef LINKHAND_SIBLINGS_SMSLENGTH_H
#define LINKHAND_SIBLINGS_SMSLENGTH_H

#include <QString>

// The size of a text as short messages (3GPP TS 23.038, TS 23.040).
struct SmsLength {
    int iUnits;    // septets of the default alphabet, or UTF-16 units
    int iMessages; // 1 for an empty text; a longer one carries a header in each part
    bool bUnicode; // the default alphabet lacks a character

    static SmsLength Of(const QString& strText);
};

#endif // LINKHAND_SIBLINGS_SMSLENGTH_H
