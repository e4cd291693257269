#ifndef SDK_MEMORIES_ALLRECORDS_H
#define SDK_MEMORIES_ALLRECORDS_H

#include "memories/Memory.h"

namespace orva
{

// Calls back with the identifier and the values of each record that is there now.
template <typename Visit>
void forAllRecords(Memory& memory, Visit&& visit)
{
    RowBlock rows;
    Values values;
    const int last = memory.extent().last;
    for (int first = 1; first <= last;) {
        memory.read(first, last, memory.preferredRows(), rows);
        if (rows.empty())
            return;
        for (std::size_t row = 0; row < rows.rows(); ++row) {
            values.clear();
            for (int field = 0; field < rows.fields(); ++field)
                values.emplace_back(rows.value(row, field));
            visit(rows.id(row), values);
        }
        if (rows.id(rows.rows() - 1) == last)
            return;
        first = rows.id(rows.rows() - 1) + 1;
    }
}

} // namespace orva

#endif // SDK_MEMORIES_ALLRECORDS_H
