<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>linkhand</name>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT</source>
        <translation>About Linkhand</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_DOTS</source>
        <translation>About…</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_LICENCE</source>
        <translation>Free software under the MIT licence, without any warranty.</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_QT</source>
        <translation>Qt %1</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_RELEASE</source>
        <translation>Release %1</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_WHAT</source>
        <translation>Contacts, messages and calls of your mobile-broadband modem.</translation>
    </message>
    <message>
        <source>IDS_HOST_CALL_FAILED</source>
        <translation>The modem could not make the call</translation>
    </message>
    <message>
        <source>IDS_HOST_CALL_INCOMING</source>
        <translation>Call from %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CALL_NOT_CONNECTED</source>
        <translation>The network did not put the call through: the number, the credit or the card may be why</translation>
    </message>
    <message>
        <source>IDS_HOST_CARD_INSERTED</source>
        <translation>SIM card inserted</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ALIKE_NUMBER</source>
        <translation>One number, other names</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ALIKE_SAME</source>
        <translation>The same person</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUPS</source>
        <translation>Backups</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUPS_HINT</source>
        <translation>Copies of the computer’s phonebook, made by itself once a day and before larger changes. The last %1 stay. A restore makes a copy of what is there first.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUPS_NONE</source>
        <translation>There is no backup yet.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_ASKED</source>
        <translation>Made by hand</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_DAILY</source>
        <translation>Once a day</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_IMPORT</source>
        <translation>Before an import</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_MADE</source>
        <translation>The backup is made.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_MERGE</source>
        <translation>Before a merge</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_MIGRATION</source>
        <translation>Before a new release</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_NOW</source>
        <translation>Back up now</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_RESTORE</source>
        <translation>Before a restore</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_RESTORE_DOTS</source>
        <translation>Restore…</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_SOUND</source>
        <translation>Sound</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_VERIFIED</source>
        <translation>Backups looked through: %1, sound: %2</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_VERIFY</source>
        <translation>Verify all</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN</source>
        <translation>Bin</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN_CHANGED</source>
        <translation>Changed</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN_DELETED</source>
        <translation>Deleted</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN_HINT</source>
        <translation>What was deleted or overwritten on the computer stays here for %1 days. A contact restored is a contact of its own; a changed one stays beside it as it is now.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN_NONE</source>
        <translation>Nothing here.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN_RESTORE</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN_RESTORED</source>
        <translation>Contacts restored: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK</source>
        <translation>Check</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_GROUPS</source>
        <translation>Groups, which are not taken here; an import on the care page takes them</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NO_GROUP</source>
        <translation>Not put into this group: it cannot have that name</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_REFUSED</source>
        <translation>Refused when it was stored (%1)</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT</source>
        <translation>Import and export</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_HINT</source>
        <translation>Brings contacts in from vCard and CSV files and from other programs, with their groups. First you see what would come; nothing is changed before you press Import.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_FILE</source>
        <translation>Choose file…</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_PROGRAM</source>
        <translation>From %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_EXPORT</source>
        <translation>Export all…</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_EXISTING</source>
        <translation>Contacts that are there already:</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_ADD</source>
        <translation>Add once more</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_SKIP</source>
        <translation>Leave out</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_UPDATE</source>
        <translation>Bring up to date</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_DO</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_LEFT</source>
        <translation>What is left (%1)…</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_NONE</source>
        <translation>Choose a file or a program to see what would come from it.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_OUTCOME</source>
        <translation>Outcome</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_NEW</source>
        <translation>New</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_CHANGED</source>
        <translation>Brought up to date</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_SAME</source>
        <translation>There already, nothing new</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_THERE</source>
        <translation>There already, left out</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_NOT</source>
        <translation>Not taken</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_WOULD</source>
        <translation>From %1 would come: new %2, brought up to date %3, there already %4, not taken %5</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_DID</source>
        <translation>From %1 came: new %2, brought up to date %3, there already %4, not taken %5</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_DONE</source>
        <translation>Imported from %1. New contacts: %2</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_CANCELLED</source>
        <translation>Cancelled. What is in already stays; a second import leaves it out.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_UNREADABLE</source>
        <translation>Nothing in %1 can be read as contacts.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_EXPORT_DONE</source>
        <translation>Written to %1. Contacts: %2.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_EXPORT_CANCELLED</source>
        <translation>Cancelled. Nothing was written.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_EXPORT_KEPT</source>
        <translation>The file that was there is kept beside it, with “.~1~” or the next free number behind its name.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_AGAIN</source>
        <translation>Check again</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_DAMAGE</source>
        <translation>On %1 the file was found damaged and was replaced by a new one.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_FILE</source>
        <translation>The damaged file is kept as:</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_FINDINGS</source>
        <translation>Damage found: %1 findings. Make a backup and restore the last one that is sound.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_HINT</source>
        <translation>Looks through the file that holds the computer’s contacts.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_SALVAGE</source>
        <translation>Came through: contacts %1, groups %2</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_SOUND</source>
        <translation>The store is sound. Contacts: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_WHAT</source>
        <translation>What was found:</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_WRITABLE_NOT</source>
        <translation>The contacts cannot be stored at the moment:</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_ALIKE</source>
        <translation>What they share</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_CONTACTS</source>
        <translation>Contacts</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_FIELD</source>
        <translation>Field</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_GROUPS</source>
        <translation>Groups</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_MERGED</source>
        <translation>Merged</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_NUMBER</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_SIDE</source>
        <translation>Contact %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_STATE</source>
        <translation>State</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_VALUE</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_WHAT</source>
        <translation>What happened</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_WHEN</source>
        <translation>When</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_WHY</source>
        <translation>Why it was made</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_DETAILS</source>
        <translation>More details</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_DETAILS_HINT</source>
        <translation>What is kept with a contact beside the fields of the phonebook: from files of vCards, or added here. It comes out again when the contacts are exported as vCards.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_DETAILS_NONE</source>
        <translation>Nothing is kept beside the fields.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_DUPLICATES</source>
        <translation>Duplicates</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_DUPLICATES_HINT</source>
        <translation>Contacts that look like the same person, or share a number. What has no room in the merged contact goes into its notes; what each said before is in the bin.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_DUPLICATES_NONE</source>
        <translation>Nobody is there twice.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_BUSY</source>
        <translation>Another program is using the contacts. Try again in a moment.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_FORMAT</source>
        <translation>The file is damaged, or is not of the kind expected.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_FULL</source>
        <translation>The phonebook is full.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_GONE</source>
        <translation>It is not there any more.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_LONG</source>
        <translation>One of the values is too long.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_NUMBER</source>
        <translation>One of the numbers is no telephone number.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_READ_ONLY</source>
        <translation>The contacts can only be read at the moment.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_SPACE</source>
        <translation>The disk is full. Your contacts are safe.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_STORE</source>
        <translation>That did not work (%1); the log says more.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_VERSION</source>
        <translation>The file was written by a newer release.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_ADD</source>
        <translation>Add a detail</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_ADD_DOTS</source>
        <translation>Add…</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_ADR</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_ADR_HINT</source>
        <translation>A line each, empty ones too: post box, further details, street, town, region, postal code, country.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_BDAY</source>
        <translation>Birthday</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_BDAY_HINT</source>
        <translation>Year, month and day, as 1990-12-31.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_EDIT_DOTS</source>
        <translation>Edit…</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_EMAIL</source>
        <translation>Further e-mail</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_NICKNAME</source>
        <translation>Nickname</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_NOTE</source>
        <translation>Further notes</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_OCTETS</source>
        <translation>Size in KB: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_ORG</source>
        <translation>Company</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_PHOTO</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_REMOVE</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_STORED</source>
        <translation>The change is stored.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_TEL</source>
        <translation>Further number</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_TITLE</source>
        <translation>Job title</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_URL</source>
        <translation>Web address</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_MERGE</source>
        <translation>Merge</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_MERGED</source>
        <translation>Contacts merged into one: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_MERGE_ALL</source>
        <translation>Merge all of the same person</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_MERGE_QUESTION</source>
        <translation>Persons that are there more than once: %1. Make one contact of each? A backup is made before.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORED</source>
        <translation>The phonebook is as it was then.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_CHANGES</source>
        <translation>Contacts that become as they were: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_COLUMN</source>
        <translation>What changes</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_FOOT</source>
        <translation>Groups become as they were, too. What is there now is kept in a backup, to which you can go back.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_GOES</source>
        <translation>Contacts that go: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_HEAD</source>
        <translation>If the phonebook becomes as it was on %1:</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_RETURNS</source>
        <translation>Contacts that come back: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_ROW_CHANGES</source>
        <translation>As it was</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_ROW_GOES</source>
        <translation>Goes</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_ROW_RETURNS</source>
        <translation>Comes back</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SEARCH</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SIDES</source>
        <translation>Side by side</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SKIP</source>
        <translation>Skip</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC</source>
        <translation>Sync</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_BUSY</source>
        <translation>Another sync is under way, or a contact is being edited. Try again in a moment.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_CANCELLED</source>
        <translation>Cancelled. The next sync makes up for it.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_CHOOSE_DOTS</source>
        <translation>Choose…</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_CLIENT</source>
        <translation>The server’s client (vdirsyncer) has failed:</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_CLIENT_NOT</source>
        <translation>This needs the packages vdirsyncer and, for the keyring, libsecret-tools; and the keyring has to be open.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_COMMAND</source>
        <translation>Printed by a command</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_CONFLICT_HERE</source>
        <translation>%1 was changed on both sides (%2). What the phonebook said counts; the other is in the bin.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_CONFLICT_THERE</source>
        <translation>%1 was changed on both sides (%2). What the other side said counts; what the phonebook said is in the bin.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_DONE</source>
        <translation>Both sides are the same now.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_FOLDER</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_HELD</source>
        <translation>Not deleted, since they are so many at once: %1. “pbctl sync --force” deletes them.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_HERE</source>
        <translation>Phonebook: %1 added, %2 changed, %3 deleted</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_HINT</source>
        <translation>Keeps the contacts on the computer the same as an address book on a server or a folder of vCards, in both directions. What is overwritten or deleted is in the bin.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_KEYRING</source>
        <translation>In the keyring</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LAST</source>
        <translation>Last sync: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT</source>
        <translation>%1 was left as it is: %2</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_COPY</source>
        <translation>another file has the same UID</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_EMPTY</source>
        <translation>it has nothing that a field is meant for</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_FULL</source>
        <translation>the phonebook is full</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_LARGE</source>
        <translation>it is larger than 5 MB</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_LARGE_CARD</source>
        <translation>its card would be larger than 5 MB</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_LINK</source>
        <translation>a symbolic link is not followed</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_NO_CARD</source>
        <translation>it does not hold exactly one vCard</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_NO_FILE</source>
        <translation>it is not a regular file</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_UNREADABLE</source>
        <translation>it cannot be read</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_MARKER</source>
        <translation>The folder is not that of the last sync: perhaps it is not mounted. Nothing was done.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_NEVER</source>
        <translation>There has been no sync yet.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_NONE</source>
        <translation>Nothing is set up yet.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_NOW</source>
        <translation>Sync now</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_OFFLINE</source>
        <translation>The server cannot be reached. What changed waits for the next sync.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_PASSWORD</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_SECRET</source>
        <translation>Password or command</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_SECRET_THERE</source>
        <translation>Empty: it is there already</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_SET</source>
        <translation>Set up.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_SETUP</source>
        <translation>Set up</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_THERE</source>
        <translation>Other side: %1 added, %2 changed, %3 deleted</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_TIMER</source>
        <translation>Every 15 minutes</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_TIMER_FAILED</source>
        <translation>The timer could not be switched.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_TIMER_NOT</source>
        <translation>The timer comes with the package, and is not here.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_URL</source>
        <translation>Address (URL)</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_URL_BAD</source>
        <translation>This is not the address of an address book, or not the path of a folder.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_URL_OPEN</source>
        <translation>The password would go through the net in the open: use https.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_USER</source>
        <translation>User name</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_WITH</source>
        <translation>Same as</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_WITH_FOLDER</source>
        <translation>A folder of vCards</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_WITH_SERVER</source>
        <translation>An address book on a server (CardDAV)</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_WORKING</source>
        <translation>Working…</translation>
    </message>
    <message>
        <source>IDS_HOST_CLOSE</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>IDS_HOST_COLUMN_KIND</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>IDS_HOST_COLUMN_PARTNER</source>
        <translation>To or from</translation>
    </message>
    <message>
        <source>IDS_HOST_COLUMN_STATE</source>
        <translation>State</translation>
    </message>
    <message>
        <source>IDS_HOST_COLUMN_TEXT</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>IDS_HOST_COLUMN_TIME</source>
        <translation>Written</translation>
    </message>
    <message>
        <source>IDS_HOST_COLUMN_TO</source>
        <translation>To</translation>
    </message>
    <message>
        <source>IDS_HOST_COPY_FAILED</source>
        <translation>The contacts could not be copied to the computer. The hardware stays simulated.</translation>
    </message>
    <message>
        <source>IDS_HOST_COPY_NOT</source>
        <translation>Do not copy</translation>
    </message>
    <message>
        <source>IDS_HOST_COPY_OFFER</source>
        <translation>The simulated card and device hold contacts that are not on the computer: %1. With a modem, its own contacts are shown in their place. Copy those of the simulated card and device to the computer? They also come back whenever the hardware is simulated again.</translation>
    </message>
    <message>
        <source>IDS_HOST_COPY_TO_PC</source>
        <translation>Copy to computer</translation>
    </message>
    <message>
        <source>IDS_HOST_COUNT_CONTACTS</source>
        <translation>Contacts: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_COUNT_FOUND</source>
        <translation>Found: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_COUNT_SELECTED</source>
        <translation>Selected: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_DELETE</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>IDS_HOST_DELETE_QUESTION</source>
        <translation>Delete the selected message?</translation>
    </message>
    <message>
        <source>IDS_HOST_DEVICE</source>
        <translation>Device</translation>
    </message>
    <message>
        <source>IDS_HOST_DEVICE_ATTACHED</source>
        <translation>Device attached</translation>
    </message>
    <message>
        <source>IDS_HOST_DEVICE_HINT</source>
        <translation>The device is simulated. These switches stand in for what a modem would report.</translation>
    </message>
    <message>
        <source>IDS_HOST_DEVICE_TIP</source>
        <translation>Show or hide the panel of the device</translation>
    </message>
    <message>
        <source>IDS_HOST_DEVICE_TITLE</source>
        <translation>Simulated device</translation>
    </message>
    <message>
        <source>IDS_HOST_DISCARD</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>IDS_HOST_FORWARD</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE</source>
        <translation>Hardware:</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE_AUTO</source>
        <translation>Modem, automatic</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE_FIXED</source>
        <translation>LINKHAND_MODEM in the environment has chosen.</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE_NEXT</source>
        <translation>This holds from the next start on.</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE_REFUSED</source>
        <translation>This choice could not be kept. A port begins with “/dev/”.</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE_SIMULATED</source>
        <translation>Simulated</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE_TIP</source>
        <translation>Simulated, the modem that there is, or the port of one, such as /dev/ttyUSB2</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP</source>
        <translation>Keys</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_ALL</source>
        <translation>Select all rows</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_CALL_DELETE</source>
        <translation>Delete the selected call from the list</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_CONTACTS</source>
        <translation>Contacts</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_DOTS</source>
        <translation>Keys…</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_EDIT</source>
        <translation>Edit the selected contact</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_ESCAPE</source>
        <translation>Close a dialog or a menu, or end a drag</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_GENERAL</source>
        <translation>Everywhere</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_GROUPS</source>
        <translation>Groups, with the keyboard in the tree</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_MENU</source>
        <translation>Open the menu of what is selected</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_MORE</source>
        <translation>Select one more row</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_COPY_TO</source>
        <translation>Copy the selected contacts to a group, the card or the device</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_ONE_MORE</source>
        <translation>Select the row, or not, and leave the others</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_PAGES</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_QUIT</source>
        <translation>End the program</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_SEARCH</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_SEARCH_DOWN</source>
        <translation>Go to the first contact that was found</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_SEARCH_ESCAPE</source>
        <translation>Empty the search box; once more: put it away</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_SPACE</source>
        <translation>Press a button, or tick a box or a contact</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_TAB</source>
        <translation>Go to the next part, or to the one before</translation>
    </message>
    <message>
        <source>IDS_HOST_KEEP_DRAFT</source>
        <translation>Keep as draft</translation>
    </message>
    <message>
        <source>IDS_HOST_KIND_MMS</source>
        <translation>MMS</translation>
    </message>
    <message>
        <source>IDS_HOST_KIND_SMS</source>
        <translation>SMS</translation>
    </message>
    <message>
        <source>IDS_HOST_LANGUAGE</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>IDS_HOST_LANGUAGE_TIP</source>
        <translation>Choose the language</translation>
    </message>
    <message>
        <source>IDS_HOST_MANAGER_ABSENT</source>
        <translation>ModemManager does not run: no messages and no calls.</translation>
    </message>
    <message>
        <source>IDS_HOST_MESSAGES</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>IDS_HOST_MESSAGES_HINT</source>
        <translation>Sent, received and kept messages. A received one stays on the card until you delete it here. Multimedia messages cannot be sent through ModemManager and are kept as drafts.</translation>
    </message>
    <message>
        <source>IDS_HOST_MMS_KEPT</source>
        <translation>MMS to %1 kept as a draft: ModemManager has no road for multimedia messages</translation>
    </message>
    <message>
        <source>IDS_HOST_MODE</source>
        <translation>Product</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_ABSENT</source>
        <translation>ModemManager has no such modem.</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NETWORK</source>
        <translation>Network: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NOT_ON</source>
        <translation>The modem could not be switched on</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_ON</source>
        <translation>Switch the modem on</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SIGNAL</source>
        <translation>Signal: %1 %</translation>
    </message>
    <message>
        <source>IDS_HOST_MODE_SIM</source>
        <translation>With SIM card</translation>
    </message>
    <message>
        <source>IDS_HOST_MODE_UIM</source>
        <translation>With UIM card</translation>
    </message>
    <message>
        <source>IDS_HOST_NETWORK_ON</source>
        <translation>Registered in the network</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_MMS</source>
        <translation>New MMS</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_SMS</source>
        <translation>New SMS</translation>
    </message>
    <message>
        <source>IDS_HOST_NOTICES</source>
        <translation>Notices</translation>
    </message>
    <message>
        <source>IDS_HOST_NOTICES_TIP</source>
        <translation>Show the latest notices</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>IDS_HOST_OUTBOX</source>
        <translation>Outbox</translation>
    </message>
    <message>
        <source>IDS_HOST_OUTBOX_FAILED</source>
        <translation>The outbox could not be written.</translation>
    </message>
    <message>
        <source>IDS_HOST_OUTBOX_HINT</source>
        <translation>The device is simulated: messages wait here, and nothing has been sent.</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGE_AddrBookUIPlugin</source>
        <translation>Phonebook</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGE_Care</source>
        <translation>Care</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGE_FAILED</source>
        <translation>This page cannot be shown: the plug-in “%1” is missing or did not start.</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGE_Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGE_Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGE_VoiceCallPlugin</source>
        <translation>Calls</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN</source>
        <translation>PIN of the card</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_ASKED</source>
        <translation>The card is being asked…</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_BLOCKED</source>
        <translation>Blocked</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_FAILED</source>
        <translation>The PIN could not be given to the card: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_HINT</source>
        <translation>The card asks for its PIN. It goes to the card once and is kept nowhere.</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_OFF</source>
        <translation>Not asked for</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_READY</source>
        <translation>Given, card ready</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_REQUIRED</source>
        <translation>Required</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_SURE</source>
        <translation>I am sure that this PIN is right</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_TITLE</source>
        <translation>PIN of the card</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_TRIES</source>
        <translation>Tries left: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_TRIES_UNKNOWN</source>
        <translation>The modem does not tell how many tries are left.</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_UNLOCK</source>
        <translation>Unlock</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_WARNING</source>
        <translation>This may be the last try: after another wrong PIN the card is blocked.</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_WRONG</source>
        <translation>That PIN was wrong.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_ABSENT</source>
        <translation>The plug-in is not installed.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_BUILDKEY</source>
        <translation>The plug-in was built for another system or compiler: %1.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_FOLDER</source>
        <translation>Others may change this folder; no plug-in was loaded. Take that right away (chmod go-w) if you trust what is in it.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_INIT</source>
        <translation>The plug-in could not start.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_INTERFACE</source>
        <translation>The plug-in lacks the interface that this program needs.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_LINK</source>
        <translation>The file is a link and was not loaded. Put the plug-in itself into the folder.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_LOAD</source>
        <translation>The plug-in could not be loaded: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_NO_LIBRARY</source>
        <translation>The file is not a shared library.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_NO_VERIFICATION</source>
        <translation>The file is no plug-in of this program: it does not tell which Qt it was built for.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_OWNER</source>
        <translation>The file belongs to another user and was not loaded.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_TWICE</source>
        <translation>Another plug-in with the same identifier is loaded already.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_UNREADABLE</source>
        <translation>The file cannot be read.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_VERSION</source>
        <translation>The plug-in was built for Qt %1, which is not the Qt of this program.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_WRITABLE</source>
        <translation>Others may write the file; it was not loaded. Take that right away (chmod go-w) if you trust the file.</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_BACKUP</source>
        <translation>Back up the contacts once a day</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_BACKUPS_DOTS</source>
        <translation>Backups…</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_CALLS</source>
        <translation>Offer calls in the menu of the contacts</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_COLUMNS</source>
        <translation>Keep widths and order of columns from list to list</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_COUNTRY</source>
        <translation>Country for numbers:</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_COUNTRY_NONE</source>
        <translation>None</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_COUNTRY_SYSTEM</source>
        <translation>As the system says</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_DUAL_MODE</source>
        <translation>Hide card and device of a dual-mode card</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_GENERAL</source>
        <translation>General</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_HARDWARE</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_HINT</source>
        <translation>Language and welcome note change at once, the rest holds from the next start on.</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_LANGUAGE</source>
        <translation>Language:</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_NAME_UNITS</source>
        <translation>Count each letter of a name on the card as one</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_SIM_WORD</source>
        <translation>Word for a SIM card:</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_START</source>
        <translation>Page to begin with:</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_START_LAST</source>
        <translation>The last one used</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_UIM_WORD</source>
        <translation>Word for a UIM card:</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_WELCOME</source>
        <translation>Show a note above an empty phonebook</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEMS</source>
        <translation>Problems</translation>
    </message>
    <message>
        <source>IDS_HOST_REPLY</source>
        <translation>Reply…</translation>
    </message>
    <message>
        <source>IDS_HOST_SEARCH_MESSAGES</source>
        <translation>Search messages</translation>
    </message>
    <message>
        <source>IDS_HOST_SEND_AGAIN</source>
        <translation>Send again…</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_CHANGED</source>
        <translation>Changed elsewhere: show</translation>
    </message>
    <message>
        <source>IDS_HOST_FIELD_NAME</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>IDS_HOST_FIELD_MOBILE</source>
        <translation>Mobile</translation>
    </message>
    <message>
        <source>IDS_HOST_FIELD_OFFICE</source>
        <translation>Office</translation>
    </message>
    <message>
        <source>IDS_HOST_FIELD_HOME</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>IDS_HOST_FIELD_EMAIL</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>IDS_HOST_FIELD_NOTES</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS</source>
        <translation>Left by the import</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_COUNT</source>
        <translation>Left by the import: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_TIP</source>
        <translation>Shows what the last import did not take as it is</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_HEAD</source>
        <translation>Not taken from %1, or not as it stands there:</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_MORE</source>
        <translation>And %1 more.</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_ROW</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_COLUMN</source>
        <translation>Column</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_REASON</source>
        <translation>Reason</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_VALUE</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_COPY</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_SAVE</source>
        <translation>Save as text…</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_NOT_SAVED</source>
        <translation>%1 could not be written.</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NUMBERED</source>
        <translation>Column %1</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_QUOTE</source>
        <translation>Line passed over: a quotation mark that nothing closes</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_ROW_LENGTH</source>
        <translation>Row passed over: too long</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_ROW_COLUMNS</source>
        <translation>Row passed over: too many columns</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_ZERO</source>
        <translation>Row passed over: a zero byte</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NOT_TEXT</source>
        <translation>Row passed over: not text</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_VALUE_LENGTH</source>
        <translation>Row passed over: value too long</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_EMPTY</source>
        <translation>Not taken: nothing that has a field</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_COLUMN</source>
        <translation>No field is for it; values: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_PROPERTY</source>
        <translation>No field is for it</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_FURTHER</source>
        <translation>A further one, for which there is no field</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_SEVERAL</source>
        <translation>Only the first of several was taken</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_EMAIL</source>
        <translation>Put into the notes: no e-mail address</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NOTE_CUT</source>
        <translation>Notes cut to what fits</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NAME_CUT</source>
        <translation>Name cut to what fits</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NUMBER</source>
        <translation>Contact not taken: no telephone number</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_TOO_LONG</source>
        <translation>Contact not taken: longer than its field</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_FULL</source>
        <translation>No room from here on; contacts: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_END</source>
        <translation>Card left out: it has no end</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_LENGTH</source>
        <translation>Card left out: too long</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_LINES</source>
        <translation>Card left out: too many lines</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_OUTSIDE</source>
        <translation>Text outside of a card was passed over</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_VERSION</source>
        <translation>Unknown version, read as 3.0</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_LINE</source>
        <translation>Line is no part of a card</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_ENCODING</source>
        <translation>File is in UTF-16, in which no card is written</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_NONE</source>
        <translation>File holds no card</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_PHOTO</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_BIRTHDAY</source>
        <translation>Birthday</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_ADDRESS</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_COMPANY</source>
        <translation>Company</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_JOB</source>
        <translation>Job title</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_PAGE</source>
        <translation>Web address</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_GROUP</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NICKNAME</source>
        <translation>Nickname</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_PHONE</source>
        <translation>Further number</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_MAIL</source>
        <translation>Further e-mail</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NOTE</source>
        <translation>Further notes</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NAME</source>
        <translation>Further name</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_DONE</source>
        <translation>Contacts imported: %1 of %2</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_HEAD</source>
        <translation>The contacts in “%1”. They come into the phonebook when you import them.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_IMPORT</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_NONE</source>
        <translation>No contacts</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_NOT_POSSIBLE</source>
        <translation>The library in use does not import contacts</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_PROGRESS</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_TITLE</source>
        <translation>Import contacts</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_UNREADABLE</source>
        <translation>This file cannot be read as contacts</translation>
    </message>
    <message>
        <source>IDS_HOST_ELSEWHERE_FOREIGN</source>
        <translation>Another user’s program has taken the place in which Linkhand answers. Nothing was opened.</translation>
    </message>
    <message>
        <source>IDS_HOST_ELSEWHERE_NO_ANSWER</source>
        <translation>Linkhand runs already with this phonebook, but does not answer. Wait a moment and start it again.</translation>
    </message>
    <message>
        <source>IDS_HOST_ELSEWHERE_TOO_MUCH</source>
        <translation>This is more than Linkhand opens at once. Nothing was opened.</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN_ALREADY</source>
        <translation>Linkhand was started again: this is its window</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN_CODE</source>
        <translation>“%1” is a code. Linkhand does not dial codes that come from elsewhere.</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN_EXTENSION</source>
        <translation>Extension: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN_NO_PLUGIN</source>
        <translation>This cannot be opened: its plug-in is missing</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN_REFUSED</source>
        <translation>Linkhand cannot open this</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN_WAITS</source>
        <translation>What is to be opened waits until the dialog is closed</translation>
    </message>
    <message>
        <source>IDS_HOST_CONTACT_GONE</source>
        <translation>This contact is no longer there: another program has deleted it</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEMS_COUNT</source>
        <translation>Problems: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEMS_HEAD</source>
        <translation>Linkhand works, but the following did not:</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_DAMAGED</source>
        <translation>A store was damaged. It is kept as this file, and what could be read of it was taken over into a new one.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_FILE</source>
        <translation>The file is missing; reinstall Linkhand to get it back.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_FOLDER_CREATE</source>
        <translation>The data folder could not be created. Contacts and messages cannot be kept.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_FOLDER_WRITE</source>
        <translation>The data folder cannot be written. Changes to contacts and messages cannot be kept.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_LOSS</source>
        <translation>The disk refused changes to %1 contacts that had been taken; they are lost. Make room on the disk and check the list of contacts.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_MESSAGES</source>
        <translation>The messages cannot be opened; no new one can be kept. A later release may have written them.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_MODEM</source>
        <translation>The contacts on its card and in it cannot be reached: %1. In a terminal, “pbctl modem” says more, and what to do.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_NO_SPACE</source>
        <translation>The disk is full. Your contacts are safe and can be read; changes can be stored again as soon as there is room.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_OUTBOX</source>
        <translation>The outbox was damaged. It is kept as this file, and what could be read of it was taken over.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_READ_ONLY</source>
        <translation>The phonebook can only be read here. Your contacts are safe; changes cannot be stored.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_STORE</source>
        <translation>The phonebook could not be opened (code %1).</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_STORE_NEWER</source>
        <translation>The phonebook was written by a newer release of Linkhand and was left as it is.</translation>
    </message>
    <message>
        <source>IDS_HOST_RADIO_ON</source>
        <translation>Radio on</translation>
    </message>
    <message>
        <source>IDS_HOST_SEARCH_HINT</source>
        <translation>Search contacts</translation>
    </message>
    <message>
        <source>IDS_HOST_SEND</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>IDS_HOST_SEND_FAILED</source>
        <translation>The message cannot be sent now.</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_FAILED</source>
        <translation>SMS to %1 was not sent</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_KEPT</source>
        <translation>SMS to %1 was not sent and is kept as a draft: there is no network</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_NOT_DELETED</source>
        <translation>The message could not be deleted</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_PARTLY</source>
        <translation>SMS to %1 failed; a part of it may have been sent</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_RECEIVED</source>
        <translation>SMS from %1: %2</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_SENT</source>
        <translation>SMS to %1 was sent</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_STORE_FULL</source>
        <translation>The modem has no room for messages: delete some, or no more can come in</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_UNCERTAIN</source>
        <translation>SMS to %1: nobody knows whether it was sent</translation>
    </message>
    <message>
        <source>IDS_HOST_SPEED</source>
        <translation>Speed of card and device</translation>
    </message>
    <message>
        <source>IDS_HOST_SPEED_INSTANT</source>
        <translation>Instant</translation>
    </message>
    <message>
        <source>IDS_HOST_SPEED_REAL</source>
        <translation>10 ms a contact</translation>
    </message>
    <message>
        <source>IDS_HOST_SPEED_SLOW</source>
        <translation>100 ms a contact</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_DRAFT</source>
        <translation>Draft, not sent</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_FAILED</source>
        <translation>Not sent</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_PARTLY</source>
        <translation>Failed, partly sent perhaps</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_RECEIVED</source>
        <translation>Received</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_SENDING</source>
        <translation>Being sent…</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_SENT</source>
        <translation>Sent</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_SIMULATED</source>
        <translation>Simulated, not sent</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_UNCERTAIN</source>
        <translation>Sent perhaps</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_CARD</source>
        <translation>Card ready</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_CARD_BLOCKED</source>
        <translation>Card blocked, PUK needed</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_CARD_LOCKED</source>
        <translation>Card locked</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_DEVICE</source>
        <translation>Device attached</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_MODEM_FAILED</source>
        <translation>The modem does not work</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NOT_MANAGED</source>
        <translation>no messages or calls, ModemManager does not know it</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NO_CALLS</source>
        <translation>no calls</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NO_CARD</source>
        <translation>No card</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NO_DEVICE</source>
        <translation>No device</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NO_MANAGER</source>
        <translation>no messages or calls, ModemManager does not run</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NO_MESSAGES</source>
        <translation>no messages</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NO_MODEM</source>
        <translation>no messages or calls, no modem there</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_OFF</source>
        <translation>Modem off</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_OFFLINE</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_ONLINE</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_SIMULATED</source>
        <translation>Simulated</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_UNLOCK</source>
        <translation>Enter PIN…</translation>
    </message>
    <message>
        <source>IDS_HOST_STORE_WRITABLE</source>
        <translation>Changes to contacts can be stored again.</translation>
    </message>
    <message>
        <source>IDS_HOST_TITLE</source>
        <translation>Linkhand</translation>
    </message>
    <message>
        <source>IDS_HOST_UNKNOWN_NUMBER</source>
        <translation>an unknown number</translation>
    </message>
    <message>
        <source>IDS_HOST_WELCOME</source>
        <translation>Your phonebook is empty. To begin, right-click the table below: create a new contact, or import the contacts of another program from a file.</translation>
    </message>
    <message>
        <source>IDS_HOST_WELCOME_DISMISS</source>
        <translation>Dismiss</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>AddrBookUIPlugin</name>
    <message>
        <source>IDS_ADDR_FROM_VALUE</source>
        <translation>Column</translation>
    </message>
    <message>
        <source>IDS_ADDR_NUMDLG_TITLE</source>
        <translation>Select number</translation>
    </message>
    <message>
        <source>IDS_ADDR_TO_FIELD</source>
        <translation>Field</translation>
    </message>
    <message>
        <source>IDS_ADDR_TO_FROM</source>
        <translation>Taken from</translation>
    </message>
    <message>
        <source>IDS_ADD_RECORD_INFO</source>
        <translation>New contact</translation>
    </message>
    <message>
        <source>IDS_Add_GROUP</source>
        <translation>New group</translation>
    </message>
    <message>
        <source>IDS_Add_GROUP</source>
        <comment>shortcut</comment>
        <translation>Ctrl+Shift+N</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CANCEL</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>IDS_BUTTON_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>IDS_CONTACT_DETAILS</source>
        <translation>Details of the contact</translation>
    </message>
    <message>
        <source>IDS_CONTACT_LIST</source>
        <translation>Contacts</translation>
    </message>
    <message>
        <source>IDS_COPY_COMPLETE</source>
        <translation>Copying has finished. What the target has no field or room for was left out.</translation>
    </message>
    <message>
        <source>IDS_COPY_STATUS</source>
        <translation>Copying contacts…</translation>
    </message>
    <message>
        <source>IDS_DELETE_GROUP</source>
        <translation>Delete this group and the groups in it? Their contacts stay in the phonebook.</translation>
    </message>
    <message>
        <source>IDS_DELETE_STATUS</source>
        <translation>Removing contacts…</translation>
    </message>
    <message>
        <source>IDS_DEL_GROUP</source>
        <translation>Delete group</translation>
    </message>
    <message>
        <source>IDS_DEL_GROUP</source>
        <comment>shortcut</comment>
        <translation>Del</translation>
    </message>
    <message>
        <source>IDS_EDIT_GROUP</source>
        <translation>Rename group</translation>
    </message>
    <message>
        <source>IDS_EDIT_GROUP</source>
        <comment>shortcut</comment>
        <translation>F2</translation>
    </message>
    <message>
        <source>IDS_EDIT_LINKMAN</source>
        <translation>Edit contact</translation>
    </message>
    <message>
        <source>IDS_EDIT_LINKMAN</source>
        <comment>shortcut</comment>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>IDS_EMPTY_GROUP</source>
        <translation>No contacts in this group yet.
