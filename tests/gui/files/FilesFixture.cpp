#include "FilesFixture.h"

#include <QLoggingCategory>

FilesFixture::FilesFixture()
{
    QLoggingCategory::setFilterRules("default.debug=false\ndefault.warning=false\ndefault.critical=false");
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

void FilesFixture::cancelWaiting()
{
    QVERIFY(waiting() != nullptr);
    cancelButton()->click();
    QVERIFY(waiting() == nullptr);
}

QStringList FilesFixture::stored(int memory)
{
    QStringList texts;
    for (int id : FakeSdk::recordIds(memory))
        texts << QStringList(FakeSdk::record(memory, id)).join("|");
    return texts;
}
