#include "WindowFixture.h"

// Each SDK call failing, and each giving nothing, once, in every flow that reads: no crash, no hang, no leak.
class FailureTest : public WindowTest
{
    Q_OBJECT

private:
    enum Flow { Build, ClickLocal, ClickGroup, ClickCard, SelectRow, Repaint, Detach, Attach };

    static void run(WindowFixture& f, Flow flow)
    {
        switch (flow) {
        case Build:
            f.build();
            break;
        case ClickLocal:
            f.in().current() = nullptr;
            f.window()->OnTreeClicked(f.in().local());
            break;
        case ClickGroup:
            f.window()->OnTreeClicked(f.node("Friends"));
            break;
        case ClickCard:
            f.window()->OnTreeClicked(f.in().sim());
            break;
        case SelectRow:
            f.selectRows({0});
            break;
        case Repaint:
            f.window()->rePaintTree();
            break;
        case Detach:
            f.window()->OnDeviceStatusChanged(false);
            break;
        case Attach:
            f.window()->OnDeviceStatusChanged(false);
            f.window()->OnDeviceStatusChanged(true);
            break;
        }
        QVERIFY(f.waitRead());
    }

    static void addFlows()
    {
        QTest::addColumn<int>("flow");
        QTest::newRow("build") << int(Build);
        QTest::newRow("click on the local node") << int(ClickLocal);
        QTest::newRow("click on a group") << int(ClickGroup);
        QTest::newRow("click on the card") << int(ClickCard);
        QTest::newRow("select a row") << int(SelectRow);
        QTest::newRow("repaint") << int(Repaint);
        QTest::newRow("detach") << int(Detach);
        QTest::newRow("attach") << int(Attach);
    }

private slots:
    void eachCallFailsOnce_data() { addFlows(); }
    void eachCallFailsOnce()
    {
        QFETCH(int, flow);
        bool failed = true;
        for (int k = 1; failed && k < 2000; ++k) {
            WindowFixture f;
            WindowFixture::fillStores();
            if (flow != Build)
                f.build();
            FakeSdk::failCall(k);
            run(f, Flow(flow));
            failed = !FakeSdk::failedCall().isEmpty();
            const QByteArray name = FakeSdk::failedCall();
            FakeSdk::clearFailures();
            if (flow != Build || f.window() != nullptr) {
                // It works again at once.
                f.in().current() = nullptr;
                f.window()->OnTreeClicked(f.in().local());
                QVERIFY2(f.waitRead(), name.constData());
                QVERIFY2(f.column(0).contains("Anna") || f.table()->columnCount() == 0, name.constData());
            }
            f.destroy();
            QVERIFY2(FakeSdk::leaks().isEmpty(), qPrintable(name + ": " + FakeSdk::leaks()));
            QCOMPARE(FakeCore::runningWorkers(), 0);
            QVERIFY(FakeCore::messages().isEmpty());
        }
        QVERIFY(!failed);
    }

    void eachOperationGivesNothingOnce()
    {
        QStringList names;
        {
            WindowFixture f;
            WindowFixture::fillStores();
            f.build();
            f.click(f.node("Friends"));
            f.selectRows({0});
            f.window()->rePaintTree();
            names = FakeSdk::names();
            names.removeDuplicates();
        }
        QVERIFY(names.size() > 15);
        for (const QString& name : names) {
            WindowFixture f;
            WindowFixture::fillStores();
            FakeSdk::giveNull(name.toLatin1());
            f.build();
            f.click(f.in().local());
            FakeSdk::clearFailures();
            QTreeWidgetItem* group = f.node("Friends");
            if (group != nullptr)
                f.click(group);
            f.destroy();
            QVERIFY2(FakeSdk::leaks().isEmpty(), qPrintable(name + ": " + FakeSdk::leaks()));
        }
    }
};

QTEST_MAIN(FailureTest)
#include "FailureTest.moc"
