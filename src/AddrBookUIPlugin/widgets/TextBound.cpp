#include "widgets/TextBound.h"

#include "linkhand/QtCompat.h"

namespace
{
const ushort FIRST = 0x20;
const ushort END = 0x250; // Latin letters; behind them marks begin that combine
const int SLACK = 8;      // of a height: a width is rounded, and a pair of letters may move apart
} // namespace

TextBound::TextBound(const QFontMetrics& metrics) : m_metrics(metrics) {}

int TextBound::of(ushort usUnit)
{
    if (m_lstWidths.isEmpty())
        m_lstWidths.fill(0, END);
    int& iWidth = m_lstWidths[usUnit];
    if (iWidth == 0)
        iWidth = QtCompat::textWidth(m_metrics, QString(QChar(usUnit))) + qMax(2, m_metrics.height() / SLACK);
    return iWidth;
}

int TextBound::Most(const QFontMetrics& metrics, const QString& strText)
{
    if (metrics != m_metrics) {
        m_metrics = metrics;
        m_lstWidths.clear();
    }
    int iMost = 0;
    for (int i = 0; i < strText.size(); ++i) {
        const ushort usUnit = strText.at(i).unicode();
        if (usUnit < FIRST || usUnit >= END)
            return -1;
        iMost += of(usUnit);
    }
    return iMost;
}
