#include <QSplitter>
#include <QVBoxLayout>

#include "MessageLog.h"
#include "WindowFixture.h"
#include "worker/AddrBookThread.h"

// The window's construction, and its end whatever is under way.
class WindowLifeTest : public WindowTest
{
    Q_OBJECT

private slots:
    void treeStandsBesideToolBarTableAndPreview()
    {
        WindowFixture f;
        f.build();
        AddrBookDlg* w = f.window();
        QCOMPARE(w->layout()->objectName(), QString("AddrBookUIPlugin_vlayoutCentral"));
        QCOMPARE(w->layout()->spacing(), 0);
        QCOMPARE(w->layout()->contentsMargins(), QMargins(3, 8, 3, 8));

        QSplitter* main = w->findChild<QSplitter*>("AddrBookUIPlugin_splitterMain");
        QVERIFY(main != nullptr);
        QCOMPARE(main->orientation(), Qt::Horizontal);
        QCOMPARE(main->handleWidth(), 4);
        QCOMPARE(main->widget(0)->objectName(), QString("AddrBookUIPlugin_TreeWidget"));
        QCOMPARE(main->widget(1)->objectName(), QString("AddrBookUIPlugin_widgetSplitter"));
        QCOMPARE(main->widget(1)->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(main->widget(1)->layout()->spacing(), 0);

        QSplitter* preview = w->findChild<QSplitter*>("AddrBookUIPlugin_splitterPreview");
        QVERIFY(preview != nullptr);
        QCOMPARE(preview->orientation(), Qt::Vertical);
        QCOMPARE(preview->handleWidth(), 4);
        QCOMPARE(preview->widget(0)->objectName(), QString("AddrBookUIPlugin_ContactTable"));
        QCOMPARE(preview->widget(1)->objectName(), QString("AddrBookUIPlugin_labelPreview"));
        QVERIFY(f.in().preview()->openExternalLinks());

        // Tool bar above, table and preview below.
        QLayout* right = main->widget(1)->layout();
        QCOMPARE(right->count(), 2);
        QCOMPARE(right->itemAt(0)->widget()->objectName(), ToolBarLogic::GetObjectName("AddrBookUIPlugin"));
        QCOMPARE(right->itemAt(1)->widget(), static_cast<QWidget*>(preview));
    }

    void twoConnectionsFailWithAWarning()
    {
        QStringList lines;
        {
            MessageLog log;
            WindowFixture f;
            f.build();
            lines = MessageLog::lines();
        }
        QCOMPARE(lines.filter("No such slot AddrBookDlg::OnMoveResult(bool, qlonglong)").size(), 1);
        QVERIFY(lines.filter("No such signal AddrBookTableWidget::sendMmsMessage()").size() >= 1);
        QCOMPARE(lines.filter("No such").size(), 1 + lines.filter("::sendMmsMessage()").size());
    }

    void eventDuringTheRegistrationFindsItsReceivers()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        int answer = -1;
        FakeSdk::onCall("RegisterPBCallback", 1, [&answer] { answer = FakeSdk::fire(6604); });
        f.build();
        QCOMPARE(answer, 1);
        // The device was heard of: a card that goes now takes its node along.
        f.window()->OnSimStatusChanged(false);
        QVERIFY(f.in().sim() == nullptr);
    }

    void movedSplitterFitsTheTree()
    {
        WindowFixture f;
        f.build();
        f.tree()->setColumnWidth(0, 5000);
        QSplitter* splitter = f.window()->findChild<QSplitter*>("AddrBookUIPlugin_splitterMain");
        QMetaObject::invokeMethod(splitter, "splitterMoved", Q_ARG(int, 200), Q_ARG(int, 1));
        QVERIFY(f.tree()->columnWidth(0) < 5000);
    }

    void windowEndsWhileItReads()
    {
        WindowFixture f;
        for (int i = 0; i < 3000; ++i)
            FakeSdk::addRecord(4, {QString("Name %1").arg(i), QString::number(i)});
        f.build();
        f.window()->OnAddrBookSimReady();
        f.window()->OnTreeClicked(f.in().local());
        QTRY_VERIFY(f.table()->rowCount() > 10 || f.table()->isSortingEnabled());
        f.destroy();
    }

    void windowEndsWithRecordsThatNobodyTook()
    {
        WindowFixture f;
        for (int i = 0; i < 500; ++i)
            FakeSdk::addRecord(4, {QString("Name %1").arg(i), QString::number(i)});
        f.build();
        f.in().current() = nullptr;
        f.window()->OnTreeClicked(f.in().local());
        QVERIFY(f.in().reader()->wait());
        f.destroy(); // all 500 are in the queue
    }

    void windowEndsWhileABatchWaitsForItsSlot()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        QList<AddrBookRecord> records;
        for (int i = 0; i < 50; ++i)
            records << AddrBookRecord{-1, {"N", "1", "", "", "", ""}};
        f.in().worker().SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, records, 0);
        f.in().worker().start();
        QTRY_VERIFY(FakeSdk::count("AddAddrRec") >= 1);
        f.destroy();
    }
};

QTEST_MAIN(WindowLifeTest)
#include "WindowLifeTest.moc"
