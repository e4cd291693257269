#ifndef SDK_BASE_ROWBLOCK_H
#define SDK_BASE_ROWBLOCK_H

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace orva
{

// Some rows of a memory, packed: all text in one buffer, so that filling a block over and over allocates nothing.
// Every row has the same number of values. Views are valid until the block is changed.
class RowBlock
{
public:
    explicit RowBlock(int fields = 0) : m_fields(static_cast<std::size_t>(fields)) {}

    int fields() const { return static_cast<int>(m_fields); }
    std::size_t rows() const { return m_ids.size(); }
    bool empty() const { return m_ids.empty(); }
    int id(std::size_t row) const { return m_ids[row]; }

    std::u16string_view value(std::size_t row, int field) const
    {
        const std::size_t slot = row * m_fields + static_cast<std::size_t>(field);
        const std::size_t begin = slot == 0 ? 0 : m_ends[slot - 1];
        return {m_text.data() + begin, m_ends[slot] - begin};
    }

    // Bytes of text held.
    std::size_t bytes() const { return m_ends.empty() ? 0 : m_ends.back() * sizeof(char16_t); }

    // Empties the block and keeps its room.
    void clear(int fields)
    {
        m_fields = static_cast<std::size_t>(fields);
        m_ids.clear();
        m_ends.clear();
    }

    // Makes room for what is about to come.
    void reserve(std::size_t rows, std::size_t units)
    {
        m_ids.reserve(rows);
        m_ends.reserve(rows * m_fields);
        m_text.reserve(units);
    }

    // Adds a row by its identifier, then exactly fields() values in order. Before that many the row does not count as
    // complete and must be taken back with dropRow().
    void beginRow(int id) { m_ids.push_back(id); }
    void addValue(std::u16string_view text) { addBytes(text.data(), text.size()); }

    // The same from units that may lie at any address.
    void addBytes(const void* data, std::size_t units)
    {
        const std::size_t begin = m_ends.empty() ? 0 : m_ends.back();
        if (m_text.size() - begin < units)
            grow(begin + units);
        if (units != 0)
            std::memcpy(m_text.data() + begin, data, units * sizeof(char16_t));
        m_ends.push_back(begin + units);
    }

    // Takes the last row back, complete or not.
    void dropRow()
    {
        m_ids.pop_back();
        m_ends.resize(m_ids.size() * m_fields);
    }

private:
    // By doubling, within the room that was made while that is enough; never shrunk: filled over and over.
    void grow(std::size_t units)
    {
        const std::size_t doubled = units + m_text.size();
        m_text.resize(units <= m_text.capacity() ? std::min(doubled, m_text.capacity()) : doubled);
    }

    std::size_t m_fields;
    std::vector<int> m_ids;
    std::vector<std::size_t> m_ends; // end of each value in m_text
    std::vector<char16_t> m_text;    // as far as the last end, the rest is room
};

} // namespace orva

#endif // SDK_BASE_ROWBLOCK_H
