#ifndef TESTS_SUPPORT_MODEM_CARDFILES_H
#define TESTS_SUPPORT_MODEM_CARDFILES_H

#include "support/modem/State.h"

namespace modemsim
{

// What the card answers to one +CRSM command: the two status bytes and the data, in hex.
struct CardAnswer {
    int sw1 = 0x6A;
    int sw2 = 0x82; // no such file
    std::string data;
};

// +CRSM=<command>,<file>,<P1>,<P2>,<P3>[,<data>] (3GPP TS 27.007, 8.18): 176 read binary, 178 read record, 192 get
// response, 220 update record.
CardAnswer accessCard(State& state, int command, int file, int p1, int p3, const std::string& data);

// Digits as telephone numbers are stored, two a byte with the nibbles swapped, in hex.
std::string swappedDigits(const std::string& digits);

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_CARDFILES_H
