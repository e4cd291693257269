#ifndef ORVA_SIM_H
#define ORVA_SIM_H

/*
 * Controls of the simulated card and device behind libsdk.so.1. A host's device panel and tests switch the hardware
 * here; every change reaches the registered callbacks on the library's event thread, in the order of the calls.
 *
 * Every function may be called from any thread, returns 0 for success and a non-zero code for an argument out of
 * range, and reads nothing after it returns. A change that sets what is already set sends no event.
 *
 * What the hardware is (attached, card in, PIN status, types, radio, network, capacities, lengths and how they are
 * measured, fields) is kept in the data folder, so that the next process starts with it; a process that runs already
 * keeps what it has. How it behaves for a test (SetAutoReady, SetDelay) is not kept. A new folder has an attached
 * device with a card, PIN status 1, product type 0, card type 1, the radio on (1 and 1), network status 2 and
 * multi-mode status 0 and 0.
 */

#include "orva/orva_sdk.h"

#ifdef __cplusplus
extern "C" {
#endif

/*
 * Attaches (non-zero) or detaches (0) the device. Attached, ORVA_DevSrv_GetDevStatus gives 3, and the memory list
 * holds the device and, while a card is in, the card; detached, it gives 4 and the list is empty. Sends 6014.
 * Attaching also sends 20301 and, by default (see ORVA_Sim_SetAutoReady), 20302 for a card that is in and 20303.
 */
ORVA_API long ORVA_Sim_SetDevice(int attached);

/*
 * Inserts (non-zero) or removes (0) the card. Takes effect on the memory list while the device is attached. Removing
 * sends 6002; inserting sends 6601 and, by default and with the device attached, 20302.
 */
ORVA_API long ORVA_Sim_SetCard(int inserted);

/* The value that ORVA_DevSrv_GetPinStatus gives while a card is in; 1 and 8 open the card's phonebook. Sends 6604. */
ORVA_API long ORVA_Sim_SetPinStatus(int status);

/* The values that ORVA_DevSrv_GetProductType (1: UIM product) and ORVA_DevSrv_GetSimType give. No event. */
ORVA_API long ORVA_Sim_SetProductType(int type);
ORVA_API long ORVA_Sim_SetCardType(int type);

/* The two words that ORVA_DevSrv_GetRFSwitch gives; 1 and 1: the radio is on. Sends 6615. */
ORVA_API long ORVA_Sim_SetRadio(int first, int second);

/* The status that ORVA_NetSrv_GetSrvStatus gives; 2: in service. Sends 7 to the network service's callbacks. */
ORVA_API long ORVA_Sim_SetNetwork(int status);

/* The two bytes that ORVA_DevSrv_GetMultiModeCardStatus writes. No event. */
ORVA_API long ORVA_Sim_SetMultiModeCard(unsigned char first, unsigned char second);

/* Whether attaching and inserting send their ready events by themselves (non-zero, the default) or leave them to
 * ORVA_Sim_SendEvent. */
ORVA_API long ORVA_Sim_SetAutoReady(int automatic);

/* Sends any event identifier on the service that it belongs to: 2xxxx the phonebook service, 6002 and 66xx the device
 * manager, 6014 the device start service, everything else the network service. */
ORVA_API long ORVA_Sim_SendEvent(int id);

/* Time that each read and each write of one record on the memory (0 card, 1 device) takes, in milliseconds, at most
 * 10,000; 0 (the default) for none. */
ORVA_API long ORVA_Sim_SetDelay(int memory, int read_ms, int write_ms);

/* Number of records that fit into the memory (0 card, 1 device, 4 PC), at most 1,000,000; 0 stands for a memory that
 * is not ready. Records that are already stored stay. */
ORVA_API long ORVA_Sim_SetCapacity(int memory, int capacity);

/* Longest name and number of the card or the device (0 card, 1 device), 1 to 255, in the units of the field list. */
ORVA_API long ORVA_Sim_SetFieldLengths(int memory, int name_length, int number_length);

/* Number of fields of the device's memory, 2 (the default: name and number) to 4 (with home number and e-mail). The
 * device must be detached. */
ORVA_API long ORVA_Sim_SetDeviceFields(int count);

/* How the card measures a name: 0 (the default) as it stores it, non-zero by UTF-16 units, for a product that promises
 * room for a number of characters. A host that counts with ORVA_PBSrv_PBContentCodingJudge as customised says so here.
 */
ORVA_API long ORVA_Sim_SetNameUnits(int units);

/* Returns when every event sent before the call has been delivered. Fails when called from within a callback. */
ORVA_API long ORVA_Sim_WaitEvents(void);

/*
 * Commits what is open, closes every store and forgets every handle, registration and setting of this process; the next
 * call opens the data folder anew, with the hardware as it is kept there. data_dir, UTF-8, is the folder from then on;
 * null keeps what the environment says (LINKHAND_DATA_DIR, else $XDG_DATA_HOME/linkhand). No handle may be in use and
 * no callback running.
 */
ORVA_API long ORVA_Sim_Reset(const char* data_dir);

#ifdef __cplusplus
}
#endif

#endif /* ORVA_SIM_H */
