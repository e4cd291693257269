#include "transfer/ContactExport.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

#include "base/Files.h"
#include "base/OldFile.h"
#include "base/Text.h"
#include "csv/Writer.h"
#include "memories/LocalMemory.h"
#include "orva/orva_sync.h"
#include "transfer/CardFields.h"
#include "transfer/GroupPaths.h"
#include "vcard/CardContact.h"
#include "vcard/CardWriter.h"
#include "vcard/GroupNames.h"
#include "vcard/KeptLines.h"

namespace orva
{

namespace
{

constexpr std::size_t recordsRead = 256;

using Groups = std::map<int, std::vector<std::string>>;

// Calls back for each row of the records named.
template <typename Visit>
void forEachRow(Memory& memory, const std::vector<int>& ids, const ExportProgress& progress, Visit&& visit)
{
    RowBlock rows;
    for (std::size_t done = 0; done < ids.size(); done += recordsRead) {
        if (progress && progress(static_cast<int>(done), static_cast<int>(ids.size())))
            throw Failure(ORVA_E_CANCELLED, "broken off");
        memory.readSome(ids.data() + done, std::min(recordsRead, ids.size() - done), rows);
        for (std::size_t row = 0; row < rows.rows(); ++row)
            visit(rows, row);
    }
}

} // namespace

void exportRows(const std::string& file, Memory& memory, Store* groups, const std::vector<int>& ids,
                GroupsColumn column, const ExportProgress& progress)
{
    const std::shared_ptr<const Profile> profile = memory.profile();
    Writer writer(file);
    Groups paths;
    if (groups != nullptr)
        paths = GroupPaths::byRecord(*groups);
    const bool grouped =
        groups != nullptr && (column == GroupsColumn::Always ||
                              std::any_of(ids.begin(), ids.end(), [&paths](int id) { return paths.count(id) != 0; }));
    for (const Field& field : profile->fields())
        writer.column(std::string_view(field.key));
    if (grouped)
        writer.column(std::string_view("Groups"));
    writer.endRow();
    forEachRow(memory, ids, progress, [&](const RowBlock& rows, std::size_t row) {
        for (int field = 0; field < rows.fields(); ++field)
            writer.column(rows.value(row, field));
        if (grouped)
            writer.column(std::string_view(joinGroups(paths[rows.id(row)])));
        writer.endRow();
    });
    writer.commit();
}

void exportCards(const std::string& file, LocalMemory& memory, const std::vector<int>& ids,
                 const ExportProgress& progress)
{
    requireNoPattern(file);
    const std::vector<Field> fields = memory.profile()->fields();
    Groups groups = GroupPaths::byRecord(memory.store());
    std::string out;
    forEachRow(memory, ids, progress, [&](const RowBlock& rows, std::size_t row) {
        CardContact contact;
        for (int field = 0; field < rows.fields(); ++field)
            if (std::string* place = cardField(fields[static_cast<std::size_t>(field)].key, contact))
                *place = toUtf8(rows.value(row, field));
        contact.groups = groups[rows.id(row)];
        Card card = cardOf(contact, CardVersion::V30);
        for (CardProperty& property : keptProperties(memory.store().kept(rows.id(row))))
            card.properties.push_back(std::move(property));
        appendCard(card, out);
    });
    keepOldFile(file);
    replacePrivateFile(file, out);
}

void requireNoPattern(const std::string& file)
{
    const std::size_t slash = file.rfind('/');
    if (file.find('*', slash == std::string::npos ? 0 : slash) != std::string::npos)
        throw Failure(ORVA_E_ARGUMENT, "a pattern is no name of a file");
}

} // namespace orva
