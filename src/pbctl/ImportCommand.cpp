// import.

#include <algorithm>
#include <cstdio>
#include <strings.h>

#include "Commands.h"
#include "FieldWord.h"
#include "Formats.h"
#include "Groups.h"
#include "ImportFindings.h"
#include "Sdk.h"
#include "Spool.h"
#include "base/Failure.h"
#include "csv/MadeUpColumns.h"
#include "csv/RowReader.h"
#include "csv/Titles.h"
#include "orva/orva_care.h"

namespace pbctl
{

namespace
{

constexpr int contactsAStep = 1000;

// Where the contacts come from.
struct Source {
    std::string name; // what to call it
    std::string path; // a file, or an application's name
    int format = ORVA_FORMAT_ROWS;
    std::vector<int> map;
};

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
                        const std::vector<std::string>& titles)
{
    const orva::MadeUpColumns columns(titles);
    std::vector<int> map;
    map.reserve(fields.size());
    for (const Field& field : fields)
        map.push_back(columns.forField(field.key));
    for (const std::string& entry : arguments.values("map")) {
        const FieldWord assigned(entry, fields);
        if (!assigned.hasField())
            throw UsageError("--map takes FIELD=TITLE, not \"" + entry + "\"");
        map[assigned.field] = columnOf(titles, assigned.value);
    }
    if (std::all_of(map.begin(), map.end(), [](int entry) { return entry < 0; }))
        throw UsageError("no column is known by its title; say which with --map FIELD=TITLE");
    return map;
}

int existingIn(const Arguments& arguments)
{
    if (arguments.has("skip-existing") && arguments.has("update"))
        throw UsageError("--skip-existing and --update exclude each other");
    return arguments.has("skip-existing") ? ORVA_EXISTING_SKIP
           : arguments.has("update")      ? ORVA_EXISTING_UPDATE
                                          : ORVA_EXISTING_ADD;
}

ORVA_IMPORT_COUNTS countsOf(void* import)
{
    ORVA_IMPORT_COUNTS counts = {};
    check(ORVA_Care_Import_GetCounts(import, &counts), "asking what became of the contacts");
    return counts;
}

// What became of those who were there already.
std::string existingText(int existing, const ORVA_IMPORT_COUNTS& counts)
{
    if (existing == ORVA_EXISTING_SKIP)
        return "; " + std::to_string(counts.skipped) + " were there already";
    if (existing == ORVA_EXISTING_UPDATE)
        return "; " + std::to_string(counts.changed) + " changed, " + std::to_string(counts.same) + " the same already";
    return {};
}

// Takes all contacts of a source and says what became of them.
int run(const Arguments& arguments, const Source& source)
{
    const int memory = arguments.memory();
    ORVA_IMPORT_SETTINGS settings = {};
    settings.format = source.format;
    settings.existing = existingIn(arguments);
    settings.flags =
        (arguments.has("dry-run") ? ORVA_IMPORT_TRY : 0) | (arguments.has("no-groups") ? ORVA_IMPORT_NO_GROUPS : 0);
    settings.map = source.map.empty() ? nullptr : source.map.data();
    Handle import(ORVA_Care_Import_Release);
    check(ORVA_Care_OpenImport(memory, units(toSdk(source.path)), &settings, import.out()),
          "writing to the " + memoryName(memory));
    for (const std::string& path : arguments.values("group"))
        check(ORVA_Care_Import_AddGroup(import.get(), units(toSdk(path))), "making the group " + path);
    long code = ORVA_OK;
    while (code == ORVA_OK)
        code = ORVA_Care_Import_Step(import.get(), contactsAStep);
    ImportFindings findings(source.format, memory);
    findings.sayThoseOf(import.get());
    if (code != ORVA_E_END)
        findings.finish();
    checkEnd(code, "reading the contacts of " + source.name + " and storing them");
    const ORVA_IMPORT_COUNTS counts = countsOf(import.get());
    std::printf("%d of %d contacts %s %s into the %s%s\n", counts.added, counts.total,
                arguments.has("dry-run") ? "would come from" : "taken from", source.name.c_str(),
                memoryName(memory).c_str(), existingText(settings.existing, counts).c_str());
    const std::string kept = keptText(import.get());
    if (!kept.empty())
        std::printf("kept with them, since there is no field for it: %s\n", kept.c_str());
    findings.finish();
    return counts.left == 0 && !findings.any() ? done : partlyDone;
}

int importApplication(const Arguments& arguments)
{
    arguments.require(0, 0, {"memory", "from", "group", "dry-run", "skip-existing", "update"});
    Source source;
    source.name = arguments.value("from");
    source.format = ORVA_FORMAT_APPLICATION;
    const char* application = source.name == "evolution"     ? "Outlook"
                              : source.name == "thunderbird" ? "Outlook Express"
                                                             : nullptr;
    if (application == nullptr)
        throw UsageError("--from takes evolution or thunderbird, not \"" + source.name + "\"");
    if (ORVA_PBSrv_IsOutlookInstalled(application) != ORVA_OK)
        throw SdkError("importing from " + source.name, ORVA_E_NOT_FOUND);
    source.path = application;
    return run(arguments, source);
}

int importCards(const Arguments& arguments, Source source)
{
    arguments.require(1, 1, {"memory", "group", "no-groups", "dry-run", "format", "skip-existing", "update"});
    if (arguments.memory() != ORVA_MEMORY_LOCAL)
        throw UsageError("vCards go into the PC's phonebook only");
    source.format = ORVA_FORMAT_CARDS;
    return run(arguments, source);
}

int importRows(const Arguments& arguments, Source source)
{
    arguments.require(1, 1, {"memory", "map", "group", "no-groups", "dry-run", "format", "skip-existing", "update"});
    const std::vector<std::string> titles = reading(source.name, [&source] {
        orva::RowReader reader(source.path, orva::RowReader::Report());
        return orva::readTitles(reader);
    });
    source.map = mapFor(arguments, fieldsOf(arguments.memory()), titles);
    return run(arguments, source);
}

} // namespace

int runImport(const Arguments& arguments)
{
    if (arguments.has("group") && arguments.memory() != ORVA_MEMORY_LOCAL)
        throw UsageError("only the PC's phonebook has groups");
    for (const std::string& path : arguments.values("group"))
        requireGroupPath(path);
    if (arguments.has("from"))
        return importApplication(arguments);
    if (arguments.words().size() != 2)
        arguments.require(1, 1, {});
    const Spool spool(arguments.words()[1], Spool::Way::In);
    Source source;
    source.name = spool.name();
    source.path = spool.path();
    const bool cards = isCardFile(arguments, source.path) ||
                       (spool.isStandard() && !arguments.has("format") && spool.looksLikeCards());
    return cards ? importCards(arguments, source) : importRows(arguments, source);
}

} // namespace pbctl
