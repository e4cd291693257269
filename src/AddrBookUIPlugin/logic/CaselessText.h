#ifndef ADDRBOOKUIPLUGIN_CASELESSTEXT_H
#define ADDRBOOKUIPLUGIN_CASELESSTEXT_H

#include <QString>

// A text to be looked for in many others, whatever the case of letters: the same answer as
// QString::contains(text, Qt::CaseInsensitive), which looks up each character of each text among all of Unicode. Most
// texts are plain ASCII, where a comparison does.
class CaselessText
{
public:
    explicit CaselessText(const QString& strText);

    bool IsIn(const QString& strWhole) const;

private:
    static ushort folded(ushort usUnit);
    bool beginsAt(const ushort* pWhole) const;

    const QString m_strText;
    QString m_strFolded; // of an ASCII text, else null
};

#endif // ADDRBOOKUIPLUGIN_CASELESSTEXT_H
