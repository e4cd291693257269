// sync.

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "Commands.h"
#include "Sdk.h"
#include "Shown.h"
#include "SyncServer.h"
#include "orva/orva_sync.h"

namespace pbctl
{

namespace
{

constexpr int memory = ORVA_MEMORY_LOCAL;

struct Event {
    int kind = 0;
    int record = 0;
    bool hereWon = false;
    std::string file;
    std::string name;
    std::string what;
};

std::string textOf(const unsigned short* text)
{
    return toUtf8(std::u16string(reinterpret_cast<const char16_t*>(text)));
}

std::vector<Event> eventsOf(void* result)
{
    std::vector<Event> events;
    ORVA_SYNC_EVENT event = {};
    long more = ORVA_Sync_Result_GetEvent(result, 0, &event);
    for (int i = 1; more == ORVA_OK; more = ORVA_Sync_Result_GetEvent(result, i++, &event))
        events.push_back({event.kind, event.record, event.here_won != 0, textOf(event.file), textOf(event.name),
                          textOf(event.what)});
    checkEnd(more, "reading what a sync did");
    return events;
}

int secondsIn(const std::string& text)
{
    int seconds = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), seconds);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size() || seconds < 0 || seconds > 86400)
        throw UsageError("--wait takes seconds, not \"" + text + "\"");
    return seconds;
}

void printJson(const ORVA_SYNC_COUNTS& counts, const std::vector<Event>& events)
{
    const auto side = [](const char* name, int added, int changed, int deleted, int held) {
        std::printf("\"%s\": {\"added\": %d, \"changed\": %d, \"deleted\": %d, \"held\": %d}, ", name, added, changed,
                    deleted, held);
    };
    std::printf("{");
    side("here", counts.added_here, counts.changed_here, counts.deleted_here, counts.held_here);
    side("there", counts.added_there, counts.changed_there, counts.deleted_there, counts.held_there);
    std::printf("\"events\": [");
    for (std::size_t i = 0; i < events.size(); ++i) {
        const Event& event = events[i];
        const bool conflict = event.kind == ORVA_SYNC_CONFLICT;
        std::printf("%s{\"kind\": \"%s\", \"id\": %d, \"file\": %s, \"name\": %s, \"what\": %s", i > 0 ? ", " : "",
                    conflict ? "conflict" : "left", event.record, quoted(event.file).c_str(),
                    quoted(event.name).c_str(), quoted(event.what).c_str());
        if (conflict)
            std::printf(", \"in force\": \"%s\"", event.hereWon ? "here" : "there");
        std::printf("}");
    }
    std::printf("]}\n");
}

void printLines(const ORVA_SYNC_COUNTS& counts, const std::vector<Event>& events, bool dry)
{
    const char* const would = dry ? "would be " : "";
    std::printf("Phonebook: %s%d added, %d changed, %d deleted\n", would, counts.added_here, counts.changed_here,
                counts.deleted_here);
    std::printf("Folder: %s%d added, %d changed, %d deleted\n", would, counts.added_there, counts.changed_there,
                counts.deleted_there);
    for (const Event& event : events) {
        if (event.kind == ORVA_SYNC_CONFLICT)
            std::fprintf(stderr, "pbctl: %s (%d) was changed on both sides: %s; what the %s said is in force%s\n",
                         shown(event.name).c_str(), event.record, shown(event.what).c_str(),
                         event.hereWon ? "phonebook" : "folder", dry ? "" : ", the other is in the bin");
        else
            std::fprintf(stderr, "pbctl: %s: left, %s\n", shown(event.file.empty() ? event.name : event.file).c_str(),
                         shown(event.what).c_str());
    }
    if (counts.held_here > 0)
        std::fprintf(stderr,
                     "pbctl: %d contacts are gone from the folder and stay in the phonebook: --force deletes them\n",
                     counts.held_here);
    if (counts.held_there > 0)
        std::fprintf(stderr,
                     "pbctl: %d contacts are gone from the phonebook and stay in the folder: --force deletes them\n",
                     counts.held_there);
}

struct Outcome {
    long code = ORVA_OK;
    ORVA_SYNC_COUNTS counts = {};
    std::vector<Event> events;

    bool complete() const { return events.empty() && counts.held_here == 0 && counts.held_there == 0; }
};

Outcome synchronise(const std::string& folder, int options, int wait)
{
    Outcome outcome;
    Handle result(ORVA_Sync_Result_Release);
    outcome.code = ORVA_Sync_Run(memory, units(toSdk(folder)), options, wait * 1000, result.out());
    if (outcome.code != ORVA_OK)
        return outcome;
    check(ORVA_Sync_Result_GetCounts(result.get(), &outcome.counts), "reading what a sync did");
    outcome.events = eventsOf(result.get());
    return outcome;
}

