#include <QScopedPointer>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

#include "StandInFolder.h"
#include "loader/PluginContainer.h"
#include "loader/PluginHandle.h"
#include "loader/PluginLoader.h"
#include "loader/TrustedPath.h"
#include "loader/Verification.h"

class TestHostLoader : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void aGoodPluginIsLoaded();
    void brokenPluginsAreRefusedWithTheirReason_data();
    void brokenPluginsAreRefusedWithTheirReason();
    void aFileThatIsNoLibraryIsRefused();
    void aTruncatedLibraryIsRefused();
    void aFileThatOthersMayWriteIsRefused_data();
    void aFileThatOthersMayWriteIsRefused();
    void aFileOfAnotherUserIsRefused();
    void aLinkIsRefused();
    void aFolderThatOthersMayChangeHoldsNoPlugins_data();
    void aFolderThatOthersMayChangeHoldsNoPlugins();
    void aFolderOfAnotherUserHoldsNoPlugins();
    void aRingOfLinksIsWeak();
    void noCodeOfARefusedPluginStays_data();
    void noCodeOfARefusedPluginStays();
    void oneFailureDoesNotStopTheOthers();
    void aSecondPluginWithTheSameIdentifierIsRefused();
    void onlyTheOwnFolderIsRead();
    void aMissingFolderHoldsNoPlugins();
    void theReasonNamesTheDetail();
    void verificationTexts_data();
    void verificationTexts();

private:
    QScopedPointer<StandInFolder> m_pFolder;
};

void TestHostLoader::init()
{
    m_pFolder.reset(new StandInFolder);
    StandInFolder::TakeCalls();
}

void TestHostLoader::aGoodPluginIsLoaded()
{
    Problem problem;
    QScopedPointer<PluginHandle> pHandle(PluginLoader::Load(m_pFolder->Add("StandInPlugin"), problem));
    QVERIFY2(pHandle, qPrintable(problem.strReasonId + problem.strDetail));
    QCOMPARE(pHandle->Name(), QStringLiteral("StandInPlugin"));
    QCOMPARE(pHandle->ClassId(), QString());
    QVERIFY(pHandle->HasWindow());
    QCOMPARE(pHandle->GetState(), PluginHandle::LOADED);
    QVERIFY2(StandInFolder::TakeCalls().isEmpty(), "loading calls nothing");
}

void TestHostLoader::brokenPluginsAreRefusedWithTheirReason_data()
{
    QTest::addColumn<QString>("reason");
    QTest::addColumn<QString>("detail");
    QTest::newRow("OtherQt") << "IDS_HOST_PLUGIN_VERSION"
                             << "4.6.2";
    QTest::newRow("OtherKey") << "IDS_HOST_PLUGIN_BUILDKEY"
                              << "vax bsd pcc";
    QTest::newRow("NoText") << "IDS_HOST_PLUGIN_NO_VERIFICATION" << QString();
    QTest::newRow("MissingSymbol") << "IDS_HOST_PLUGIN_LOAD"
                                   << "aFunctionThatNoLibraryHas";
    QTest::newRow("NoInterface") << "IDS_HOST_PLUGIN_INTERFACE" << QString();
}

void TestHostLoader::brokenPluginsAreRefusedWithTheirReason()
{
    QFETCH(QString, reason);
    QFETCH(QString, detail);
    const QString strName = QString::fromLatin1(QTest::currentDataTag());
    Problem problem;
    QVERIFY(PluginLoader::Load(m_pFolder->Add(strName), problem) == nullptr);
    QCOMPARE(problem.strName, strName);
    QCOMPARE(problem.strReasonId, reason);
    QVERIFY2(problem.strDetail.contains(detail), qPrintable(problem.strDetail));
}

