#ifndef ORVA_CARE_H
#define ORVA_CARE_H

/*
 * Contacts as people write them, made fit to be stored, and a way back for those that were deleted; for hosts and
 * clients. The conventions are those of orva_sdk.h: a code as result, UTF-16 texts, buffers of the caller, any thread.
 */

#include "orva/orva_sdk.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Numbers: nothing here opens a memory ---------------------------------------------------------------------- */

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

/* Gives a text that the numbers of one telephone have in common, in a new buffer: "0171 5551234" and "+49 171 555-1234"
 * where the user's region is DE. Without a region, without the module for telephone numbers and for numbers that no
 * country has it is the clean number, "00" being "+". Of the number alone: an extension does not count. ORVA_E_NUMBER
 * for a text that is no number. */
ORVA_API long ORVA_Care_NumberKey(const unsigned short* number, unsigned short** key);

/* The user's region, two capital letters (ISO 3166-1) and a zero, or the empty text for none: the one that was set, for
 * all programs with the same data folder, or the locale's (LC_ALL, LC_TELEPHONE, LANG). LINKHAND_REGION in the
 * environment goes before both. To set it: two letters, "none", or the empty text for the locale's again; else
 * ORVA_E_ARGUMENT. */
ORVA_API long ORVA_Care_GetRegion(char* region);
ORVA_API long ORVA_Care_SetRegion(const char* region);

/* ---- What is kept with a record beside its fields (memory 4 only) ----------------------------------------------- */

/* The most octets that can be kept with a record. */
#define ORVA_KEPT_MAX 8388608

/* Sets what is to be kept with a record, such as a photo, an address or a second e-mail address of a vCard: lines of a
 * vCard 3.0 (RFC 2426) in UTF-8 without BEGIN, VERSION and END. The library does not read them. They are stored with
 * the fields by ORVA_PBSrv_AddAddrRec or ORVA_PBSrv_UpdateAddrRec, all or nothing; an update with a record for which
 * this was not called leaves what is kept as it is. Copied; `octets` is the length, and 0 keeps nothing (`lines` may be
 * null then). ORVA_E_UNSUPPORTED for a record of another memory, ORVA_E_TOO_LONG beyond ORVA_KEPT_MAX. */
ORVA_API long ORVA_Care_SetKept(void* record, const char* lines, int octets);

/* Gives what was set, or else what is kept with the stored record (or entry of the bin) that the handle is a copy of,
 * in a new buffer of *octets octets and a zero, which the caller frees. Length 0 for nothing. */
ORVA_API long ORVA_Care_GetKept(void* record, char** lines, int* octets);

/* The same, property by property, for those who show and change it. Both work on the handle; what was changed is stored
 * with ORVA_PBSrv_AddAddrRec or ORVA_PBSrv_UpdateAddrRec. One handle, one thread. */

typedef struct ORVA_KEPT_PROPERTY {
    unsigned short* head;  /* its name and parameters, as "ADR;TYPE=HOME"; the caller frees it */
    unsigned short* value; /* its text without escapes; of ADR, ORG and N a line for each component, empty ones too; of
                              octets, such as a photo's, BASE64 (RFC 4648). The caller frees it. */
    int octets;            /* 1 for such octets, else 0 */
} ORVA_KEPT_PROPERTY;

/* Gives the property at an index, counted from 0 in their order; ORVA_E_END behind the last one. */
ORVA_API long ORVA_Care_GetKeptProperty(void* record, int index, ORVA_KEPT_PROPERTY* property);

/* Gives the property at an index another value, written as above; the empty text takes it away. With index -1 a new one
 * called `name` comes behind the last; otherwise `name` is not looked at. ORVA_E_ARGUMENT for a name that is none of
 * those a vCard has for what can be kept (or "X-" and letters, digits and hyphens), ORVA_E_NOT_FOUND for an index
 * behind the last, ORVA_E_UNSUPPORTED for octets and for a record of another memory, ORVA_E_TOO_LONG beyond
 * ORVA_KEPT_MAX. */
ORVA_API long ORVA_Care_SetKeptProperty(void* record, int index, const char* name, const unsigned short* value);

/* ---- What an import left ----------------------------------------------------------------------------------------
 * ORVA_PBSrv_ImportFromFile and ORVA_PBSrv_ImportFromOutlook remember what of their source does not come out of it as
 * it stands there, until the next of them is called in this process, whichever memory it is for. Failed ones do, too.
 */

