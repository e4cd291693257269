#ifndef SDK_CSV_COLUMNGUESS_H
#define SDK_CSV_COLUMNGUESS_H

#include <string>
#include <string_view>
#include <vector>

namespace orva
{

// Which columns of a file hold what, told from their titles as mail programs, address books and spreadsheets in a few
// languages write them. Titles are compared without regard to case, blanks and punctuation.
class ColumnGuess
{
public:
    // Titles in UTF-8, in the order of the columns.
    explicit ColumnGuess(const std::vector<std::string>& titles);

    // The field map entry (a column, or two joined, or -1 for none) for a field with this label id.
    int forLabel(std::string_view labelId) const;

    // The column with the names of groups, or -1.
    int groups() const { return m_groups; }

private:
    int m_name = -1;
    int m_mobile = -1;
    int m_office = -1;
    int m_home = -1;
    int m_email = -1;
    int m_note = -1;
    int m_groups = -1;
};

} // namespace orva

#endif // SDK_CSV_COLUMNGUESS_H