void TestHostLoader::aFileThatIsNoLibraryIsRefused()
{
    Problem problem;
    QVERIFY(PluginLoader::Load(m_pFolder->AddText("Text", "#!/bin/sh\necho hello\n"), problem) == nullptr);
    QCOMPARE(problem.strReasonId, QStringLiteral("IDS_HOST_PLUGIN_NO_LIBRARY"));
    QVERIFY(PluginLoader::Load(m_pFolder->AddText("Empty", ""), problem) == nullptr);
    QCOMPARE(problem.strReasonId, QStringLiteral("IDS_HOST_PLUGIN_NO_LIBRARY"));
}

void TestHostLoader::aTruncatedLibraryIsRefused()
{
    const QString strFile = m_pFolder->Add("StandInPlugin");
    // Debug information stands behind what is loaded, so that a little may be missing.
    foreach (const qint64 iSize, (QList<qint64>() << 20000 << 5000 << 100 << 40 << 4)) {
        QVERIFY(QFile::resize(strFile, iSize));
        Problem problem;
        QVERIFY(PluginLoader::Load(strFile, problem) == nullptr);
        QCOMPARE(problem.strReasonId, QStringLiteral("IDS_HOST_PLUGIN_NO_LIBRARY"));
    }
}

void TestHostLoader::aFileThatOthersMayWriteIsRefused_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("group") << 0664;
    QTest::newRow("others") << 0646;
    QTest::newRow("everybody") << 0777;
}

void TestHostLoader::aFileThatOthersMayWriteIsRefused()
{
    QFETCH(int, mode);
    const QString strFile = m_pFolder->Add("StandInPlugin");
    QCOMPARE(chmod(QFile::encodeName(strFile).constData(), mode_t(mode)), 0);
    Problem problem;
    QVERIFY(PluginLoader::Load(strFile, problem) == nullptr);
    QCOMPARE(problem.strReasonId, QStringLiteral("IDS_HOST_PLUGIN_WRITABLE"));
}

void TestHostLoader::aFileOfAnotherUserIsRefused()
{
    if (geteuid() != 0) {
        QSKIP("only root can give a file away");
    }
    const uid_t uiNobody = 65534;
    const QString strFile = m_pFolder->Add("StandInPlugin");
    QCOMPARE(chown(QFile::encodeName(strFile).constData(), uiNobody, uiNobody), 0);
    Problem problem;
    QVERIFY(PluginLoader::Load(strFile, problem) == nullptr);
    QCOMPARE(problem.strReasonId, QStringLiteral("IDS_HOST_PLUGIN_OWNER"));
}

void TestHostLoader::aLinkIsRefused()
{
    QVERIFY(QFile::link("/nowhere/at/all.so", m_pFolder->Path() + "/libDangling.so"));
    StandInFolder other;
    QVERIFY(QFile::link(other.Add("StandInPlugin"), m_pFolder->Path() + "/libLinked.so"));
    PluginContainer container;
    ProblemList problems;
    PluginLoader(m_pFolder->Path()).LoadAll(container, problems);
    QVERIFY(container.Handles().isEmpty());
    QCOMPARE(problems.size(), 2);
    QCOMPARE(problems.at(0).strReasonId, QStringLiteral("IDS_HOST_PLUGIN_LINK"));
    QCOMPARE(problems.at(1).strReasonId, QStringLiteral("IDS_HOST_PLUGIN_LINK"));
}

void TestHostLoader::aFolderThatOthersMayChangeHoldsNoPlugins_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("trusted");
    QTest::newRow("owner alone") << "" << 0755 << true;
    QTest::newRow("others") << "" << 0757 << false;
    QTest::newRow("everybody") << "" << 0777 << false;
    QTest::newRow("everybody, each his own files") << "" << 01777 << false;
    QTest::newRow("above it, others") << "/above" << 0757 << false;
    QTest::newRow("above it, each his own files") << "/above" << 01777 << true;
}

