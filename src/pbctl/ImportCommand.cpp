// import.

#include <algorithm>
#include <cstdio>
#include <map>
#include <strings.h>
#include <utility>

#include "CardFiles.h"
#include "Commands.h"
#include "Existing.h"
#include "Groups.h"
#include "ImportFindings.h"
#include "Numbers.h"
#include "Sdk.h"
#include "Spool.h"
#include "base/Failure.h"
#include "base/Unicode.h"
#include "csv/MadeUpColumns.h"
#include "csv/RowReader.h"
#include "csv/Titles.h"

namespace pbctl
{

namespace
{

const std::vector<std::string> fileOptions = {"memory",  "map",    "group",         "no-groups",
                                              "dry-run", "format", "skip-existing", "update"};

// Runs what reads a file by the library's own means.
template <typename Read>
auto reading(const std::string& name, Read&& read) -> decltype(read())
{
    try {
        return read();
    } catch (const orva::Failure& failure) {
        throw SdkError("reading " + name, failure.code());
    }
}

int columnOf(const std::vector<std::string>& titles, const std::string& name)
{
    if (name.empty())
        return -1;
    const auto found = std::find_if(titles.begin(), titles.end(), [&name](const std::string& title) {
        return strcasecmp(title.c_str(), name.c_str()) == 0;
    });
    if (found == titles.end())
        throw UsageError("the file has no column \"" + name + "\"");
    return static_cast<int>(found - titles.begin());
}

// What the titles say, then what --map KEY=TITLE says; "KEY=" leaves a field empty.
std::vector<int> mapFor(const Arguments& arguments, const std::vector<Field>& fields,
                        const std::vector<std::string>& titles, const orva::MadeUpColumns& columns)
{
    std::vector<int> map;
    map.reserve(fields.size());
    for (const Field& field : fields)
        map.push_back(columns.forField(field.key));
    for (const std::string& entry : arguments.values("map")) {
        const std::size_t equals = entry.find('=');
        const std::string key = entry.substr(0, equals);
        const auto field = std::find_if(fields.begin(), fields.end(), [&key](const Field& candidate) {
            return strcasecmp(candidate.key.c_str(), key.c_str()) == 0;
        });
        if (equals == std::string::npos || field == fields.end())
            throw UsageError("--map takes FIELD=TITLE, not \"" + entry + "\"");
        map[static_cast<std::size_t>(field - fields.begin())] = columnOf(titles, entry.substr(equals + 1));
    }
    if (std::all_of(map.begin(), map.end(), [](int entry) { return entry < 0; }))
        throw UsageError("no column is known by its title; say which with --map FIELD=TITLE");
    return map;
}

// Cuts a name so that the memory takes it. The fields that were cut.
std::vector<std::size_t> fitName(int memory, const std::vector<Field>& fields, std::vector<std::u16string>& values)
{
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (fields[i].kind != "Name")
            continue;
        std::u16string& name = values[i];
        const std::size_t whole = name.size();
        // No text counts less than its units.
        name.resize(orva::cutLength(name, static_cast<std::size_t>(std::max(fields[i].maxLength, 0))));
        short length = 0;
        while (memory == ORVA_MEMORY_CARD && !name.empty() &&
               ORVA_PBSrv_PBContentCodingJudge(units(name), static_cast<short>(name.size()), true, false, &length) ==
                   ORVA_OK &&
               length > fields[i].maxLength)
            name.resize(orva::cutLength(name, name.size() - 1));
        if (name.size() < whole)
            found.push_back(i);
    }
    return found;
}

struct Source {
    std::string name;
    bool lines = false; // identifiers are lines of a file
    std::map<int, std::string> groups;
    std::vector<std::string>
        columns; // by their titles, as many as there are fields; of an application the fields' keys
    ImportFindings findings;

    std::string place(int line) const { return (lines ? "line " : "contact ") + std::to_string(line); }
};

// What became of the contacts so far.
struct Counts {
    int total = 0;
    int added = 0;
    int room = 0; // for so many more
    bool full = false;
    bool joined = true;
};

// The fields with more than fits. Names are cut before, and nothing else is counted by its coding.
std::vector<std::size_t> tooLong(const std::vector<Field>& fields, const std::vector<std::u16string>& values)
{
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < fields.size(); ++i)
        if (fields[i].kind != "Name" && values[i].size() > static_cast<std::size_t>(std::max(fields[i].maxLength, 0)))
            found.push_back(i);
    return found;
}