Drag contacts here from the list of all contacts.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_MEMORY</source>
        <translation>No contacts yet.
Create one with “New contact” in the tool bar, or import a file with the right mouse button.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_SEARCH</source>
        <translation>No contact matches the search.</translation>
    </message>
    <message>
        <source>IDS_ERROR_CAPTION</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>IDS_EXPORT_PHONEBOOK</source>
        <translation>Export all contacts…</translation>
    </message>
    <message>
        <source>IDS_EXPORT_PHONEBOOKSEL</source>
        <translation>Export selected contacts…</translation>
    </message>
    <message>
        <source>IDS_FLEXIT_UI_DELETE_ITEM</source>
        <translation>Delete the selected contacts? They go from the phonebook itself, not only from a group. What was on the computer stays in the bin for 30 days.</translation>
    </message>
    <message>
        <source>IDS_GROUP_NAME_NULL</source>
        <translation>Please give the group a name.</translation>
    </message>
    <message>
        <source>IDS_GROUP_NAME_REPEAT</source>
        <translation>There is already a group with this name.</translation>
    </message>
    <message>
        <source>IDS_ILLEGAL_CHARACTER_EMAIL</source>
        <translation>The e-mail address contains characters that are not allowed.</translation>
    </message>
    <message>
        <source>IDS_ILLEGAL_EMAIL</source>
        <translation>This is not a valid e-mail address.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_DEVICEFULL</source>
        <translation>The memory is full. Contacts imported: </translation>
    </message>
    <message>
        <source>IDS_IMPORT_IMPORTED_NUMBER</source>
        <translation>, imported: </translation>
    </message>
    <message>
        <source>IDS_IMPORT_PHONEBOOK</source>
        <translation>Import contacts…</translation>
    </message>
    <message>
        <source>IDS_IMPORT_STATUS</source>
        <translation>Importing contacts…</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TOTAL_NUMBER</source>
        <translation>Contacts found: </translation>
    </message>
    <message>
        <source>IDS_INIT_DEV_UNDERWAY</source>
        <translation>The device is still being prepared. Please try again in a moment.</translation>
    </message>
    <message>
        <source>IDS_LOCAL_PHONEBOOKUI</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>IDS_MAP_CAPTION</source>
        <translation>Match columns and fields</translation>
    </message>
    <message>
        <source>IDS_MAP_TIPSINFO</source>
        <translation>Drag each column on the left to the field that is to receive it. Delete empties a field.</translation>
    </message>
    <message>
        <source>IDS_MOVE_COMPLETE</source>
        <translation>Moving has finished.</translation>
    </message>
    <message>
        <source>IDS_MOVE_REC_DEV_FULL</source>
        <translation>The memory is full. Entries copied: </translation>
    </message>
    <message>
        <source>IDS_MOVE_STATUS</source>
        <translation>Moving contacts…</translation>
    </message>
    <message>
        <source>IDS_NAME</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>IDS_NORECORDSELECT</source>
        <translation>No contact is selected.</translation>
    </message>
    <message>
        <source>IDS_NV</source>
        <translation>Device</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_PHONE_TYPE</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>IDS_PHONE_VALUE</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>IDS_PMBTN_ADD</source>
        <translation>New contact</translation>
    </message>
    <message>
        <source>IDS_PMBTN_ADD</source>
        <comment>shortcut</comment>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>IDS_PMBTN_CALL</source>
        <translation>Call</translation>
    </message>
    <message>
        <source>IDS_PMBTN_CALL</source>
        <comment>shortcut</comment>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>IDS_PMBTN_DELETE</source>
        <translation>Delete contacts</translation>
    </message>
    <message>
        <source>IDS_PMBTN_DELETE</source>
        <comment>shortcut</comment>
        <translation>Del</translation>
    </message>
    <message>
        <source>IDS_PMBTN_IMPORT_FROM_MOE</source>
        <translation>Import from Outlook Express</translation>
    </message>
    <message>
        <source>IDS_PMBTN_IMPORT_FROM_MOE</source>
        <comment>shortcut</comment>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>IDS_PMBTN_IMPORT_FROM_MOO</source>
        <translation>Import from Outlook</translation>
    </message>
    <message>
        <source>IDS_PMBTN_IMPORT_FROM_MOO</source>
        <comment>shortcut</comment>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>IDS_PMMENU_ADD</source>
        <translation>New contact…</translation>
    </message>
    <message>
        <source>IDS_PMMENU_ADD</source>
        <comment>shortcut</comment>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>IDS_PMMENU_CALL</source>
        <translation>Call</translation>
    </message>
    <message>
        <source>IDS_PMMENU_CALL</source>
        <comment>shortcut</comment>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>IDS_PMMENU_DELETE</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>IDS_PMMENU_DELETE</source>
        <comment>shortcut</comment>
        <translation>Del</translation>
    </message>
    <message>
        <source>IDS_PMMENU_DETAIL</source>
        <translation>Edit contact…</translation>
    </message>
    <message>
        <source>IDS_PMMENU_DETAIL</source>
        <comment>shortcut</comment>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>IDS_PMMENU_IMPORT_FROM_MOE</source>
        <translation>Import from Outlook Express…</translation>
    </message>
    <message>
        <source>IDS_PMMENU_IMPORT_FROM_MOE</source>
        <comment>shortcut</comment>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>IDS_PMMENU_IMPORT_FROM_MOO</source>
        <translation>Import from Outlook…</translation>
    </message>
    <message>
        <source>IDS_PMMENU_IMPORT_FROM_MOO</source>
        <comment>shortcut</comment>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>IDS_PMMENU_REMFRGRP</source>
        <translation>Remove from group</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND_MMS</source>
        <translation>Multimedia message…</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND_MMS</source>
        <comment>shortcut</comment>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND_MSG</source>
        <translation>Text message…</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND_MSG</source>
        <comment>shortcut</comment>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>IDS_PMMENU_VIDEO_CALL</source>
        <translation>Video call</translation>
    </message>
    <message>
        <source>IDS_PMTOOLBAR_SEARCH</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>IDS_PMTOOLBAR_SEARCH</source>
        <comment>shortcut</comment>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>Phonebook</translation>
    </message>
    <message>
        <source>IDS_READ_FAILED</source>
        <translation>The contacts cannot be read at the moment.
