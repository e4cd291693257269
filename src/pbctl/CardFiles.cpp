// Files of vCards, for import and export.

#include "CardFiles.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <map>
#include <strings.h>
#include <utility>

#include "Commands.h"
#include "Existing.h"
#include "Groups.h"
#include "Numbers.h"
#include "Sdk.h"
#include "base/EmailText.h"
#include "base/Failure.h"
#include "base/Files.h"
#include "base/Finding.h"
#include "base/OldFile.h"
#include "base/Unicode.h"
#include "orva/orva_store.h"
#include "vcard/CardContact.h"
#include "vcard/CardReader.h"
#include "vcard/CardText.h"
#include "vcard/CardWriter.h"
#include "vcard/KeptLines.h"

namespace pbctl
{

namespace
{

constexpr int memory = ORVA_MEMORY_LOCAL;
constexpr int failuresShown = 20;

// The place of a field's value, by the field's key.
std::string* placeOf(const std::string& key, orva::CardContact& contact)
{
    const std::pair<const char*, std::string*> places[] = {
        {"Name", &contact.name},      {"Mobile", &contact.mobile}, {"officePhone", &contact.office},
        {"homePhone", &contact.home}, {"email", &contact.email},   {"remark", &contact.note},
    };
    for (const auto& place : places)
        if (key == place.first)
            return place.second;
    return nullptr;
}

// Takes cards into the phonebook and keeps count.
class CardImport
{
public:
    // Of a file with so many cards.
    CardImport(const Arguments& arguments, int cards)
        : m_backUp(cards > ORVA_BACKUP_IMPORT_ABOVE),
          m_arguments(arguments),
          m_dry(arguments.has("dry-run")),
          m_fields(fieldsOf(memory)),
          m_existing(arguments, memory, m_fields),
          m_transaction(memory),
          m_room(roomIn(memory))
    {
        if (m_dry)
            requireWritable(memory);
    }

    void take(const orva::Card& card)
    {
        ++m_total;
        orva::CardContact contact = orva::contactOf(card);
        std::vector<std::string> lost;
        std::vector<std::u16string> values = valuesOf(contact, lost);
        for (std::size_t i = 0; i < contact.kept.size(); ++i)
            if (!orva::canKeep(contact.kept[i], card.version))
                lost.push_back(contact.left[i]);
        const bool empty = std::all_of(values.begin(), values.end(), [](const std::u16string& v) { return v.empty(); });
        if (empty) {
            sayLine(card.line, "not taken: it has nothing that a field is meant for");
            return;
        }
        Contact taken;
        taken.values = std::move(values);
        taken.kept = orva::keptLines(contact.kept, card.version);
        const Existing::Answer answer = m_existing.settle(taken);
        const bool isNew = answer == Existing::Answer::New;
        if (answer == Existing::Answer::Skipped || (isNew && m_full))
            return;
        const long failure = answer == Existing::Answer::Same ? ORVA_OK : store(taken, isNew);
        if (failure != ORVA_OK) {
            sayLine(card.line, ("not taken: " + explain(failure)).c_str());
            m_full = m_full || failure == ORVA_E_FULL;
            return;
        }
        joinGroups(taken.id, groupsOf(contact, card.version));
        if (answer == Existing::Answer::Same)
            return;
        if (isNew)
            ++m_added;
        else
            m_existing.changed();
        for (const std::string& name : lost)
            ++m_left[name];
        for (std::size_t i = 0; i < contact.kept.size(); ++i)
            if (orva::canKeep(contact.kept[i], card.version))
                ++m_kept[contact.left[i]];
    }

    void sayLine(int line, const char* what)
    {
        if (++m_said <= failuresShown)
            std::fprintf(stderr, "pbctl: line %d: %s\n", line, what);
    }

