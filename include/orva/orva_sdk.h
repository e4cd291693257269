#ifndef ORVA_SDK_H
#define ORVA_SDK_H

/*
 * libsdk.so.1: the phonebook SDK. Plain C, usable from C99 and C++.
 *
 * Conventions of every function here:
 * - The result is 0 for success, else one of the codes ORVA_E_* below (and the two documented exceptions: -1 from
 *   ORVA_PBSrv_AddrGroupSet_MoveFirst for an empty set, 2 from ORVA_PBSrv_GetFileFieldDescription for a length).
 *   A null pointer, a handle of another kind or a number out of range is a code, never a crash.
 * - Any thread may call any function; one handle is used by one thread at a time.
 * - A memory is 0 (card), 1 (device) or 4 (PC).
 * - Text is zero-terminated UTF-16 in the machine's byte order. Text that the library gives is a buffer of its own
 *   for each call, allocated with array new of unsigned short: the caller frees it with array delete (which on the
 *   platforms served is free of the C library, and so open to a C program; docs/sdk.md shows it).
 * - Handles are released once, by the release function of their kind; outputs are written only on success unless a
 *   function says otherwise.
 */

#include <stdbool.h>

#if defined(_WIN32)
#error "this library is built for ELF platforms"
#endif
#define ORVA_API __attribute__((visibility("default")))

