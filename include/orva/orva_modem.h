#ifndef ORVA_MODEM_H
#define ORVA_MODEM_H

/*
 * Card and device behind a real modem, for hosts and tools. The conventions are those of orva_sdk.h: any thread, a code
 * as result, UTF-16 texts, buffers freed by the caller.
 *
 * Which hardware a process uses is settled at its first call of the library: LINKHAND_MODEM in the environment, else
 * what ORVA_Modem_SetHardware has kept in the data folder, else "simulated". "auto" takes a modem that ModemManager
 * lists, by a port that it ignores or does not need; the path of a tty takes that port, whoever else is there. With a
 * modem the same functions of orva_sdk.h serve the same two fields; the differences are these:
 * - One thread of the library speaks to the modem, from the first use on; reads never wait for it. A write takes from a
 *   fifth of a second to some seconds, is read back, and what it returns 0 for is on the card, in a transaction or not.
 *   A call whose turn does not come within 15 seconds gives ORVA_E_BUSY and has changed nothing.
 * - With "auto" a modem that is there without a port to spare is a device without memories, and its report says why.
 * - A memory is empty and has capacity 0 until it has been read; its ready event follows.
 * - A record that somebody else has changed meanwhile gives ORVA_E_NOT_FOUND; it is there under another identifier.
 * - ORVA_E_TOO_LONG and ORVA_E_ARGUMENT may also come from the modem, which stores less or something else than it was
 *   told; what it stored is undone then.
 * - ORVA_E_ABSENT in the middle of a write: the modem or the card has gone or fails for longer than five seconds, and
 *   only looking at the card tells whether it was still stored.
 * - Before a process's first write to a card all of it is put aside, in backups/ of the data folder; ORVA_E_STORE, and
 *   nothing is written, where that fails. ORVA_Store_Backup and ORVA_Store_Restore do the same by hand.
 * - The switches of orva_sim.h give ORVA_E_UNSUPPORTED, except for events, ORVA_Sim_SetNameUnits and ORVA_Sim_Reset.
 */

#include "orva/orva_sdk.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Gives the choice that this process goes by: "simulated", "auto", or the path of a modem's port. */
ORVA_API long ORVA_Modem_GetHardware(unsigned short** choice);

/* Gives 1 if somebody has chosen, in the environment or in the data folder, else 0: a host may choose then. */
ORVA_API long ORVA_Modem_IsChosen(int* chosen);

/* Keeps a choice for processes that start from now on, and for this one after ORVA_Sim_Reset. ORVA_E_ARGUMENT for
 * anything else than "simulated", "auto" or an absolute path. */
ORVA_API long ORVA_Modem_SetHardware(const unsigned short* choice);

/* Waits until a memory (0 card, 1 device) has been read, at most so many milliseconds. ORVA_E_ABSENT if it is not there
 * or locked, ORVA_E_BUSY if it took longer. At once with simulated hardware. */
ORVA_API long ORVA_Modem_WaitReady(int memory, int timeout_ms);

/* Tells about modem, card, network, storages and what is in the way, as lines "key=value" in the order of their
 * importance; keys that the modem does not answer for are left out:
 *   port (the one in use, or named), problem, spare (a port that a rule for udev may set aside), manufacturer, model,
 * revision, pin-tries, operator, signal (0/31 to 31/31), card and device (storage, entries/capacity, and the longest
 * name and number). ORVA_E_UNSUPPORTED while the hardware is simulated. */
ORVA_API long ORVA_Modem_GetReport(unsigned short** report);

/* Gives what is in the way of card and device alone, as that report has it, and without asking the modem: it never
 * waits. Empty if nothing is. ORVA_E_UNSUPPORTED while the hardware is simulated. */
ORVA_API long ORVA_Modem_GetProblem(unsigned short** problem);

/* Gives how many messages lie where the modem puts those that come in, and how many fit there; where both are the same,
 * no more can come in until somebody deletes some. It is what the modem said last: this never waits. The first call
 * begins to look; from then on the modem is asked every minute, when it tells of a new message, and soon after each
 * call with `look` other than 0. Either pointer may be null. ORVA_E_ABSENT without a modem or with its card out or
 * locked, ORVA_E_BUSY as long as it has not said, ORVA_E_UNSUPPORTED for a modem that does not say, and while the
 * hardware is simulated; both are 0 then. */
ORVA_API long ORVA_Modem_GetMessageStore(int look, int* used, int* total);

/* Gives the card its PIN, once; it is kept nowhere. ORVA_E_ARGUMENT for a wrong one, which uses up one of its tries
 * (see pin-tries), or for one that is no PIN, which does not. ORVA_E_UNSUPPORTED if none is asked for. */
ORVA_API long ORVA_Modem_Unlock(const unsigned short* pin);

#ifdef __cplusplus
}
#endif

#endif /* ORVA_MODEM_H */
