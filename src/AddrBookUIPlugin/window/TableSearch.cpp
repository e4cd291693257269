#include "window/TableSearch.h"

TableSearch TableSearch::Reloading(const QString& strText)
{
    TableSearch search;
    search.m_enState = RELOADING;
    search.m_strText = strText;
    return search;
}

void TableSearch::Narrow(const QString& strText)
{
    m_strText = strText;
    // A reader that filters goes on to do so, by the new text.
    if (m_enState == IDLE)
        m_enState = NARROWING;
}

bool TableSearch::LetsIn(const AddrBookRecord& record, int iColumnCount) const
{
    return m_enState != RELOADING || Holds(record, iColumnCount, m_strText);
}

bool TableSearch::Holds(const AddrBookRecord& record, int iColumnCount, const QString& strText)
{
    const int iCount = qMin(iColumnCount, record.lstValues.size());
    for (int i = 0; i < iCount; ++i) {
        if (record.lstValues.at(i).contains(strText, Qt::CaseInsensitive))
            return true;
    }
    // A record without values has nothing that could hold a text, but holds the empty one.
    return strText.isEmpty();
}

bool TableSearch::EndRead()
{
    const bool bUnseen = m_bReading && m_enState == NARROWING;
    m_bReading = false;
    if (m_enState == RELOADING)
        m_enState = m_strText.isEmpty() ? IDLE : NARROWING;
    return bUnseen;
}
