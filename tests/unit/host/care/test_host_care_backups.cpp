#include <QTimer>

#include "CareSetup.h"

namespace
{

const char* const LIST = "linkhand_Care_backups_list";
enum Column { TIME, CONTACTS, STATE, REASON };

} // namespace

class TestHostCareBackups : public CareSetup
{
    Q_OBJECT

private slots:
    void init()
    {
        m_strHead.clear();
        m_listAsked.clear();
        beginCare();
    }
    void cleanup() { endCare(); }

    void aBackupIsMadeAndListed()
    {
        add({"Ada"});
        openSection("backups");
        QTRY_VERIFY(find<QPushButton>("linkhand_Care_backups_make")->isVisible());
        QVERIFY(!find<QPushButton>("linkhand_Care_backups_restore")->isEnabled());
        click("linkhand_Care_backups_make");
        QTRY_COMPARE(rows(LIST).size(), 1);
        const QStringList lstRow = rows(LIST).first();
        QVERIFY(!lstRow.at(TIME).isEmpty());
        QCOMPARE(lstRow.mid(CONTACTS), QStringList() << "1"
                                                     << "Sound"
                                                     << "Made by hand");
        QCOMPARE(told(), QString("The backup is made."));
        QVERIFY(find<QPushButton>("linkhand_Care_backups_restore")->isEnabled());
    }

    void aRestoreSaysWhatItDoesAndAsks_data()
    {
        QTest::addColumn<bool>("accept");
        QTest::newRow("yes") << true;
        QTest::newRow("no") << false;
    }

    void aRestoreSaysWhatItDoesAndAsks()
    {
        QFETCH(bool, accept);
        const int iAda = add({"Ada"});
        add({"Bo"});
        QCOMPARE(ORVA_Store_KeepBackup(ORVA_MEMORY_LOCAL, ORVA_BACKUP_DAILY), long(ORVA_OK));
        ORVA_PBSrv_DelAddrRec(iAda, ORVA_MEMORY_LOCAL);
        add({"Cy"});
        add({"Di"});
        openSection("backups");
        QTRY_COMPARE(rows(LIST).size(), 1);
        answer(accept ? "linkhand_Restore_ok" : "linkhand_Restore_cancel");
        QSignalSpy spyChanged(m_pWindow.data(), SIGNAL(contactsChanged()));
        click("linkhand_Care_backups_restore");
        QTRY_VERIFY(!m_strHead.isEmpty());
        QVERIFY2(m_strHead.contains("Contacts that come back: 1"), qPrintable(m_strHead));
        QVERIFY2(m_strHead.contains("Contacts that go: 2"), qPrintable(m_strHead));
        QCOMPARE(m_listAsked, QStringList() << "Comes back Ada"
                                            << "Goes Cy"
                                            << "Goes Di");
        if (accept) {
            QTRY_COMPARE(told(), QString("The phonebook is as it was then."));
            QCOMPARE(contacts(), 2);
            // What was there before is in a backup of its own.
            QTRY_COMPARE(rows(LIST).size(), 2);
            QCOMPARE(column(LIST, REASON).first(), QString("Before a restore"));
        } else {
            QCOMPARE(contacts(), 3);
        }
        QCOMPARE(spyChanged.count(), accept ? 1 : 0);
    }

    void aDamagedBackupIsNamedAndCannotBeRestored()
    {
        add({"Ada"});
        QCOMPARE(ORVA_Store_KeepBackup(ORVA_MEMORY_LOCAL, ORVA_BACKUP_DAILY), long(ORVA_OK));
        QDir folder(dataFolder() + "/backups");
        QFile file(folder.filePath(folder.entryList(QStringList("*.db")).value(0)));
        QVERIFY(file.resize(file.size() - 4096));
        openSection("backups");
        QTRY_COMPARE(rows(LIST).size(), 1);
        QVERIFY(column(LIST, STATE).first().startsWith("The file is damaged"));
        QVERIFY(!find<QPushButton>("linkhand_Care_backups_restore")->isEnabled());
        click("linkhand_Care_backups_verify");
        QTRY_COMPARE(told(), QString("Backups looked through: 1, sound: 0"));
    }

private:
    // Notes what the question says when it comes, and presses a button in it.
    void answer(const char* pszButton)
    {
        QTimer* pTimer = new QTimer(m_pWindow.data());
        connect(pTimer, &QTimer::timeout, this, [this, pTimer, pszButton] {
            QWidget* pDialog = QApplication::activeModalWidget();
            if (pDialog == nullptr) {
                return;
            }
            pTimer->stop();
            m_strHead = pDialog->findChild<QLabel*>("linkhand_Restore_head")->text();
            const QAbstractItemModel* pModel = pDialog->findChild<QAbstractItemView*>("linkhand_Restore_list")->model();
            for (int i = 0; i < pModel->rowCount(); ++i) {
                m_listAsked << pModel->index(i, 0).data().toString() + " " + pModel->index(i, 1).data().toString();
            }
            pDialog->findChild<QPushButton*>(pszButton)->click();
        });
        pTimer->start(5);
    }

    QString m_strHead;
    QStringList m_listAsked;
};

QTEST_MAIN(TestHostCareBackups)
#include "test_host_care_backups.moc"
