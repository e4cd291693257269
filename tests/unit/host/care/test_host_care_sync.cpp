#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QRegularExpression>
#include <QTextBrowser>

#include "CareSetup.h"
#include "orva/orva_sync.h"
#include "window/PhonebookHold.h"

namespace
{

// Something on loopback that takes connections and says nothing.
class Listener
{
public:
    Listener() : m_iEnd(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in address = {};
        socklen_t iSize = sizeof address;
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        ::bind(m_iEnd, reinterpret_cast<sockaddr*>(&address), iSize);
        ::listen(m_iEnd, 5);
        ::getsockname(m_iEnd, reinterpret_cast<sockaddr*>(&address), &iSize);
        m_iPort = ntohs(address.sin_port);
    }
    ~Listener() { ::close(m_iEnd); }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    QString Url() const { return QString("http://127.0.0.1:%1/book/").arg(m_iPort); }

private:
    const int m_iEnd;
    int m_iPort = 0;
};

long changeMobile(int iId, const QString& strNumber)
{
    void* pRecord = nullptr;
    long nCode = ORVA_PBSrv_GetAddrRecord(iId, ORVA_MEMORY_LOCAL, &pRecord);
    if (nCode == ORVA_OK) {
        ORVA_PBSrv_AddrRecord_SetValue(pRecord, "Mobile", strNumber.utf16());
        nCode = ORVA_PBSrv_UpdateAddrRec(pRecord, iId);
        ORVA_PBSrv_AddrRecord_Release(pRecord);
    }
    return nCode;
}

} // namespace

// A sync from the care page: with a folder, and with a server by stand-ins of the programs that it needs.
class TestHostCareSync : public CareSetup
{
    Q_OBJECT

private slots:
    void init()
    {
        beginCare();
        m_pOutside.reset(new QTemporaryDir);
        m_strPath = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(m_pOutside->path()) + ":" + m_strPath);
        standIn("systemctl", "cat " + outside("timer") + " 2>/dev/null; exit 0");
        standIn("vdirsyncer", "exit 0");
    }
    void cleanup()
    {
        endCare();
        qputenv("PATH", m_strPath);
    }

    void aFolderIsSetUpSynchronisedAndToldOf()
    {
        add({"Ada", "0170111"});
        openSection("sync");
        QTRY_COMPARE(last(), QString("Nothing is set up yet."));
        QVERIFY(!find<QPushButton>("linkhand_Care_sync_now")->isEnabled());
        setUpFolder();
        QTRY_COMPARE(told(), QString("Set up."));
        QTRY_COMPARE(last(), QString("There has been no sync yet."));
        QTRY_VERIFY(find<QPushButton>("linkhand_Care_sync_now")->isEnabled());
        click("linkhand_Care_sync_now");
        QTRY_COMPARE(told(), QString("Both sides are the same now."));
        QTRY_VERIFY2(last().contains("Other side: 1 added, 0 changed, 0 deleted"), qPrintable(last()));
        QCOMPARE(QDir(outside("cards")).entryList(QStringList("*.vcf")).size(), 1);
    }

    void whatWasOverwrittenOrLeftIsNamed()
    {
        const int iAda = add({"Ada", "0170111"});
        openSection("sync");
        setUpFolder();
        QTRY_COMPARE(told(), QString("Set up."));
        QTRY_VERIFY(find<QPushButton>("linkhand_Care_sync_now")->isEnabled());
        click("linkhand_Care_sync_now");
        QTRY_VERIFY(last().contains("Other side: 1 added"));
        // Another program and the user change the same number.
        const QString strCard = outside("cards/") + QDir(outside("cards")).entryList(QStringList("*.vcf")).first();
        QFile card(strCard);
        QVERIFY(card.open(QIODevice::ReadWrite));
        QString strText = QString::fromUtf8(card.readAll()).replace("0170111", "0170999");
        QVERIFY(strText.contains("\r\nREV:"));
        const QByteArray text =
            strText.replace(QRegularExpression("\r\nREV:[^\r]*"), "\r\nREV:29990101T000000Z").toUtf8();
        QVERIFY(card.resize(0) && card.seek(0) && card.write(text) == text.size());
        card.close();
        QCOMPARE(changeMobile(iAda, "0170222"), long(ORVA_OK));
        write(outside("cards/none.vcf"), "nothing");
        click("linkhand_Care_sync_now");
        QTRY_VERIFY2(
            last().contains("changed on both sides (Mobile). What the other side said counts; what the phonebook said"),
            qPrintable(last()));
        QVERIFY2(last().contains("none.vcf"), qPrintable(last()));
    }

    void aServerThatIsAwayIsNoError()
    {
        openSection("sync");
        setUpServer("http://127.0.0.1:1/book/");
        QTRY_COMPARE(told(), QString("Set up."));
        QTRY_VERIFY(find<QPushButton>("linkhand_Care_sync_now")->isEnabled());
        click("linkhand_Care_sync_now");
        QTRY_COMPARE(told(), QString("The server cannot be reached. What changed waits for the next sync."));
    }

    void thePasswordGoesIntoTheKeyringAndNowhereElse()
    {
        standIn("secret-tool", "echo \"$@\" >" + outside("asked") + "; cat >" + outside("keyring"));
        openSection("sync");
        find<QLineEdit>("linkhand_Care_sync_secret")->clear();
        QTest::keyClicks(find<QLineEdit>("linkhand_Care_sync_secret"), "secret word");
        setUpServer("https://example.org/book/");
        QTRY_COMPARE(told(), QString("Set up."));
        QCOMPARE(read(outside("keyring")), QString("secret word"));
        QCOMPARE(read(outside("asked")).trimmed(),
                 QString("store --label Linkhand service linkhand-sync url https://example.org/book/ user anna"));
        QVERIFY(find<QLineEdit>("linkhand_Care_sync_secret")->text().isEmpty());
        foreach (const QString& strFile, QDir(dataFolder() + "/sync").entryList(QDir::Files)) {
            QVERIFY2(!read(dataFolder() + "/sync/" + strFile).contains("secret word"), qPrintable(strFile));
        }
        QCOMPARE(read(dataFolder() + "/sync/password.sh"),
                 QString("secret-tool lookup service linkhand-sync url https://example.org/book/ user anna\n"));
    }

    void whatIsNoneOfItIsRefusedWithAReason()
    {
        openSection("sync");
        setUpServer("http://contacts.example.org/book/");
        QTRY_COMPARE(told(), QString("The password would go through the net in the open: use https."));
        QVERIFY(!QFile::exists(dataFolder() + "/sync/config"));
    }

    void aRunIsBrokenOff()
    {
        const Listener server;
        standIn("vdirsyncer", "case \"$*\" in *sync) touch " + outside("began") + "; exec sleep 600;; esac");
        openSection("sync");
        setUpServer(server.Url());
        QTRY_COMPARE(told(), QString("Set up."));
        QTRY_VERIFY(find<QPushButton>("linkhand_Care_sync_now")->isEnabled());
        click("linkhand_Care_sync_now");
        QTRY_VERIFY(QFile::exists(outside("began")));
        QTRY_VERIFY(find<QPushButton>("linkhand_Care_cancel")->isVisible());
        click("linkhand_Care_cancel");
        QTRY_COMPARE(told(), QString("Cancelled. The next sync makes up for it."));
    }

    void aSyncDoesNotWaitForItself()
    {
        PhonebookHold hold(m_pServices->Workers());
        openSection("sync");
        setUpFolder();
        QTRY_COMPARE(told(), QString("Set up."));
        QTRY_VERIFY(find<QPushButton>("linkhand_Care_sync_now")->isEnabled());
        QDialog form(m_pWindow.data());
        form.setModal(true);
        form.show();
        form.hide();
        // Until the next look at who works on the phonebook.
        QVERIFY(hold.Held());
        click("linkhand_Care_sync_now");
        QTRY_COMPARE(told(), QString("Both sides are the same now."));
    }

    void theTimerIsSwitched()
    {
        QCheckBox* pTimer = find<QCheckBox>("linkhand_Care_sync_timer");
        write(outside("timer"), "disabled\n");
        standIn("systemctl", "case \"$2\" in enable) echo enabled >" + outside("timer") +
                                 ";; disable) echo disabled >" + outside("timer") + ";; is-enabled) cat " +
                                 outside("timer") + ";; esac; echo \"$@\" >>" + outside("asked"));
        openSection("sync");
        QTRY_COMPARE(last(), QString("Nothing is set up yet."));
        QVERIFY(!pTimer->isEnabled());
        setUpFolder();
        QTRY_VERIFY(pTimer->isEnabled());
        pTimer->click();
        QTRY_COMPARE(read(outside("timer")), QString("enabled\n"));
        QVERIFY(read(outside("asked")).contains("--user enable --now linkhand-sync.timer"));
        QTRY_VERIFY(pTimer->isEnabled() && pTimer->isChecked());
    }