That does not mean that they are gone.</translation>
    </message>
    <message>
        <source>IDS_RECORD_INFO</source>
        <translation>Edit contact</translation>
    </message>
    <message>
        <source>IDS_SEND_MMS</source>
        <translation>Send multimedia message…</translation>
    </message>
    <message>
        <source>IDS_SEND_MMS</source>
        <comment>shortcut</comment>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>IDS_SEND_MSG</source>
        <translation>Send text message…</translation>
    </message>
    <message>
        <source>IDS_SEND_MSG</source>
        <comment>shortcut</comment>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>IDS_SIM</source>
        <translation>%s card</translation>
    </message>
    <message>
        <source>IDS_SMS_EXPORTFAILURE_COUNT</source>
        <translation>The contacts could not be exported.</translation>
    </message>
    <message>
        <source>IDS_SMS_EXPORTSUCCESS_COUNT</source>
        <translation>The contacts have been exported.</translation>
    </message>
    <message>
        <source>IDS_SMS_IMPORTFAILURE_COUNT</source>
        <translation>The contacts could not be read.</translation>
    </message>
    <message>
        <source>IDS_STR_MAKECALLFAILED</source>
        <translation>The call could not be started.</translation>
    </message>
    <message>
        <source>IDS_STR_REPEARTEDNUMBER</source>
        <translation>Another contact has this number already. Save the contact nevertheless?</translation>
    </message>
    <message>
        <source>IDS_STR_STATINFORMATION</source>
        <translation>Numbers: %d, selected: %d</translation>
    </message>
    <message>
        <source>IDS_SUCCESS_COUNT</source>
        <translation>, successful: </translation>
    </message>
    <message>
        <source>IDS_TOTAL_COUNT</source>
        <translation>Entries: </translation>
    </message>
    <message>
        <source>IDS_UNSUCCESS</source>
        <translation>The contact could not be saved. Please check its values, and that the disk is not full.</translation>
    </message>
    <message>
        <source>ID_STR_BUSINESS_PHONE</source>
        <translation>Office</translation>
    </message>
    <message>
        <source>ID_STR_EMAIL</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>ID_STR_HOME_PHONE</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>ID_STR_MOBILE_PHONE</source>
        <translation>Mobile</translation>
    </message>
    <message>
        <source>ID_STR_NAME</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>ID_STR_NOTES</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Save as</translation>
    </message>