/* A row, or a line, that was passed over */
#define ORVA_FINDING_QUOTE 1        /* a quotation mark that nothing closes */
#define ORVA_FINDING_ROW_LENGTH 2   /* too long */
#define ORVA_FINDING_ROW_COLUMNS 3  /* too many columns */
#define ORVA_FINDING_ZERO 4         /* a zero byte */
#define ORVA_FINDING_NOT_TEXT 5     /* octets that are no text */
#define ORVA_FINDING_VALUE_LENGTH 6 /* a value of more than 65,535 units */
#define ORVA_FINDING_EMPTY 7        /* nothing in the columns that have a field */
/* What of others was not taken, or not as it is */
#define ORVA_FINDING_COLUMN 8    /* a column that no field is for; count is that of its values */
#define ORVA_FINDING_PROPERTY 9  /* the same of one card; name is that of the property, such as PHOTO */
#define ORVA_FINDING_FURTHER 10  /* a further number or address, in a memory that has no field for it */
#define ORVA_FINDING_SEVERAL 11  /* of several values in a cell the first was taken */
#define ORVA_FINDING_EMAIL 12    /* no e-mail address, and put into the note */
#define ORVA_FINDING_NOTE_CUT 13 /* cut to what the field holds */
/* What the memory will refuse, or the client has to cut, when the records are stored as they are handed out */
#define ORVA_FINDING_NAME_CUT 14 /* a name longer than a card or device holds */
#define ORVA_FINDING_NUMBER 15   /* no telephone number */
#define ORVA_FINDING_TOO_LONG 16 /* longer than the field */
#define ORVA_FINDING_FULL 17     /* no room for the records from this one on; count is their number */
/* Files of vCards */
#define ORVA_FINDING_CARD_END 18      /* a card without an end, passed over */
#define ORVA_FINDING_CARD_LENGTH 19   /* a card that is too long, passed over */
#define ORVA_FINDING_CARD_LINES 20    /* a card of too many lines, passed over */
#define ORVA_FINDING_CARD_OUTSIDE 21  /* text between cards, passed over */
#define ORVA_FINDING_CARD_VERSION 22  /* an unknown version, read as 3.0 */
#define ORVA_FINDING_CARD_LINE 23     /* a line that is no property */
#define ORVA_FINDING_CARD_ENCODING 24 /* a file in UTF-16, in which no vCard is written */
#define ORVA_FINDING_CARD_NONE 25     /* a file without a card */
/* Groups */
#define ORVA_FINDING_GROUPS 26 /* a column of groups, of which records know nothing; count is that of its values */
#define ORVA_FINDING_GROUP 27  /* a group that cannot be, in value; count is the code that says why */
/* What a memory refused when it was stored */
#define ORVA_FINDING_REFUSED 28 /* count is its code */

/* The most findings that are remembered one by one; those behind are only counted. */
#define ORVA_FINDINGS_KEPT 10000

typedef struct ORVA_FINDING {
    int line;   /* of the file, counted from 1, that the row or card begins in; of an application's contacts,
                   their number; 0 for a whole column */
    int reason; /* ORVA_FINDING_... */
    int count;  /* of values or records; 1 unless said otherwise */
    int column; /* in the file, counted from 0; -1 for none */
    unsigned short name[64];  /* the column's title or the field's key or the property, cut and zero-terminated; empty
                                 for none, and for a column without a title */
    unsigned short value[96]; /* what stands there, cut and zero-terminated; empty for what is no text */
} ORVA_FINDING;

/* Gives the findings of the last import, by their lines and those of whole columns last, as an array of *count entries;
 * null for none. `total` is the number of all, `source` the file or application in a new buffer that the caller frees;
 * both may be null. Free the array with ORVA_Care_FindingsRelease, which sets the pointer to null. Values are the
 * user's own: show them, and log none. */
ORVA_API long ORVA_Care_GetFindings(ORVA_FINDING** findings, int* count, int* total, unsigned short** source);
ORVA_API long ORVA_Care_FindingsRelease(ORVA_FINDING** findings);

/* Sent on the phonebook service by an import with findings, and by one without if the one before had some. */
#define ORVA_EVENT_IMPORT_FINDINGS 20392

