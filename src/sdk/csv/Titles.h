#ifndef SDK_CSV_TITLES_H
#define SDK_CSV_TITLES_H

#include <string>
#include <vector>

#include "csv/RowReader.h"

namespace orva
{

// The titles of a file: the columns of its first row, as many and in the same order. In each, commas, line ends and
// other control characters are blanks, so that titles can be joined by commas and stay aligned with their columns.
// Failure(ORVA_E_FORMAT) if the file has no row, or one that is no text.
std::vector<std::string> readTitles(RowReader& reader);

// The same for a row that is read already.
std::vector<std::string> titlesOf(const Row& row);

} // namespace orva

#endif // SDK_CSV_TITLES_H
