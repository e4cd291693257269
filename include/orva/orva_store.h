#ifndef ORVA_STORE_H
#define ORVA_STORE_H

/*
 * Care for the stores behind libsdk.so.1: check, backup and restore. Tools use it while other processes have the same
 * stores open. The conventions are those of orva_sdk.h; a card that is out or a device that is detached gives
 * ORVA_E_ABSENT. A card or device behind a modem has no store: its backup is a file of its own kind, which goes back to
 * the same card or modem alone, and ORVA_Store_Check gives ORVA_E_UNSUPPORTED.
 */

#include "orva/orva_sdk.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Looks for damage in the store of a memory and gives the number of findings, each of which is a line in the log. What
 * the library finds damaged by itself it puts aside and replaces, with all that can be read of it. */
ORVA_API long ORVA_Store_Check(int memory, int* findings);

/* The same, and what was found in words for people who know SQLite, a line each, in a new buffer that the caller frees;
 * empty for nothing. */
ORVA_API long ORVA_Store_CheckInWords(int memory, int* findings, unsigned short** lines);

/* A store that was damaged and replaced. */
typedef struct ORVA_STORE_DAMAGE {
    long long time;       /* when that was found: seconds since the beginning of 1970, UTC */
    int records;          /* that came through into the new store */
    int groups;           /* likewise */
    unsigned short* file; /* where the damaged file lies; the caller frees it */
    unsigned short* what; /* was found, for people who know SQLite; the caller frees it */
} ORVA_STORE_DAMAGE;

/* Tells of the last time that the store of a memory was found damaged and replaced, for as long as the damaged file is
 * left where it was put; opens the store first. With `once` not 0 it tells of each time to one caller only, of all
 * processes: for programs that mention it beside their work. ORVA_E_NOT_FOUND where there is nothing to tell. */
ORVA_API long ORVA_Store_GetDamage(int memory, int once, ORVA_STORE_DAMAGE* damage);

/* How often, since this process opened the store of a memory, it has found that another one had changed or replaced it;
 * looks now. Whoever shows contacts compares it with what it was when they were read. A look costs some microseconds,
 * but waits for a transaction of this process. 0 for a memory behind a modem. */
ORVA_API long ORVA_Store_GetForeignChanges(int memory, int* count);

/* Sent on the phonebook service when a record of the PC's phonebook is asked for, changed or deleted that is there no
 * longer, since another process has deleted it. Whoever shows contacts shows one that went. */
#define ORVA_EVENT_RECORD_GONE 20393

/* Tells whether the store of a memory can be written: *code is 0, or ORVA_E_NO_SPACE, ORVA_E_READ_ONLY or what else the
 * last write met. Where it could not, this tries anew, and so does each write; reading goes on meanwhile, with all that
 * was ever stored. The result is a code, and *code is not written, if the store cannot be read either. */
ORVA_API long ORVA_Store_GetAccess(int memory, long* code);

/* Sent on the phonebook service when a store can be written no longer, or again; ORVA_Store_GetAccess tells which. */
#define ORVA_EVENT_STORE_ACCESS 20391

/* Copies the store of a memory, as of one moment, into a new file of the user's alone. ORVA_E_STORE if the file is
 * there already or cannot be written. */
ORVA_API long ORVA_Store_Backup(int memory, const unsigned short* path);

/* Puts the content of a backup in place of the store of a memory. What was there before goes into an automatic backup.
 * ORVA_E_FORMAT for a file that is no sound backup of such a store, ORVA_E_VERSION for one of a newer
 * release; the store is unchanged then. */
ORVA_API long ORVA_Store_Restore(int memory, const unsigned short* path);

/* ---- Automatic backups --------------------------------------------------------------------------------------------
 * Copies of a store that lie in the folder "backups" beside it, each of the user alone and looked through before it
 * counts. One is made before a new release changes the store's form, before a restore and a merge, and before the first
 * change after ORVA_PBSrv_ImportFromFile or ORVA_PBSrv_ImportFromOutlook have read more than ORVA_BACKUP_IMPORT_ABOVE
 * records for the PC; a host has one made each day, and a client with imports of its own before those. The last
 * ORVA_BACKUPS_KEPT stay, and beyond them the last one with more than twice the records that are there. What is damaged
 * is mended first (ORVA_Store_GetDamage tells), and never copied. */