// Says which row was not taken, and for which of its columns.
void sayRefused(Source& source, int line, long code, const std::vector<std::size_t>& fields)
{
    std::string columns;
    for (const std::size_t field : fields)
        columns += (columns.empty() ? ": column \"" : ", \"") + source.columns[field] + "\"";
    source.findings.say(source.place(line) + ": not taken: " + explain(code) + columns);
}

// Puts a contact into the groups that its row names, or without an identifier looks whether that would go. False, and
// said why, if a name of them is none.
bool joinNamed(Groups& groups, int id, Source& source, int line)
{
    const auto names = source.groups.find(line);
    if (names == source.groups.end())
        return true;
    bool all = true;
    for (const std::string& name : splitGroups(names->second)) {
        std::string why;
        try {
            requireGroupPath(name);
            if (id != 0)
                join(groups, id, {name});
            continue;
        } catch (const UsageError& error) {
            why = error.what();
        } catch (const SdkError& error) {
            if (error.code() != ORVA_E_TOO_LONG)
                throw;
            why = explain(error.code());
        }
        source.findings.say(source.place(line) + ": not put into a group: " + why);
        all = false;
    }
    return all;
}

// One import under way.
struct Import {
    Import(const Arguments& given, const std::vector<Field>& known, Source& from)
        : arguments(given),
          fields(known),
          source(from),
          memory(given.memory()),
          dry(given.has("dry-run")),
          existing(given, memory, known)
    {
        counts.room = roomIn(memory);
        if (dry)
            requireWritable(memory);
    }

    const Arguments& arguments;
    const std::vector<Field>& fields;
    Source& source;
    const int memory;
    const bool dry;
    Existing existing;
    Counts counts;
};

// Stores a contact that is fit, or looks whether that would go; the library's code.
long storeOne(const Import& import, Contact& contact, bool isNew)
{
    long failure = ORVA_OK;
    if (!import.dry && isNew)
        contact.id = addRecord(import.memory, import.fields, contact.values, &failure);
    else if (!import.dry)
        failure = updateContact(import.memory, import.fields, contact);
    else if (isNew && import.counts.added >= import.counts.room)
        failure = ORVA_E_FULL;
    else if (!tooLong(import.fields, contact.values).empty())
        failure = ORVA_E_TOO_LONG;
    return failure;
}

// Makes a contact fit for its memory and stores it, unless that is only tried; false for one that is not taken.
bool take(Import& import, int line, const std::vector<std::u16string>& values, int& id)
{
    Source& source = import.source;
    Counts& counts = import.counts;
    ++counts.total;
    if (counts.full && !import.existing.looks())
        return false;
    Contact contact;
    contact.values = values;
    const std::vector<std::size_t> refused = cleanNumbers(import.memory, import.fields, contact.values);
    if (!refused.empty()) {
        sayRefused(source, line, ORVA_E_NUMBER, refused);
        return false;
    }
    const std::vector<std::size_t> shortened = fitName(import.memory, import.fields, contact.values);
    const Existing::Answer answer = import.existing.settle(contact);
    const bool isNew = answer == Existing::Answer::New;
    if (answer == Existing::Answer::Skipped || (isNew && counts.full))
        return false;
    for (const std::size_t field : shortened)
        source.findings.say(source.place(line) + ": column \"" + source.columns[field] + "\": cut to what the " +
                            memoryName(import.memory) + " holds");
    if (answer == Existing::Answer::Same) {
        id = contact.id;
        return true;
    }
    const long failure = storeOne(import, contact, isNew);
    if (failure != ORVA_OK) {
        sayRefused(source, line, failure,
                   failure == ORVA_E_TOO_LONG ? tooLong(import.fields, contact.values) : std::vector<std::size_t>());
        counts.full = counts.full || failure == ORVA_E_FULL;
        return false;
    }
    if (isNew)
        ++counts.added;
    else
        import.existing.changed();
    id = contact.id;
    return true;
}

// Stores the records of a set one by one and says what became of them.
int store(const Arguments& arguments, const std::vector<Field>& fields, void* set, Source& source)
{
    Import import(arguments, fields, source);
    Counts& counts = import.counts;
    Groups groups;
    Transaction transaction(import.memory);
    forEachRecord(set, fields, [&](int line, const std::vector<std::u16string>& values) {
        int id = 0;
        if (!take(import, line, values, id))
            return;
        counts.joined = joinNamed(groups, import.dry ? 0 : id, source, line) && counts.joined;
        if (import.dry)
            return;
        transaction.wrote();
        join(groups, id, arguments.values("group"));
    });
    transaction.commit();
    std::printf("%d of %d contacts %s %s into the %s%s\n", counts.added, counts.total,
                import.dry ? "would come from" : "taken from", source.name.c_str(), memoryName(import.memory).c_str(),
                import.existing.summary().c_str());
    source.findings.finish();
    const bool all = counts.added + import.existing.count() == counts.total;
    return all && counts.joined && !source.findings.any() ? done : partlyDone;
}