</context>
<context>
    <name>SMSUIPlugin</name>
    <message>
        <source>IDS_ADD</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>IDS_ADD_RECIPIENTS</source>
        <translation>Add recipients…</translation>
    </message>
    <message>
        <source>IDS_BAD_NUMBER</source>
        <translation>“%1” is no telephone number: it has only digits, a plus sign before them, * and #.</translation>
    </message>
    <message>
        <source>IDS_BAD_NUMBER_NAME</source>
        <translation>“%1” is no telephone number. Choose the contact in the list that opens while you type.</translation>
    </message>
    <message>
        <source>IDS_BY_NAME</source>
        <translation>By name…</translation>
    </message>
    <message>
        <source>IDS_BY_NAME_TITLE</source>
        <translation>Recipients by name</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>IDS_CLOSE_QUESTION</source>
        <translation>The message has not been sent. What is to become of it?</translation>
    </message>
    <message>
        <source>IDS_COLUMN_NAME</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>IDS_COLUMN_NUMBER</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>IDS_DRAFT_KEPT</source>
        <translation>SMS kept as a draft</translation>
    </message>
    <message>
        <source>IDS_IN_OUTBOX</source>
        <translation>SMS put into the outbox, recipients: %1</translation>
    </message>
    <message>
        <source>IDS_KEEP_FAILED</source>
        <translation>The draft could not be kept.</translation>
    </message>
    <message>
        <source>IDS_LENGTH</source>
        <translation>Characters: %1, messages: %2</translation>
    </message>
    <message>
        <source>IDS_LENGTH_TOTAL</source>
        <translation>to %1 recipients: %2 in all</translation>
    </message>
    <message>
        <source>IDS_SAVE_NUMBER</source>
        <translation>Save number…</translation>
    </message>
    <message>
        <source>IDS_SEARCH</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>IDS_SEND</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>IDS_SEND_FAILED</source>
        <translation>The message could not be put into the outbox.</translation>
    </message>
    <message>
        <source>IDS_SEND_TIP</source>
        <translation>Put the message into the outbox</translation>
    </message>
    <message>
        <source>IDS_SEND_TIP_REAL</source>
        <translation>Send the message through the modem</translation>
    </message>
    <message>
        <source>IDS_SUBJECT</source>
        <translation>Subject:</translation>
    </message>
    <message>
        <source>IDS_TEXT</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>IDS_TITLE</source>
        <translation>New SMS</translation>
    </message>
    <message>
        <source>IDS_TO</source>
        <translation>To:</translation>
    </message>