#define ORVA_BACKUPS_KEPT 10
#define ORVA_BACKUP_IMPORT_ABOVE 100

#define ORVA_BACKUP_DAILY 1
#define ORVA_BACKUP_MIGRATION 2
#define ORVA_BACKUP_RESTORE 3
#define ORVA_BACKUP_MERGE 4
#define ORVA_BACKUP_IMPORT 5
#define ORVA_BACKUP_ASKED 6 /* somebody asked for it */

typedef struct ORVA_STORE_BACKUP {
    long long time;          /* when it was made: seconds since the beginning of 1970, UTC */
    int reason;              /* ORVA_BACKUP_...: what for, or before what */
    int records;             /* in it; -1 for one that cannot be read */
    unsigned short name[64]; /* zero-terminated */
} ORVA_STORE_BACKUP;

/* Gives the automatic backups of a memory's store, the newest first, as an array of *count entries; null for none. Free
 * it with ORVA_Store_BackupsRelease, which sets the pointer to null. ORVA_E_UNSUPPORTED for a memory without a store.
 */
ORVA_API long ORVA_Store_GetBackups(int memory, ORVA_STORE_BACKUP** backups, int* count);
ORVA_API long ORVA_Store_BackupsRelease(int memory, ORVA_STORE_BACKUP** backups);

/* Restores one of them, as ORVA_Store_Restore does; ORVA_E_NOT_FOUND if there is none of that name. */
ORVA_API long ORVA_Store_RestoreBackup(int memory, const unsigned short* name);

/* Looks through one of them: 0 for one that a restore would take, else the code that it would give. Takes time in
 * proportion to its size; others read and write meanwhile. */
ORVA_API long ORVA_Store_CheckBackup(int memory, const unsigned short* name);

#define ORVA_RESTORE_RETURNS 1 /* a record that is in the backup alone */
#define ORVA_RESTORE_GOES 2    /* one that is in the store alone */
#define ORVA_RESTORE_CHANGES 3 /* one that is in both and says something else in the store */

typedef struct ORVA_STORE_DIFFERENCE {
    int kind;             /* ORVA_RESTORE_...: what a restore would do to the record */
    unsigned short* name; /* its first value that is not empty; of one that changes, as it is now */
} ORVA_STORE_DIFFERENCE;

/* Tells what ORVA_Store_RestoreBackup would do to the records, as an array of *count entries, null for none; free it
 * with ORVA_Store_DifferencesRelease, names and all, which sets the pointer to null. A record with the same values and
 * the same that is kept is the same, whatever its identifier; groups are not compared. Looks at what is committed, and
 * changes nothing. Takes time in proportion to the records; others read and write meanwhile. Codes as
 * ORVA_Store_RestoreBackup gives them. */
ORVA_API long ORVA_Store_CompareBackup(int memory, const unsigned short* name, ORVA_STORE_DIFFERENCE** entries,
                                       int* count);
ORVA_API long ORVA_Store_DifferencesRelease(int memory, ORVA_STORE_DIFFERENCE** entries, int count);

/* Makes one of what is committed, for one of the reasons above. Takes as long as the disk does; other threads and
 * processes read and write meanwhile. ORVA_E_STORE if it cannot be written; the store is as it was. */
ORVA_API long ORVA_Store_KeepBackup(int memory, int reason);

/* Makes today's, unless there is one already, there is nothing in the store or nothing has changed since the last
 * backup: *made tells. For hosts while nobody uses them, and on a thread that may wait. */
ORVA_API long ORVA_Store_KeepDailyBackup(int memory, int* made);

/* Sent on the phonebook service when changes are lost that had returned 0; ORVA_Store_TakeLoss tells which. */
#define ORVA_EVENT_STORE_LOSS 20390

/* What refused commits have taken away since the last call, whoever ended the transaction: the code of the last
 * refusal, and the number of records whose changes or memberships are gone (0 where only groups were changed). Code 0
 * stands for no loss. Also for a card that is out or a device that is detached. The user should be told. */
ORVA_API long ORVA_Store_TakeLoss(int memory, long* code, int* records);

#ifdef __cplusplus
}
#endif

#endif /* ORVA_STORE_H */
