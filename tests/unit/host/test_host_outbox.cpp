#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

#include "messages/Outbox.h"
#include "shared/HostLink.h"

class TestHostOutbox : public QObject
{
    Q_OBJECT

private slots:
    void aMissingFileIsAnEmptyOutbox();
    void messagesSurviveARestart_data();
    void messagesSurviveARestart();
    void charactersThatXmlCannotHoldAreLeftOut();
    void removingTakesOneMessage();
    void aDamagedFileIsSetAside_data();
    void aDamagedFileIsSetAside();
    void aMessageThatCannotBeWrittenIsNotKept();
    void theFileIsForItsOwnerOnly();

private:
    static OutgoingMessage message(const QString& strText);
};

OutgoingMessage TestHostOutbox::message(const QString& strText)
{
    OutgoingMessage result;
    result.iKind = HOST_MESSAGE_SMS;
    result.lstNumbers << "123"
                      << "+49 170";
    result.strText = strText;
    return result;
}

void TestHostOutbox::aMissingFileIsAnEmptyOutbox()
{
    const QTemporaryDir folder;
    const Outbox outbox(folder.filePath("outbox.xml"));
    QVERIFY(outbox.Entries().isEmpty());
    QVERIFY(!outbox.WasDamaged());
    QVERIFY2(!QFile::exists(folder.filePath("outbox.xml")), "reading writes nothing");
}

void TestHostOutbox::messagesSurviveARestart_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << "Hello";
    QTest::newRow("empty") << "";
    QTest::newRow("markup") << "<a href=\"x\">&amp;</a> ]]>";
    QTest::newRow("lines") << "one\ntwo\n\n three ";
    QTest::newRow("scripts") << QString::fromUtf8("Ελλάδα 日本 שלום 🎉");
    QTest::newRow("blanks") << "  \t ";
}

void TestHostOutbox::messagesSurviveARestart()
{
    QFETCH(QString, text);
    const QTemporaryDir folder;
    {
        Outbox outbox(folder.filePath("outbox.xml"));
        const QSignalSpy spy(&outbox, SIGNAL(changed()));
        OutgoingMessage written = message(text);
        written.iKind = HOST_MESSAGE_MMS;
        written.strSubject = text;
        QVERIFY(outbox.Add(written));
        QVERIFY(outbox.Add(message("second")));
        QCOMPARE(spy.count(), 2);
    }
    const Outbox outbox(folder.filePath("outbox.xml"));
    QVERIFY(!outbox.WasDamaged());
    QCOMPARE(outbox.Entries().size(), 2);
    const OutboxEntry& entry = outbox.Entries().first();
    QCOMPARE(entry.message.strText, text);
    QCOMPARE(entry.message.strSubject, text);
    QCOMPARE(entry.message.iKind, int(HOST_MESSAGE_MMS));
    QCOMPARE(entry.message.lstNumbers, QStringList() << "123"
                                                     << "+49 170");
    QVERIFY(qAbs(entry.time.secsTo(QDateTime::currentDateTime())) < 60);
    QVERIFY(outbox.Entries().at(1).iId != entry.iId);
}

void TestHostOutbox::charactersThatXmlCannotHoldAreLeftOut()
{
    const QTemporaryDir folder;
    QString strText = "a";
    strText += QChar(0x0b);
    strText += QChar(0);
    strText += QChar(0xd800);
    strText += QChar(0xffff);
    strText += "b";
    {
        Outbox outbox(folder.filePath("outbox.xml"));
        QVERIFY(outbox.Add(message(strText)));
    }
    const Outbox outbox(folder.filePath("outbox.xml"));
    QVERIFY(!outbox.WasDamaged());
    QCOMPARE(outbox.Entries().first().message.strText, QStringLiteral("ab"));
}

void TestHostOutbox::removingTakesOneMessage()
{
    const QTemporaryDir folder;
    Outbox outbox(folder.filePath("outbox.xml"));
    QVERIFY(outbox.Add(message("one")) && outbox.Add(message("two")) && outbox.Add(message("three")));
    const int iSecond = outbox.Entries().at(1).iId;
    QVERIFY(outbox.Remove(iSecond));
    QVERIFY(!outbox.Remove(iSecond));
    QVERIFY(!outbox.Remove(0));
    const Outbox again(folder.filePath("outbox.xml"));
    QCOMPARE(again.Entries().size(), 2);
    QCOMPARE(again.Entries().at(1).message.strText, QStringLiteral("three"));
}

void TestHostOutbox::aDamagedFileIsSetAside_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no xml") << QByteArray("hello");
    QTest::newRow("another root") << QByteArray("<inbox/>");
    QTest::newRow("cut off") << QByteArray("<outbox><message kind=\"0\" time=\"2024-01-01T00:00:00\"><to>1</to>");
    QTest::newRow("no kind") << QByteArray("<outbox><message time=\"2024-01-01T00:00:00\"></message></outbox>");
    QTest::newRow("no time") << QByteArray("<outbox><message kind=\"0\"></message></outbox>");
    QTest::newRow("stray element") << QByteArray("<outbox><other/></outbox>");
}

void TestHostOutbox::aDamagedFileIsSetAside()
{
    QFETCH(QByteArray, content);
    const QTemporaryDir folder;
    const QString strFile = folder.filePath("outbox.xml");
    QFile file(strFile);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    Outbox outbox(strFile);
    QVERIFY(outbox.WasDamaged());
    QVERIFY(outbox.Entries().isEmpty());
    QFile aside(strFile + ".damaged");
    QVERIFY(aside.open(QIODevice::ReadOnly));
    QCOMPARE(aside.readAll(), content);
    QVERIFY(outbox.Add(message("new")));
    QCOMPARE(Outbox(strFile).Entries().size(), 1);
}

void TestHostOutbox::aMessageThatCannotBeWrittenIsNotKept()
{
    const QTemporaryDir folder;
    Outbox outbox(folder.filePath("missing/outbox.xml"));
    const QSignalSpy spy(&outbox, SIGNAL(changed()));
    QVERIFY(!outbox.Add(message("lost")));
    QVERIFY(outbox.Entries().isEmpty());
    QCOMPARE(spy.count(), 0);
}

void TestHostOutbox::theFileIsForItsOwnerOnly()
{
    const QTemporaryDir folder;
    Outbox outbox(folder.filePath("outbox.xml"));
    QVERIFY(outbox.Add(message("private")));
    const QFile::Permissions permissions = QFile::permissions(folder.filePath("outbox.xml"));
    QVERIFY(!(permissions & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther)));
}

QTEST_MAIN(TestHostOutbox)
#include "test_host_outbox.moc"
