#ifndef SDK_MODEM_PHONEBOOKBACKUP_H
#define SDK_MODEM_PHONEBOOKBACKUP_H

#include <string>
#include <string_view>
#include <vector>

#include "modem/AtPhonebook.h"

namespace orva
{

// A whole phonebook storage as a text file: a line for each entry, with tabs between its fields.
struct PhonebookBackup {
    std::string key; // of the card or modem that it belongs to
    std::vector<PhonebookEntry> entries;
};

std::string writeBackup(const PhonebookBackup& backup);

// Failure(ORVA_E_FORMAT) for anything else than a whole file of that kind, ORVA_E_VERSION for one of a newer release.
PhonebookBackup readBackup(std::string_view text);

} // namespace orva

#endif // SDK_MODEM_PHONEBOOKBACKUP_H
