#ifndef SDK_CSV_LEFTBEHIND_H
#define SDK_CSV_LEFTBEHIND_H

#include <string>
#include <vector>

#include "csv/MadeUpColumns.h"
#include "csv/RowReader.h"

namespace orva
{

// Tells of what stands in a file's columns and is not taken, and puts the columns' titles to what others tell.
class LeftBehind
{
public:
    // `titles` are those of the file. All but the titles outlive this; without a report it does nothing but make up.
    LeftBehind(MadeUpColumns& columns, std::vector<std::string> titles, const int* map, int fields,
               const RowReader::Report& report);
    LeftBehind(const LeftBehind&) = delete;
    LeftBehind& operator=(const LeftBehind&) = delete;

    // Puts the made-up columns behind a row, if any is used, and looks what of it is left.
    void makeUp(Row& row);

    // For what is found in the row; valid until the next one.
    const RowReader::Report& report() const { return m_named; }

    // Tells of the columns, once all rows are through.
    void finish() const;

private:
    void countLeft(const Row& row);
    void tellUnused(const Row& row);
    void tellNamed(const Finding& finding) const;
    int sourceOf(int column) const;

    MadeUpColumns& m_columns;
    const std::vector<std::string> m_titles;
    const int* const m_map;
    const int m_fields;
    const RowReader::Report& m_report;
    RowReader::Report m_named;
    const Row* m_row = nullptr;
    const bool m_making;
    std::vector<bool> m_taken; // by column of the file
    std::vector<int> m_left;   // values that were not taken, by column of the file
};

} // namespace orva

#endif // SDK_CSV_LEFTBEHIND_H