void TestHostLoader::aFolderThatOthersMayChangeHoldsNoPlugins()
{
    QFETCH(QString, folder);
    QFETCH(int, mode);
    QFETCH(bool, trusted);
    const QTemporaryDir top;
    const QString strAbove = top.filePath("above");
    const QString strPlugins = strAbove + "/plugins";
    QVERIFY(QDir().mkpath(strPlugins));
    QVERIFY(QFile::copy(m_pFolder->Add("StandInPlugin"), strPlugins + "/libStandInPlugin.so"));
    const QByteArray changed = QFile::encodeName(folder.isEmpty() ? strPlugins : strAbove);
    QCOMPARE(chmod(changed.constData(), mode_t(mode)), 0);
    PluginContainer container;
    ProblemList problems;
    // Also by a link that nobody else may change.
    const QString strLink = top.filePath("link");
    QVERIFY(QFile::link(strPlugins, strLink));
    PluginLoader(strLink).LoadAll(container, problems);
    QCOMPARE(container.Handles().size(), trusted ? 1 : 0);
    QCOMPARE(problems.size(), trusted ? 0 : 1);
    if (!trusted) {
        QCOMPARE(problems.first().strReasonId, QStringLiteral("IDS_HOST_PLUGIN_FOLDER"));
        QCOMPARE(problems.first().strName, QFile::decodeName(changed));
    }
}

void TestHostLoader::aFolderOfAnotherUserHoldsNoPlugins()
{
    if (geteuid() != 0) {
        QSKIP("only root can give a folder away");
    }
    const uid_t uiNobody = 65534;
    const QTemporaryDir top;
    const QString strPlugins = top.filePath("plugins");
    QVERIFY(QDir().mkpath(strPlugins));
    const QByteArray plugins = QFile::encodeName(strPlugins);
    const QByteArray link = QFile::encodeName(top.filePath("link"));
    QVERIFY(QFile::link(strPlugins, top.filePath("link")));
    QCOMPARE(TrustedPath::WeakFolder(top.filePath("link")), QString());
    QCOMPARE(lchown(link.constData(), uiNobody, uiNobody), 0);
    QCOMPARE(TrustedPath::WeakFolder(top.filePath("link")), top.filePath("link"));
    QCOMPARE(TrustedPath::WeakFolder(strPlugins), QString());
    QCOMPARE(chown(plugins.constData(), uiNobody, uiNobody), 0);
    QCOMPARE(TrustedPath::WeakFolder(strPlugins), strPlugins);
    // A group of others; a group of this user alone is the user.
    QCOMPARE(chown(plugins.constData(), 0, uiNobody), 0);
    QCOMPARE(chmod(plugins.constData(), 0775), 0);
    QCOMPARE(TrustedPath::WeakFolder(strPlugins), strPlugins);
}

void TestHostLoader::aRingOfLinksIsWeak()
{
    const QTemporaryDir top;
    QVERIFY(QFile::link(top.filePath("b"), top.filePath("a")));
    QVERIFY(QFile::link(top.filePath("a"), top.filePath("b")));
    QVERIFY(!TrustedPath::WeakFolder(top.filePath("a")).isEmpty());
    QVERIFY(QDir(top.path()).mkdir("c"));
    QCOMPARE(TrustedPath::WeakFolder(top.filePath("c/../c/.")), QString());
}

void TestHostLoader::noCodeOfARefusedPluginStays_data()
{
    QTest::addColumn<bool>("ran");
    QTest::newRow("OtherQt") << false;
    QTest::newRow("OtherKey") << false;
    QTest::newRow("NoText") << false;
    QTest::newRow("RunTimeText") << false; // the file must show it
    QTest::newRow("OtherText") << true;
    QTest::newRow("NoInterface") << false;
}

void TestHostLoader::noCodeOfARefusedPluginStays()
{
    QFETCH(bool, ran);
    qApp->setProperty("standin.loaded", QVariant());
    Problem problem;
    const QString strFile = m_pFolder->Add(QString::fromLatin1(QTest::currentDataTag()), "NeverMapped");
    QVERIFY(PluginLoader::Load(strFile, problem) == nullptr);
    QCOMPARE(qApp->property("standin.loaded").toBool(), ran);
    QFile maps("/proc/self/maps");
    QVERIFY(maps.open(QIODevice::ReadOnly));
    QVERIFY(!maps.readAll().contains("libNeverMapped.so"));
}

