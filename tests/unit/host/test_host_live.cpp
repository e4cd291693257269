#include <QFile>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

#include "loader/PluginContainer.h"
#include "loader/WorkerCount.h"
#include "orva/orva_store.h"
#include "settings/DataFolder.h"
#include "settings/StoreWatch.h"
#include "window/LivePhonebook.h"
#include "window/StatusArea.h"

namespace
{

int s_iChanges = 0;
int s_iAsked = 0;

} // namespace

// In place of the library's.
extern "C" long ORVA_Store_GetForeignChanges(int, int* piCount)
{
    ++s_iAsked;
    *piCount = s_iChanges;
    return ORVA_OK;
}

// When the contacts are looked at for what another program has changed.
class TestHostLive : public QObject
{
    Q_OBJECT

private slots:
    void aChangeThatShowsAfterItsTraceIsFound();
};

// A transaction is written to the log first and seen by others when it ends; the files are touched by the former alone.
void TestHostLive::aChangeThatShowsAfterItsTraceIsFound()
{
    QVERIFY(QDir().mkpath(DataFolder::Path()));
    StoreWatch watch;
    watch.Start();
    PluginContainer container;
    WorkerCount workers;
    QWidget page;
    StatusArea status(&page);
    const LivePhonebook live(watch, container, workers, page, status);
    const QWidget* pButton = status.findChild<QWidget*>("linkhand_StatusArea_changed");
    QVERIFY(pButton != nullptr && pButton->isHidden());
    s_iAsked = 0;

    QFile log(DataFolder::Path() + "/local.db-wal");
    QVERIFY(log.open(QIODevice::WriteOnly));
    QTRY_COMPARE_WITH_TIMEOUT(s_iAsked, 1, 30000);
    QVERIFY(pButton->isHidden());
    s_iChanges = 1;
    QTRY_VERIFY_WITH_TIMEOUT(!pButton->isHidden(), 30000);
}

QTEST_MAIN(TestHostLive)
#include "test_host_live.moc"