// What a failure means for this command.
std::runtime_error failureOf(long code, const std::string& folder)
{
    if (code == ORVA_E_MARKER)
        return std::runtime_error(folder +
                                  ": the file \".linkhand-sync\" of the last sync is missing; nothing was done. "
                                  "If the folder is the right one, use --force");
    if (code == ORVA_E_BUSY)
        return std::runtime_error("another sync is under way, or a contact is being edited; nothing was done");
    return SdkError("synchronising with " + folder, code);
}

// Two cards of one contact become one, in both files.
int mergeFiles(const Arguments& arguments)
{
    arguments.require(2, 2, {"merge", "before"});
    const std::u16string before = toSdk(arguments.value("before"));
    const std::vector<std::string>& words = arguments.words();
    check(ORVA_Sync_MergeCards(units(toSdk(words[1])), units(toSdk(words[2])),
                               arguments.has("before") ? units(before) : nullptr),
          "merging two cards");
    return done;
}

int setUp(const Arguments& arguments)
{
    arguments.require(0, 0, {"setup", "user", "password-command"});
    const std::string url = arguments.value("setup");
    const std::string user = arguments.value("user");
    if (user.empty())
        throw UsageError("--setup needs the name of the user on the server: --user NAME");
    const std::string command = arguments.value("password-command");
    SyncServer().setUp(url, user, command);
    std::printf("Set up; \"pbctl sync --run\" synchronises with %s\n", shown(url).c_str());
    if (command.empty())
        std::printf("The password goes into the keyring with: %s\n",
                    shown(SyncServer::keyringCommand(url, user)).c_str());
    std::printf("Every 15 minutes from now on: systemctl --user enable --now linkhand-sync.timer\n");
    return done;
}

// One half of a run; the sum of both in the counts.
void addRun(const SyncServer& server, Outcome& sum, int wait)
{
    const Outcome half = synchronise(server.cards(), 0, wait);
    sum.code = half.code;
    if (half.code != ORVA_OK)
        throw failureOf(half.code, server.cards());
    sum.counts.added_here += half.counts.added_here;
    sum.counts.changed_here += half.counts.changed_here;
    sum.counts.deleted_here += half.counts.deleted_here;
    sum.counts.added_there += half.counts.added_there;
    sum.counts.changed_there += half.counts.changed_there;
    sum.counts.deleted_there += half.counts.deleted_there;
    sum.counts.held_here = half.counts.held_here;
    sum.counts.held_there = half.counts.held_there;
    for (const Event& event : half.events) {
        const bool told = std::any_of(sum.events.begin(), sum.events.end(), [&event](const Event& other) {
            return other.kind == event.kind && other.file == event.file && other.what == event.what;
        });
        if (!told)
            sum.events.push_back(event);
    }
}

int runWithServer(const Arguments& arguments)
{
    arguments.require(0, 0, {"run", "timer", "wait"});
    const bool timer = arguments.has("timer");
    const int wait = secondsIn(arguments.value("wait", "60"));
    const SyncServer server;
    if (!server.isSetUp() && !timer)
        throw std::runtime_error("no server is set up: pbctl sync --setup URL --user NAME");
    if (timer && (!server.isSetUp() || !server.isTime()))
        return done;
    Outcome sum;
    try {
        addRun(server, sum, wait);
        const bool reached = server.exchange();
        server.noteRun(reached);
        if (!reached) {
            std::printf("The server cannot be reached; what changed waits for the next run\n");
            return done;
        }
        addRun(server, sum, wait);
    } catch (const std::exception&) {
        // Somebody edits a contact: the next turn comes soon.
        if (timer && sum.code == ORVA_E_BUSY)
            return done;
        server.noteRun(false);
        throw;
    }
    printLines(sum.counts, sum.events, false);
    return sum.complete() ? done : partlyDone;
}

} // namespace

int runSync(const Arguments& arguments)
{
    if (arguments.has("merge"))
        return mergeFiles(arguments);
    if (arguments.has("setup"))
        return setUp(arguments);
    if (arguments.has("run"))
        return runWithServer(arguments);
    arguments.require(1, 1, {"dry-run", "force", "wait", "json"});
    const std::string& folder = arguments.words()[1];
    const bool dry = arguments.has("dry-run");
    const Outcome outcome =
        synchronise(folder, (arguments.has("force") ? ORVA_SYNC_FORCE : 0) | (dry ? ORVA_SYNC_DRY_RUN : 0),
                    secondsIn(arguments.value("wait", "60")));
    if (outcome.code != ORVA_OK)
        throw failureOf(outcome.code, folder);
    if (arguments.has("json"))
        printJson(outcome.counts, outcome.events);
    else
        printLines(outcome.counts, outcome.events, dry);
    return outcome.complete() ? done : partlyDone;
}

} // namespace pbctl