/* ---- Contacts in, and out ---------------------------------------------------------------------------------------
 * An import from the source to the last group, in one place: whoever has a window or a command line chooses and shows.
 * ORVA_PBSrv_ImportFromFile hands out records and leaves it to its client to store them. */

#define ORVA_FORMAT_ANY 0         /* of a file: vCards by its name (".vcf", ".vcard") or beginning, else CSV */
#define ORVA_FORMAT_ROWS 1        /* CSV */
#define ORVA_FORMAT_CARDS 2       /* vCards 2.1, 3.0 or 4.0, for the PC's phonebook alone */
#define ORVA_FORMAT_APPLICATION 3 /* an application, by the name that ORVA_PBSrv_IsOutlookInstalled takes */

/* What becomes of contacts that are in the memory already, as ORVA_Care_Match_Find tells. Contacts of the import itself
 * are no reason to leave another out. */
#define ORVA_EXISTING_ADD 0    /* they come in all the same */
#define ORVA_EXISTING_SKIP 1   /* they are left out */
#define ORVA_EXISTING_UPDATE 2 /* what they say goes into the one that is there, the rest of which stays */

#define ORVA_IMPORT_TRY 1       /* store nothing, and tell what would become of each */
#define ORVA_IMPORT_NO_GROUPS 2 /* leave groups out that the source names */

typedef struct ORVA_IMPORT_SETTINGS {
    int format;     /* ORVA_FORMAT_... */
    int existing;   /* ORVA_EXISTING_... */
    int flags;      /* ORVA_IMPORT_TRY, ORVA_IMPORT_NO_GROUPS */
    const int* map; /* of rows: for each field of the memory its column, as ORVA_PBSrv_ImportFromFile takes it; null for
                       what the titles say */
} ORVA_IMPORT_SETTINGS;

/* Begins an import of a file or application (UTF-16) into a memory. Reads nothing yet; settings and map are copied. The
 * handle is released with ORVA_Care_Import_Release. One handle, one thread at a time. ORVA_E_ARGUMENT for settings that
 * are none; what a write would meet (ORVA_E_NO_SPACE, ORVA_E_READ_ONLY) with ORVA_IMPORT_TRY. */
ORVA_API long ORVA_Care_OpenImport(int memory, const unsigned short* source, const ORVA_IMPORT_SETTINGS* settings,
                                   void** import);

/* Has every contact that is taken join a group, which is made if it is not there; by its names from the first level on
 * with "/" between. Before the first step. ORVA_E_ARGUMENT for a level without a name, ORVA_E_TOO_LONG,
 * ORVA_E_UNSUPPORTED for a memory without groups. */
ORVA_API long ORVA_Care_Import_AddGroup(void* import, const unsigned short* path);

/* Goes on with at most `most` contacts: 0 while there may be more, ORVA_E_END at the end. The first step reads the
 * source, all of it unless that is one of vCards. What a step has stored is durable when it returns; who goes no
 * further keeps it. Before the first change by an import of more than ORVA_BACKUP_IMPORT_ABOVE contacts of the PC's
 * phonebook an automatic backup is made (orva_store.h). A contact that the memory refuses costs that contact alone. Any
 * other code ends the import: ORVA_E_NOT_FOUND, ORVA_E_FORMAT or ORVA_E_TOO_LONG of the source as
 * ORVA_PBSrv_ImportFromFile gives them, also if no title means anything; ORVA_E_STORE, ORVA_E_NO_SPACE,
 * ORVA_E_READ_ONLY, ORVA_E_ABSENT or ORVA_E_BUSY of the memory. */
ORVA_API long ORVA_Care_Import_Step(void* import, int most);

typedef struct ORVA_IMPORT_COUNTS {
    int total;   /* contacts of the source, as far as that is known */
    int seen;    /* looked at so far: the sum of those below */
    int added;   /* new ones */
    int changed; /* brought up to date */
    int same;    /* with nothing to bring up to date */
    int skipped; /* left out since they were there */
    int left;    /* not taken; the findings say why */
} ORVA_IMPORT_COUNTS;

/* Gives what became of the contacts so far; after a failure, of those that are on disk. */
ORVA_API long ORVA_Care_Import_GetCounts(void* import, ORVA_IMPORT_COUNTS* counts);

#define ORVA_IMPORT_ADDED 1
#define ORVA_IMPORT_CHANGED 2
#define ORVA_IMPORT_SAME 3
#define ORVA_IMPORT_SKIPPED 4
#define ORVA_IMPORT_LEFT 5