</context>
<context>
    <name>MMSUIPlugin</name>
    <message>
        <source>IDS_ADD</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>IDS_ADD_RECIPIENTS</source>
        <translation>Add recipients…</translation>
    </message>
    <message>
        <source>IDS_BAD_NUMBER</source>
        <translation>“%1” is no telephone number: it has only digits, a plus sign before them, * and #.</translation>
    </message>
    <message>
        <source>IDS_BAD_NUMBER_NAME</source>
        <translation>“%1” is no telephone number. Choose the contact in the list that opens while you type.</translation>
    </message>
    <message>
        <source>IDS_BY_NAME</source>
        <translation>By name…</translation>
    </message>
    <message>
        <source>IDS_BY_NAME_TITLE</source>
        <translation>Recipients by name</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>IDS_CLOSE_QUESTION</source>
        <translation>The message has not been sent. What is to become of it?</translation>
    </message>
    <message>
        <source>IDS_COLUMN_NAME</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>IDS_COLUMN_NUMBER</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>IDS_DRAFT_KEPT</source>
        <translation>MMS kept as a draft</translation>
    </message>
    <message>
        <source>IDS_IN_OUTBOX</source>
        <translation>MMS put into the outbox, recipients: %1</translation>
    </message>
    <message>
        <source>IDS_KEEP_DRAFT</source>
        <translation>Keep as draft</translation>
    </message>
    <message>
        <source>IDS_KEEP_FAILED</source>
        <translation>The draft could not be kept.</translation>
    </message>
    <message>
        <source>IDS_NO_ROAD</source>
        <translation>Multimedia messages cannot be sent through ModemManager.</translation>
    </message>
    <message>
        <source>IDS_SAVE_NUMBER</source>
        <translation>Save number…</translation>
    </message>
    <message>
        <source>IDS_SEARCH</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>IDS_SEND</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>IDS_SEND_FAILED</source>
        <translation>The message could not be put into the outbox.</translation>
    </message>
    <message>
        <source>IDS_SEND_TIP</source>
        <translation>Put the message into the outbox</translation>
    </message>
    <message>
        <source>IDS_SEND_TIP_REAL</source>
        <translation>Keep the message as a draft</translation>
    </message>
    <message>
        <source>IDS_SUBJECT</source>
        <translation>Subject:</translation>
    </message>
    <message>
        <source>IDS_TEXT</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>IDS_TITLE</source>
        <translation>New MMS</translation>
    </message>
    <message>
        <source>IDS_TO</source>
        <translation>To:</translation>
    </message>