#ifdef __cplusplus
extern "C" {
#endif

/* Memories. */
#define ORVA_MEMORY_CARD 0
#define ORVA_MEMORY_DEVICE 1
#define ORVA_MEMORY_LOCAL 4

/* Result codes. */
#define ORVA_OK 0
#define ORVA_E_ARGUMENT 1001  /* null pointer, number out of range, unknown memory or field key */
#define ORVA_E_HANDLE 1002    /* not a handle of this kind, or released already */
#define ORVA_E_NOT_FOUND 1003 /* no such record, group or file */
#define ORVA_E_END 1004       /* the walk is at its end */
#define ORVA_E_FULL 1005      /* the memory holds as many records as fit */
#define ORVA_E_STORE 1006     /* the store could not be opened, read or written */
#define ORVA_E_ABSENT 1007    /* no device, no card, or it went away during the call */
#define ORVA_E_FORMAT 1008    /* a file that cannot be read as contacts */
#define ORVA_E_NO_MEMORY 1009
#define ORVA_E_BUSY 1010 /* the store is locked by another process for too long, or the card is busy */
#define ORVA_E_TOO_LONG 1011
#define ORVA_E_UNSUPPORTED 1012 /* this memory has no such thing, such as groups on a card */
#define ORVA_E_VERSION 1013     /* the store was written by a newer release and is left as it is */
#define ORVA_E_NUMBER 1014      /* a number's field that holds something else than a telephone number */
#define ORVA_E_NO_SPACE 1015    /* the disk is full: nothing can be stored, all that was stored can be read */
#define ORVA_E_READ_ONLY 1016   /* the store may only be read, as on a read-only disk or in another user's folder */
#define ORVA_E_INTERNAL 1099

/* Events, as callbacks get them. The device start service: */
#define ORVA_EVENT_DEV_DEVICE_INIT_FINISH 6014 /* the device was attached or detached */
/* The device manager: */
#define ORVA_EVENT_DEV_SIM_INVALID 6002 /* the card was removed */
#define ORVA_EVENT_DEV_CARD_CHANGED 6601
#define ORVA_EVENT_DEV_PIN_CHANGED 6604
#define ORVA_EVENT_DEV_RF_SWITCH 6615 /* the radio was switched */
/* The network service: */
#define ORVA_EVENT_NET_STATUS 7
/* The phonebook service: */
#define ORVA_EVENT_PBM_EVENT_READY 20301     /* the service is ready, the device being connected */
#define ORVA_EVENT_PBM_EVENT_SIM_READY 20302 /* the card's phonebook can be read */
#define ORVA_EVENT_PBM_EVENT_NV_READY 20303  /* and the device's */

/* States of device, card, product and network. */
#define ORVA_DEVICE_AVAILABLE 3
#define ORVA_DEVICE_AWAY 4
#define ORVA_PIN_NOT_NEEDED 1 /* these two open a card's phonebook */
#define ORVA_PIN_VERIFIED 8
#define ORVA_PRODUCT_UIM 1 /* a product with a UIM card */
#define ORVA_NETWORK_IN_SERVICE 2

/* One field of a memory, in the order of its field list. Every text is ASCII; the two character lists hold "null"
 * where there is no list. With natural alignment an entry has 28 bytes where pointers have 4, and 56 where they have 8.
 */
typedef struct ORVA_PROFILE_ENTRY {
    char* key;          /* the field's key in value calls, such as "Name" */
    int max_length;     /* the longest value, in characters; on the card in the units of PBContentCodingJudge */
    char* accepted;     /* the only characters accepted, or "null" */
    char* refused;      /* characters not accepted, or "null" */
    char* kind;         /* "Name", "Mobile", "Number", "Email" or "Remaik" (so spelt) */
    unsigned char flag; /* non-zero for a field that a search should look at first */
    char* label_id;     /* language id of the label, such as "ID_STR_NAME" */
} ORVA_PROFILE_ENTRY;

/* An event callback: the event's identifier and a payload that is null today. Returns 1 if it took the event, 0 if
 * not. Called on the library's event thread, in the order of the events, never on the thread of a registration. It
 * may call any function of this header, also unregister itself. */
typedef int (*ORVA_CALLBACK)(int enNotifyType, void* pvData);

/* ---- Records -------------------------------------------------------------------------------------------------- */

/* Makes an empty record bound to a memory; release with ORVA_PBSrv_AddrRecord_Release. */
ORVA_API long ORVA_PBSrv_CreateAddrRecord(int memory, void** record);

/* Sets one field. An empty value is allowed. ORVA_E_ARGUMENT for a key that the memory's field list lacks (keys are
 * compared without regard to case). The value is copied. */
ORVA_API long ORVA_PBSrv_AddrRecord_SetValue(void* record, const char* key, const unsigned short* value);

/* Gives one field in a new buffer, empty for a field that is not set. */
ORVA_API long ORVA_PBSrv_AddrRecord_GetValue(void* record, const char* key, unsigned short** value);
ORVA_API long ORVA_PBSrv_AddrRecord_Release(void* record);

/* Stores the record in its memory and gives the new identifier (1 or more, never used before in that memory). Fields of
 * the kinds "Mobile" and "Number" are cleaned first, in the record itself, as ORVA_Care_CleanNumber of orva_care.h
 * says. ORVA_E_FULL when the memory is full, ORVA_E_NUMBER for such a field with something else than a number or with
 * an extension, ORVA_E_TOO_LONG for a value that is then beyond its field's max_length. Durable when it returns 0
 * outside a transaction. */
ORVA_API long ORVA_PBSrv_AddAddrRec(void* record, int* id);

/* Replaces every field of a stored record; fields not set become empty. ORVA_E_NOT_FOUND if it is not there;
 * numbers are cleaned, and ORVA_E_NUMBER and ORVA_E_TOO_LONG given, as above. */
ORVA_API long ORVA_PBSrv_UpdateAddrRec(void* record, int id);

/* Deletes a record with its group memberships. ORVA_E_NOT_FOUND if it is not there. */
ORVA_API long ORVA_PBSrv_DelAddrRec(int id, int memory);

/* Gives a handle to a copy of one stored record. ORVA_E_NOT_FOUND, and a null handle, if it is not there. */
ORVA_API long ORVA_PBSrv_GetAddrRecord(int id, int memory, void** record);

/* ---- Record sets ---------------------------------------------------------------------------------------------- */

/* Gives a set over all records of a memory, in ascending order of identifiers: the records that are there at the
 * call, walked with the values they have when reached; one deleted meanwhile is passed over. 0 and a null set for an
 * empty memory. */
ORVA_API long ORVA_PBSrv_GetAddrRecList(int memory, void** set);

/* The number of records when the set was made. */
ORVA_API long ORVA_PBSrv_AddrRecordSet_GetAddrRecordCount(void* set, int* count);

/* To the first record that is still there; ORVA_E_END if none is. A new set stands in front of it. */
ORVA_API long ORVA_PBSrv_AddrRecordSet_MoveFirst(void* set);

/* ORVA_E_END behind the last record. */
ORVA_API long ORVA_PBSrv_AddrRecordSet_MoveNext(void* set);

/* The current record, as it was when the walk came to it: its identifier, and one field in a new buffer. ORVA_E_END
 * when there is no current record. */
ORVA_API long ORVA_PBSrv_AddrRecordSet_GetID(void* set, int* id);
ORVA_API long ORVA_PBSrv_AddrRecordSet_GetValue(void* set, const char* key, unsigned short** value);
ORVA_API long ORVA_PBSrv_AddrRecordSet_Release(void* set);

/* ---- Groups (memory 4 only; others give ORVA_E_UNSUPPORTED) ---------------------------------------------------- */

/* Gives a set over all groups, in ascending order of identifiers. */
ORVA_API long ORVA_PBSrv_GetGroupList(int memory, void** set);

/* Moves to the first group: 0, or -1 for a set without groups. */
ORVA_API long ORVA_PBSrv_AddrGroupSet_MoveFirst(void* set);
ORVA_API long ORVA_PBSrv_AddrGroupSet_MoveNext(void* set);
ORVA_API long ORVA_PBSrv_AddrGroupSet_GetID(void* set, int* id);

/* 0 for a group at the first level. */
ORVA_API long ORVA_PBSrv_AddrGroupSet_GetParentID(void* set, int* parent);
ORVA_API long ORVA_PBSrv_AddrGroupSet_GetName(void* set, unsigned short** name);

/* Number of records in the current group itself, those of its sub-groups not counted. */
ORVA_API long ORVA_PBSrv_AddrGroupSet_GetGroupSize(void* set, int* size);

/* The identifiers of the records in a group, in the order in which they joined. The array is the set's and
 * stays as it is until the set is released. Null with a count of 0. */
ORVA_API long ORVA_PBSrv_AddrGroupSet_GetAddrInGroupByID(void* set, int group, int* count, int** ids);
ORVA_API long ORVA_PBSrv_AddrGroupSet_Release(void* set);

/* Makes an empty group; release with ORVA_PBSrv_AddrGroup_Release. */
ORVA_API long ORVA_PBSrv_CreateAddrGroup(int memory, void** group);
ORVA_API long ORVA_PBSrv_AddrGroup_SetName(void* group, const unsigned short* name);
ORVA_API long ORVA_PBSrv_AddrGroup_SetParentID(void* group, int parent);
ORVA_API long ORVA_PBSrv_AddrGroup_Release(void* group);

/* Stores the group and gives its identifier. ORVA_E_NOT_FOUND if its parent is neither 0 nor there. */
ORVA_API long ORVA_PBSrv_AddGroup(void* group, int* id);

/* Changes the name of a stored group, and nothing else of it. */
ORVA_API long ORVA_PBSrv_UpdateGroup(void* group, int id);

/* Deletes a group, its sub-groups and their memberships; never a record. */
ORVA_API long ORVA_PBSrv_DelGroup(int id, int memory);

/* Adds a membership. Group 0 succeeds and does nothing; joining twice succeeds. ORVA_E_NOT_FOUND for a record or a
 * group that is not there. */
ORVA_API long ORVA_PBSrv_AddAddrToGroup(int group, int record, int memory);

/* Removes a membership; the record stays. ORVA_E_NOT_FOUND if there is none. */
ORVA_API long ORVA_PBSrv_DelAddrFromGroup(int group, int record, int memory);

/* ---- Profile, sizes, coding, transactions ---------------------------------------------------------------------- */

/* Gives the field list of a memory as an array of *count entries; free it with ORVA_PBSrv_ProfileRelease, which sets
 * the pointer to null. */
ORVA_API long ORVA_PBSrv_GetProfile(int memory, ORVA_PROFILE_ENTRY** entries, int* count);
ORVA_API long ORVA_PBSrv_ProfileRelease(int memory, ORVA_PROFILE_ENTRY** entries);

/* How many records fit into a memory; 0 while it is not ready, such as a card that its PIN keeps closed. */
ORVA_API long ORVA_PBSrv_GetCapacity(int memory, int* capacity);

/* How many records are stored. */
ORVA_API long ORVA_PBSrv_GetSize(int memory, int* size);

/* With types null: the number of device-side memories. With a buffer of *count words, all set to -1 by the caller:
 * fills in their numbers and leaves the rest at -1. No device gives 0. */
ORVA_API long ORVA_PBSrv_PBGetMemoryListType(short* types, unsigned short* count);

/* Gives the length of a text as an alpha identifier on a card, in units comparable with a field's max_length. The text
 * is `length` UTF-16 units, or those before the first zero. The empty text has length 0, and no text is shorter than
 * one of its beginnings, so that cutting characters off the end always comes to fit. A length beyond 32,767 is given as
 * that.
 * - not_uim true (a SIM): octets of the 3GPP TS 23.038 default alphabet, an extension character counting two; a text
 *   with any other character (form feed and escape are such) takes the shortest of the three UCS-2 forms of ETSI
 *   TS 102 221 Annex A, header octets counted and an extension character counting two in the half-page forms.
 * - not_uim false (a UIM card): one for each character of ASCII text, any other text in plain UCS-2: two for each unit
 *   and one for the header octet.
 * - customised true, whatever the card: one for each UTF-16 unit. A card takes names by that count where it is told to
 *   (ORVA_Sim_SetNameUnits of orva_sim.h).
 * Counting changes nothing. */
ORVA_API long ORVA_PBSrv_PBContentCodingJudge(const unsigned short* text, short length, bool not_uim, bool customised,
                                              short* result);

/* A transaction gathers the writes of a memory, by whatever thread, into one commit. Flat: a begin inside an open one
 * changes nothing, every end commits what is open, an end with nothing open succeeds. What an end returned 0 for is
 * on disk. An open transaction that nobody ends is committed within one second. A commit that is refused takes all
 * writes of its transaction along; from then on every write is committed by itself, and fails if that cannot be, until
 * one goes through (ORVA_Store_TakeLoss of orva_store.h counts what was lost). */
ORVA_API long ORVA_PBSrv_BeginTransaction(int memory);
ORVA_API long ORVA_PBSrv_EndTransaction(int memory);

/* ---- Import and export ----------------------------------------------------------------------------------------- */

/* 0 when the named contacts application can be imported from: "Outlook", which Evolution's local address books answer
 * for, or "Outlook Express", Thunderbird's personal address book; both in the user's home. Else ORVA_E_NOT_FOUND. */
ORVA_API long ORVA_PBSrv_IsOutlookInstalled(const char* name);

/* The titles of a file's columns in the locale's eight-bit encoding, separated by ",": as many as the first row has
 * columns and in their order, a comma or line end within one being a blank. Behind them stand columns made up of those,
 * under the keys of the fields (Name, Mobile, officePhone, homePhone, email, remark; Number for a memory with one
 * number), where no column of that title says as much: the name joined of its parts, each number where its title or
 * the label beside it says, all of several values in a cell ("1 ::: 2"), what finds no place in the remark. With buffer
 * null: returns 2 and the buffer's size in *length. With a zeroed buffer of that size: fills it in and returns 0. On
 * failure *length is 0. A file called .vcf or .vcard holds vCards (2.1, 3.0 and 4.0; RFC 2426, RFC 6350); its columns
 * are the keys of the fields. */
ORVA_API long ORVA_PBSrv_GetFileFieldDescription(const unsigned short* path, char* buffer, int* length);

/* Reads a file into a new record set for a memory; nothing is stored. RFC 4180, also with semicolons or tabs, whichever
 * gives most rows the same number of columns; UTF-8, UTF-16, the locale's encoding or Windows-1252.
 * - The map has an entry for each field of the memory: the column it is taken from, counted from 0 in the order of
 *   ORVA_PBSrv_GetFileFieldDescription, or -1 for none.
 *   first + 65536 * (second + 1) joins two columns by a blank.
 * - A record's identifier is the number of the line it begins in.
 * - Blanks at the ends of a text are part of it, but around quotation marks.
 * - Numbers are cleaned as ORVA_Care_CleanNumber of orva_care.h does it; an extension goes with its number into a line
 *   of the note. What is no number stays as it is, for the caller to refuse, is named in the log by its line, and so is
 *   one with an extension where there is no note. What is no e-mail address that a form takes ("@" and ASCII alone)
 * goes into the note, and is named there, too.
 * - A note is cut to what its field holds; other values may be longer than the memory takes.
 * - Of vCards, further numbers and e-mail addresses stand in the remark; what else has no field stays behind, named by
 *   its property in the log.
 * - A row that cannot be read is passed over and named by its line in the log; so is the line of a quotation mark that
 *   nothing closes. Rows without a value in the mapped columns are no records.
 * ORVA_E_FORMAT for a file without a usable row, ORVA_E_TOO_LONG for one beyond 256 MB or a million records. */
ORVA_API long ORVA_PBSrv_ImportFromFile(const unsigned short* path, int* map, int memory, void** set);

/* The same from a contacts application, named as for ORVA_PBSrv_IsOutlookInstalled. Its columns are the fields of the
 * memory, in their order. Read from a copy; the application may be running. */
ORVA_API long ORVA_PBSrv_ImportFromOutlook(const unsigned short* name, int* map, int memory, void** set);

/* Writes the records named, in their order, to a file: RFC 4180, UTF-8 with mark, field keys as titles in the first
 * row. Groups stand in a last column "Groups" if one of the records is in any. An existing file is kept with ".~1~"
 * behind its name, or the next number that is free. Identifiers not there are passed over. ORVA_E_ARGUMENT for a name
 * with "*". */
ORVA_API long ORVA_PBSrv_ExportToFile(const unsigned short* path, int* ids, int count, int memory);

/* ---- Callbacks ------------------------------------------------------------------------------------------------- */

/* Four services, each event belonging to one of them. Registering a callback twice changes nothing. After an
 * unregister returns, the callback is not running and will not be called again (unless it unregisters itself).
 * ORVA_E_NOT_FOUND for a callback that was not registered. */
ORVA_API long ORVA_PBSrv_RegisterPBCallback(ORVA_CALLBACK callback);
ORVA_API long ORVA_PBSrv_UnRegisterPBCallback(ORVA_CALLBACK callback);
ORVA_API long ORVA_DevSrv_RegisterDevInitEventCallback(ORVA_CALLBACK callback);
ORVA_API long ORVA_DevSrv_UnRegisterDevInitEventCallback(ORVA_CALLBACK callback);
ORVA_API long ORVA_DevSrv_RegisterDevMgrCallback(ORVA_CALLBACK callback);
ORVA_API long ORVA_DevSrv_UnRegisterDevMgrCallback(ORVA_CALLBACK callback);
ORVA_API long ORVA_NetSrv_RegisterNetSrvEvent(ORVA_CALLBACK callback);
ORVA_API long ORVA_NetSrv_UnRegisterNetSrvEvent(ORVA_CALLBACK callback);

/* ---- Device and network ----------------------------------------------------------------------------------------
 * Without a device, all of these but GetDevStatus and GetProductType give ORVA_E_ABSENT; so do GetPinStatus and
 * GetSimType without a card. */

/* ORVA_DEVICE_AVAILABLE or ORVA_DEVICE_AWAY. */
ORVA_API long ORVA_DevSrv_GetDevStatus(int* status);

/* The card's PIN status; ORVA_PIN_NOT_NEEDED and ORVA_PIN_VERIFIED open its phonebook. The three bytes, each of which
 * may be null, are set to 0. */
ORVA_API long ORVA_DevSrv_GetPinStatus(int slot, int* status, unsigned char* pin1, unsigned char* pin2,
                                       unsigned char* puk);

/* ORVA_PRODUCT_UIM, or any other number. */
ORVA_API long ORVA_DevSrv_GetProductType(int* type);
ORVA_API long ORVA_DevSrv_GetSimType(int* type);

/* Writes two words; both 1: the radio is on. */
ORVA_API long ORVA_DevSrv_GetRFSwitch(int* states);

/* Writes two bytes. The other three arguments must be null. */
ORVA_API long ORVA_DevSrv_GetMultiModeCardStatus(unsigned char* status, void* reserved1, void* reserved2,
                                                 void* reserved3);

/* ORVA_NETWORK_IN_SERVICE, or any other number. */
ORVA_API long ORVA_NetSrv_GetSrvStatus(int* status);

/* The folder for log files, ending in "/", in a new buffer. */
ORVA_API long ORVA_GetLogDirectory(unsigned short** path);

#ifdef __cplusplus
}
#endif

#endif /* ORVA_SDK_H */
