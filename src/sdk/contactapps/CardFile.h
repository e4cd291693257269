#ifndef SDK_CONTACTAPPS_CARDFILE_H
#define SDK_CONTACTAPPS_CARDFILE_H

#include <string>
#include <vector>

#include "base/Profile.h"
#include "base/RowBlock.h"
#include "csv/RowReader.h"

namespace orva
{

// Files of vCards, read as rows like any file of contacts.

// Whether a file is one: by the ending ".vcf" or ".vcard" of its name, in any case.
bool isCardFile(const std::string& path);

// The columns that a map for such a file names: the keys of the fields. Failures as those of readCardFile, where the
// file holds no card.
std::vector<std::string> cardFileTitles(const std::string& path);

// The cards of a file as rows for a memory, numbered by the lines they begin in. `map` has an entry for each field: the
// column it is taken from, or -1. Numbers and e-mail addresses beyond those of the fields stand in the note; what else
// a card says is reported, each property by its name. Failure(ORVA_E_NOT_FOUND) if there is no file, ORVA_E_FORMAT if
// no card is of use, ORVA_E_TOO_LONG for more than a million of them or 256 MB of text.
RowBlock readCardFile(const std::string& path, const Profile& profile, const int* map, const RowReader::Report& report);

} // namespace orva

#endif // SDK_CONTACTAPPS_CARDFILE_H
