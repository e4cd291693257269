#ifndef SDK_TRANSFER_CONTACTIMPORT_H
#define SDK_TRANSFER_CONTACTIMPORT_H

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "base/Finding.h"
#include "base/NumberText.h"
#include "orva/orva_care.h"
#include "transfer/ContactSource.h"
#include "transfer/GroupPaths.h"
#include "transfer/KnownContacts.h"

namespace orva
{

class LocalMemory;

/*
 * Takes the contacts of a source into a memory, some at a time, or only tries what that would do. A Failure ends it;
 * what was committed before stays. One thread at a time.
 */
class ContactImport
{
public:
    struct Settings {
        std::string source; // a file, or an application by its name
        int format = 0;     // ORVA_FORMAT_...
        KnownContacts::Way way = KnownContacts::Way::AddAll;
        bool dry = false;
        SourceSettings reading;
        std::string region; // for the comparison of numbers
    };

    // What became of a contact.
    struct Told {
        int line = 0;
        int outcome = 0; // ORVA_IMPORT_...
        int record = 0;  // that was added, or was there; 0 for none
        std::u16string name;
        std::u16string number;
    };

    // `local` is the memory if that is the PC's phonebook, else null.
    ContactImport(Memory& memory, LocalMemory* local, Settings settings, FindingReport report);
    ContactImport(const ContactImport&) = delete;
    ContactImport& operator=(const ContactImport&) = delete;

    // Has every contact join a group, by its path. A Failure for a path that is none.
    void addGroup(const std::string& path);

    // Looks at so many contacts; false at the end. Whatever it has stored is on disk when it returns.
    bool step(int most);

    const ORVA_IMPORT_COUNTS& counts() const { return m_counts; }
    const std::vector<Told>& told() const { return m_told; } // of the last step
    const std::map<std::string, int>& kept() const { return m_kept; }

private:
    void open();
    bool stepOver(int most);
    void take(ImportContact& contact);
    void takeFit(ImportContact& contact);
    bool isNumbersRefused(const ImportContact& contact) const;
    void fitNames(ImportContact& contact);
    std::vector<std::size_t> tooLong(const ImportContact& contact) const;
    void store(ImportContact& contact, bool isNew, int& id);
    void joinGroups(const ImportContact& contact, int id);
    void finish(const ImportContact& contact, KnownContacts::Answer answer, int id);
    void leave(const ImportContact& contact, long code);
    void tell(const ImportContact& contact, int outcome, int id);
    void say(int line, int reason, int count, const std::string& name, const std::u16string& value = {});
    void sayField(const ImportContact& contact, int reason, std::size_t field);
    void wrote();
    void end();

    // What of a field is asked for each contact.
    struct FieldRule {
        bool number;
        bool name;
        Pauses pauses;    // in a number
        std::size_t room; // units
    };

    Memory& m_memory;
    LocalMemory* const m_local;
    const Settings m_settings;
    const FindingReport m_report;
    const std::shared_ptr<const Profile> m_profile;
    std::vector<FieldRule> m_rules; // of the profile's fields
    std::unique_ptr<KnownContacts> m_known;
    std::unique_ptr<ContactSource> m_source;
    std::unique_ptr<GroupPaths> m_paths;
    std::vector<std::string> m_groups; // for all
    std::vector<Told> m_told;
    std::map<std::string, int> m_kept;
    ORVA_IMPORT_COUNTS m_counts = {};
    ORVA_IMPORT_COUNTS m_safe = {}; // those of what is on disk
    int m_room = 0;
    int m_writes = 0; // since the last commit
    int m_fullLine = 0;
    int m_full = 0;
    bool m_backUp = false; // before the first change
    bool m_ended = false;
    long m_failure = ORVA_OK; // that ended it
};

} // namespace orva

#endif // SDK_TRANSFER_CONTACTIMPORT_H
