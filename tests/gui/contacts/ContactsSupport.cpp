#include "ContactsSupport.h"

#include <QApplication>
#include <QTimer>

#include "dialogs/AddrBookNewContactExtendDialog.h"
#include "logic/QueuedEmit.h"

FormUser::FormUser(Act act) : m_act(std::move(act)), m_forms(0), m_parent(nullptr), m_ok(false)
{
    qApp->installEventFilter(this);
}

FormUser::FormUser(const QString& name, const QString& number)
    : FormUser([name, number](AddrBookEditDlgAccess form) {
          form.name()->setText(name);
          form.mobile()->setText(number);
          form.ok()->click();
      })
{
}

bool FormUser::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Show && qobject_cast<AddrBookNewContactExtendDialog*>(object) != nullptr)
        QTimer::singleShot(0, this, SLOT(act()));
    return false;
}

void FormUser::act()
{
    for (QWidget* widget : QApplication::allWidgets()) {
        AddrBookEditDlg* dialog = qobject_cast<AddrBookEditDlg*>(widget);
        if (dialog == nullptr)
            continue;
        const AddrBookEditDlgAccess form{dialog};
        if (form.window() == nullptr || !form.window()->isVisible())
            continue;
        const QPointer<QDialog> window(form.window());
        ++m_forms;
        m_title = window->windowTitle();
        m_parent = window->parentWidget();
        m_name = form.name() != nullptr ? form.name()->text() : QString();
        m_number = form.mobile() != nullptr ? form.mobile()->text() : QString();
        m_ok = form.ok()->isEnabled();
        m_act(form);
        if (!window.isNull() && window->isVisible())
            window->reject();
        return;
    }
}

namespace Contacts
{

QList<AddrBookRecord> records(int memory, const QString& prefix, int n)
{
    const int fields = FakeSdk::fields(memory).size();
    QList<AddrBookRecord> list;
    for (int i = 1; i <= n; ++i) {
        AddrBookRecord record;
        record.iID = 0;
        record.lstValues = QList<QString>{QString("%1 %2").arg(prefix).arg(i), QString::number(1000 + i)};
        while (record.lstValues.size() < fields)
            record.lstValues << QString();
        list << record;
    }
    return list;
}

QList<int> fill(int memory, const QString& prefix, int n)
{
    QList<int> ids;
    for (const AddrBookRecord& record : records(memory, prefix, n))
        ids << FakeSdk::addRecord(memory, record.lstValues);
    return ids;
}

void atRecord(const QByteArray& operation, int nth, std::function<void()> function)
{
    FakeSdk::onCall(operation, nth, [function] {
        const QueuedEmitScope scope;
        QMetaObject::invokeMethod(qApp, function, Qt::QueuedConnection);
    });
}

ABWaitingDlg* waitingWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        ABWaitingDlg* window = qobject_cast<ABWaitingDlg*>(widget);
        if (window != nullptr)
            return window;
    }
    return nullptr;
}

QPushButton* cancelButton()
{
    return waitingWindow() != nullptr ? waitingWindow()->findChild<QPushButton*>() : nullptr;
}

void selectRange(const WindowFixture& f, int top, int bottom)
{
    f.table()->clearSelection();
    f.table()->setRangeSelected(QTableWidgetSelectionRange(top, 0, bottom, f.table()->columnCount() - 1), true);
}

void selectAll(const WindowFixture& f)
{
    QList<int> rows;
    for (int row = 0; row < f.table()->rowCount(); ++row)
        rows << row;
    f.selectRows(rows);
}

bool waitBatch(const WindowFixture& f)
{
    // Woken by each event rather than polling: the batch tests build hundreds of windows.
    QTimer limit;
    limit.setSingleShot(true);
    limit.start(30000);
    while (limit.isActive() && (f.in().threadBusy() || !f.table()->isSortingEnabled()))
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    return !f.in().threadBusy() && f.waitRead();
}

QStringList pushes()
{
    QStringList list;
    for (const FakeCore::Notice& notice : FakeCore::notices()) {
        if (notice.isPush)
            list << QString("%1 %2 %3").arg(notice.message).arg(notice.param1).arg(notice.param2);
    }
    return list;
}

} // namespace Contacts
