#include <QApplication>

#include "ContactsSupport.h"
#include "linkhand/QtCompat.h"

// The form's inputs keep the profile's rule in each of the three flows that open it.
class FormRulesTest : public WindowTest
{
    Q_OBJECT

private slots:
    void inputsAreHeldToTheProfileInEveryFlow_data()
    {
        QTest::addColumn<QString>("flow");
        QTest::newRow("new") << "new";
        QTest::newRow("edit") << "edit";
        QTest::newRow("save number") << "save";
    }
    void inputsAreHeldToTheProfileInEveryFlow()
    {
        QFETCH(QString, flow);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({0});
        QString number;
        bool name = true;
        FormUser user([&](AddrBookEditDlgAccess form) {
            const auto* rule = dynamic_cast<const QRegExpValidator*>(form.mobile()->validator());
            number = rule != nullptr ? rule->regExp().pattern() : QString("none");
            name = form.name()->validator() != nullptr;
            form.cancel()->click();
        });
        if (flow == "new")
            f.window()->OnButtonClickedNewContact();
        else if (flow == "edit")
            f.window()->OnButtonClickedEditContact();
        else
            f.window()->SaveNumberToAddrBook("0123", nullptr);
        QCOMPARE(user.forms(), 1);
        QCOMPARE(number, QString("[+]{0,1}[0123456789*#]{0,40}"));
        QVERIFY(!name); // whatever a name may hold
    }
};

QTEST_MAIN(FormRulesTest)
#include "FormRulesTest.moc"
