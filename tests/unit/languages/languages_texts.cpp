#include <QDirIterator>
#include <QKeySequence>
#include <QMap>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QtTest>

#include "../core/FakeHost.h"
#include "linkhand/QtCompat.h"
#include "linkhand/core/Change.h"

namespace
{

const char s_szPhonebook[] = "AddrBookUIPlugin";
const char s_szHost[] = "linkhand";

// The ids of the nine shortcuts of the phonebook's window, which share one scope.
const char* const s_windowIds[] = {"IDS_PMMENU_SEND_MSG", "IDS_PMMENU_SEND_MMS", "IDS_PMMENU_ADD",
                                   "IDS_PMMENU_DETAIL",   "IDS_PMMENU_DELETE",   "IDS_PMTOOLBAR_SEARCH",
                                   "IDS_PMMENU_CALL",     "IDS_Add_GROUP",       "IDS_EDIT_GROUP"};

// Other ids that name the same action in a tooltip or in the tree's menu, and so show the same key.
const char* const s_sameAction[][2] = {
    {"IDS_PMBTN_ADD", "IDS_PMMENU_ADD"},       {"IDS_EDIT_LINKMAN", "IDS_PMMENU_DETAIL"},
    {"IDS_PMBTN_DELETE", "IDS_PMMENU_DELETE"}, {"IDS_PMBTN_CALL", "IDS_PMMENU_CALL"},
    {"IDS_DEL_GROUP", "IDS_PMMENU_DELETE"},    {"IDS_SEND_MSG", "IDS_PMMENU_SEND_MSG"},
    {"IDS_SEND_MMS", "IDS_PMMENU_SEND_MMS"}};

struct Entry {
    QString strText;
    QString strKey;
    bool bHasText = false;
};

using Context = QMap<QString, Entry>;
using Language = QMap<QString, Context>;

QString sourceFolder()
{
    return qEnvironmentVariable("LINKHAND_SOURCE_DIR");
}

QByteArray content(const QString& strFile)
{
    QFile file(strFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Language readLanguage(const QString& strFile, QStringList& lstProblems)
{
    Language language;
    QXmlStreamReader reader(content(strFile));
    QString strContext, strSource, strComment;
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement())
            continue;
        if (reader.name() == QLatin1String("name")) {
            strContext = reader.readElementText();
        } else if (reader.name() == QLatin1String("message")) {
            strComment.clear();
        } else if (reader.name() == QLatin1String("source")) {
            strSource = reader.readElementText();
        } else if (reader.name() == QLatin1String("comment")) {
            strComment = reader.readElementText();
        } else if (reader.name() == QLatin1String("translation")) {
            if (reader.attributes().hasAttribute(QLatin1String("type")))
                lstProblems += strFile + ": unfinished " + strSource;
            Entry& entry = language[strContext][strSource];
            QString& strTarget = strComment == QLatin1String("shortcut") ? entry.strKey : entry.strText;
            if (!strTarget.isEmpty())
                lstProblems += strFile + ": twice " + strSource + " " + strComment;
            strTarget = reader.readElementText();
            if (strTarget.isEmpty() || (!strComment.isEmpty() && strComment != QLatin1String("shortcut")))
                lstProblems += strFile + ": odd entry " + strSource;
            entry.bHasText = entry.bHasText || strComment.isEmpty();
        }
    }
    if (reader.hasError())
        lstProblems += strFile + ": " + reader.errorString();
    return language;
}

// The contexts that a file of the sources may take its texts from.
QStringList contextsOf(const QString& strFile, const Language& english)
{
    const QString strPath = QDir(sourceFolder()).relativeFilePath(strFile);
    if (strPath == "src/host/window/PhonebookKeys.h")
        return {s_szPhonebook}; // the list of all keys shows those of its plug-in
    if (strPath.startsWith("src/host/") || strPath.startsWith("src/core/"))
        return {s_szHost};
    if (!strPath.startsWith("src/siblings/"))
        return {s_szPhonebook};
    // A sibling's context is its plug-in's name; what siblings share asks for the texts of each.
    const QString strRoom = sourceFolder() + "/src/siblings/" + strPath.section('/', 2, 2);
    const QRegularExpressionMatch match =
        QRegularExpression("linkhand_plugin\\((\\w+)").match(content(strRoom + "/CMakeLists.txt"));
    if (match.hasMatch())
        return {match.captured(1)};
    QStringList lstResult = english.keys();
    lstResult.removeAll(s_szPhonebook);
    return lstResult;
}

QStringList placeholders(const QString& strText)
{
    QStringList lstResult;
    QRegularExpressionMatchIterator it = QRegularExpression("%(\\d|L\\d|s|d|n)").globalMatch(strText);
    while (it.hasNext())
        lstResult += it.next().captured();
    lstResult.sort();
    return lstResult;
}

} // namespace

