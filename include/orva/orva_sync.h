#ifndef ORVA_SYNC_H
#define ORVA_SYNC_H

/*
 * Keeps the PC's phonebook and a folder of vCards the same, in both directions: one contact a file, as address book
 * servers and their clients have it ("vdir"). The conventions are those of orva_sdk.h.
 *
 * A change on either side comes over to the other, field by field: different fields of a contact may be changed on both
 * sides, and both changes live. Of two changes of the same field the later one does, by the card's REV and the time at
 * which the record was written; what the other said is in the bin. A contact that is deleted on one side and changed on
 * the other stays. What has no field is kept with the record (ORVA_Care_GetKept) and stands in the card as it was.
 *
 * Groups are the card's CATEGORIES, a group in another as "A/B"; cards of groups (KIND:group) are read and written,
 * too. A contact is known by its UID; the first sync with a folder also takes those for the same whom
 * ORVA_Care_Match_Find does. An automatic backup is made before it.
 */

#include "orva/orva_sdk.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Result codes beside those of orva_sdk.h. The first: a folder is not the one of the last sync, such as one that is not
 * mounted.
 */
#define ORVA_E_MARKER 1017
#define ORVA_E_CLIENT 1018    /* vdirsyncer, or what keeps its password, is not installed or has failed */
#define ORVA_E_CANCELLED 1019 /* a sync or an export that its caller broke off */

/* Options of ORVA_Sync_Run and ORVA_Sync_RunSetUp, to be added up. */
#define ORVA_SYNC_FORCE 1   /* delete however much is gone, and take a folder without its marker as it is */
#define ORVA_SYNC_DRY_RUN 2 /* only tell what would be done */
#define ORVA_SYNC_UNASKED 4 /* by a timer: that somebody holds the phonebook is no failure */

/* How many contacts were (or would be) added, changed and deleted here, in the phonebook, and there, in the folder.
 * More than ten deletions that are more than a fifth of a side are not made without ORVA_SYNC_FORCE but counted as
 * held. */
typedef struct ORVA_SYNC_COUNTS {
    int added_here;
    int changed_here;
    int deleted_here;
    int held_here;
    int added_there;
    int changed_there;
    int deleted_there;
    int held_there;
    int events; /* for ORVA_Sync_Result_GetEvent */
} ORVA_SYNC_COUNTS;

#define ORVA_SYNC_CONFLICT 1 /* both sides changed the same, and one of them is in force */
#define ORVA_SYNC_LEFT 2     /* a file or a contact that had no part in it */

/* Something about one contact. The texts are the result's and live as long as it does; none is null. */
typedef struct ORVA_SYNC_EVENT {
    int kind;                   /* ORVA_SYNC_CONFLICT or ORVA_SYNC_LEFT */
    int record;                 /* the contact's identifier; 0 if it is not in the phonebook */
    int here_won;               /* of a conflict: 1 if what the phonebook said is in force, 0 for the card */
    const unsigned short* file; /* its name in the folder */
    const unsigned short* name; /* the contact's, as far as it is known */
    const unsigned short*
        what; /* the keys of the fields and names of properties, with ";" between; or why, in English */
} ORVA_SYNC_EVENT;

/* Why a file or a contact was left, for those who have words of their own for it. A later release may have more: the
 * event's `what` serves for those that are not known. */
#define ORVA_SYNC_REASON_NONE 0       /* of a conflict, and of a run whose reasons were not kept */
#define ORVA_SYNC_REASON_LINK 1       /* a symbolic link, which is not followed */
#define ORVA_SYNC_REASON_NO_FILE 2    /* no plain file, such as a folder */
#define ORVA_SYNC_REASON_LARGE 3      /* a file of more than 5 MB */
#define ORVA_SYNC_REASON_UNREADABLE 4 /* the file cannot be read */
#define ORVA_SYNC_REASON_NO_CARD 5    /* the file does not hold exactly one card */
#define ORVA_SYNC_REASON_EMPTY 6      /* the card has nothing that a field is meant for */
#define ORVA_SYNC_REASON_COPY 7       /* another file has the same UID */
#define ORVA_SYNC_REASON_LARGE_CARD 8 /* the contact's card would have more than 5 MB */
#define ORVA_SYNC_REASON_FULL 9       /* the phonebook has no room for the card's contact */

/* Synchronises memory 4 with a folder, which is made (0700) if it is not there and no sync has known it; others give
 * ORVA_E_UNSUPPORTED. Gives a result, which is released with ORVA_Sync_Result_Release.
 * - Cards lie in files whose names end in ".vcf", each replaced whole by a rename. Symbolic links in the folder are not
 *   followed. Those, cards of more than 5 MB and files that do not hold one card are left, and named in the result.
 * - While another sync, of any process, has the phonebook or the folder, or somebody holds it (ORVA_Sync_Hold), this
 *   waits for up to `wait` milliseconds, then gives ORVA_E_BUSY.
 * - ORVA_E_MARKER, with nothing done, for a folder that was synchronised before and has lost the file by which it is
 *   known, such as one that is not mounted; ORVA_SYNC_FORCE takes it as it is.
 * - ORVA_E_NOT_FOUND for a folder that is not there in a dry run; ORVA_E_READ_ONLY, ORVA_E_NO_SPACE or ORVA_E_STORE for
 *   what cannot be written. What was settled until then stays.
 * - Broken off at any moment, it is made up for by the next one.
 * After ORVA_Store_Restore, and for what damage took, the phonebook deletes nothing in the next sync.
 * Takes time in proportion to what has changed, and a look at each file. */
