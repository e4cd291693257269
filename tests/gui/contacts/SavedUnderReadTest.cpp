#include <atomic>

#include "ContactsSupport.h"

// A contact that is saved while the table is being read: what the reader took before must not be shown behind it.
class SavedUnderReadTest : public WindowTest
{
    Q_OBJECT

private:
    // The form acts by a timer, as it does by the mouse: what has been posted meanwhile stays posted while it closes.
    static FormUser::Act byTheMouse(std::function<void(AddrBookEditDlgAccess)> act)
    {
        return [act](AddrBookEditDlgAccess form) {
            bool done = false;
            QTimer::singleShot(1, form.window(), [&done, act, form] {
                act(form);
                done = true;
            });
            QEventLoop loop;
            while (!done)
                loop.processEvents(QEventLoop::WaitForMoreEvents);
        };
    }

    static QStringList shown(const WindowFixture& f)
    {
        QStringList rows;
        for (int row = 0; row < f.table()->rowCount(); ++row)
            rows << f.table()->item(row, 0)->text() + "=" + f.table()->item(row, 1)->text();
        rows.sort();
        return rows;
    }

    static void readAnew(const WindowFixture& f)
    {
        f.in().current() = nullptr;
        f.window()->OnTreeClicked(f.in().local());
    }

private slots:
    void queuedRowOfAnEditedContactShowsWhatWasSaved()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({f.rowOf("Bert")});
        int rowsBehindTheForm = -1;
        FormUser user(byTheMouse([&](AddrBookEditDlgAccess form) {
            readAnew(f);
            QVERIFY(f.in().reader()->wait(20000)); // every row is on its way
            rowsBehindTheForm = f.table()->rowCount();
            form.name()->setText("Abel");
            form.ok()->click();
        }));
        f.window()->OnButtonClickedEditContact();
        QCOMPARE(user.forms(), 1);
        QCOMPARE(rowsBehindTheForm, 0);
        QVERIFY(f.waitRead());
        QCOMPARE(FakeSdk::record(4, 2).value(0), QString("Abel"));
        QCOMPARE(f.rowOf("Bert"), -1);
        QVERIFY(f.rowOf("Abel") >= 0);
        QCOMPARE(f.table()->rowCount(), 3);
    }

    // By the text as it was saved, and not as it was read.
    void queuedRowOfAnEditedContactIsFilteredByWhatWasSaved()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({f.rowOf("Bert")});
        FormUser user(byTheMouse([&](AddrBookEditDlgAccess form) {
            f.window()->OnShowHideSearchBox();
            f.in().searchBox()->setText("Be");
            emit f.in().searchBox()->textEdited("Be");
            f.in().searchBox()->setText("Ab");
            emit f.in().searchBox()->textEdited("Ab"); // another text: the table is read for it
            QVERIFY(f.in().reader()->wait(20000));
            form.name()->setText("Abel");
            form.ok()->click();
        }));
        f.window()->OnButtonClickedEditContact();
        QVERIFY(f.waitRead());
        QCOMPARE(f.column(0), QStringList{"Abel"});
    }

    void newContactThatTheReaderFindsTooHasOneRow()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        std::atomic<bool> saved{false};
        FormUser user(byTheMouse([&](AddrBookEditDlgAccess form) {
            FakeSdk::onCall("GetAddrRecList", 0, [&saved] {
                while (!saved && QThread::currentThread() != qApp->thread())
                    QThread::usleep(200);
            });
            readAnew(f);
            form.name()->setText("Abel");
            form.mobile()->setText("1");
            form.ok()->click();
        }));
        f.window()->OnButtonClickedNewContact();
        saved = true;
        QVERIFY(f.waitRead());
        QCOMPARE(shown(f).filter("Abel").size(), 1);
        QCOMPARE(f.table()->rowCount(), 4);
        QCOMPARE(FakeSdk::recordIds(4).size(), 4);
    }

    // What is saved once the table is there does not stand in the way of the next reading.
    void nextReadingShowsWhatTheStoreHolds()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({f.rowOf("Bert")});
        FormUser user(byTheMouse([&](AddrBookEditDlgAccess form) {
            readAnew(f);
            form.name()->setText("Abel");
            form.ok()->click();
        }));
        f.window()->OnButtonClickedEditContact();
        QVERIFY(f.waitRead());
        AddrBookLogic::Instance()->UpdateRecord(PB_MEM_LOCAL, 2, {"Cain", "5", "", "", "", ""});
        readAnew(f);
        QVERIFY(f.waitRead());
        QCOMPARE(f.rowOf("Abel"), -1);
        QVERIFY(f.rowOf("Cain") >= 0);
    }
};

QTEST_MAIN(SavedUnderReadTest)
#include "SavedUnderReadTest.moc"