private:
    QString last() { return find<QTextBrowser>("linkhand_Care_sync_last")->toPlainText(); }
    QString outside(const QString& strName) const { return m_pOutside->path() + "/" + strName; }

    static void write(const QString& strPath, const QByteArray& text)
    {
        QFile file(strPath);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(text), qint64(text.size()));
    }
    static QString read(const QString& strPath)
    {
        QFile file(strPath);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    // A program of PATH.
    void standIn(const QString& strName, const QString& strScript)
    {
        const QString strPath = outside(strName);
        write(strPath, ("#!/bin/sh\n" + strScript + "\n").toUtf8());
        QVERIFY(QFile::setPermissions(strPath, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    void choose(const char* pszBox, int iIndex)
    {
        QComboBox* pBox = find<QComboBox>(pszBox);
        pBox->setCurrentIndex(iIndex);
        QMetaObject::invokeMethod(pBox, "activated", Q_ARG(int, iIndex));
    }
    void enter(const char* pszField, const QString& strText)
    {
        QLineEdit* pEdit = find<QLineEdit>(pszField);
        pEdit->selectAll();
        QTest::keyClicks(pEdit, strText);
    }
    void setUpFolder()
    {
        choose("linkhand_Care_sync_kind", 1);
        enter("linkhand_Care_sync_folder", outside("cards"));
        click("linkhand_Care_sync_setup");
    }
    void setUpServer(const QString& strUrl)
    {
        choose("linkhand_Care_sync_kind", 0);
        enter("linkhand_Care_sync_url", strUrl);
        enter("linkhand_Care_sync_user", "anna");
        click("linkhand_Care_sync_setup");
    }

    QScopedPointer<QTemporaryDir> m_pOutside;
    QByteArray m_strPath;
};

QTEST_MAIN(TestHostCareSync)
#include "test_host_care_sync.moc"
