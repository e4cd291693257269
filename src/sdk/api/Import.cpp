// Contacts in, and out.

#include <algorithm>
#include <memory>

#include "api/Boundary.h"
#include "api/Handles.h"
#include "api/ImportFindings.h"
#include "api/Library.h"
#include "api/Paths.h"
#include "base/DataFolder.h"
#include "base/Text.h"
#include "care/NumberKey.h"
#include "contactapps/CardFile.h"
#include "memories/AllRecords.h"
#include "memories/LocalMemory.h"
#include "orva/orva_care.h"
#include "transfer/ContactExport.h"
#include "transfer/ContactImport.h"

using namespace orva;

namespace
{

struct ImportHandle final : HandleObject {
    static constexpr HandleKind kind = HandleKind::Import;
    ImportHandle(const char* function, Memory& memory, LocalMemory* local, ContactImport::Settings settings)
        : findings(function, settings.source),
          import(memory, local, std::move(settings), [this](const Finding& finding) { findings.add(finding); })
    {
    }
    ImportFindings findings;
    ContactImport import;
};

LocalMemory* localOf(int memory)
{
    return memory == ORVA_MEMORY_LOCAL ? &localMemory() : nullptr;
}

// What a modem does not take it says for each contact.
void requireWritable(int memory)
{
    if (modemMemory(memory) != nullptr)
        return;
    const long code = anyStore(memory).access();
    if (code != ORVA_OK)
        throw Failure(code, "the memory cannot be written");
}

ContactImport::Settings settingsOf(const ORVA_IMPORT_SETTINGS& from, const Profile& profile)
{
    const bool known = from.format >= ORVA_FORMAT_ANY && from.format <= ORVA_FORMAT_APPLICATION &&
                       from.existing >= ORVA_EXISTING_ADD && from.existing <= ORVA_EXISTING_UPDATE &&
                       (from.flags & ~(ORVA_IMPORT_TRY | ORVA_IMPORT_NO_GROUPS)) == 0;
    if (!known)
        throw Failure(ORVA_E_ARGUMENT, "settings that are none");
    ContactImport::Settings settings;
    settings.format = from.format;
    settings.way = from.existing == ORVA_EXISTING_SKIP     ? KnownContacts::Way::Skip
                   : from.existing == ORVA_EXISTING_UPDATE ? KnownContacts::Way::Update
                                                           : KnownContacts::Way::AddAll;
    settings.dry = (from.flags & ORVA_IMPORT_TRY) != 0;
    settings.reading.withGroups = (from.flags & ORVA_IMPORT_NO_GROUPS) == 0;
    if (from.map != nullptr)
        settings.reading.map.assign(from.map, from.map + profile.size());
    settings.region = chosenRegion(dataFolder());
    return settings;
}

std::vector<int> allIds(Memory& memory)
{
    std::vector<int> ids;
    forAllRecords(memory, [&ids](int id, const Values&) { ids.push_back(id); });
    return ids;
}

} // namespace

long ORVA_Care_OpenImport(int memory, const unsigned short* source, const ORVA_IMPORT_SETTINGS* settings, void** import)
{
    const char* const name = __func__;
    return guarded(name, [&] {
        require(settings);
        require(import);
        *import = nullptr;
        Memory& into = memoryFor(memory);
        ContactImport::Settings made = settingsOf(*settings, *into.profile());
        made.source = pathFrom(source);
        if (made.dry)
            requireWritable(memory);
        *import = newHandle(std::make_unique<ImportHandle>(name, into, localOf(memory), std::move(made)));
        return ORVA_OK;
    });
}

long ORVA_Care_Import_AddGroup(void* import, const unsigned short* path)
{
    return guarded(__func__, [&] {
        fromHandle<ImportHandle>(import).import.addGroup(toUtf8(fromApi(path)));
        return ORVA_OK;
    });
}

long ORVA_Care_Import_Step(void* import, int most)
{
    return guarded(__func__, [&]() -> long {
        auto& held = fromHandle<ImportHandle>(import);
        if (most < 1)
            throw Failure(ORVA_E_ARGUMENT, "a step of nothing");
        return held.import.step(most) ? ORVA_OK : ORVA_E_END;
    });
}

