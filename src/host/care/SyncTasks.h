#ifndef LINKHAND_HOST_CARE_SYNCTASKS_H
#define LINKHAND_HOST_CARE_SYNCTASKS_H

#include <QList>
#include <QString>

#include "care/CareTask.h"

// What the phonebook is kept the same as.
struct SyncSetup {
    bool bSetUp = false;
    bool bFolder = false; // of the user's choice; else a server
    QString strFolder;
    QString strUrl;
    QString strUser;
    QString strCommand;  // prints the password; empty: the keyring has it
    QString strPassword; // for the keyring; empty: it is there already
};

// Something about one contact of a sync.
struct SyncNote {
    bool bConflict = false; // else it was left
    bool bHereWon = false;
    QString strName; // of the contact, else of the file
    QString strWhat; // keys of fields with ";" between, or why, in English
    int iReason = 0; // why it was left, ORVA_SYNC_REASON_*; 0 where the SDK has none
};

// What became of a sync.
struct SyncOutcome {
    bool bThere = false; // false: there was none
    long nCode = 0;
    bool bOffline = false;
    qint64 iTime = 0;
    QString strSaid;            // by the client, where it failed
    int aiHere[3] = {0, 0, 0};  // added, changed, deleted
    int aiThere[3] = {0, 0, 0}; // on the other side
    int iHeld = 0;              // not deleted, since they are so many
    QList<SyncNote> listNotes;
};

enum SyncTimer { TIMER_UNKNOWN, TIMER_OFF, TIMER_ON };

// Reads what is set up, what became of the last run by whichever program, and whether the timer is on.
class SyncReading : public CareTask
{
public:
    SyncReading() : CareTask(READING) {}
    void Run() override;

    const SyncSetup& Setup() const { return m_setup; }
    const SyncOutcome& Last() const { return m_last; }
    SyncTimer Timer() const { return m_enTimer; }

private:
    SyncSetup m_setup;
    SyncOutcome m_last;
    SyncTimer m_enTimer = TIMER_UNKNOWN;
};

// Sets one up.
class SyncSetting : public CareTask
{
public:
    explicit SyncSetting(const SyncSetup& setup) : CareTask(WRITING), m_setup(setup) {}
    void Run() override;

private:
    const SyncSetup m_setup;
};

// Synchronises with what is set up.
class SyncRunning : public CareTask
{
public:
    SyncRunning() : CareTask(WRITING) {}
    void Run() override;

    // It waits for forms and batches by itself, and who waits for batches would make it wait for him.
    bool TakesTurns() const override { return true; }

    const SyncOutcome& Outcome() const { return m_outcome; }

private:
    static int goesOn(int iStep, int iSteps, void* pTask);

    SyncOutcome m_outcome;
};

// Turns the user's timer on or off.
class SyncTimerSwitching : public CareTask
{
public:
    explicit SyncTimerSwitching(bool bOn) : CareTask(WRITING), m_bOn(bOn), m_bDone(false) {}
    void Run() override;

    bool IsDone() const { return m_bDone; }

private:
    const bool m_bOn;
    bool m_bDone;
};

#endif // LINKHAND_HOST_CARE_SYNCTASKS_H
