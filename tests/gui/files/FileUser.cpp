#include "FileUser.h"

#include <QAbstractButton>

#include "fakecore/FakeCore.h"
#include "window/FileDialogs.h"

namespace
{
QString s_answer;
QList<FileUser::Asked> s_asked;
std::function<bool(const FileUser::Map&)> s_user;
int s_maps = 0;

QString answer(QWidget*, const QString& title, const QString& start, const QString& filter)
{
    s_asked << FileUser::Asked{title, start, filter};
    return s_answer;
}
} // namespace

FileUser::FileUser()
{
    s_answer = QString();
    s_asked.clear();
    s_user = nullptr;
    s_maps = 0;
    FileDialogs::setChoosers(answer, answer);
}

FileUser::~FileUser()
{
    FileDialogs::setChoosers(nullptr, nullptr);
}

void FileUser::choose(const QString& path)
{
    s_answer = path;
}

QList<FileUser::Asked> FileUser::asked()
{
    return s_asked;
}

void FileUser::onMap(std::function<bool(const Map&)> user)
{
    s_user = std::move(user);
}

int FileUser::mapsSeen()
{
    return s_maps;
}

QStringList FileUser::Map::titles() const
{
    QStringList texts;
    for (int row = 0; row < source->rowCount(); ++row)
        texts << source->item(row, 0)->text();
    return texts;
}

QStringList FileUser::Map::mapped() const
{
    QStringList texts;
    for (int row = 0; row < memory->rowCount(); ++row)
        texts << memory->item(row, 1)->text();
    return texts;
}

void FileUser::Map::setMapped(int row, const QString& title) const
{
    memory->item(row, 1)->setText(title);
}

FileUser::MapWatcher::MapWatcher()
{
    m_timer.setInterval(0);
    QObject::connect(&m_timer, &QTimer::timeout, this, &MapWatcher::look);
    m_timer.start();
}

void FileUser::MapWatcher::look()
{
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
    // The window may have gone, and the dialog with it.
    if (!FakeCore::dialogs().contains(dialog))
        return;
    auto* button =
        dialog->findChild<QAbstractButton*>(ok ? "AddrUIplugin_FieldMapokbtn" : "AddrUIplugin_FieldMapCancelbtn");
    if (button != nullptr)
        button->click();
}