    // Ends the writing and tells what became of all; an exit code.
    int finish(const std::string& file)
    {
        m_transaction.commit();
        std::printf("%d of %d contacts %s %s into the %s%s\n", m_added, m_total,
                    m_dry ? "would come from" : "taken from", file.c_str(), memoryName(memory).c_str(),
                    m_existing.summary().c_str());
        if (m_said > failuresShown)
            std::fprintf(stderr, "pbctl: and %d lines more\n", m_said - failuresShown);
        const std::string kept = counted(m_kept);
        if (!kept.empty())
            std::printf("kept with them, since there is no field for it: %s\n", kept.c_str());
        const std::string left = counted(m_left);
        if (!left.empty())
            std::fprintf(stderr, "pbctl: left in the file, since there is no field or place for them: %s\n",
                         left.c_str());
        return m_added + m_existing.count() == m_total && m_said == 0 && left.empty() ? done : partlyDone;
    }

private:
    static std::string counted(const std::map<std::string, int>& names)
    {
        std::string text;
        for (const auto& name : names)
            text += (text.empty() ? "" : ", ") + std::to_string(name.second) + " " + name.first;
        return text;
    }

    std::vector<std::u16string> valuesOf(orva::CardContact& contact, std::vector<std::string>& lost)
    {
        std::vector<std::u16string> values(m_fields.size());
        for (std::size_t i = 0; i < m_fields.size(); ++i)
            if (const std::string* text = placeOf(m_fields[i].key, contact))
                values[i] = toSdk(*text);
        for (const std::size_t refused : cleanNumbers(memory, m_fields, values))
            keepNumber(m_fields[refused].key, values[refused], contact);
        for (std::size_t i = 0; i < m_fields.size(); ++i) {
            const auto room = static_cast<std::size_t>(std::max(m_fields[i].maxLength, 0));
            const bool number = m_fields[i].kind == "Mobile" || m_fields[i].kind == "Number";
            if (number && values[i].size() > room)
                keepNumber(m_fields[i].key, values[i], contact);
            else if (m_fields[i].kind == "Email" && !orva::isEmailText(values[i]))
                keep("EMAIL", {}, values[i], contact);
            else if (!number && values[i].size() > room) {
                values[i].resize(orva::cutLength(values[i], room));
                lost.push_back("end of " + m_fields[i].key);
            }
        }
        return values;
    }

    // A part of a number is another number, so one that cannot be taken is kept in whole.
    static void keepNumber(const std::string& key, std::u16string& number, orva::CardContact& contact)
    {
        const char* const type = key == "Mobile" ? "CELL" : key == "officePhone" ? "WORK" : "HOME";
        keep("TEL", {{"TYPE", {type}}}, number, contact);
    }

    static void keep(const char* name, const std::vector<orva::CardParameter>& parameters, std::u16string& text,
                     orva::CardContact& contact)
    {
        orva::CardProperty property(name);
        property.setParameters(parameters);
        orva::setCardText(property, toUtf8(text), orva::CardVersion::V30);
        contact.kept.push_back(property);
        contact.left.emplace_back(name);
        text.clear();
    }

    // The library's code; for a new one that is stored its identifier in the contact.
    long store(Contact& contact, bool isNew)
    {
        if (m_dry)
            return isNew && m_added >= m_room ? ORVA_E_FULL : ORVA_OK;
        if (std::exchange(m_backUp, false))
            ORVA_Store_KeepBackup(memory, ORVA_BACKUP_IMPORT); // the log says if it fails
        long failure = ORVA_OK;
        if (isNew)
            contact.id = addRecord(memory, m_fields, contact.values, &failure, contact.kept);
        else
            failure = updateContact(memory, m_fields, contact);
        return failure;
    }

    // In 2.1, which tells no semicolon in a name from one between names, it is the latter.
    static std::vector<std::string> groupsOf(const orva::CardContact& contact, orva::CardVersion version)
    {
        std::vector<std::string> names;
        for (const std::string& category : contact.groups) {
            const bool several = version == orva::CardVersion::V21;
            for (const std::string& name :
                 several ? splitGroups(category) : std::vector<std::string>{groupCalled(category)})
                if (!name.empty())
                    names.push_back(name);
        }
        return names;
    }

    void joinGroups(int id, const std::vector<std::string>& names)
    {
        if (!m_dry) {
            m_transaction.wrote();
            join(m_groups, id, m_arguments.values("group"));
        }
        if (m_arguments.has("no-groups"))
            return;
        for (const std::string& name : names)
            joinNamed(id, name);
    }

