#include "modem/LineReader.h"

namespace orva
{

void LineReader::feed(std::string_view bytes)
{
    if (m_begin > 0) {
        m_bytes.erase(0, m_begin);
        m_scanned -= m_begin;
        m_begin = 0;
    }
    m_bytes.append(bytes);
}

bool LineReader::next(std::string& line)
{
    for (;;) {
        const std::size_t end = m_bytes.find_first_of("\r\n", m_scanned);
        const bool complete = end != std::string::npos;
        const std::size_t length = (complete ? end : m_bytes.size()) - m_begin;
        if (m_skipping) {
            m_begin += length + (complete ? 1 : 0);
            m_scanned = m_begin;
            m_skipping = !complete;
            if (!complete)
                return false;
            continue;
        }
        if (length > longest) {
            line.assign(m_bytes, m_begin, longest);
            m_begin += longest;
            m_scanned = m_begin;
            m_skipping = true;
            return true;
        }
        if (!complete) {
            m_scanned = m_bytes.size();
            return false;
        }
        line.assign(m_bytes, m_begin, length);
        m_begin = end + 1;
        m_scanned = m_begin;
        if (!line.empty())
            return true;
    }
}

void LineReader::clear()
{
    m_bytes.clear();
    m_begin = 0;
    m_scanned = 0;
    m_skipping = false;
}

} // namespace orva
