#include "FilesFixture.h"

#include <QLoggingCategory>
#include <QTimer>

#include "window/FileDialogs.h"

namespace
{
QString s_answer;
QList<FilesFixture::Asked> s_asked;
std::function<bool(const FilesFixture::Map&)> s_user;
int s_maps = 0;

QString answer(QWidget*, const QString& title, const QString& start, const QString& filter)
{
    s_asked << FilesFixture::Asked{title, start, filter};
    return s_answer;
}

// Looks for a field map on the screen, and lets the user at it.
class MapWatcher : public QObject
{
public:
    MapWatcher()
    {
        m_timer.setInterval(0);
        QObject::connect(&m_timer, &QTimer::timeout, this, [] {
            const QList<ExtendDialog*> dialogs = FakeCore::dialogs();
            if (dialogs.isEmpty() || !dialogs.last()->isVisible())
                return;
            ExtendDialog* dialog = dialogs.last();
            const QList<QTableWidget*> tables = dialog->findChildren<QTableWidget*>();
            if (tables.size() != 2)
                return;
            const bool sourceFirst = tables[0]->columnCount() == 1;
            ++s_maps;
            const bool ok = !s_user || s_user({dialog, tables[sourceFirst ? 0 : 1], tables[sourceFirst ? 1 : 0]});
            auto* button = dialog->findChild<QAbstractButton*>(ok ? "AddrUIplugin_FieldMapokbtn"
                                                                  : "AddrUIplugin_FieldMapCancelbtn");
            if (button != nullptr)
                button->click();
        });
        m_timer.start();
    }

private:
    QTimer m_timer;
};
} // namespace

FilesFixture::FilesFixture()
{
    QLoggingCategory::setFilterRules("default.debug=false\ndefault.warning=false\ndefault.critical=false");
    s_answer = QString();
    s_asked.clear();
    s_user = nullptr;
    s_maps = 0;
    FileDialogs::setChoosers(answer, answer);
}

FilesFixture::~FilesFixture()
{
    FileDialogs::setChoosers(nullptr, nullptr);
}

void FilesFixture::choose(const QString& path)
{
    s_answer = path;
}

QList<FilesFixture::Asked> FilesFixture::asked()
{
    return s_asked;
}

QStringList FilesFixture::Map::titles() const
{
    QStringList texts;
    for (int row = 0; row < source->rowCount(); ++row)
        texts << source->item(row, 0)->text();
    return texts;
}

QStringList FilesFixture::Map::mapped() const
{
    QStringList texts;
    for (int row = 0; row < memory->rowCount(); ++row)
        texts << memory->item(row, 1)->text();
    return texts;
}

void FilesFixture::Map::setMapped(int row, const QString& title) const
{
    memory->item(row, 1)->setText(title);
}

void FilesFixture::onMap(std::function<bool(const Map&)> user)
{
    s_user = std::move(user);
}

int FilesFixture::mapsSeen()
{
    return s_maps;
}

void FilesFixture::makeFile(const QString& path, const QByteArray& titles, const QList<QStringList>& rows)
{
    FakeSdk::setFileTitles(path, titles);
    FakeSdk::setImport(path, rows);
}

void FilesFixture::import()
{
    const MapWatcher watcher;
    tableAction("IDS_IMPORT_PHONEBOOK")->trigger();
}

void FilesFixture::importFrom(const char* slot)
{
    const MapWatcher watcher;
    QVERIFY(QMetaObject::invokeMethod(window(), slot));
}

void FilesFixture::importTo(QTreeWidgetItem* node)
{
    click(node);
    import();
    QVERIFY(waitDone());
}

bool FilesFixture::waitDone() const
{
    return QTest::qWaitFor([this] { return !in().threadBusy() && !in().worker().isRunning(); }, 20000) && waitRead();
}

ABWaitingDlg* FilesFixture::waiting()
{
    for (QWidget* widget : QApplication::allWidgets()) {
        auto* dialog = qobject_cast<ABWaitingDlg*>(widget);
        if (dialog != nullptr && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

void FilesFixture::cancelWaiting()
{
    QVERIFY(waiting() != nullptr);
    waiting()->findChild<QAbstractButton*>()->click();
    QVERIFY(waiting() == nullptr);
}

QStringList FilesFixture::stored(int memory)
{
    QStringList texts;
    for (int id : FakeSdk::recordIds(memory))
        texts << QStringList(FakeSdk::record(memory, id)).join("|");
    return texts;
}
