#include "sync/LastRun.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace orva
{

namespace
{

constexpr std::size_t eventsKept = 200;

// A text without line ends and tabs.
std::string packed(const std::string& text)
{
    std::string out;
    for (const char c : text) {
        if (c == '\\' || c == '\n' || c == '\t')
            out.append(1, '\\').push_back(c == '\n' ? 'n' : c == '\t' ? 't' : c);
        else
            out.push_back(c);
    }
    return out;
}

std::string unpacked(const std::string& text)
{
    std::string out;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '\\' || at + 1 == text.size()) {
            out.push_back(text[at]);
            continue;
        }
        const char c = text[++at];
        out.push_back(c == 'n' ? '\n' : c == 't' ? '\t' : c);
    }
    return out;
}

std::vector<std::string> split(const std::string& text, char by)
{
    std::vector<std::string> parts;
    for (std::size_t at = 0; at <= text.size();) {
        const std::size_t end = std::min(text.find(by, at), text.size());
        parts.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    return parts;
}

} // namespace

std::string toLines(const SyncRun& run)
{
    const SyncReport& report = run.report;
    std::string lines = std::to_string(run.time) + " " + std::to_string(run.code) + (run.offline ? " 1" : " 0");
    for (const int count : {report.addedHere, report.changedHere, report.deletedHere, report.heldHere,
                            report.addedThere, report.changedThere, report.deletedThere, report.heldThere})
        lines += " " + std::to_string(count);
    lines += "\n" + packed(run.said) + "\n";
    for (std::size_t i = 0; i < std::min(report.events.size(), eventsKept); ++i) {
        const SyncEvent& event = report.events[i];
        // Readers that know no reasons take all that is no conflict for left.
        lines += event.kind == SyncEvent::Kind::Conflict ? "conflict" : "left " + std::to_string(event.reason);
        for (const std::string& part :
             {std::to_string(event.record), std::string(event.hereWon ? "1" : "0"), event.file, event.name, event.what})
            lines += "\t" + packed(part);
        lines += "\n";
    }
    return lines;
}

std::optional<SyncRun> runFromLines(const std::string& text)
{
    const std::vector<std::string> lines = split(text, '\n');
    SyncRun run;
    SyncReport& report = run.report;
    int offline = 0;
    if (lines.size() < 3 ||
        std::sscanf(lines[0].c_str(), "%lld %ld %d %d %d %d %d %d %d %d %d", &run.time, &run.code, &offline,
                    &report.addedHere, &report.changedHere, &report.deletedHere, &report.heldHere, &report.addedThere,
                    &report.changedThere, &report.deletedThere, &report.heldThere) != 11)
        return std::nullopt;
    run.offline = offline != 0;
    run.said = unpacked(lines[1]);
    for (std::size_t i = 2; i < lines.size(); ++i) {
        const std::vector<std::string> parts = split(lines[i], '\t');
        if (parts.size() != 6)
            continue;
        SyncEvent event;
        event.kind = parts[0] == "conflict" ? SyncEvent::Kind::Conflict : SyncEvent::Kind::Left;
        std::sscanf(parts[0].c_str(), "left %d", &event.reason);
        std::sscanf(parts[1].c_str(), "%d", &event.record);
        event.hereWon = parts[2] == "1";
        event.file = unpacked(parts[3]);
        event.name = unpacked(parts[4]);
        event.what = unpacked(parts[5]);
        report.events.push_back(std::move(event));
    }
    return run;
}

} // namespace orva
