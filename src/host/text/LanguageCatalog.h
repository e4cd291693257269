#ifndef LINKHAND_HOST_LANGUAGECATALOG_H
#define LINKHAND_HOST_LANGUAGECATALOG_H

#include <QList>
#include <QString>

struct LanguageEntry {
    QString strCode; // such as "en" or "zh_CN"
    QString strName; // in the language itself
};

// The languages for which a compiled file lies in the languages folder, "<code>.qm" or "<anything>_<code>.qm".
class LanguageCatalog
{
public:
    explicit LanguageCatalog(const QString& strFolder);

    // Sorted by name.
    const QList<LanguageEntry>& Entries() const { return m_listEntries; }

    bool Contains(const QString& strCode) const;

    // The entry for a wish such as "de_AT": itself, else another with the same language, else "en".
    QString BestFor(const QString& strWish) const;

    // The code in a file name without its folder, empty if there is none.
    static QString CodeOfFile(const QString& strFileName);

    // The language's name in the language itself.
    static QString NameOf(const QString& strCode);

private:
    QList<LanguageEntry> m_listEntries;
};

#endif // LINKHAND_HOST_LANGUAGECATALOG_H
