#ifndef ORVA_CARE_H
#define ORVA_CARE_H

/*
 * Contacts as people write them, made fit to be stored; for hosts and clients. The conventions are those of orva_sdk.h:
 * a code as result, UTF-16 texts, buffers of the caller. Nothing here opens a memory: any thread, at any time, at the
 * cost of reading the text.
 */

#include "orva/orva_sdk.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Turns a telephone number as people and programs write it into what a memory (0 card, 1 device, 4 PC) stores: digits
 * 0 to 9, "+", "*" and "#", on card and device "p" and "w" as well. No digit is added; the result may be longer than
 * the memory's field.
 * - Blanks, parentheses, hyphens, dots and slashes go, whatever their width, and so do line ends, no-break spaces,
 *   direction marks and other invisible characters. Of nothing else the empty number is left, which is 0 as well.
 * - Digits of all scripts become 0 to 9. "P" and "W" become "p" and "w" where those are stored.
 * - "tel:" (RFC 3966) at the beginning goes; "00" stays as it is written.
 * - A "(0)" right behind a country's code, as in "+49 (0)171" or "0049 (0)171", goes: it is not dialled from abroad. In
 *   numbers of Italy and San Marino it is, and stays.
 * - An extension of one to seven digits at the end ("ext. 12", "extn 12", "extension 12", "x12", ";ext=12") is no part
 *   of the number and is given apart; the empty text for none. It belongs into a note.
 * Both are new buffers, which the caller frees. With `extension` null, a text with an extension is refused.
 *
 * ORVA_E_NUMBER for any other text, such as letters, an address or a spreadsheet's "4.9E+11"; ORVA_E_ARGUMENT for an
 * unknown memory or a null pointer, ORVA_E_TOO_LONG for a text of more than 65,535 units. */
ORVA_API long ORVA_Care_CleanNumber(int memory, const unsigned short* text, unsigned short** number,
                                    unsigned short** extension);

#ifdef __cplusplus
}
#endif

#endif /* ORVA_CARE_H */
