#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeView>
#include <QtTest>

#include <sys/stat.h>

#include "FaultyVfs.h"
#include "NoThreads.h"
#include "WindowSetup.h"
#include "cards/CardPreview.h"
#include "orva/orva_sdk.h"
#include "work/WorkThread.h"

namespace
{

const QByteArray TWO_CARDS = "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Ada\r\nN:;Ada;;;\r\nTEL;TYPE=CELL:0170 111\r\n"
                             "TEL;TYPE=WORK:030 1\r\nEND:VCARD\r\nBEGIN:VCARD\r\nVERSION:3.0\r\nFN:<b>Bo</b>\r\n"
                             "N:;<b>Bo</b>;;;\r\nTEL;TYPE=CELL:0170222\r\nEND:VCARD\r\n";

int stored()
{
    int iCount = -1;
    return ORVA_PBSrv_GetSize(ORVA_MEMORY_LOCAL, &iCount) == ORVA_OK ? iCount : -1;
}

} // namespace

// A file of contacts, looked into before any of it is stored.
class TestHostCards : public WindowSetup
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { end(); }
    void cardsAreShownByNameAndNumbers();
    void nothingIsStoredUntilTheUserSaysSo();
    void theContactsAreImported();
    void aTableIsTakenByItsTitles();
    void whatIsRefusedDoesNotStopTheRest();
    void whoIsThereIsLeftOutOrBroughtUpToDate();
    void anImportIsCancelledBetweenSteps();
    void aFullDiskIsToldAndNothingIsHalf();
    void manyAreImportedWhole();
    void anImportThatFindsNoThreadIsSaid();
    void whatCannotBeReadIsSaid_data();
    void whatCannotBeReadIsSaid();

private:
    QString write(const QString& strName, const QByteArray& content);
    static bool isRead(CardPreview& preview);
    static QString state(CardPreview& preview) { return preview.findChild<QLabel*>("linkhand_Cards_state")->text(); }
    static QPushButton* button(CardPreview& preview)
    {
        return preview.findChild<QPushButton*>("linkhand_Cards_import");
    }
    static QStringList rows(CardPreview& preview);
    bool import(CardPreview& preview);

    QScopedPointer<QTemporaryDir> m_pFiles;
};

void TestHostCards::init()
{
    faulty::install();
    m_pFiles.reset(new QTemporaryDir);
    QCOMPARE(ORVA_Sim_Reset(QFile::encodeName(m_pFiles->filePath("data")).constData()), long(ORVA_OK));
    begin();
}

QString TestHostCards::write(const QString& strName, const QByteArray& content)
{
    QFile file(m_pFiles->filePath(strName));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? file.fileName() : QString();
}

bool TestHostCards::isRead(CardPreview& preview)
{
    // Progress may be told before.
    return QTest::qWaitFor([&] { return state(preview).contains("would come") || state(preview).contains("cannot"); },
                           60000);
}

QStringList TestHostCards::rows(CardPreview& preview)
{
    const QAbstractItemModel* pModel = preview.findChild<QTreeView*>("linkhand_Cards_list")->model();
    QStringList lstRows;
    for (int i = 0; i < pModel->rowCount(); ++i) {
        lstRows.append(pModel->index(i, 0).data().toString() + "|" + pModel->index(i, 1).data().toString() + "|" +
                       pModel->index(i, 2).data().toString());
    }
    return lstRows;
}

bool TestHostCards::import(CardPreview& preview)
{
    preview.show();
    if (!isRead(preview) || !button(preview)->isEnabled()) {
        return false;
    }
    QSignalSpy accepted(&preview, SIGNAL(accepted()));
    button(preview)->click();
    return QTest::qWaitFor([&] { return accepted.count() == 1; }, 60000);
}

void TestHostCards::cardsAreShownByNameAndNumbers()
{
    CardPreview preview(write("<i>two.vcf", TWO_CARDS), m_pWindow.data());
    QVERIFY(!button(preview)->isEnabled());
    QVERIFY(isRead(preview));
    QCOMPARE(rows(preview), QStringList({"Ada|0170111|New", "<b>Bo</b>|0170222|New"}));
    QCOMPARE(state(preview),
             QString("From <i>two.vcf would come: new 2, brought up to date 0, there already 0, not taken 0"));
    QCOMPARE(preview.findChild<QLabel*>("linkhand_Cards_state")->textFormat(), Qt::PlainText);
    const QLabel* pHead = preview.findChild<QLabel*>("linkhand_Cards_head");
    QVERIFY(pHead->text().contains("<i>two.vcf"));
    QCOMPARE(pHead->textFormat(), Qt::PlainText);
}

