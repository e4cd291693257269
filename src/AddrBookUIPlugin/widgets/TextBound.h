#ifndef ADDRBOOKUIPLUGIN_TEXTBOUND_H
#define ADDRBOOKUIPLUGIN_TEXTBOUND_H

#include <QFontMetrics>
#include <QString>
#include <QVector>

// How wide a text can be at most: a look at a table for each character, where to lay the text out takes a hundred times
// as long. A column that only widens asks here first. User-interface thread.
class TextBound
{
public:
    explicit TextBound(const QFontMetrics& metrics);

    // Never less than the text is wide; -1 where characters join or change each other, so that only the layout can say.
    int Most(const QFontMetrics& metrics, const QString& strText);

private:
    int of(ushort usUnit);

    QFontMetrics m_metrics;
    QVector<int> m_lstWidths; // 0: not asked for yet
};

#endif // ADDRBOOKUIPLUGIN_TEXTBOUND_H
