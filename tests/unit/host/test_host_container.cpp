#include <QScopedPointer>
#include <QtTest>

#include "StandInFolder.h"
#include "linkhand/plugin/IAddrBookUIPlugin.h"
#include "linkhand/plugin/IUIPlugin.h"
#include "loader/PluginContainer.h"
#include "loader/PluginHandle.h"
#include "loader/PluginLoader.h"

namespace
{

const char* const CLASS_ID = "11111111-2222-3333-4444-555555555555";

} // namespace

class TestHostContainer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void kindZeroGivesTheRootObject();
    void aKindIsAskedOfThePlugin();
    void aPluginWithoutAnIdentifierIsFoundByName();
    void aPluginWithAnIdentifierIsNotFoundByName();
    void unknownIdentifiersAndKindsGiveNull_data();
    void unknownIdentifiersAndKindsGiveNull();
    void aPluginThatFailedToStartIsAbsent();
    void aDestroyedPluginServesNothing();
    void theContainerDeletesTheRootObjects();

private:
    QScopedPointer<StandInFolder> m_pFolder;
    QScopedPointer<PluginContainer> m_pContainer;
};

void TestHostContainer::init()
{
    qApp->setProperty("standin.initFails", QVariant());
    m_pFolder.reset(new StandInFolder);
    m_pFolder->Add("StandInWithId");
    m_pFolder->Add("AddrBookStandIn");
    m_pContainer.reset(new PluginContainer);
    ProblemList problems;
    PluginLoader(m_pFolder->Path()).LoadAll(*m_pContainer, problems);
    QVERIFY(problems.isEmpty());
}

void TestHostContainer::cleanup()
{
    m_pContainer.reset();
    qApp->setProperty("standin.initFails", QVariant());
}

void TestHostContainer::kindZeroGivesTheRootObject()
{
    QObject* pRoot = m_pContainer->GetPlugin(CLASS_ID, 0);
    QVERIFY(qobject_cast<IUIPlugin*>(pRoot) != nullptr);
    QCOMPARE(pRoot, m_pContainer->GetPlugin(CLASS_ID, 0));
}

void TestHostContainer::aKindIsAskedOfThePlugin()
{
    QObject* pService = m_pContainer->GetPlugin(CLASS_ID, 4097);
    QVERIFY(qobject_cast<IAddrBookUIPlugin*>(pService) != nullptr);
    QVERIFY(pService != m_pContainer->GetPlugin(CLASS_ID, 0));
}

void TestHostContainer::aPluginWithoutAnIdentifierIsFoundByName()
{
    QVERIFY(qobject_cast<IAddrBookUIPlugin*>(m_pContainer->GetPlugin("AddrBookUIPlugin", 4097)) != nullptr);
}

void TestHostContainer::aPluginWithAnIdentifierIsNotFoundByName()
{
    QVERIFY(m_pContainer->GetPlugin("StandInWithId", 0) == nullptr);
    QVERIFY(m_pContainer->FindByName("StandInWithId") != nullptr);
}

void TestHostContainer::unknownIdentifiersAndKindsGiveNull_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<int>("kind");
    QTest::newRow("unknown identifier") << "00000000-0000-0000-0000-000000000000" << 0;
    QTest::newRow("empty identifier") << "" << 0;
    QTest::newRow("null identifier") << QString() << 0;
    QTest::newRow("identifier in other case") << QString(CLASS_ID).replace('1', 'l') << 0;
    QTest::newRow("unknown kind") << QString(CLASS_ID) << 4096;
    QTest::newRow("negative kind") << QString(CLASS_ID) << -1;
}

void TestHostContainer::unknownIdentifiersAndKindsGiveNull()
{
    QFETCH(QString, id);
    QFETCH(int, kind);
    QVERIFY(m_pContainer->GetPlugin(id, kind) == nullptr);
}

void TestHostContainer::aPluginThatFailedToStartIsAbsent()
{
    qApp->setProperty("standin.initFails", true);
    PluginHandle* pHandle = m_pContainer->FindByName("StandInWithId");
    QVERIFY(!pHandle->Init());
    QVERIFY(m_pContainer->GetPlugin(CLASS_ID, 0) == nullptr);
    QVERIFY(m_pContainer->GetPlugin(CLASS_ID, 4097) == nullptr);
}

void TestHostContainer::aDestroyedPluginServesNothing()
{
    PluginHandle* pHandle = m_pContainer->FindByName("StandInWithId");
    QVERIFY(pHandle->Init());
    pHandle->UnregisterEvents();
    QVERIFY(m_pContainer->GetPlugin(CLASS_ID, 4097) != nullptr);
    pHandle->Destroy();
    QVERIFY(m_pContainer->GetPlugin(CLASS_ID, 4097) == nullptr);
}

void TestHostContainer::theContainerDeletesTheRootObjects()
{
    const QPointer<QObject> pRoot = m_pContainer->GetPlugin(CLASS_ID, 0);
    QVERIFY(pRoot);
    m_pContainer.reset();
    QVERIFY(!pRoot);
}

QTEST_MAIN(TestHostContainer)
#include "test_host_container.moc"
