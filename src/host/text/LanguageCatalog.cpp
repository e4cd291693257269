#include "text/LanguageCatalog.h"

#include <QDir>
#include <QLocale>
#include <QRegExp>
#include <QStringList>

#include <algorithm>

LanguageCatalog::LanguageCatalog(const QString& strFolder)
{
    // Without a name filter, as for the other folders of a start: Qt makes a regular expression of each, and reads a
    // library for them that nothing else needs.
    foreach (const QString& strFile, QDir(strFolder).entryList(QDir::Files | QDir::Readable, QDir::Name)) {
        LanguageEntry entry;
        entry.strCode = CodeOfFile(strFile);
        if (entry.strCode.isEmpty() || Contains(entry.strCode)) {
            continue;
        }
        entry.strName = NameOf(entry.strCode);
        m_listEntries.append(entry);
    }
    std::sort(m_listEntries.begin(), m_listEntries.end(), [](const LanguageEntry& left, const LanguageEntry& right) {
        return left.strName.localeAwareCompare(right.strName) < 0;
    });
}

bool LanguageCatalog::Contains(const QString& strCode) const
{
    foreach (const LanguageEntry& entry, m_listEntries) {
        if (entry.strCode == strCode) {
            return true;
        }
    }
    return false;
}

QString LanguageCatalog::BestFor(const QString& strWish) const
{
    if (Contains(strWish)) {
        return strWish;
    }
    const QString strLanguage = strWish.section(QLatin1Char('_'), 0, 0);
    foreach (const LanguageEntry& entry, m_listEntries) {
        if (!strLanguage.isEmpty() && entry.strCode.section(QLatin1Char('_'), 0, 0) == strLanguage) {
            return entry.strCode;
        }
    }
    return QLatin1String("en");
}

QString LanguageCatalog::CodeOfFile(const QString& strFileName)
{
    QRegExp pattern(QLatin1String("(?:.*_)?([a-z]{2,3}(?:_[A-Z]{2})?)\\.qm"));
    if (!pattern.exactMatch(strFileName)) {
        return QString();
    }
    // QLocale falls back to C for a code that names no language.
    const QString strCode = pattern.cap(1);
    return QLocale(strCode).language() == QLocale::C ? QString() : strCode;
}

QString LanguageCatalog::NameOf(const QString& strCode)
{
    const QLocale locale(strCode);
    QString strName = locale.nativeLanguageName();
    if (strName.isEmpty()) {
        strName = QLocale::languageToString(locale.language());
    }
    // The default English name carries its country even when the code does not.
    if (!strCode.contains(QLatin1Char('_')) && strName.contains(QLatin1Char(' ')) &&
        locale.language() == QLocale::English) {
        strName = QLatin1String("English");
    }
    if (!strName.isEmpty()) {
        strName[0] = strName.at(0).toUpper();
    }
    return strName;
}
