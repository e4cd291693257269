#include <QtTest>

#include "NameAsker.h"
#include "app/Link.h"
#include "device/SimulatedModem.h"
#include "fakesdk/FakeSdk.h"
#include "linkhand/plugin/Codes.h"
#include "messages/MessageStore.h"

// Who was changed is looked for without holding the window.
class TestHostNaming : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FakeSdk::reset();
        m_pFolder.reset(new QTemporaryDir);
        m_pMessages.reset(new MessageStore(m_pFolder->path()));
        m_pModem.reset(new SimulatedModem(*m_pMessages));
        m_pLink.reset(new Link(*m_pModem, *m_pMessages, nullptr, QString()));
        FakeSdk::clearCalls();
    }
    void cleanup()
    {
        m_pLink.reset();
        m_pModem.reset();
        m_pMessages.reset();
        QCOMPARE(FakeSdk::leaks(), QString());
    }

    void noContactIsReadOnTheThreadOfTheWindows_data()
    {
        QTest::addColumn<unsigned int>("memory");
        QTest::newRow("PC") << 4U;
        QTest::newRow("card") << 0U;
    }
    void noContactIsReadOnTheThreadOfTheWindows()
    {
        QFETCH(unsigned int, memory);
        for (int i = 0; i < 20; ++i) {
            FakeSdk::addRecord(int(memory), QStringList() << QString("Contact %1").arg(i) << QString::number(i + 1));
        }
        NameAsker asker;
        QVERIFY(m_pLink->AskChangedContact(PHONEBOOK_CONTACT_ADDED, memory, 20, &asker, 7));
        QTRY_COMPARE(asker.lstAnswers, QStringList("7 Contact 19"));
        QVERIFY(asker.bHere);
        QVERIFY(FakeSdk::count("GetAddrRecList") == 1 && FakeSdk::count("AddrRecordSet_MoveNext") > 0);
        foreach (const FakeSdk::Call& call, FakeSdk::calls()) {
            QVERIFY2(call.thread != QThread::currentThread(), call.name.constData());
        }
    }

    void questionsAreAnsweredInTheirOrderAndWhoIsGoneIsNot()
    {
        FakeSdk::addRecord(4, QStringList("Ada"));
        NameAsker asker;
        {
            NameAsker gone;
            m_pLink->AskChangedContact(PHONEBOOK_CONTACT_ADDED, 4, 0, &gone, 1);
        }
        m_pLink->AskChangedContact(PHONEBOOK_CONTACT_ADDED, 4, 0, &asker, 2);
        m_pLink->AskChangedContact(PHONEBOOK_CONTACT_ADDED, 0, 5, &asker, 3);
        QTRY_COMPARE(asker.lstAnswers, QStringList() << "2 Ada"
                                                     << "3 ");
    }

    void theEndWaitsForWhatIsLookedFor()
    {
        FakeSdk::addRecord(4, QStringList("Ada"));
        NameAsker asker;
        m_pLink->AskChangedContact(PHONEBOOK_CONTACT_ADDED, 4, 0, &asker, 1);
        m_pLink->AskChangedContact(PHONEBOOK_CONTACT_ADDED, 4, 0, &asker, 2);
        m_pLink.reset();
        QCOMPARE(FakeSdk::leaks(), QString());
        QCoreApplication::processEvents();
        QCOMPARE(asker.lstAnswers, QStringList());
    }

private:
    QScopedPointer<QTemporaryDir> m_pFolder;
    QScopedPointer<MessageStore> m_pMessages;
    QScopedPointer<SimulatedModem> m_pModem;
    QScopedPointer<Link> m_pLink;
};

QTEST_MAIN(TestHostNaming)
#include "test_host_naming.moc"