typedef struct ORVA_IMPORT_CONTACT {
    int line;                     /* of the file, or the contact's number in an application */
    int outcome;                  /* ORVA_IMPORT_ADDED ... */
    int record;                   /* its identifier, or that of the one that was there; 0 for none */
    const unsigned short* name;   /* or the first other text that is no number; valid until the next step */
    const unsigned short* number; /* the first one; likewise */
} ORVA_IMPORT_CONTACT;

/* Gives a contact that the last step looked at, counted from 0 in their order; ORVA_E_END behind the last. */
ORVA_API long ORVA_Care_Import_GetContact(void* import, int index, ORVA_IMPORT_CONTACT* contact);

/* Gives the findings so far as ORVA_Care_GetFindings does, which itself knows nothing of this import. Those of the
 * whole come with its end. Free the array with ORVA_Care_FindingsRelease. */
ORVA_API long ORVA_Care_Import_GetFindings(void* import, ORVA_FINDING** findings, int* count, int* total);

/* Gives what was kept with the contacts beside their fields, by the names of properties and with their numbers; the
 * same form, and nothing that was left. */
ORVA_API long ORVA_Care_Import_GetKept(void* import, ORVA_FINDING** entries, int* count);
ORVA_API long ORVA_Care_Import_Release(void* import);

/* Writes records to a file: as rows, with the groups of the PC's phonebook in a last column, or as vCards 3.0 with
 * their groups and all that is kept with them (memory 4 only). ORVA_FORMAT_ANY goes by the file's name. `ids` are
 * written in their order, all records with null; those that are not there are passed over. A file of that name is kept,
 * with ".~1~" or the next free number behind its name. `written`, unless null, is their number. ORVA_E_ARGUMENT for a
 * name with "*" in it, which is a pattern that somebody left standing; ORVA_E_UNSUPPORTED, ORVA_E_STORE. */
ORVA_API long ORVA_Care_Export(int memory, const unsigned short* path, int format, const int* ids, int count,
                               int* written);

/* How an export goes on: called on the thread that exports, before the first record and then after each few hundred,
 * with how many of how many have been taken. Anything but 0 breaks it off. It may call the library. */
typedef int (*ORVA_EXPORT_PROGRESS)(int done, int total, void* data);

/* As ORVA_Care_Export, telling how far it is; `progress` may be null. ORVA_E_CANCELLED (orva_sync.h) for
 * one that was broken off, which leaves no file, and one of that name as it was. */
ORVA_API long ORVA_Care_ExportWithProgress(int memory, const unsigned short* path, int format, const int* ids,
                                           int count, int* written, ORVA_EXPORT_PROGRESS progress, void* data);

/* ---- The same person twice ------------------------------------------------------------------------------------- */

#define ORVA_DUPLICATE_SAME 1   /* the same person */
#define ORVA_DUPLICATE_NUMBER 2 /* people with one number, as in a family: to be shown, not to be merged unasked */

typedef struct ORVA_DUPLICATE {
    int set;    /* counted from 1; those of a set belong together and stand one behind the other */
    int kind;   /* of the set */
    int record; /* its identifier */
} ORVA_DUPLICATE;

/* Gives the records of a memory that belong together, as an array of *count entries; null for none. Free it with
 * ORVA_Care_DuplicatesRelease, which sets the pointer to null. The same person is who has the same name, whatever its
 * case and however its letters are composed, and a number or an e-mail address in common, by ORVA_Care_NumberKey. Takes
 * time in proportion to the records. */
ORVA_API long ORVA_Care_GetDuplicates(int memory, ORVA_DUPLICATE** entries, int* count);
ORVA_API long ORVA_Care_DuplicatesRelease(int memory, ORVA_DUPLICATE** entries);

/* Looks records up among those of a memory, as they are when this is called: for imports that would bring somebody in
 * a second time. The handle is released with ORVA_Care_Match_Release. Takes time and room in proportion to the
 * records. */
ORVA_API long ORVA_Care_CreateMatch(int memory, void** match);

/* Gives the record that has the same text in every field as `record`, which is of the same memory, else the first that
 * is the same person; ORVA_E_NOT_FOUND for none. Case, composition and the way in which numbers are written make no
 * difference. Takes no time worth speaking of. */
