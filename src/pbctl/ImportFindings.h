#ifndef PBCTL_IMPORTFINDINGS_H
#define PBCTL_IMPORTFINDINGS_H

#include <map>
#include <string>
#include <vector>

#include "Sdk.h"
#include "csv/MadeUpColumns.h"

namespace pbctl
{

// What did not come out of a file as it stands there: said as it is found, as long as anybody would read that, and
// counted.
class ImportFindings
{
public:
    // One place, such as "line 3: column "Notes": why".
    void say(const std::string& text);

    // A column from which nothing is taken, and how many values it has.
    void leftColumn(const std::string& name, int values);

    bool any() const { return m_said > 0 || !m_columns.empty(); }

    // Says how many more there were, and which columns were left.
    void finish() const;

private:
    int m_said = 0;
    std::vector<std::string> m_columns;
};

// A walk through a file of contacts beside the library's own, for what that has no place to tell.
struct CsvWalk {
    const std::string& file;
    const std::vector<Field>& fields;
    const std::vector<int>& map; // by field
    const std::vector<std::string>& titles;
    orva::MadeUpColumns& columns; // beside those titles
    bool withGroups;              // whether the column of groups is read

    std::map<int, std::string> groups = {}; // the names in that column, by line

    // Tells of rows and columns that are not taken, or not in whole. Throws orva::Failure.
    void run(ImportFindings& findings);

private:
    int sourceIn(const orva::Row& row, int column) const;
};

} // namespace pbctl

#endif // PBCTL_IMPORTFINDINGS_H