class LanguagesTexts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyIdInUseHasAText();
    void theLanguagesAreComplete();
    void nothingIsLeftInEnglish();
    void placeholdersStay();
    void textsAreFinishedWording();
    void marksAreThoseOfTheLanguage();
    void aCopyCountsEntriesAndNoContacts();
    void shortcutsAreKeys();
    void windowShortcutsDoNotCollide_data();
    void windowShortcutsDoNotCollide();
    void compiledFilesGiveTheseTexts();

private:
    Language m_english;
    QMap<QString, Language> m_languages; // English with them, by code
};

void LanguagesTexts::initTestCase()
{
    QStringList lstProblems;
    const QDir folder(sourceFolder() + "/languages");
    for (const QString& strFile : folder.entryList({"linkhand_*.ts"})) {
        const QString strCode = strFile.mid(9, strFile.length() - 12);
        m_languages.insert(strCode, readLanguage(folder.filePath(strFile), lstProblems));
    }
    QVERIFY2(lstProblems.isEmpty(), qPrintable(lstProblems.join("\n")));
    QVERIFY(m_languages.contains("en"));
    m_english = m_languages.value("en");
}

void LanguagesTexts::everyIdInUseHasAText()
{
    const QRegularExpression idInQuotes("\"((?:IDS|ID_STR)_[A-Za-z0-9_]+)\"");
    QStringList lstMissing;
    int iIds = 0;
    for (const char* szFolder : {"/src", "/plugins"}) {
        QDirIterator files(sourceFolder() + szFolder, {"*.cpp", "*.h", "*.c", "*.xml"}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString strFile = files.next();
            const QStringList lstContexts = contextsOf(strFile, m_english);
            QRegularExpressionMatchIterator it = idInQuotes.globalMatch(content(strFile));
            while (it.hasNext()) {
                const QString strId = it.next().captured(1);
                ++iIds;
                bool bFound = false;
                for (const QString& strContext : lstContexts) {
                    const Context& context = m_english[strContext];
                    // A name that ends in an underline is the beginning of several.
                    const auto at = context.lowerBound(strId);
                    bFound = bFound || (at != context.end() && at->bHasText &&
                                        (at.key() == strId || (strId.endsWith('_') && at.key().startsWith(strId))));
                }
                if (!bFound)
                    lstMissing += strFile + ": " + strId + " in " + lstContexts.join(" or ");
            }
        }
    }
    QVERIFY2(lstMissing.isEmpty(), qPrintable(lstMissing.join("\n")));
    QVERIFY(iIds > 25);
    // Message boxes take the texts of their buttons from the host.
    for (const char* szId : {"IDS_OK", "IDS_CANCEL"})
        QVERIFY(m_english[s_szHost][szId].bHasText);
}

void LanguagesTexts::theLanguagesAreComplete()
{
    QCOMPARE(m_languages.keys(), QStringList({"ar", "de", "en", "zh_CN"}));
    QStringList lstProblems;
    for (auto language = m_languages.begin(); language != m_languages.end(); ++language) {
        QCOMPARE(language->keys(), m_english.keys());
        for (auto context = language->begin(); context != language->end(); ++context) {
            const Context& english = m_english[context.key()];
            for (const QString& strId : context->keys() + english.keys()) {
                const Entry entry = context->value(strId);
                const Entry original = english.value(strId);
                if (!english.contains(strId) || !context->contains(strId) || entry.bHasText != original.bHasText ||
                    entry.strKey.isEmpty() != original.strKey.isEmpty())
                    lstProblems += language.key() + ": " + context.key() + " " + strId;
            }
        }
    }
    QVERIFY2(lstProblems.isEmpty(), qPrintable(lstProblems.join("\n")));
}