ORVA_API long ORVA_Care_Match_Find(void* match, void* record, int* id);
ORVA_API long ORVA_Care_Match_Release(void* match);

/* ---- Merging (memory 4 only; others give ORVA_E_UNSUPPORTED) ------------------------------------------------------
 * Several records become one, the first of them, which keeps its identifier. Its values stay, and those of the others
 * go into the fields that it leaves empty. A value that has no room there, and is no other way of writing one that has,
 * goes into the note, as "Mobile: +441632960001"; what the note has no room for is kept beside the fields. Notes are
 * joined, and so are groups and what is kept. What the first said before and the others as they were are in the bin,
 * and an automatic backup (orva_store.h) is made before. */

/* Gives a handle to what would become of the records, which is read with ORVA_PBSrv_AddrRecord_GetValue and
 * ORVA_Care_GetKept and released with ORVA_PBSrv_AddrRecord_Release; and the groups it would be in, as
 * ORVA_Care_GetBinGroups gives them, in a new buffer that the caller frees. Changes nothing. ORVA_E_NOT_FOUND if one of
 * the records is not there, ORVA_E_ARGUMENT for fewer than two or one that is named twice, ORVA_E_TOO_LONG for more
 * than can be kept. */
ORVA_API long ORVA_Care_PreviewMerge(int memory, const int* records, int count, void** record, unsigned short** groups);

/* Merges the records of each set, given as ORVA_Care_GetDuplicates gives them: the entries of a set stand one behind
 * the other. The kind is not looked at. All sets or, with a code as above or ORVA_E_STORE, nothing. Durable when it
 * returns 0 outside a transaction; inside one it is one of its writes. Takes time in proportion to the records. */
ORVA_API long ORVA_Care_Merge(int memory, const ORVA_DUPLICATE* entries, int count);

/* ---- The bin of the PC's phonebook (memory 4 only; others give ORVA_E_UNSUPPORTED) -------------------------------
 * What a record said before it was deleted, or before an update changed it, stays in the bin for ORVA_BIN_DAYS days,
 * with the groups it was in. It goes there in the transaction that takes it away. */

#define ORVA_BIN_DAYS 30

#define ORVA_BIN_DELETED 1
#define ORVA_BIN_CHANGED 2

typedef struct ORVA_BIN_ENTRY {
    int id;         /* of the entry: 1 or more, never used twice */
    int record;     /* the identifier that the record had, or still has after a change */
    int reason;     /* ORVA_BIN_DELETED or ORVA_BIN_CHANGED */
    long long time; /* when: seconds since the beginning of 1970, UTC */
} ORVA_BIN_ENTRY;

/* Gives what is in the bin, the newest first, as an array of *count entries; null for none. Free it with
 * ORVA_Care_BinRelease, which sets the pointer to null. */
ORVA_API long ORVA_Care_GetBin(int memory, ORVA_BIN_ENTRY** entries, int* count);
ORVA_API long ORVA_Care_BinRelease(int memory, ORVA_BIN_ENTRY** entries);

/* Gives a handle to a copy of the record of an entry, to be read with ORVA_PBSrv_AddrRecord_GetValue and released with
 * ORVA_PBSrv_AddrRecord_Release. ORVA_E_NOT_FOUND, and a null handle, if the entry is not there. */
ORVA_API long ORVA_Care_GetBinRecord(int memory, int entry, void** record);

/* Gives the groups that the record of an entry was in, as their names from the first level on with "/" between, in a
 * new buffer, one a line. Groups that were deleted since are among them. */
ORVA_API long ORVA_Care_GetBinGroups(int memory, int entry, unsigned short** paths);

/* Stores the record of an entry anew, in the groups it was in, and takes the entry out of the bin; all of that, or
 * nothing. Groups that were deleted since are made again. The record has a new identifier, in *id; after a change it
 * comes to stand beside the changed one. ORVA_E_NOT_FOUND, ORVA_E_FULL. Durable when it returns 0 outside a
 * transaction. */
ORVA_API long ORVA_Care_Undelete(int memory, int entry, int* id);

/* Removes an entry for good; all of them for entry 0. ORVA_E_NOT_FOUND for one that is not there. */
ORVA_API long ORVA_Care_EmptyBin(int memory, int entry);

#ifdef __cplusplus
}
#endif

#endif /* ORVA_CARE_H */