// The names of groups in a column, by the lines of their rows.
std::map<int, std::string> groupsIn(const std::string& file, int column)
{
    std::map<int, std::string> groups;
    orva::RowReader reader(file, orva::RowReader::Report());
    orva::Row row;
    reader.next(row); // the titles
    while (reader.next(row))
        if (!row.column(column).empty())
            groups.emplace(row.line(), row.column(column));
    return groups;
}

// The titles of the columns that the fields are taken from.
std::vector<std::string> columnsOf(const std::vector<Field>& fields, const std::vector<int>& map,
                                   const std::vector<std::string>& titles)
{
    std::vector<std::string> columns;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const auto column = static_cast<std::size_t>(map[i] & 0xFFFF); // the first, where two are joined
        columns.push_back(map[i] >= 0 && column < titles.size() ? titles[column] : fields[i].key);
    }
    return columns;
}

int importApplication(const Arguments& arguments, const std::vector<Field>& fields)
{
    arguments.require(0, 0, {"memory", "from", "group", "dry-run", "skip-existing", "update"});
    Source source;
    source.name = arguments.value("from");
    const char* application = source.name == "evolution"     ? "Outlook"
                              : source.name == "thunderbird" ? "Outlook Express"
                                                             : nullptr;
    if (application == nullptr)
        throw UsageError("--from takes evolution or thunderbird, not \"" + source.name + "\"");
    if (ORVA_PBSrv_IsOutlookInstalled(application) != ORVA_OK)
        throw SdkError("importing from " + source.name, ORVA_E_NOT_FOUND);
    std::vector<int> map;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        map.push_back(static_cast<int>(i));
        source.columns.push_back(fields[i].key);
    }
    Handle set(ORVA_PBSrv_AddrRecordSet_Release);
    check(ORVA_PBSrv_ImportFromOutlook(units(toSdk(application)), map.data(), arguments.memory(), set.out()),
          "importing from " + source.name);
    source.findings.sayLast("contact", -1);
    return store(arguments, fields, set.get(), source);
}

} // namespace

int runImport(const Arguments& arguments)
{
    const int memory = arguments.memory();
    if (arguments.has("group") && memory != ORVA_MEMORY_LOCAL)
        throw UsageError("only the PC's phonebook has groups");
    for (const std::string& path : arguments.values("group"))
        requireGroupPath(path);
    const std::vector<Field> fields = fieldsOf(memory);
    if (arguments.has("from"))
        return importApplication(arguments, fields);
    if (arguments.words().size() != 2)
        arguments.require(1, 1, fileOptions);
    const Spool spool(arguments.words()[1], Spool::Way::In);
    const std::string& file = spool.path();
    if (isCardFile(arguments, file) || (spool.isStandard() && !arguments.has("format") && spool.looksLikeCards()))
        return importCards(arguments, file, spool.name());
    arguments.require(1, 1, fileOptions);
    const std::vector<std::string> titles = reading(spool.name(), [&file] {
        orva::RowReader reader(file, orva::RowReader::Report());
        return orva::readTitles(reader);
    });
    const orva::MadeUpColumns columns(titles);
    std::vector<int> map = mapFor(arguments, fields, titles, columns);
    Source source;
    source.name = spool.name();
    source.lines = true;
    source.columns = columnsOf(fields, map, titles);
    const int groupsColumn = memory == ORVA_MEMORY_LOCAL ? columns.groups() : -1;
    Handle set(ORVA_PBSrv_AddrRecordSet_Release);
    const long code = ORVA_PBSrv_ImportFromFile(units(toSdk(file)), map.data(), memory, set.out());
    source.findings.sayLast("line", groupsColumn);
    if (code != ORVA_OK)
        source.findings.finish();
    check(code, "reading " + spool.name());
    if (groupsColumn >= 0 && !arguments.has("no-groups"))
        source.groups = reading(spool.name(), [&] { return groupsIn(file, groupsColumn); });
    return store(arguments, fields, set.get(), source);
}

} // namespace pbctl
