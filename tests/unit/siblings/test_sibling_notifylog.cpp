#include <QTemporaryDir>
#include <QtTest>

#include "notify/NotifyLog.h"

class TestSiblingNotifyLog : public QObject
{
    Q_OBJECT

private slots:
    void linesAreAppended();
    void linesReachTheFileByThemselves();
    void aLargeFileIsSetAside();
    void withoutAFolderNothingIsKept();
    void theFileIsForItsOwnerOnly();

private:
    static QByteArray content(const QString& strFile)
    {
        QFile file(strFile);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

void TestSiblingNotifyLog::linesAreAppended()
{
    const QTemporaryDir folder;
    {
        NotifyLog log(folder.path() + '/');
        log.Append("one");
    }
    {
        NotifyLog log(folder.path() + '/');
        log.Append("two");
    }
    const QList<QByteArray> listLines = content(folder.filePath("notifications.log")).split('\n');
    QCOMPARE(listLines.size(), 3);
    QVERIFY(listLines.at(0).endsWith(" one"));
    QVERIFY(listLines.at(1).endsWith(" two"));
    QVERIFY(QDateTime::fromString(QString(listLines.at(0)).section(QChar(0x20), 0, 0), Qt::ISODate).isValid());
}

void TestSiblingNotifyLog::linesReachTheFileByThemselves()
{
    const QTemporaryDir folder;
    NotifyLog log(folder.path() + '/');
    log.Append("one");
    QTRY_VERIFY(content(folder.filePath("notifications.log")).endsWith(" one\n"));
}

void TestSiblingNotifyLog::aLargeFileIsSetAside()
{
    const QTemporaryDir folder;
    NotifyLog log(folder.path() + '/');
    for (int i = 0; i < 1200; ++i) {
        log.Append(QString(1000, 'x'));
    }
    log.Flush();
    QVERIFY(QFileInfo(folder.filePath("notifications.log.1")).size() > 1024 * 1024);
    log.Append("new");
    log.Flush();
    QVERIFY(content(folder.filePath("notifications.log")).endsWith(" new\n"));
    QVERIFY(QFileInfo(folder.filePath("notifications.log")).size() < 100);
}

void TestSiblingNotifyLog::withoutAFolderNothingIsKept()
{
    NotifyLog none{QString()};
    none.Append("lost");
    none.Flush();
    NotifyLog missing("/nowhere/at/all/");
    missing.Append("lost");
    missing.Flush();
    QVERIFY(!QFile::exists("notifications.log"));
}

void TestSiblingNotifyLog::theFileIsForItsOwnerOnly()
{
    const QTemporaryDir folder;
    NotifyLog log(folder.path() + '/');
    QVERIFY(!(QFile::permissions(folder.filePath("notifications.log")) & (QFile::ReadGroup | QFile::ReadOther)));
}

QTEST_MAIN(TestSiblingNotifyLog)
#include "test_sibling_notifylog.moc"
