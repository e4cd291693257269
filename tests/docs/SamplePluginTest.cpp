#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include "app/Services.h"
#include "linkhand/plugin/IAddrBookUIPlugin.h"
#include "loader/PluginContainer.h"
#include "loader/PluginHandle.h"
#include "loader/PluginLoader.h"
#include "text/Problem.h"

namespace
{

// Answers for the phonebook.
class Phonebook : public QObject, public IAddrBookUIPlugin
{
    Q_OBJECT
    Q_INTERFACES(IAddrBookUIPlugin)

public:
    int SaveNumberToAddrBook(QString, QWidget*) override { return 0; }
    void SearchMobile(QString, QString, int&, bool) override {}
    int OpenNumSelectDlg(bool, FIELD_TYPE, QList<QString>& lstNumbers) override
    {
        lstNumbers << "+441632960001"
                   << "+441632960002";
        return iAnswer;
    }

    int iAnswer = 1;
};

class Container : public IPluginContainer
{
public:
    QObject* GetPlugin(QString strId, int iKind) override
    {
        return strId == "AddrBookUIPlugin" && iKind == 4097 ? pPhonebook : nullptr;
    }

    QObject* pPhonebook = nullptr;
};

} // namespace

// The plug-in of docs/plugin.md, loaded as the host loads it.
class SamplePluginTest : public QObject
{
    Q_OBJECT

private slots:
    void itPassesTheHost();
    void itPicksNumbersFromThePhonebook();
};

void SamplePluginTest::itPassesTheHost()
{
    Problem problem;
    const QScopedPointer<PluginHandle> pHandle(PluginLoader::Load(SAMPLE_PLUGIN, problem));
    QVERIFY2(!pHandle.isNull(), qPrintable(problem.strReasonId + problem.strDetail));
    QCOMPARE(pHandle->Name(), QStringLiteral("HelloPlugin"));
    QVERIFY(pHandle->HasWindow());
    QVERIFY(pHandle->Init());
}

void SamplePluginTest::itPicksNumbersFromThePhonebook()
{
    Phonebook phonebook;
    Container container;
    Services services(QCoreApplication::applicationDirPath(), QString());
    services.SetContainer(&container);
    services.Publish();
    Problem problem;
    const QScopedPointer<PluginHandle> pHandle(PluginLoader::Load(SAMPLE_PLUGIN, problem));
    QVERIFY(!pHandle.isNull() && pHandle->Init());
    QWidget page;
    page.resize(400, 300);
    page.show();
    QVERIFY(pHandle->Show(&page));
    QWidget* pContent = page.findChild<QWidget*>("HelloPlugin_page");
    QVERIFY(pContent != nullptr && pContent->isVisible());
    QCOMPARE(pContent->size(), page.size());
    QPushButton* pButton = pContent->findChild<QPushButton*>();
    QLabel* pNumbers = pContent->findChild<QLabel*>();

    QTest::mouseClick(pButton, Qt::LeftButton);
    QCOMPARE(pNumbers->text(), QStringLiteral("There is no phonebook."));
    container.pPhonebook = &phonebook;
    QTest::mouseClick(pButton, Qt::LeftButton);
    QCOMPARE(pNumbers->text(), QStringLiteral("+441632960001, +441632960002"));
    pHandle->Hide();
    QVERIFY(!pContent->isVisible());
    pHandle->UnregisterEvents();
    pHandle->Destroy();
    services.Withdraw();
}

QTEST_MAIN(SamplePluginTest)
#include "SamplePluginTest.moc"
