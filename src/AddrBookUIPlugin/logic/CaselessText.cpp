#include "logic/CaselessText.h"

namespace
{
const ushort ASCII_END = 0x80;
} // namespace

CaselessText::CaselessText(const QString& strText) : m_strText(strText)
{
    for (int i = 0; i < strText.size(); ++i) {
        if (strText.at(i).unicode() >= ASCII_END)
            return;
    }
    m_strFolded = strText;
    for (int i = 0; i < m_strFolded.size(); ++i)
        m_strFolded[i] = QChar(folded(m_strFolded.at(i).unicode()));
}

// Of a unit of ASCII.
inline ushort CaselessText::folded(ushort usUnit)
{
    return usUnit >= 'A' && usUnit <= 'Z' ? static_cast<ushort>(usUnit + ('a' - 'A')) : usUnit;
}

inline bool CaselessText::beginsAt(const ushort* pWhole) const
{
    const ushort* const pText = m_strFolded.utf16();
    for (int i = 1; i < m_strFolded.size(); ++i) {
        if (folded(pWhole[i]) != pText[i])
            return false;
    }
    return true;
}

bool CaselessText::IsIn(const QString& strWhole) const
{
    // A character outside ASCII may be the other case of one inside.
    if (m_strFolded.isEmpty())
        return strWhole.contains(m_strText, Qt::CaseInsensitive);
    const ushort* const pWhole = strWhole.utf16();
    const int iSize = strWhole.size();
    const int iLastBegin = iSize - m_strFolded.size();
    const ushort usFirst = m_strFolded.at(0).unicode();
    for (int i = 0; i < iSize; ++i) {
        if (pWhole[i] >= ASCII_END)
            return strWhole.contains(m_strText, Qt::CaseInsensitive);
        if (i <= iLastBegin && folded(pWhole[i]) == usFirst && beginsAt(pWhole + i))
            return true;
    }
    return false;
}