// A sentence that was left in English is long and the same; short words may well be the same in two languages.
void LanguagesTexts::nothingIsLeftInEnglish()
{
    for (auto language = m_languages.begin(); language != m_languages.end(); ++language) {
        if (language.key() == "en")
            continue;
        for (auto context = language->begin(); context != language->end(); ++context) {
            for (auto entry = context->begin(); entry != context->end(); ++entry) {
                const QString strEnglish = m_english[context.key()][entry.key()].strText;
                QVERIFY2(!strEnglish.contains(' ') || entry->strText != strEnglish, qPrintable(entry.key()));
            }
        }
    }
}

void LanguagesTexts::placeholdersStay()
{
    for (auto language = m_languages.begin(); language != m_languages.end(); ++language) {
        const Context& phonebook = (*language)[s_szPhonebook];
        QCOMPARE(placeholders(phonebook["IDS_SIM"].strText), QStringList() << "%s");
        // Only what stands in front of the second placeholder is shown.
        const QString strCounts = phonebook["IDS_STR_STATINFORMATION"].strText;
        QCOMPARE(strCounts.count("%d"), 2);
        QVERIFY(strCounts.endsWith("%d"));
        for (auto context = language->begin(); context != language->end(); ++context) {
            for (auto entry = context->begin(); entry != context->end(); ++entry) {
                if (entry->bHasText)
                    QCOMPARE(placeholders(entry->strText), placeholders(m_english[context.key()][entry.key()].strText));
            }
        }
    }
}

void LanguagesTexts::textsAreFinishedWording()
{
    // Texts that a number follows directly bring their own blank, or a wide colon that needs none.
    const QRegularExpression ready(QString::fromUtf8(": $|：$"));
    for (Language& language : m_languages) {
        for (const char* szId : {"IDS_TOTAL_COUNT", "IDS_SUCCESS_COUNT", "IDS_IMPORT_TOTAL_NUMBER",
                                 "IDS_IMPORT_IMPORTED_NUMBER", "IDS_IMPORT_DEVICEFULL", "IDS_MOVE_REC_DEV_FULL"})
            QVERIFY2(language[s_szPhonebook][szId].strText.contains(ready), szId);
    }
    for (auto language = m_languages.begin(); language != m_languages.end(); ++language) {
        for (auto context = language->begin(); context != language->end(); ++context) {
            for (auto entry = context->begin(); entry != context->end(); ++entry) {
                QVERIFY2(!entry->strText.startsWith("ID"), qPrintable(entry.key()));
                QVERIFY2(!entry->strText.contains("TODO"), qPrintable(entry.key()));
                QVERIFY2(!entry->strText.contains("  "), qPrintable(entry.key()));
                // A key that reads like its text cannot be told from no key.
                QVERIFY2(entry->strKey.isEmpty() || entry->strKey != entry->strText, qPrintable(entry.key()));
            }
        }
    }
}

// One sign for three dots, which stands apart in German, and marks of quotation that are no inches.
void LanguagesTexts::marksAreThoseOfTheLanguage()
{
    const QString strDots(QChar(0x2026));
    QStringList lstProblems;
    for (auto language = m_languages.begin(); language != m_languages.end(); ++language) {
        const bool bApart = language.key() == "de";
        for (auto context = language->begin(); context != language->end(); ++context) {
            for (auto entry = context->begin(); entry != context->end(); ++entry) {
                const QString& strText = entry->strText;
                const bool bDots = strText.contains(strDots);
                if (strText.contains("...") || strText.contains('"') || strText.contains('\'') ||
                    bDots != m_english[context.key()][entry.key()].strText.contains(strDots) ||
                    (bDots && strText.contains(' ' + strDots) != bApart))
                    lstProblems += language.key() + ": " + context.key() + " " + entry.key() + ": " + strText;
            }
        }
    }
    QVERIFY2(lstProblems.isEmpty(), qPrintable(lstProblems.join("\n")));
}

