#include <QKeySequence>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include "FakeHost.h"
#include "linkhand/core/Change.h"

namespace
{

const char s_szEnglish[] = "<message><source>IDS_BOTH</source><translation>English both</translation></message>"
                           "<message><source>IDS_BOTH</source><comment>shortcut</comment>"
                           "<translation>Ctrl+N</translation></message>"
                           "<message><source>IDS_ENGLISH</source><translation>English alone</translation></message>"
                           "<message><source>IDS_ENGLISH</source><comment>shortcut</comment>"
                           "<translation>F2</translation></message>"
                           "<message><source>IDS_TEXT</source><translation>No key</translation></message>"
                           "<message><source>IDS_BAD_KEY</source><translation>Bad key</translation></message>"
                           "<message><source>IDS_BAD_KEY</source><comment>shortcut</comment>"
                           "<translation>Ctrl+Nonsense</translation></message>"
                           "<message><source>IDS_BLANKS</source><translation>ends in a blank: </translation></message>";
const char s_szGerman[] = "<message><source>IDS_BOTH</source><translation>Deutsch</translation></message>"
                          "<message><source>IDS_BOTH</source><comment>shortcut</comment>"
                          "<translation>Ctrl+Shift+N</translation></message>"
                          "<message><source>IDS_TEXT</source><translation>Ohne Taste</translation></message>";

const QString s_strPlugin = QLatin1String("Plugin");

} // namespace

class CoreChange : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void textInCurrentLanguage();
    void missingTextFallsBackToEnglishThenToTheId();
    void contextIsThePlugIn();
    void shortcutIsAnEntryOfItsOwn();
    void shortcutFallsBackToEnglish();
    void withoutShortcutTextIsWrittenAndKeyIsEmptied();
    void languageChangesAtRunTime();
    void countryFallsBackToItsLanguage();
    void languageCodeIsNoPath();
    void withoutHostOrFilesIdsCome();
    void blanksAreKept();
    void textAndIdMayBeOneObject();
    void damagedFileDoesNoHarm();

private:
    void compile(const QString& strLanguage, const char* szMessages);
    static QString textOf(const char* szId) { return Change::tr(QLatin1String(szId), s_strPlugin); }

    QTemporaryDir m_folder;
    QScopedPointer<FakeHost> m_pHost;
};

void CoreChange::compile(const QString& strLanguage, const char* szMessages)
{
    const QString strSource = m_folder.filePath(strLanguage + QLatin1String(".ts"));
    QFile file(strSource);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<?xml version=\"1.0\" encoding=\"utf-8\"?><!DOCTYPE TS><TS version=\"2.1\">"
               "<context><name>Plugin</name>");
    file.write(szMessages);
    file.write("</context></TS>");
    file.close();
    const QString strOutput = m_folder.filePath(QLatin1String("linkhand_") + strLanguage + QLatin1String(".qm"));
    QCOMPARE(QProcess::execute(QLatin1String(LRELEASE),
                               {QLatin1String("-silent"), strSource, QLatin1String("-qm"), strOutput}),
             0);
}

void CoreChange::initTestCase()
{
    compile(QLatin1String("en"), s_szEnglish);
    compile(QLatin1String("de"), s_szGerman);
}

void CoreChange::init()
{
    m_pHost.reset(new FakeHost);
    m_pHost->strLanguagesPath = m_folder.path();
}

void CoreChange::cleanup()
{
    m_pHost.reset();
}

void CoreChange::textInCurrentLanguage()
{
    QCOMPARE(textOf("IDS_BOTH"), QString("English both"));
    m_pHost->strLanguage = QLatin1String("de");
    QCOMPARE(textOf("IDS_BOTH"), QString("Deutsch"));
}

void CoreChange::missingTextFallsBackToEnglishThenToTheId()
{
    m_pHost->strLanguage = QLatin1String("de");
    QCOMPARE(textOf("IDS_ENGLISH"), QString("English alone"));
    QCOMPARE(textOf("IDS_NOBODY"), QString("IDS_NOBODY"));
    QCOMPARE(textOf(""), QString(""));
}

void CoreChange::contextIsThePlugIn()
{
    QCOMPARE(Change::tr("IDS_BOTH", "OtherPlugin"), QString("IDS_BOTH"));
}

void CoreChange::shortcutIsAnEntryOfItsOwn()
{
    QString strText;
    QKeySequence key;
    QVERIFY(Change::tr("IDS_BOTH", s_strPlugin, strText, key));
    QCOMPARE(strText, QString("English both"));
    QCOMPARE(key, QKeySequence(Qt::CTRL | Qt::Key_N));
    m_pHost->strLanguage = QLatin1String("de");
    QVERIFY(Change::tr("IDS_BOTH", s_strPlugin, strText, key));
    QCOMPARE(key, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N));
}

