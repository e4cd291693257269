// What the phonebook is kept the same as, set up once and run by hand or by a timer.

#include <ctime>
#include <memory>

#include "api/Boundary.h"
#include "api/Library.h"
#include "api/SyncRuns.h"
#include "base/DataFolder.h"
#include "base/Files.h"
#include "base/Log.h"
#include "base/Text.h"
#include "orva/orva_sync.h"
#include "sync/SyncServer.h"

using namespace orva;

namespace
{

constexpr std::size_t lastRunAtMost = 1 << 20;

std::string textOf(const unsigned short* text)
{
    return text == nullptr ? std::string() : toUtf8(fromApi(text));
}

unsigned short* newText(const std::string& text)
{
    return toApi(fromUtf8(text));
}

void add(SyncReport& sum, const SyncReport& one)
{
    sum.addedHere += one.addedHere;
    sum.changedHere += one.changedHere;
    sum.deletedHere += one.deletedHere;
    sum.heldHere = one.heldHere;
    sum.addedThere += one.addedThere;
    sum.changedThere += one.changedThere;
    sum.deletedThere += one.deletedThere;
    sum.heldThere = one.heldThere;
    // What was left the first time is left the second time, too.
    std::vector<SyncEvent> events;
    for (const SyncEvent& event : sum.events)
        if (event.kind == SyncEvent::Kind::Conflict)
            events.push_back(event);
    events.insert(events.end(), one.events.begin(), one.events.end());
    sum.events = std::move(events);
}

// With a server: the cards, the server, the cards.
class Run
{
public:
    Run(Store& store, const SyncServer& server, int options, int wait, ORVA_SYNC_PROGRESS progress, void* data)
        : m_store(store), m_server(server), m_options(options), m_wait(wait), m_progress(progress), m_data(data)
    {
    }

    SyncRun take()
    {
        SyncRun run;
        try {
            withCards(run);
            if (m_server.isServer()) {
                m_step = 1;
                run.offline = !m_server.exchange(goOn());
                m_step = 2;
                if (!run.offline)
                    withCards(run);
            }
            run.code = ORVA_OK;
        } catch (const Failure& failure) {
            run.code = m_cancelled ? ORVA_E_CANCELLED : failure.code();
            if (run.code == ORVA_E_CLIENT)
                run.said = failure.what();
        } catch (const std::exception& failure) {
            logFormat("a sync broke off: %s", failure.what());
            run.code = ORVA_E_INTERNAL;
        }
        run.time = static_cast<long long>(std::time(nullptr));
        note(run);
        return run;
    }

private:
    GoOn goOn()
    {
        return [this] {
            m_cancelled =
                m_cancelled || (m_progress != nullptr && m_progress(m_step, m_server.isServer() ? 3 : 1, m_data) != 0);
            return !m_cancelled;
        };
    }

    void withCards(SyncRun& run)
    {
        if (!goOn()())
            throw Failure(ORVA_E_CANCELLED);
        add(run.report, synchronise(m_store, m_server.cards(), m_options & ORVA_SYNC_FORCE, m_wait, goOn()));
    }

    void note(const SyncRun& run) const
    {
        // Somebody edits a contact, or has it stopped: that says nothing about the next turn.
        const bool unasked = (m_options & ORVA_SYNC_UNASKED) != 0;
        if (run.code == ORVA_E_CANCELLED || (unasked && run.code == ORVA_E_BUSY))
            return;
        try {
            m_server.noteRun(run.code == ORVA_OK && !run.offline);
            replacePrivateFile(m_server.lastRun(), toLines(run));
        } catch (const std::exception& failure) {
            logFormat("the result of a sync cannot be kept: %s", failure.what());
        }
    }

    Store& m_store;
    const SyncServer& m_server;
    const int m_options;
    const int m_wait;
    const ORVA_SYNC_PROGRESS m_progress;
    void* const m_data;
    int m_step = 0;
    bool m_cancelled = false;
};

} // namespace

