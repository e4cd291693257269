#ifndef TESTS_SUPPORT_MODEM_STORAGE_H
#define TESTS_SUPPORT_MODEM_STORAGE_H

#include "support/modem/Plan.h"

#include <map>

namespace modemsim
{

// A phonebook storage with its rules; locations are counted from 1.
class Storage
{
public:
    explicit Storage(const StoragePlan& plan);

    const std::string& name() const { return m_plan.name; }
    int total() const { return m_plan.total; }
    int numberLength() const { return m_plan.numberLength; }
    int textLength() const { return m_plan.textLength; }
    bool onCard() const;
    bool readOnly() const { return m_plan.readOnly; }
    int used() const { return static_cast<int>(m_entries.size()); }
    int lastUsed() const;
    int firstFree() const; // 0 if there is none
    const Entry* find(int location) const;
    std::vector<Entry> entries() const;

    void put(const Entry& entry); // without any rule
    bool remove(int location);
    // Cuts or refuses what does not fit: 0, or the code of the error.
    int fit(Entry& entry, const Quirks& quirks) const;
    // How long a name is in the units in which this storage counts.
    int units(const std::string& name, const Quirks& quirks) const;

private:
    StoragePlan m_plan;
    std::map<int, Entry> m_entries;
};

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_STORAGE_H