</context>
<context>
    <name>VoiceCallPlugin</name>
    <message>
        <source>IDS_ANSWER</source>
        <translation>Answer</translation>
    </message>
    <message>
        <source>IDS_CALL</source>
        <translation>Call</translation>
    </message>
    <message>
        <source>IDS_CALL_ACTIVE</source>
        <translation>Call in progress</translation>
    </message>
    <message>
        <source>IDS_CALL_BROKEN</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>IDS_CALL_DIALLING</source>
        <translation>Dialling…</translation>
    </message>
    <message>
        <source>IDS_CALL_ENDED</source>
        <translation>Ended</translation>
    </message>
    <message>
        <source>IDS_CALL_ENDED_BY_OTHER</source>
        <translation>Ended by the other side</translation>
    </message>
    <message>
        <source>IDS_CALL_FAILED</source>
        <translation>The call could not be started. Check that the device is online and no other call is in progress.</translation>
    </message>
    <message>
        <source>IDS_CALL_FROM_OUTSIDE</source>
        <translation>Incoming</translation>
    </message>
    <message>
        <source>IDS_CALL_HELD</source>
        <translation>On hold</translation>
    </message>
    <message>
        <source>IDS_CALL_INCOMING</source>
        <translation>Incoming call</translation>
    </message>
    <message>
        <source>IDS_CALL_LOST</source>
        <translation>Connection lost</translation>
    </message>
    <message>
        <source>IDS_CALL_MISSED</source>
        <translation>Missed</translation>
    </message>
    <message>
        <source>IDS_CALL_NOT_ANSWERED</source>
        <translation>No answer</translation>
    </message>
    <message>
        <source>IDS_CALL_NOT_CONNECTED</source>
        <translation>Not put through</translation>
    </message>
    <message>
        <source>IDS_CALL_NOT_KEPT</source>
        <translation>Could not be kept</translation>
    </message>
    <message>
        <source>IDS_CALL_NUMBER</source>
        <translation>Call this number</translation>
    </message>
    <message>
        <source>IDS_CALL_OUTGOING</source>
        <translation>Outgoing</translation>
    </message>
    <message>
        <source>IDS_CALL_REFUSED</source>
        <translation>Refused or busy</translation>
    </message>
    <message>
        <source>IDS_CALL_RINGING</source>
        <translation>Ringing…</translation>
    </message>
    <message>
        <source>IDS_CALL_SIMULATED</source>
        <translation>Simulated</translation>
    </message>
    <message>
        <source>IDS_CALL_STATE</source>
        <translation>Call in progress, simulated</translation>
    </message>
    <message>
        <source>IDS_CALL_UNMARKED</source>
        <translation>Not known whether simulated</translation>
    </message>
    <message>
        <source>IDS_COLUMN_DURATION</source>
        <translation>Duration</translation>
    </message>
    <message>
        <source>IDS_COLUMN_KIND</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>IDS_COLUMN_NAME</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>IDS_COLUMN_NUMBER</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>IDS_COLUMN_RESULT</source>
        <translation>State</translation>
    </message>
    <message>
        <source>IDS_COLUMN_TIME</source>
        <translation>Started</translation>
    </message>
    <message>
        <source>IDS_DELETE</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>IDS_DELETE_FAILED</source>
        <translation>The call could not be deleted.</translation>
    </message>
    <message>
        <source>IDS_DELETE_QUESTION</source>
        <translation>Delete the selected call from the list?</translation>
    </message>
    <message>
        <source>IDS_HANG_UP</source>
        <translation>Hang up</translation>
    </message>
    <message>
        <source>IDS_HINT</source>
        <translation>The device is simulated: a call is shown until you hang up, and nobody hears it.</translation>
    </message>
    <message>
        <source>IDS_HINT_REAL</source>
        <translation>Calls go through your modem. Whether you hear anything depends on the modem.</translation>
    </message>
    <message>
        <source>IDS_MESSAGE</source>
        <translation>Text message…</translation>
    </message>
    <message>
        <source>IDS_SAVE_NUMBER</source>
        <translation>Save number…</translation>
    </message>
    <message>
        <source>IDS_SEARCH</source>
        <translation>Search calls</translation>
    </message>
    <message>
        <source>IDS_TITLE</source>
        <translation>Calls</translation>
    </message>
    <message>
        <source>IDS_UNKNOWN_NUMBER</source>
        <translation>Unknown number</translation>
    </message>
    <message>
        <source>IDS_VIDEO_CALL</source>
        <translation>Video call</translation>
    </message>
