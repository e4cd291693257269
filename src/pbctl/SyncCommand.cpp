// sync.

#include <charconv>
#include <cstdio>
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

} // namespace

int runSync(const Arguments& arguments)
{
    if (arguments.has("merge"))
        return mergeFiles(arguments);
    arguments.require(1, 1, {"dry-run", "force", "wait", "json"});
    const std::string& folder = arguments.words()[1];
    const int wait = secondsIn(arguments.value("wait", "60"));
    const bool dry = arguments.has("dry-run");
    Handle result(ORVA_Sync_Result_Release);
    const long code = ORVA_Sync_Run(memory, units(toSdk(folder)),
                                    (arguments.has("force") ? ORVA_SYNC_FORCE : 0) | (dry ? ORVA_SYNC_DRY_RUN : 0),
                                    wait * 1000, result.out());
    if (code != ORVA_OK)
        throw failureOf(code, folder);
    ORVA_SYNC_COUNTS counts = {};
    check(ORVA_Sync_Result_GetCounts(result.get(), &counts), "reading what a sync did");
    const std::vector<Event> events = eventsOf(result.get());
    if (arguments.has("json"))
        printJson(counts, events);
    else
        printLines(counts, events, dry);
    return events.empty() && counts.held_here == 0 && counts.held_there == 0 ? done : partlyDone;
}

} // namespace pbctl
