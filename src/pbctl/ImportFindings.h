#ifndef PBCTL_IMPORTFINDINGS_H
#define PBCTL_IMPORTFINDINGS_H

#include <string>
#include <vector>

#include "orva/orva_care.h"

namespace pbctl
{

// What did not come out of a file as it stands there: said as it is found, as long as anybody would read that, and
// counted.
class ImportFindings
{
public:
    // One place, such as "line 3: column "Notes": why".
    void say(const std::string& text);

    // What the library has found in its last import, other than what it expects of storing the contacts: that shows.
    // `row` is what a line is called; nothing is said of the column of groups.
    void sayLast(const std::string& row, int groupsColumn);

    bool any() const { return m_said > 0 || !m_columns.empty(); }

    // Says how many more there were, and which columns were left.
    void finish() const;

private:
    void take(const ORVA_FINDING& finding, const std::string& row);

    int m_said = 0;
    std::vector<std::string> m_columns;
};

} // namespace pbctl

#endif // PBCTL_IMPORTFINDINGS_H