</context>
<context>
    <name>VideoCallPlugin</name>
    <message>
        <source>IDS_CALL_STATE</source>
        <translation>Video call in progress, simulated</translation>
    </message>
    <message>
        <source>IDS_HANG_UP</source>
        <translation>Hang up</translation>
    </message>
    <message>
        <source>IDS_TITLE</source>
        <translation>Video call</translation>
    </message>
</context>
<context>
    <name>NotifyPlugin</name>
    <message>
        <source>IDS_CARD_CAME</source>
        <translation>The card’s phonebook is there</translation>
    </message>
    <message>
        <source>IDS_CARD_WENT</source>
        <translation>The card’s phonebook has gone</translation>
    </message>
    <message>
        <source>IDS_CONTACT_ADDED</source>
        <translation>Contact added</translation>
    </message>
    <message>
        <source>IDS_CONTACT_CHANGED</source>
        <translation>Contact changed</translation>
    </message>
    <message>
        <source>IDS_CONTACT_DELETED</source>
        <translation>Contact deleted</translation>
    </message>
    <message>
        <source>IDS_DEVICE_CAME</source>
        <translation>The device’s phonebook is there</translation>
    </message>
    <message>
        <source>IDS_DEVICE_WENT</source>
        <translation>The device’s phonebook has gone</translation>
    </message>
    <message>
        <source>IDS_NAMED_ADDED</source>
        <translation>%1 added</translation>
    </message>
    <message>
        <source>IDS_NAMED_CHANGED</source>
        <translation>%1 changed</translation>
    </message>
    <message>
        <source>IDS_NAMED_DELETED</source>
        <translation>%1 deleted</translation>
    </message>
    <message>
        <source>IDS_SEVERAL_ADDED</source>
        <translation>Several contacts added</translation>
    </message>
    <message>
        <source>IDS_SEVERAL_CHANGED</source>
        <translation>Several contacts changed</translation>
    </message>
    <message>
        <source>IDS_SEVERAL_DELETED</source>
        <translation>Several contacts deleted</translation>
    </message>
</context>
</TS>