void CoreChange::shortcutFallsBackToEnglish()
{
    m_pHost->strLanguage = QLatin1String("de");
    QString strText;
    QKeySequence key;
    QVERIFY(Change::tr("IDS_ENGLISH", s_strPlugin, strText, key));
    QCOMPARE(key, QKeySequence(Qt::Key_F2));
}

void CoreChange::withoutShortcutTextIsWrittenAndKeyIsEmptied()
{
    QString strText;
    QKeySequence key(Qt::Key_F5);
    QVERIFY(!Change::tr("IDS_TEXT", s_strPlugin, strText, key));
    QCOMPARE(strText, QString("No key"));
    QVERIFY(key.isEmpty());

    key = QKeySequence(Qt::Key_F5);
    QVERIFY(!Change::tr("IDS_BAD_KEY", s_strPlugin, strText, key));
    QCOMPARE(strText, QString("Bad key"));
    QVERIFY(key.isEmpty());

    key = QKeySequence(Qt::Key_F5);
    QVERIFY(!Change::tr("IDS_NOBODY", s_strPlugin, strText, key));
    QCOMPARE(strText, QString("IDS_NOBODY"));
    QVERIFY(key.isEmpty());

    // A translation without a key of its own is no key either.
    m_pHost->strLanguage = QLatin1String("de");
    QVERIFY(!Change::tr("IDS_TEXT", s_strPlugin, strText, key));
    QCOMPARE(strText, QString("Ohne Taste"));
}

void CoreChange::languageChangesAtRunTime()
{
    for (int i = 0; i < 3; ++i) {
        m_pHost->strLanguage = QLatin1String("de");
        QCOMPARE(textOf("IDS_TEXT"), QString("Ohne Taste"));
        m_pHost->strLanguage = QLatin1String("en");
        QCOMPARE(textOf("IDS_TEXT"), QString("No key"));
    }
}

void CoreChange::countryFallsBackToItsLanguage()
{
    for (const char* szCode : {"de_CH", "de-AT", "de_DE.UTF-8"}) {
        m_pHost->strLanguage = QLatin1String(szCode);
        QCOMPARE(textOf("IDS_TEXT"), QString("Ohne Taste"));
    }
    m_pHost->strLanguage = QLatin1String("xx_YY");
    QCOMPARE(textOf("IDS_TEXT"), QString("No key"));
}

void CoreChange::languageCodeIsNoPath()
{
    QVERIFY(QDir(m_folder.path()).mkpath(QLatin1String("linkhand_sub")));
    m_pHost->strLanguage = QLatin1String("sub/../linkhand_de");
    QCOMPARE(textOf("IDS_TEXT"), QString("No key"));
}

void CoreChange::withoutHostOrFilesIdsCome()
{
    m_pHost->strLanguagesPath = m_folder.filePath(QLatin1String("absent"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no English texts"));
    QCOMPARE(textOf("IDS_BOTH"), QString("IDS_BOTH"));
    m_pHost.reset();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no English texts"));
    QCOMPARE(textOf("IDS_BOTH"), QString("IDS_BOTH"));
}

void CoreChange::blanksAreKept()
{
    QCOMPARE(textOf("IDS_BLANKS"), QString("ends in a blank: "));
}

void CoreChange::textAndIdMayBeOneObject()
{
    QString strText("IDS_BOTH");
    QKeySequence key;
    QVERIFY(Change::tr(strText, s_strPlugin, strText, key));
    QCOMPARE(strText, QString("English both"));
}

void CoreChange::damagedFileDoesNoHarm()
{
    QFile sound(m_folder.filePath(QLatin1String("linkhand_de.qm")));
    QVERIFY(sound.open(QIODevice::ReadOnly));
    const QByteArray content = sound.readAll();
    const QString strDamaged = m_folder.filePath(QLatin1String("linkhand_xx.qm"));
    const auto check = [&](const QByteArray& damaged) {
        QFile file(strDamaged);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(damaged);
        file.close();
        m_pHost->strLanguage = QLatin1String("xx");
        for (const char* szId : {"IDS_BOTH", "IDS_TEXT", "IDS_ENGLISH"}) {
            QString strText;
            QKeySequence key;
            Change::tr(QLatin1String(szId), s_strPlugin, strText, key);
            QVERIFY(!strText.isEmpty());
        }
        m_pHost->strLanguage = QLatin1String("en");
        QCOMPARE(textOf("IDS_BOTH"), QString("English both"));
    };
    for (int i = 0; i < content.size(); ++i) {
        check(content.left(i));
        for (const int iValue : {0x00, 0x01, 0x03, 0x2f, 0x7f, 0x80, 0x96, 0xff}) {
            QByteArray damaged = content;
            damaged[i] = char(iValue);
            check(damaged);
        }
    }
    QFile::remove(strDamaged);
}

QTEST_GUILESS_MAIN(CoreChange)
#include "core_change.moc"