void TestHostLoader::oneFailureDoesNotStopTheOthers()
{
    m_pFolder->AddText("AAA", "first and broken");
    m_pFolder->Add("OtherQt");
    m_pFolder->Add("StandInPlugin");
    m_pFolder->Add("StandInWithId");
    PluginContainer container;
    ProblemList problems;
    PluginLoader(m_pFolder->Path()).LoadAll(container, problems);
    QCOMPARE(container.Handles().size(), 2);
    QCOMPARE(problems.size(), 2);
    QCOMPARE(problems.at(0).strName, QStringLiteral("AAA"));
    QCOMPARE(problems.at(1).strName, QStringLiteral("OtherQt"));
}

void TestHostLoader::aSecondPluginWithTheSameIdentifierIsRefused()
{
    m_pFolder->Add("StandInWithId");
    m_pFolder->Add("StandInTwice");
    PluginContainer container;
    ProblemList problems;
    PluginLoader(m_pFolder->Path()).LoadAll(container, problems);
    QCOMPARE(container.Handles().size(), 1);
    QCOMPARE(container.Handles().first()->Name(), QStringLiteral("StandInTwice"));
    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.first().strName, QStringLiteral("StandInWithId"));
    QCOMPARE(problems.first().strReasonId, QStringLiteral("IDS_HOST_PLUGIN_TWICE"));
}

void TestHostLoader::onlyTheOwnFolderIsRead()
{
    m_pFolder->Add("StandInPlugin");
    QVERIFY(QDir(m_pFolder->Path()).mkdir("below"));
    QVERIFY(QFile::copy(m_pFolder->Path() + "/libStandInPlugin.so", m_pFolder->Path() + "/below/libStandInWithId.so"));
    QVERIFY(QFile::copy(m_pFolder->Path() + "/libStandInPlugin.so", m_pFolder->Path() + "/StandIn.dll"));
    QCOMPARE(PluginLoader(m_pFolder->Path()).Files(), QStringList(m_pFolder->Path() + "/libStandInPlugin.so"));
}

void TestHostLoader::aMissingFolderHoldsNoPlugins()
{
    PluginContainer container;
    ProblemList problems;
    PluginLoader(m_pFolder->Path() + "/none").LoadAll(container, problems);
    QVERIFY(container.Handles().isEmpty());
    QVERIFY(problems.isEmpty());
}

void TestHostLoader::theReasonNamesTheDetail()
{
    // Without language files the id itself stands for the text.
    const Problem problem("A", "Built for %1.", "4.6.2");
    QCOMPARE(problem.Reason(), QStringLiteral("Built for 4.6.2."));
    QCOMPARE(Problem("A", "No detail.", "unused").Reason(), QStringLiteral("No detail."));
}

void TestHostLoader::verificationTexts_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("valid");
    const QByteArray pattern = "pattern=QT_PLUGIN_VERIFICATION_DATA\n";
    QTest::newRow("whole") << pattern + "version=5.15.8\ndebug=false\nbuildkey=x y z" << true;
    QTest::newRow("line end behind it") << pattern + "version=5.15.8\ndebug=false\nbuildkey=x\n" << true;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("pattern alone") << pattern << false;
    QTest::newRow("no key") << pattern + "version=5.15.8\ndebug=false\n" << false;
    QTest::newRow("no version") << pattern + "buildkey=x" << false;
    QTest::newRow("another pattern") << QByteArray("pattern=OTHER\nversion=5\nbuildkey=x") << false;
}

void TestHostLoader::verificationTexts()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, valid);
    Verification verification;
    QCOMPARE(verification.Parse(text), valid);
}

QTEST_MAIN(TestHostLoader)
#include "test_host_loader.moc"