void TestHostCards::nothingIsStoredUntilTheUserSaysSo()
{
    CardPreview preview(write("two.vcf", TWO_CARDS), m_pWindow.data());
    preview.show();
    QVERIFY(isRead(preview));
    preview.findChild<QPushButton*>("linkhand_Cards_cancel")->click();
    QVERIFY(!preview.isVisible());
    QVERIFY(!preview.HasStored());
    QCOMPARE(preview.Outcome(), QString());
    QCOMPARE(stored(), 0);
}

void TestHostCards::theContactsAreImported()
{
    CardPreview preview(write("two.vcf", TWO_CARDS), m_pWindow.data());
    QVERIFY(import(preview));
    QCOMPARE(preview.Outcome(), QString("Contacts imported: 2 of 2"));
    QVERIFY(preview.HasStored());
    QCOMPARE(stored(), 2);
}

void TestHostCards::aTableIsTakenByItsTitles()
{
    CardPreview preview(write("t.csv", "First Name,Last Name,Mobile Phone\nAda,Hartley,0170111\n"), m_pWindow.data());
    QVERIFY(isRead(preview));
    QCOMPARE(rows(preview).size(), 1);
    QVERIFY(rows(preview).first().contains("Ada") && rows(preview).first().endsWith("|0170111|New"));
    CardPreview ours(write("o.csv", "Shoe,NAME,mobile\n38,Bo,0170222\n"), m_pWindow.data());
    QVERIFY(isRead(ours));
    QCOMPARE(rows(ours), QStringList("Bo|0170222|New"));
}

void TestHostCards::whatIsRefusedDoesNotStopTheRest()
{
    CardPreview preview(write("t.csv", "Name,Mobile\nAda,nobody\nBo,0170222\n"), m_pWindow.data());
    preview.show();
    QVERIFY(isRead(preview));
    QCOMPARE(rows(preview), QStringList({"Ada|nobody|Not taken", "Bo|0170222|New"}));
    QPushButton* pLeft = preview.findChild<QPushButton*>("linkhand_Cards_left");
    QVERIFY(pLeft->isVisible());
    QCOMPARE(pLeft->text(), QString("What is left (1)…"));
    button(preview)->click();
    // It stays, and tells.
    QTRY_COMPARE(preview.Outcome(), QString("Contacts imported: 1 of 2"));
    QVERIFY(preview.isVisible() && pLeft->isVisible());
    QCOMPARE(state(preview), QString("From t.csv came: new 1, brought up to date 0, there already 0, not taken 1"));
    QVERIFY(!button(preview)->isEnabled());
    QCOMPARE(stored(), 1);
    preview.reject();
    QVERIFY(!preview.isVisible() && preview.HasStored());
}

void TestHostCards::whoIsThereIsLeftOutOrBroughtUpToDate()
{
    {
        CardPreview first(write("two.vcf", TWO_CARDS), m_pWindow.data());
        QVERIFY(import(first));
    }
    CardPreview preview(write("more.csv", "Name,Mobile,officePhone\nADA,0170 111,\n<b>Bo</b>,0170222,0302\n"),
                        m_pWindow.data());
    preview.show();
    QVERIFY(isRead(preview));
    QCOMPARE(rows(preview),
             QStringList({"ADA|0170111|There already, left out", "<b>Bo</b>|0170222|There already, left out"}));
    // There is nothing to import.
    QVERIFY(!button(preview)->isEnabled());
    QComboBox* pExisting = preview.findChild<QComboBox*>("linkhand_Cards_existing");
    pExisting->setFocus();
    QTest::keyClick(pExisting, Qt::Key_Down);
    QTRY_COMPARE(rows(preview).last(), QString("<b>Bo</b>|0170222|Brought up to date"));
    QTRY_VERIFY(button(preview)->isEnabled());
    QVERIFY(pExisting->hasFocus() || !preview.isActiveWindow());
    QSignalSpy accepted(&preview, SIGNAL(accepted()));
    button(preview)->click();
    QTRY_COMPARE(accepted.count(), 1);
    QVERIFY(preview.HasStored());
    QCOMPARE(stored(), 2);
}

