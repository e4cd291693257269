#ifndef SDK_TRANSFER_CONTACTSOURCE_H
#define SDK_TRANSFER_CONTACTSOURCE_H

#include <memory>
#include <string>
#include <vector>

#include "base/Finding.h"
#include "base/Profile.h"
#include "transfer/ImportContact.h"

namespace orva
{

// Contacts of a file or program, one after the other. What cannot be read is reported and passed over.
class ContactSource
{
public:
    virtual ~ContactSource() = default;

    // False at the end. Failure for a source that can be read no further.
    virtual bool next(ImportContact& contact) = 0;

    // How many there are, those that are of no use among them.
    virtual int total() const = 0;

    // What the finding about a field's value names: the column's title or the field's key; and its column, or -1.
    virtual std::string titleOf(std::size_t field) const = 0;
    virtual int columnOf(std::size_t field) const = 0;
};

// What to make of a source.
struct SourceSettings {
    std::vector<int> map;   // an entry a field; empty: by the titles
    bool withGroups = true; // those that a column of the file, or a card, names
    bool hasGroups = true;  // the memory has groups
};

// The rows of a CSV file. Failure(ORVA_E_FORMAT) if no row is of use, or no title means anything.
std::unique_ptr<ContactSource> openRows(const std::string& file, const Profile& profile, const SourceSettings& settings,
                                        const FindingReport& report);

// What a contacts application holds; `name` as hasContactApp() takes it.
std::unique_ptr<ContactSource> openApplication(const std::string& name, const Profile& profile,
                                               const SourceSettings& settings, const FindingReport& report);

// The cards of a file, for the PC's phonebook. ORVA_E_NOT_FOUND, ORVA_E_FORMAT for an empty file. The report outlives
// the source.
std::unique_ptr<ContactSource> openCards(const std::string& file, const Profile& profile,
                                         const SourceSettings& settings, const FindingReport& report);

// Whether a file begins like one of vCards.
bool beginsLikeCards(const std::string& file);

} // namespace orva

#endif // SDK_TRANSFER_CONTACTSOURCE_H