long ORVA_Care_Import_GetCounts(void* import, ORVA_IMPORT_COUNTS* counts)
{
    return guarded(__func__, [&] {
        require(counts);
        *counts = fromHandle<ImportHandle>(import).import.counts();
        return ORVA_OK;
    });
}

long ORVA_Care_Import_GetContact(void* import, int index, ORVA_IMPORT_CONTACT* contact)
{
    return guarded(__func__, [&]() -> long {
        require(contact);
        const std::vector<ContactImport::Told>& told = fromHandle<ImportHandle>(import).import.told();
        if (index < 0)
            throw Failure(ORVA_E_ARGUMENT, "a contact below 0");
        if (static_cast<std::size_t>(index) >= told.size())
            return ORVA_E_END;
        const ContactImport::Told& found = told[static_cast<std::size_t>(index)];
        contact->line = found.line;
        contact->outcome = found.outcome;
        contact->record = found.record;
        contact->name = reinterpret_cast<const unsigned short*>(found.name.c_str());
        contact->number = reinterpret_cast<const unsigned short*>(found.number.c_str());
        return ORVA_OK;
    });
}

long ORVA_Care_Import_GetFindings(void* import, ORVA_FINDING** findings, int* count, int* total)
{
    return guarded(__func__, [&] {
        require(findings);
        require(count);
        const ImportFindings& found = fromHandle<ImportHandle>(import).findings;
        *findings = found.copies();
        *count = static_cast<int>(found.kept().size());
        if (total != nullptr)
            *total = found.total();
        return ORVA_OK;
    });
}

long ORVA_Care_Import_GetKept(void* import, ORVA_FINDING** entries, int* count)
{
    return guarded(__func__, [&] {
        require(entries);
        require(count);
        const std::map<std::string, int>& kept = fromHandle<ImportHandle>(import).import.kept();
        std::unique_ptr<ORVA_FINDING[]> made(kept.empty() ? nullptr : new ORVA_FINDING[kept.size()]);
        std::transform(kept.begin(), kept.end(), made.get(), [](const auto& property) {
            return ImportFindings::plain({0, ORVA_FINDING_PROPERTY, property.second, -1, property.first});
        });
        *entries = made.release();
        *count = static_cast<int>(kept.size());
        return ORVA_OK;
    });
}

long ORVA_Care_Import_Release(void* import)
{
    return guarded(__func__, [&] {
        releaseHandle<ImportHandle>(import);
        return ORVA_OK;
    });
}

long ORVA_Care_Export(int memory, const unsigned short* path, int format, const int* ids, int count, int* written)
{
    return ORVA_Care_ExportWithProgress(memory, path, format, ids, count, written, nullptr, nullptr);
}

long ORVA_Care_ExportWithProgress(int memory, const unsigned short* path, int format, const int* ids, int count,
                                  int* written, ORVA_EXPORT_PROGRESS progress, void* data)
{
    return guarded(__func__, [&] {
        const std::string file = pathFrom(path);
        if (count < 0 || format < ORVA_FORMAT_ANY || format > ORVA_FORMAT_CARDS)
            throw Failure(ORVA_E_ARGUMENT, "no such format, or a number below 0");
        Memory& from = memoryFor(memory);
        LocalMemory* const local = localOf(memory);
        const bool cards = format == ORVA_FORMAT_CARDS || (format == ORVA_FORMAT_ANY && isCardFile(file));
        if (cards && local == nullptr)
            throw Failure(ORVA_E_UNSUPPORTED, "vCards are made of the PC's phonebook");
        const std::vector<int> wanted = ids == nullptr ? allIds(from) : std::vector<int>(ids, ids + count);
        ExportProgress tell;
        if (progress != nullptr)
            tell = [progress, data](int done, int total) { return progress(done, total, data) != 0; };
        if (cards)
            exportCards(file, *local, wanted, tell);
        else
            exportRows(file, from, local != nullptr ? &local->store() : nullptr, wanted, GroupsColumn::Always, tell);
        if (written != nullptr)
            *written = static_cast<int>(wanted.size());
        return ORVA_OK;
    });
}
