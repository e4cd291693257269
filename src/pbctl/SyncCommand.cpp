// sync.

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "Commands.h"
#include "Sdk.h"
#include "Shown.h"
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

void takeResult(void* result, Outcome& outcome)
{
    check(ORVA_Sync_Result_GetCounts(result, &outcome.counts), "reading what a sync did");
    outcome.events = eventsOf(result);
}

Outcome synchronise(const std::string& folder, int options, int wait)
{
    Outcome outcome;
    Handle result(ORVA_Sync_Result_Release);
    outcome.code = ORVA_Sync_Run(memory, units(toSdk(folder)), options, wait * 1000, result.out());
    if (outcome.code == ORVA_OK)
        takeResult(result.get(), outcome);
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

// A path may be a folder's, a URL is a server's.
int setUpFolder(const std::string& folder)
{
    const std::string path = std::filesystem::absolute(folder).lexically_normal().string();
    check(ORVA_Sync_SetUpFolder(units(toSdk(path))), "setting up a sync with " + path);
    std::printf("Set up; \"pbctl sync --run\" synchronises with %s\n", shown(path).c_str());
    return done;
}

int setUp(const Arguments& arguments)
{
    arguments.require(0, 0, {"setup", "user", "password-command"});
    const std::string url = arguments.value("setup");
    const std::string user = arguments.value("user");
    const std::string command = arguments.value("password-command");
    const bool folder = url.find("://") == std::string::npos && user.empty() && url.find('/') != std::string::npos;
    if (!folder && user.empty())
        throw UsageError("--setup needs the name of the user on the server: --user NAME");
    if (folder)
        setUpFolder(url);
    else {
        const std::string program = std::filesystem::read_symlink("/proc/self/exe").string();
        const long code =
            ORVA_Sync_SetUpServer(units(toSdk(url)), units(toSdk(user)), units(toSdk(command)), units(toSdk(program)));
        if (code == ORVA_E_ARGUMENT)
            throw UsageError("\"" + url + "\" is no URL of an address book");
        if (code == ORVA_E_UNSUPPORTED)
            throw UsageError("the password would go through the net in the open: use https");
        if (code == ORVA_E_CLIENT)
            throw std::runtime_error("vdirsyncer is needed, and not installed");
        check(code, "setting up a sync");
        std::printf("Set up; \"pbctl sync --run\" synchronises with %s\n", shown(url).c_str());
        unsigned short* keyring = nullptr;
        check(ORVA_Sync_GetKeyringCommand(units(toSdk(url)), units(toSdk(user)), &keyring), "finding the keyring");
        const std::string words = takeUtf8(keyring);
        if (command.empty())
            std::printf("The password goes into the keyring with: %s\n", shown(words).c_str());
    }
    std::printf("Every 15 minutes from now on: systemctl --user enable --now linkhand-sync.timer\n");
    return done;
}

std::string setUpWith()
{
    ORVA_SYNC_SETUP setup = {};
    check(ORVA_Sync_GetSetUp(&setup), "reading what is set up");
    std::string folder = textOf(setup.folder);
    ORVA_Sync_SetUpRelease(&setup);
    return folder;
}

int runWithSetUp(const Arguments& arguments)
{
    arguments.require(0, 0, {"run", "timer", "wait"});
    const bool timer = arguments.has("timer");
    const int wait = secondsIn(arguments.value("wait", "60"));
    int due = 1;
    if (timer)
        check(ORVA_Sync_IsDue(&due), "finding out whether it is time");
    if (due == 0)
        return done;
    Handle result(ORVA_Sync_Result_Release);
    const long code =
        ORVA_Sync_RunSetUp(memory, timer ? ORVA_SYNC_UNASKED : 0, wait * 1000, nullptr, nullptr, result.out());
    if (code == ORVA_E_NOT_FOUND)
        throw std::runtime_error("no server is set up: pbctl sync --setup URL --user NAME");
    check(code, "synchronising");
    ORVA_SYNC_RUN run = {};
    check(ORVA_Sync_Result_GetRun(result.get(), &run), "reading what became of a sync");
    if (timer && run.code == ORVA_E_BUSY)
        return done;
    if (run.code == ORVA_E_CLIENT)
        throw std::runtime_error("vdirsyncer failed: " + shown(textOf(run.said)));
    if (run.code != ORVA_OK)
        throw failureOf(run.code, setUpWith());
    if (run.offline != 0) {
        std::printf("The server cannot be reached; what changed waits for the next run\n");
        return done;
    }
    Outcome outcome;
    takeResult(result.get(), outcome);
    printLines(outcome.counts, outcome.events, false);
    return outcome.complete() ? done : partlyDone;
}

} // namespace

int runSync(const Arguments& arguments)
{
    if (arguments.has("merge"))
        return mergeFiles(arguments);
    if (arguments.has("setup"))
        return setUp(arguments);
    if (arguments.has("run"))
        return runWithSetUp(arguments);
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