    // A group whose name is none costs the contact nothing but that group.
    void joinNamed(int id, const std::string& name)
    {
        try {
            requireGroupPath(name);
            if (!m_dry)
                join(m_groups, id, {name});
        } catch (const SdkError& error) {
            if (error.code() != ORVA_E_TOO_LONG)
                throw;
            ++m_left["CATEGORIES"];
        }
    }

    bool m_backUp; // before the first change
    const Arguments& m_arguments;
    const bool m_dry;
    const std::vector<Field> m_fields;
    Existing m_existing;
    Groups m_groups;
    Transaction m_transaction;
    const int m_room; // for so many more
    int m_total = 0;
    int m_added = 0;
    int m_said = 0;
    bool m_full = false;
    std::map<std::string, int> m_left;
    std::map<std::string, int> m_kept;
};

// How many cards begin in a file, which is set back to its beginning.
int countCards(std::ifstream& in)
{
    int cards = 0;
    for (std::string line; std::getline(in, line);)
        cards += strncasecmp(line.c_str(), "BEGIN:VCARD", 11) == 0 ? 1 : 0;
    in.clear();
    in.seekg(0);
    return cards;
}

// What is kept with a contact; nothing for one that went meanwhile.
std::string keptWith(int id)
{
    Handle record(ORVA_PBSrv_AddrRecord_Release);
    const long code = ORVA_PBSrv_GetAddrRecord(id, memory, record.out());
    if (code == ORVA_E_NOT_FOUND)
        return {};
    check(code, "reading a contact");
    return keptOf(record.get());
}

} // namespace

bool isCardFile(const Arguments& arguments, const std::string& file)
{
    const std::string format = arguments.value("format");
    if (arguments.has("format") && format != "vcf" && format != "csv")
        throw UsageError("--format takes vcf or csv, not \"" + format + "\"");
    if (!format.empty())
        return format == "vcf";
    return file.size() > 4 && strcasecmp(file.c_str() + file.size() - 4, ".vcf") == 0;
}

int importCards(const Arguments& arguments, const std::string& file, const std::string& name)
{
    arguments.require(1, 1, {"memory", "group", "no-groups", "dry-run", "format", "skip-existing", "update"});
    if (arguments.memory() != memory)
        throw UsageError("vCards go into the PC's phonebook only");
    std::ifstream in(file, std::ios::binary);
    if (!in || in.peek() == std::ifstream::traits_type::eof())
        throw SdkError("reading " + name, in.is_open() ? ORVA_E_FORMAT : ORVA_E_NOT_FOUND);
    CardImport import(arguments, countCards(in));
    orva::CardReader reader(in, [&import](const orva::Finding& finding) {
        import.sayLine(finding.line, orva::findingText(finding.reason));
    });
    orva::Card card;
    while (reader.next(card))
        import.take(card);
    if (in.bad())
        throw SdkError("reading " + name, ORVA_E_STORE);
    return import.finish(name);
}

void exportCards(const std::string& file, const std::vector<int>& ids)
{
    std::map<int, std::vector<std::string>> groups = pathsByRecord();
    const std::vector<Field> fields = fieldsOf(memory);
    std::vector<int> wanted = ids;
    std::sort(wanted.begin(), wanted.end());
    std::string out;
    forEachRecord(memory, fields, [&](int id, const std::vector<std::u16string>& values) {
        if (!std::binary_search(wanted.begin(), wanted.end(), id))
            return;
        orva::CardContact contact;
        for (std::size_t i = 0; i < fields.size(); ++i)
            if (std::string* place = placeOf(fields[i].key, contact))
                *place = toUtf8(values[i]);
        contact.groups = groups[id];
        orva::Card card = orva::cardOf(contact, orva::CardVersion::V30);
        for (orva::CardProperty& property : orva::keptProperties(keptWith(id)))
            card.properties.push_back(std::move(property));
        orva::appendCard(card, out);
    });
    try {
        orva::keepOldFile(file);
        orva::replacePrivateFile(file, out);
    } catch (const orva::Failure& failure) {
        throw SdkError("writing " + file, failure.code());
    }
}

} // namespace pbctl