long ORVA_Sync_SetUpServer(const unsigned short* url, const unsigned short* user, const unsigned short* command,
                           const unsigned short* program)
{
    return guarded(__func__, [&] {
        require(url);
        require(user);
        require(program);
        SyncServer(dataFolder()).setUp(textOf(url), textOf(user), textOf(command), textOf(program));
        return ORVA_OK;
    });
}

long ORVA_Sync_SetUpFolder(const unsigned short* folder)
{
    return guarded(__func__, [&] {
        require(folder);
        SyncServer(dataFolder()).setUpFolder(textOf(folder));
        return ORVA_OK;
    });
}

long ORVA_Sync_KeepPassword(const unsigned short* url, const unsigned short* user, const unsigned short* password)
{
    return guarded(__func__, [&] {
        require(url);
        require(user);
        require(password);
        SyncServer::keepPassword(textOf(url), textOf(user), textOf(password));
        return ORVA_OK;
    });
}

long ORVA_Sync_GetKeyringCommand(const unsigned short* url, const unsigned short* user, unsigned short** command)
{
    return guarded(__func__, [&] {
        require(url);
        require(user);
        require(command);
        *command = newText(SyncServer::keyringCommand(textOf(url), textOf(user)));
        return ORVA_OK;
    });
}

long ORVA_Sync_GetSetUp(ORVA_SYNC_SETUP* setup)
{
    return guarded(__func__, [&] {
        require(setup);
        *setup = {};
        const SyncServer server(dataFolder());
        if (!server.isSetUp())
            throw Failure(ORVA_E_NOT_FOUND, "no sync is set up");
        const bool isServer = server.isServer();
        setup->folder = newText(server.cards());
        setup->url = newText(isServer ? server.url() : std::string());
        setup->user = newText(isServer ? server.user() : std::string());
        setup->password_command = newText(isServer ? server.passwordCommand() : std::string());
        return ORVA_OK;
    });
}

long ORVA_Sync_SetUpRelease(ORVA_SYNC_SETUP* setup)
{
    return guarded(__func__, [&] {
        require(setup);
        for (unsigned short* const text : {setup->folder, setup->url, setup->user, setup->password_command})
            delete[] text;
        *setup = {};
        return ORVA_OK;
    });
}

long ORVA_Sync_IsDue(int* due)
{
    return guarded(__func__, [&] {
        require(due);
        const SyncServer server(dataFolder());
        *due = server.isSetUp() && server.isTime() ? 1 : 0;
        return ORVA_OK;
    });
}

long ORVA_Sync_RunSetUp(int memory, int options, int wait, ORVA_SYNC_PROGRESS progress, void* data, void** result)
{
    return guarded(__func__, [&] {
        require(result);
        *result = nullptr;
        if ((options & ~(ORVA_SYNC_FORCE | ORVA_SYNC_UNASKED)) != 0 || wait < 0)
            throw Failure(ORVA_E_ARGUMENT, "no such option");
        const SyncServer server(dataFolder());
        if (!server.isSetUp())
            throw Failure(ORVA_E_NOT_FOUND, "no sync is set up");
        *result = newSyncResult(Run(groupStore(memory), server, options, wait, progress, data).take());
        return ORVA_OK;
    });
}

long ORVA_Sync_GetLastRun(void** result)
{
    return guarded(__func__, [&] {
        require(result);
        *result = nullptr;
        std::optional<SyncRun> run = runFromLines(readSmallFile(SyncServer(dataFolder()).lastRun(), lastRunAtMost));
        if (!run)
            throw Failure(ORVA_E_NOT_FOUND, "no sync has been run");
        *result = newSyncResult(std::move(*run));
        return ORVA_OK;
    });
}

long ORVA_Sync_Result_GetRun(void* result, ORVA_SYNC_RUN* run)
{
    return guarded(__func__, [&] {
        require(run);
        const auto& held = fromHandle<SyncResultHandle>(result);
        run->time = held.run.time;
        run->code = held.run.code;
        run->offline = held.run.offline ? 1 : 0;
        run->said = reinterpret_cast<const unsigned short*>(held.said.c_str());
        return ORVA_OK;
    });
}
