#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include "FakeHost.h"
#include "linkhand/core/Change.h"

// Which file a language code leads to.
class CoreLanguageCodes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { m_pHost.reset(); }

    void encodingAndHyphenPlayNoPart_data();
    void encodingAndHyphenPlayNoPart();
    void codeWithASlashLeadsIntoNoFolder();
    void fileBeyondTheLimitIsNotRead();

private:
    static QString cancel()
    {
        return Change::tr(QLatin1String("IDS_BUTTON_CANCEL"), QLatin1String("AddrBookUIPlugin"));
    }

    QTemporaryDir m_folder;
    QScopedPointer<FakeHost> m_pHost;
};

void CoreLanguageCodes::initTestCase()
{
    const FakeHost host;
    const QString strGerman = host.strLanguagesPath + "/linkhand_de.qm";
    QVERIFY(QFile::copy(host.strLanguagesPath + "/linkhand_en.qm", m_folder.filePath("linkhand_en.qm")));
    QVERIFY(QFile::copy(strGerman, m_folder.filePath("linkhand_de.qm")));
    // Where the code "sub/de" would lead as a part of a path.
    QVERIFY(QDir(m_folder.path()).mkpath("linkhand_sub"));
    QVERIFY(QFile::copy(strGerman, m_folder.filePath("linkhand_sub/de.qm")));
    QVERIFY(QFile::copy(strGerman, m_folder.filePath("linkhand_xx.qm")));
}

void CoreLanguageCodes::init()
{
    m_pHost.reset(new FakeHost);
    m_pHost->strLanguagesPath = m_folder.path();
    QCOMPARE(cancel(), QString("Cancel"));
}

void CoreLanguageCodes::encodingAndHyphenPlayNoPart_data()
{
    QTest::addColumn<QString>("code");
    for (const char* szCode : {"de", "de.UTF-8", "de_DE", "de-DE", "de_DE.ISO-8859-1", "de_AT.UTF-8@euro"})
        QTest::newRow(szCode) << QString::fromLatin1(szCode);
}

void CoreLanguageCodes::encodingAndHyphenPlayNoPart()
{
    QFETCH(QString, code);
    m_pHost->strLanguage = code;
    QCOMPARE(cancel(), QString("Abbrechen"));
}

void CoreLanguageCodes::codeWithASlashLeadsIntoNoFolder()
{
    m_pHost->strLanguage = QLatin1String("sub/de");
    QCOMPARE(cancel(), QString("Cancel"));
}

void CoreLanguageCodes::fileBeyondTheLimitIsNotRead()
{
    m_pHost->strLanguage = QLatin1String("xx");
    QCOMPARE(cancel(), QString("Abbrechen"));
    // Zeros behind its end change nothing of what the file says.
    QFile file(m_folder.filePath("linkhand_xx.qm"));
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(file.resize(8 * 1024 * 1024));
    m_pHost->strLanguage = QLatin1String("en");
    QCOMPARE(cancel(), QString("Cancel"));
    m_pHost->strLanguage = QLatin1String("xx");
    QCOMPARE(cancel(), QString("Abbrechen"));
    QVERIFY(file.resize(8 * 1024 * 1024 + 1));
    m_pHost->strLanguage = QLatin1String("en");
    QCOMPARE(cancel(), QString("Cancel"));
    m_pHost->strLanguage = QLatin1String("xx");
    QCOMPARE(cancel(), QString("Cancel"));
}

QTEST_MAIN(CoreLanguageCodes)
#include "core_languagecodes.moc"
