#ifndef SDK_CSV_CONTACTROWS_H
#define SDK_CSV_CONTACTROWS_H

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "base/NumberText.h"
#include "base/Profile.h"
#include "base/RowBlock.h"
#include "csv/RowReader.h"

namespace orva
{

// Where each field of a memory comes from, as ORVA_PBSrv_ImportFromFile describes it.
class FieldMap
{
public:
    // `map` has an entry for each field of the profile.
    FieldMap(const Profile& profile, const int* map);

    int fields() const { return static_cast<int>(m_sources.size()); }

    // Adds a row to `into` by the number of its line. False, and nothing added, if none of its fields has a value other
    // than blanks, or a column that is needed is no text. A note is cut to what its field holds, what is no telephone
    // number stays as it is, what is no e-mail address goes into the note, of several values in a column the first is
    // taken. Each is reported with its column and what stands there.
    bool add(const Row& row, RowBlock& into, const RowReader::Report& report);

private:
    struct Source {
        int first;
        int second;
        bool number;
        bool email;
        Pauses pauses;         // in a number
        std::size_t noteUnits; // that a note may have; 0 for other fields
    };

    bool readValue(const Row& row, const Source& source);
    int whyNotText(const Row& row, const Source& source);
    bool readSources(const Row& row, RowBlock& into, const RowReader::Report& report);
    void tell(const Row& row, int reason, const RowReader::Report& report) const;
    bool takeFirst();
    bool appendColumn(std::string_view column);
    bool readNumberValue(const Source& source);
    bool moveEmail();
    void leaveForNote(const std::u16string& line);
    void appendNoted();
    void trim();
    bool cutNote(std::size_t units);

    std::vector<Source> m_sources;
    std::vector<char16_t> m_value; // room for the value being read
    std::size_t m_length = 0;      // of that value
    std::u16string m_noted;        // what the row's numbers and addresses leave for its note
    bool m_hasNote = false;        // behind all of those
    bool m_several = false;        // values in the column that was read
    bool m_anything = false;       // in the row's fields
    int m_reportedColumn = -1;     // which a report is about
};

// A map entry that joins two columns by a blank, such as first and last name, and the columns of an entry of at least
// 0; the second is -1 where there is none.
int joinedColumns(int first, int second);
std::pair<int, int> columnsOf(int entry);

// Reads the records of a file: its rows but the first. Rows that cannot be read or have nothing in the mapped columns
// are reported and passed over; so are columns that are not taken. What is reported of a column has its title.
// Failure(ORVA_E_FORMAT) if no row is left, ORVA_E_TOO_LONG for more than a million rows or 256 MB of text.
// `taken` is called for each row that becomes a record.
using RowTaken = std::function<void(const Row& row)>;
RowBlock readContacts(const std::string& path, const Profile& profile, const int* map, const RowReader::Report& report,
                      const ReaderLimits& limits = ReaderLimits(), const RowTaken& taken = RowTaken());

} // namespace orva

#endif // SDK_CSV_CONTACTROWS_H
