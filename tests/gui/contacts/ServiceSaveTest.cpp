#include <QObject>

#include "ContactsSupport.h"
#include "dialogs/AddrBookNewContactExtendDialog.h"
#include "frame/AddrBookUIService.h"

// The same through the plug-in's service, which builds the window if there is none.
class ServiceSaveTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        FakeCore::reset();
        FakeSdk::reset();
    }

    void cleanup()
    {
        CAddrBookUIService::instance()->unSDKRegisterEvent();
        CAddrBookUIService::Destroy();
        QCOMPARE(FakeSdk::leaks(), QString());
        QCOMPARE(FakeCore::runningWorkers(), 0);
        QCOMPARE(FakeCore::dialogs().size(), 0);
    }

    void numberOfASiblingIsSavedBeforeTheHostHasShownAnything()
    {
        FormUser user("Abel", "0123");
        QCOMPARE(CAddrBookUIService::instance()->SaveNumberToAddrBook("0123", nullptr), 1);
        QCOMPARE(user.forms(), 1);
        QCOMPARE(user.firstNumber(), QString("0123"));
        QCOMPARE(FakeSdk::record(4, 1).mid(0, 2), QStringList({"Abel", "0123"}));
    }

    void interfaceIsTheWayIn()
    {
        QWidget page;
        QRect place(0, 0, 800, 500);
        QVERIFY(CAddrBookUIService::instance()->ShowWindow(&page, place));
        page.show();
        IAddrBookUIPlugin* phonebook = CAddrBookUIService::instance();
        FormUser user([](AddrBookEditDlgAccess form) { form.ok()->click(); });
        QCOMPARE(phonebook->SaveNumberToAddrBook("0123", &page), 1);
        QCOMPARE(user.parentOfForm(), &page);
        QCOMPARE(FakeSdk::record(4, 1).at(1), QString("0123"));
        CAddrBookUIService::instance()->unSDKRegisterEvent();
        CAddrBookUIService::Destroy();
    }

    void dismissedItStillAnswersOne()
    {
        FormUser user([](AddrBookEditDlgAccess form) { form.cancel()->click(); });
        QCOMPARE(CAddrBookUIService::instance()->SaveNumberToAddrBook("0123", nullptr), 1);
        QVERIFY(FakeSdk::recordIds(4).isEmpty());
    }
};

QTEST_MAIN(ServiceSaveTest)
#include "ServiceSaveTest.moc"