ORVA_API long ORVA_Sync_Run(int memory, const unsigned short* folder, int options, int wait, void** result);

ORVA_API long ORVA_Sync_Result_GetCounts(void* result, ORVA_SYNC_COUNTS* counts);

/* Events are counted from 0. ORVA_E_END behind the last. */
ORVA_API long ORVA_Sync_Result_GetEvent(void* result, int index, ORVA_SYNC_EVENT* event);

/* One of ORVA_SYNC_REASON_* for an event, which is counted as above. It is no part of ORVA_SYNC_EVENT, since programs
 * that were built without it hand in one of the size that they know. */
ORVA_API long ORVA_Sync_Result_GetReason(void* result, int index, int* reason);
ORVA_API long ORVA_Sync_Result_Release(void* result);

/* Merges two files, each with one card of the same contact, into one card that both hold afterwards: what only one of
 * them has changed since the card of the same UID in the folder `before` lives, and of two changes of the same property
 * the one with the later REV. Without such a card, or with `before` null, everything of both lives that can. For
 * clients that ask a program what to do with two changes. ORVA_E_NOT_FOUND for a file that is not there, ORVA_E_FORMAT
 * for one that does not hold one card. */
ORVA_API long ORVA_Sync_MergeCards(const unsigned short* file, const unsigned short* other,
                                   const unsigned short* before);

/* Keeps syncs out of memory 4 while somebody has contacts under his hands, such as a form whose end writes every field
 * as it was read. Any number of holds may be out, in any process; one ends with ORVA_Sync_Hold_Release, or with its
 * process. Waits for a sync under way for up to `wait` milliseconds, then gives ORVA_E_BUSY. */
ORVA_API long ORVA_Sync_Hold(int memory, int wait, void** hold);
ORVA_API long ORVA_Sync_Hold_Release(void* hold);

/*
 * A sync can be set up once and then run by hand or by a timer: with a folder of the user's choice, or with an address
 * book on a server (CardDAV), which vdirsyncer, with a configuration of our own, keeps the same as a folder of ours.
 * What is set up lies in the folder "sync" of the data folder, for the user alone; no password does.
 */

/* With the address book of a URL. The password comes from the keyring or, unless `password_command` is null or empty,
 * from what that command prints. `program` is the path of pbctl, which merges what changed on both sides.
 * ORVA_E_ARGUMENT for what is no such URL or user, ORVA_E_UNSUPPORTED for a URL that is neither https nor of this
 * computer, ORVA_E_CLIENT without vdirsyncer. */
ORVA_API long ORVA_Sync_SetUpServer(const unsigned short* url, const unsigned short* user,
                                    const unsigned short* password_command, const unsigned short* program);

/* With a folder, by its path from the root on. */
ORVA_API long ORVA_Sync_SetUpFolder(const unsigned short* folder);

/* Puts a password into the keyring, and the command that does so in a terminal. ORVA_E_CLIENT if there is none, or it
 * stays locked. Waits for the user where the keyring asks him. The text is freed with delete[]. */
ORVA_API long ORVA_Sync_KeepPassword(const unsigned short* url, const unsigned short* user,
                                     const unsigned short* password);
ORVA_API long ORVA_Sync_GetKeyringCommand(const unsigned short* url, const unsigned short* user,
                                          unsigned short** command);

/* What is set up; no text is null. ORVA_E_NOT_FOUND for nothing. */
typedef struct ORVA_SYNC_SETUP {
    unsigned short* folder;           /* of the cards */
    unsigned short* url;              /* empty for a folder alone, as are the next two */
    unsigned short* user;             /* on the server */
    unsigned short* password_command; /* empty for the keyring */
} ORVA_SYNC_SETUP;

ORVA_API long ORVA_Sync_GetSetUp(ORVA_SYNC_SETUP* setup);
ORVA_API long ORVA_Sync_SetUpRelease(ORVA_SYNC_SETUP* setup);

/* Whether it is time for a timer's run: 15 minutes after a success, after failures or without the server 30, 60, 120
 * and then 240. Never if nothing is set up. */
ORVA_API long ORVA_Sync_IsDue(int* due);

/* How a run goes on: called several times a second on the thread that runs it, with the number of the step under way,
 * from 0, and how many there are. Anything but 0 breaks it off; the next one makes up for that. */
typedef int (*ORVA_SYNC_PROGRESS)(int step, int steps, void* data);

/* Synchronises with what is set up. Gives a result wherever something is set up (else ORVA_E_NOT_FOUND):
 * ORVA_Sync_Result_GetRun says what became of it. `progress` may be null. */
ORVA_API long ORVA_Sync_RunSetUp(int memory, int options, int wait, ORVA_SYNC_PROGRESS progress, void* data,
                                 void** result);

/* The result of the last such run, by whichever program. ORVA_E_NOT_FOUND if there was none. */
ORVA_API long ORVA_Sync_GetLastRun(void** result);

typedef struct ORVA_SYNC_RUN {
    long long time;             /* its end, in seconds since 1970 */
    long code;                  /* as ORVA_Sync_Run gives it, ORVA_E_CLIENT or ORVA_E_CANCELLED */
    int offline;                /* 1 if the server could not be reached; what changed waits for the next run */
    const unsigned short* said; /* what vdirsyncer said where it failed; the result's, never null */
} ORVA_SYNC_RUN;

ORVA_API long ORVA_Sync_Result_GetRun(void* result, ORVA_SYNC_RUN* run);

#ifdef __cplusplus
}
#endif

#endif /* ORVA_SYNC_H */
