#include <QSignalSpy>
#include <QtTest>

#include "StandInFolder.h"
#include "app/Services.h"
#include "device/Modem.h"
#include "linkhand/core/CommonUtils.h"
#include "linkhand/core/Startup.h"
#include "loader/PluginContainer.h"
#include "loader/PluginLoader.h"

namespace
{

class ScriptedModem : public Modem
{
public:
    bool Dial(const QString& strNumber, int iType) override
    {
        m_lstCalls << QStringLiteral("%1 %2").arg(strNumber).arg(iType);
        return m_bAnswer;
    }
    bool IsSimulated() const override { return true; }
    void HangUp() override {}
    bool Remove(int) override { return false; }
    bool Send(const OutgoingMessage&) override { return false; }

    QStringList m_lstCalls;
    bool m_bAnswer = true;
};

} // namespace

// The host's services as plug-ins see them, through the user-interface library.
class TestHostServices : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void foldersLieBesideTheProgram();
    void callsGoToTheModem();
    void installedCountsAsAvailableAlsoWhenNotLoaded();
    void theContainerIsTheHosts();
    void workersAndTheEndAreSeenThroughTheLibrary();
    void theFirstBoxesTakeTheAnswersThatWereSet();
    void withoutTheVariableBoxesAreShown();

private:
    QScopedPointer<StandInFolder> m_pFolder;
    QScopedPointer<Services> m_pServices;
};

void TestHostServices::init()
{
    m_pFolder.reset(new StandInFolder);
    m_pServices.reset(new Services(m_pFolder->Path(), m_pFolder->Path() + "/s.ini"));
    m_pServices->Publish();
}

void TestHostServices::cleanup()
{
    m_pServices->Withdraw();
}

void TestHostServices::foldersLieBesideTheProgram()
{
    QCOMPARE(CommonUtils::GetPluginLibraryPath(), m_pFolder->Path());
    QCOMPARE(m_pServices->PluginsPath(), m_pFolder->Path() + "/plugins");
    QCOMPARE(m_pServices->LanguagesPath(), m_pFolder->Path() + "/languages");
    QCOMPARE(m_pServices->SettingsFile(), m_pFolder->Path() + "/s.ini");
}

void TestHostServices::callsGoToTheModem()
{
    QVERIFY2(!CommonUtils::MakeCall("123", UI_CALL_VOICE), "there is no modem yet");
    ScriptedModem modem;
    m_pServices->SetModem(&modem);
    QVERIFY(CommonUtils::MakeCall("123", UI_CALL_VOICE));
    modem.m_bAnswer = false;
    QVERIFY(!CommonUtils::MakeCall("456", UI_CALL_VOICE));
    QCOMPARE(modem.m_lstCalls, QStringList() << "123 0"
                                             << "456 0");
}

void TestHostServices::installedCountsAsAvailableAlsoWhenNotLoaded()
{
    const QString strSms = "ED395DF6-E3BA-478e-8AE9-D8A1BF090214";
    QVERIFY(!CommonUtils::IsPluginAvailable(strSms));
    QVERIFY(QDir(m_pFolder->Path()).mkdir("plugins"));
    QFile file(m_pFolder->Path() + "/plugins/libSMSUIPlugin.so");
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(CommonUtils::IsPluginAvailable(strSms));
    QVERIFY(!CommonUtils::IsPluginAvailable("8A8F7C8C-B6DE-41cb-9228-D78C95312E87"));
    QVERIFY(!CommonUtils::IsPluginAvailable(QString()));
    QVERIFY(!CommonUtils::IsPluginAvailable("../plugins/libSMSUIPlugin"));
}

void TestHostServices::theContainerIsTheHosts()
{
    QVERIFY(Startup::GetPluginContainer() == nullptr);
    PluginContainer container;
    ProblemList problems;
    m_pFolder->Add("AddrBookStandIn");
    PluginLoader(m_pFolder->Path()).LoadAll(container, problems);
    m_pServices->SetContainer(&container);
    QVERIFY(Startup::GetPluginContainer() == &container);
    QVERIFY(CommonUtils::IsPluginAvailable("AddrBookUIPlugin"));
    m_pServices->SetContainer(nullptr);
}

void TestHostServices::workersAndTheEndAreSeenThroughTheLibrary()
{
    CommonUtils::ThreadCountInc("f.cpp", "run");
    QCOMPARE(m_pServices->Workers().Running(), 1);
    CommonUtils::ThreadCountDec("f.cpp", "run");
    QCOMPARE(m_pServices->Workers().Running(), 0);
    QVERIFY(!CommonUtils::IsShuttingDown());
    m_pServices->State().SetShuttingDown();
    QVERIFY(CommonUtils::IsShuttingDown());
}

void TestHostServices::theFirstBoxesTakeTheAnswersThatWereSet()
{
    Services services(m_pFolder->Path(), QString());
    services.SetAnswers(QList<int>() << 1024 << 4194304);
    QCOMPARE(services.MessageAnswer(QMessageBox::Question, "c", "t"), 1024);
    QCOMPARE(services.MessageAnswer(QMessageBox::Question, "c", "t"), 4194304);
    QCOMPARE(services.MessageAnswer(QMessageBox::Question, "c", "t"), -1);
}

void TestHostServices::withoutTheVariableBoxesAreShown()
{
    QCOMPARE(m_pServices->MessageAnswer(QMessageBox::Critical, "c", "t"), -1);
}

QTEST_MAIN(TestHostServices)
#include "test_host_services.moc"
