#include "linkhand/core/Change.h"

#include <QCoreApplication>
#include <QScopedPointer>
#include <QStringList>
#include <QtDebug>

#include <memory>

#include "Catalogue.h"
#include "Host.h"
#include "linkhand/QtCompat.h"

namespace
{

// The two language files in use: the current language's and English behind it. Read again when the host's language or
// folder changes.
class Catalogues
{
public:
    QString text(const QByteArray& strContext, const QByteArray& strId) const
    {
        QString strText;
        if (!m_pCurrent.isNull())
            strText = m_pCurrent->text(strContext, strId);
        if (strText.isEmpty() && !m_pEnglish.isNull())
            strText = m_pEnglish->text(strContext, strId);
        return strText;
    }

    QKeySequence shortcut(const QByteArray& strContext, const QByteArray& strId) const
    {
        QString strKey;
        if (!m_pCurrent.isNull())
            strKey = m_pCurrent->shortcut(strContext, strId);
        if (strKey.isEmpty() && !m_pEnglish.isNull())
            strKey = m_pEnglish->shortcut(strContext, strId);
        return toKey(strKey);
    }

    void refresh()
    {
        HostServices* pServices = Host::services();
        QString strPath = pServices != nullptr ? pServices->LanguagesPath() : QString();
        QString strLanguage = pServices != nullptr ? pServices->Language() : QString();
        if (strPath.isEmpty())
            strPath = QCoreApplication::applicationDirPath() + QLatin1String("/languages");
        if (m_bLoaded && strPath == m_strPath && strLanguage == m_strLanguage)
            return;
        m_bLoaded = true;
        if (strPath != m_strPath) {
            m_strPath = strPath;
            m_pEnglish.reset(open(QLatin1String("en")));
            if (m_pEnglish.isNull())
                qWarning("Change: no English texts in \"%s\"", qPrintable(strPath));
        }
        m_strLanguage = strLanguage;
        m_pCurrent.reset(openBest(strLanguage));
    }

private:
    static QKeySequence toKey(const QString& strKey)
    {
        const QKeySequence key = QKeySequence::fromString(strKey, QKeySequence::PortableText);
        if (key.isEmpty() || QtCompat::firstKey(key) == int(Qt::Key_unknown))
            return QKeySequence();
        return key;
    }

    // The file of a language, or null. The code becomes part of a file name and so may hold nothing but letters,
    // digits and underscores.
    Catalogue* open(const QString& strLanguage) const
    {
        for (int i = 0; i < strLanguage.length(); ++i) {
            if (!strLanguage.at(i).isLetterOrNumber() && strLanguage.at(i) != QLatin1Char('_'))
                return nullptr;
        }
        std::unique_ptr<Catalogue> pCatalogue(new Catalogue);
        const QString strFile = m_strPath + QLatin1String("/linkhand_") + strLanguage + QLatin1String(".qm");
        return pCatalogue->load(strFile) ? pCatalogue.release() : nullptr;
    }

    // "zh-CN" and "zh_CN" are the same; without a file of its own a country's language is the language.
    Catalogue* openBest(const QString& strLanguage) const
    {
        QString strCode = strLanguage.section(QLatin1Char('.'), 0, 0);
        strCode.replace(QLatin1Char('-'), QLatin1Char('_'));
        if (strCode.isEmpty() || strCode == QLatin1String("en"))
            return nullptr;
        Catalogue* pCatalogue = open(strCode);
        if (pCatalogue == nullptr && strCode.contains(QLatin1Char('_')))
            pCatalogue = open(strCode.section(QLatin1Char('_'), 0, 0));
        return pCatalogue;
    }

    bool m_bLoaded = false;
    QString m_strPath;
    QString m_strLanguage;
    QScopedPointer<Catalogue> m_pCurrent; // null while it is English
    QScopedPointer<Catalogue> m_pEnglish;
};

const Catalogues& catalogues()
{
    static Catalogues s_catalogues;
    s_catalogues.refresh();
    return s_catalogues;
}

QString textOf(const Catalogues& files, const QByteArray& strContext, const QString& strId)
{
    const QString strText = strId.isEmpty() ? QString() : files.text(strContext, strId.toUtf8());
    return strText.isEmpty() ? strId : strText;
}

} // namespace

QString Change::tr(const QString& strId, const QString& strPlugin)
{
    return textOf(catalogues(), strPlugin.toUtf8(), strId);
}

bool Change::tr(const QString& strId, const QString& strPlugin, QString& strText, QKeySequence& key)
{
    const Catalogues& files = catalogues();
    const QByteArray strContext = strPlugin.toUtf8();
    // The arguments may be one object in the caller's hands: strId is read before strText is written.
    const QByteArray strSource = strId.toUtf8();
    strText = textOf(files, strContext, strId);
    key = strSource.isEmpty() ? QKeySequence() : files.shortcut(strContext, strSource);
    return !key.isEmpty();
}