// A contact with three numbers is three entries of a card.
void LanguagesTexts::aCopyCountsEntriesAndNoContacts()
{
    const QMap<QString, QString> contacts{{"en", "contact"},
                                          {"de", "kontakt"},
                                          {"ar", QString::fromUtf8("جهات الاتصال")},
                                          {"zh_CN", QString::fromUtf8("联系人")}};
    QCOMPARE(contacts.keys(), m_languages.keys());
    for (auto language = m_languages.begin(); language != m_languages.end(); ++language) {
        Context& phonebook = (*language)[s_szPhonebook];
        const QString strWord = contacts.value(language.key());
        QVERIFY(phonebook["IDS_IMPORT_TOTAL_NUMBER"].strText.contains(strWord, Qt::CaseInsensitive));
        for (const char* szId : {"IDS_TOTAL_COUNT", "IDS_MOVE_REC_DEV_FULL"})
            QVERIFY2(!phonebook[szId].strText.contains(strWord, Qt::CaseInsensitive), szId);
    }
}

void LanguagesTexts::shortcutsAreKeys()
{
    for (const Language& language : qAsConst(m_languages)) {
        for (const Context& context : language) {
            for (const Entry& entry : context) {
                if (entry.strKey.isEmpty())
                    continue;
                const QKeySequence key = QKeySequence::fromString(entry.strKey, QKeySequence::PortableText);
                QCOMPARE(key.count(), 1);
                QVERIFY2(QtCompat::firstKey(key) != Qt::Key_unknown, qPrintable(entry.strKey));
                QCOMPARE(key.toString(QKeySequence::PortableText), entry.strKey);
            }
        }
    }
}

void LanguagesTexts::windowShortcutsDoNotCollide_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& strCode : m_languages.keys())
        QTest::newRow(qPrintable(strCode)) << strCode;
}

void LanguagesTexts::windowShortcutsDoNotCollide()
{
    QFETCH(QString, language);
    FakeHost host;
    host.strLanguage = language;
    QMap<QString, QString> keys; // the key's owner
    QMap<QString, QKeySequence> owners;
    for (const char* szId : s_windowIds) {
        QString strText;
        QKeySequence key;
        QVERIFY2(Change::tr(szId, s_szPhonebook, strText, key), szId);
        const QString strKey = key.toString();
        QVERIFY2(!keys.contains(strKey), qPrintable(QString("%1: %2 and %3").arg(strKey, szId, keys[strKey])));
        keys.insert(strKey, szId);
        owners.insert(szId, key);
    }
    // These belong to the table itself.
    for (const char* szKey : {"Return", "Ctrl+Return", "Ctrl+O", "Ctrl+S"})
        QVERIFY2(!keys.contains(szKey), szKey);

    // Whatever else shows a key shows that of its action, or one that is free.
    QMap<QString, QString> sameAction;
    for (const auto& pair : s_sameAction)
        sameAction.insert(pair[0], pair[1]);
    for (auto entry = m_english[s_szPhonebook].begin(); entry != m_english[s_szPhonebook].end(); ++entry) {
        QString strText;
        QKeySequence key;
        if (owners.contains(entry.key()) || !Change::tr(entry.key(), s_szPhonebook, strText, key))
            continue;
        if (sameAction.contains(entry.key()))
            QCOMPARE(key, owners.value(sameAction.value(entry.key())));
        else
            QVERIFY2(!keys.contains(key.toString()), qPrintable(entry.key()));
    }
}

void LanguagesTexts::compiledFilesGiveTheseTexts()
{
    FakeHost host;
    for (auto language = m_languages.begin(); language != m_languages.end(); ++language) {
        host.strLanguage = language.key();
        for (auto context = language->begin(); context != language->end(); ++context) {
            for (auto entry = context->begin(); entry != context->end(); ++entry) {
                QString strText;
                QKeySequence key;
                Change::tr(entry.key(), context.key(), strText, key);
                if (entry->bHasText)
                    QCOMPARE(strText, entry->strText);
                if (!entry->strKey.isEmpty())
                    QCOMPARE(key.toString(QKeySequence::PortableText), entry->strKey);
            }
        }
    }
}

QTEST_MAIN(LanguagesTexts)
#include "languages_texts.moc"