void TestHostCards::anImportIsCancelledBetweenSteps()
{
    QByteArray content("Name,Mobile\n");
    for (int i = 0; i < 20000; ++i) {
        content += "N" + QByteArray::number(i) + "," + QByteArray::number(100000 + i) + "\n";
    }
    CardPreview preview(write("t.csv", content), m_pWindow.data());
    preview.show();
    QTRY_VERIFY_WITH_TIMEOUT(button(preview)->isEnabled(), 60000);
    QCOMPARE(stored(), 0);
    button(preview)->click();
    QVERIFY(!button(preview)->isEnabled());
    preview.reject();
    // It goes when the step has ended, and says so.
    QTRY_VERIFY_WITH_TIMEOUT(!preview.isVisible(), 60000);
    QVERIFY2(preview.Outcome().startsWith("Cancelled."), qPrintable(preview.Outcome()));
    QVERIFY2(stored() < 20000 && stored() % 200 == 0, qPrintable(QString::number(stored())));
    QCOMPARE(preview.HasStored(), stored() > 0);
}

void TestHostCards::aFullDiskIsToldAndNothingIsHalf()
{
    CardPreview preview(write("two.vcf", TWO_CARDS), m_pWindow.data());
    preview.show();
    QVERIFY(isRead(preview));
    faulty::arm(faulty::Fault::Full, 0, true);
    button(preview)->click();
    const bool bEnded = QTest::qWaitFor([&] { return !preview.Outcome().isEmpty(); }, 60000);
    faulty::disarm();
    QVERIFY(bEnded);
    QVERIFY2(preview.Outcome().startsWith("Contacts imported: 0 of 2. "), qPrintable(preview.Outcome()));
    QVERIFY(preview.isVisible());
    QVERIFY(!preview.HasStored());
    QCOMPARE(stored(), 0);
}

void TestHostCards::manyAreImportedWhole()
{
    QByteArray content("Name,Mobile\n");
    for (int i = 0; i < 450; ++i) {
        content += "Ada " + QByteArray::number(i) + ",0170" + QByteArray::number(i) + "\n";
    }
    CardPreview preview(write("t.csv", content), m_pWindow.data());
    QVERIFY(import(preview));
    QCOMPARE(preview.Outcome(), QString("Contacts imported: 450 of 450"));
    QCOMPARE(stored(), 450);
}

void TestHostCards::anImportThatFindsNoThreadIsSaid()
{
    CardPreview preview(write("two.vcf", TWO_CARDS), m_pWindow.data());
    preview.show();
    QVERIFY(isRead(preview));
    QSignalSpy spyEnded(preview.findChild<WorkThread*>(), SIGNAL(ended()));
    {
        const NoThreads none;
        button(preview)->click();
    }
    QTRY_COMPARE(spyEnded.count(), 1);
    QVERIFY2(state(preview).contains("1009"), qPrintable(state(preview)));
    QVERIFY(preview.isVisible() && !preview.HasStored());
    QCOMPARE(stored(), 0);
    preview.findChild<QPushButton*>("linkhand_Cards_cancel")->click();
    QVERIFY(!preview.isVisible());
}

void TestHostCards::whatCannotBeReadIsSaid_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("not there") << "none";
    QTest::newRow("a folder") << "folder";
    QTest::newRow("a pipe that nobody writes") << "pipe";
    QTest::newRow("octets") << "octets";
}

void TestHostCards::whatCannotBeReadIsSaid()
{
    QFETCH(QString, kind);
    const QString strFile = m_pFiles->filePath("bad.vcf");
    if (kind == "folder") {
        QVERIFY(QDir().mkpath(strFile));
    } else if (kind == "pipe") {
        QCOMPARE(mkfifo(qPrintable(strFile), 0600), 0);
    } else if (kind == "octets") {
        write("bad.vcf", QByteArray(5000, '\0'));
    }
    CardPreview preview(strFile, m_pWindow.data());
    QVERIFY(isRead(preview));
    QCOMPARE(state(preview), QString("This file cannot be read as contacts"));
    QVERIFY(!button(preview)->isEnabled());
    QVERIFY(rows(preview).isEmpty());
}

QTEST_MAIN(TestHostCards)
#include "test_host_cards.moc"
