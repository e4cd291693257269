#include <QComboBox>
#include <QTimer>

#include "CareSetup.h"
#include "care/CareRunner.h"
#include "care/ImportSection.h"
#include "care/ImportTasks.h"
#include "orva/orva_sync.h"

namespace
{

const char* const LIST = "linkhand_Care_import_list";
const char* const SUMMARY = "linkhand_Care_import_summary";
enum Column { NAME, NUMBER, OUTCOME };

} // namespace

class TestHostCareImport : public CareSetup
{
    Q_OBJECT

private slots:
    void init()
    {
        m_listLeft.clear();
        beginCare();
    }
    void cleanup() { endCare(); }

    void whatWouldComeIsShownBeforeAnythingIsWritten()
    {
        add({"Bo", "2"});
        openSection("import");
        QTRY_VERIFY(find<QPushButton>("linkhand_Care_import_file")->isVisible());
        QVERIFY(!find<QPushButton>("linkhand_Care_import_do")->isEnabled());
        section()->SetFile(file("people.csv", "Name,Mobile,Groups,Shoe\nAda,1,Friends,38\nBO,2,,\nCy,abc,,\n"));
        QTRY_COMPARE(column(LIST, OUTCOME), QStringList() << "New"
                                                          << "There already, left out"
                                                          << "Not taken");
        QCOMPARE(column(LIST, NUMBER).first(), QString("1"));
        QCOMPARE(summary(),
                 QString("From people.csv would come: new 1, brought up to date 0, there already 1, not taken 1"));
        QCOMPARE(contacts(), 1);
        QCOMPARE(find<QPushButton>("linkhand_Care_import_left")->text(), QString("What is left (2)…"));
        QSignalSpy spyChanged(m_pWindow.data(), SIGNAL(contactsChanged()));
        click("linkhand_Care_import_do");
        QTRY_COMPARE(told(), QString("Imported from people.csv. New contacts: 1"));
        QCOMPARE(contacts(), 2);
        QCOMPARE(spyChanged.count(), 1);
        QVERIFY(summary().startsWith("From people.csv came: new 1"));
        // It is done once.
        QVERIFY(!find<QPushButton>("linkhand_Care_import_do")->isEnabled());
        noteLeft();
        click("linkhand_Care_import_left");
        QCOMPARE(m_listLeft, QStringList() << "4 Mobile Contact not taken: no telephone number"
                                           << " Shoe No field is for it; values: 1");
    }

    void whoIsThereCanBeBroughtUpToDate()
    {
        add({"Bo", "2", "", "", "", "old"});
        openSection("import");
        section()->SetFile(file("bo.vcf", "BEGIN:VCARD\nVERSION:3.0\nFN:Bo\nTEL;TYPE=CELL:2\nNOTE:new\nEND:VCARD\n"));
        QTRY_COMPARE(column(LIST, OUTCOME), QStringList("There already, left out"));
        QComboBox* pExisting = find<QComboBox>("linkhand_Care_import_existing");
        pExisting->setFocus();
        QTest::keyClick(pExisting, Qt::Key_Down);
        QTRY_COMPARE(column(LIST, OUTCOME), QStringList("Brought up to date"));
        click("linkhand_Care_import_do");
        QTRY_VERIFY(told().startsWith("Imported from bo.vcf"));
        QCOMPARE(contacts(), 1);
    }

    void aFileThatTakesThePlaceOfAnotherIsLookedAtOnce()
    {
        openSection("import");
        const CareRunner* pRunner = m_pWindow->findChild<CareRunner*>();
        QTRY_VERIFY(pRunner->Current() == nullptr);
        QSignalSpy spyEnded(pRunner, SIGNAL(ended(bool)));
        section()->SetFile(file("first.csv", "Name,Mobile\nAda,1\n"));
        section()->SetFile(file("second.csv", "Name,Mobile\nBo,2\nCy,3\n"));
        const QStringList lstNames = {"Bo", "Cy"};
        QTRY_COMPARE(column(LIST, NAME), lstNames);
        QTRY_VERIFY(pRunner->Current() == nullptr);
        QCOMPARE(spyEnded.count(), 2);
    }

    void aFileOfNothingIsNamed()
    {
        openSection("import");
        section()->SetFile(file("shoes.csv", "Shoe,Hat\n38,7\n"));
        QTRY_COMPARE(told(), QString("Nothing in shoes.csv can be read as contacts."));
        QVERIFY(!find<QPushButton>("linkhand_Care_import_do")->isEnabled());
    }

    void anImportIsCancelledBetweenSteps()
    {
        // Storing takes several times as long as the page lets pass between two looks.
        const int MANY = 300000;
        QByteArray rows("Name,Mobile\n");
        for (int i = 0; i < MANY; ++i) {
            rows += "N" + QByteArray::number(i) + "," + QByteArray::number(i) + "\n";
        }
        openSection("import");
        section()->SetFile(file("many.csv", rows));
        QTRY_COMPARE_WITH_TIMEOUT(rowCount(), MANY, 60000);
        click("linkhand_Care_import_do");
        QTRY_VERIFY_WITH_TIMEOUT(find<QPushButton>("linkhand_Care_cancel")->isVisible(), 30000);
        click("linkhand_Care_cancel");
        QTRY_VERIFY_WITH_TIMEOUT(told().startsWith("Cancelled."), 30000);
        const int iIn = contacts();
        QVERIFY2(iIn < MANY && iIn % 200 == 0, qPrintable(QString::number(iIn)));
        QVERIFY(summary().contains(QString("new %1").arg(QLocale().toString(iIn))));
    }

    void aCancelAfterTheLastStepIsNone()
    {
        openSection("import");
        ImportPlan plan;
        plan.strSource = file("bo.csv", "Name,Mobile\nBo,0170222\n");
        ContactImporting importing(plan, false);
        importing.Run();
        importing.Cancel();
        QVERIFY(importing.IsCancelled() && !importing.IsCut());
        QCOMPARE(contacts(), 1);
    }

    void allAreExportedAndTheOldFileStays()
    {
        add({"Ada", "1"});
        openSection("import");
        const QString strFile = file("out.vcf", "old");
        section()->ExportTo(strFile);
        QTRY_VERIFY2(told().startsWith("Written to " + strFile + ". Contacts: 1."), qPrintable(told()));
        QVERIFY(told().contains(".~1~"));
        QFile out(strFile);
        QVERIFY(out.open(QIODevice::ReadOnly));
        QVERIFY(out.readAll().contains("FN:Ada"));
        QVERIFY(QFile::exists(strFile + ".~1~"));
        section()->ExportTo(dataFolder() + "/no/such/folder.csv");
        QTRY_VERIFY(told().endsWith("could not be written."));
    }

    void anExportIsCancelledAndTheOldFileStays()
    {
        addMany(2000);
        openSection("import");
        const QString strFile = file("out.vcf", "old");
        QTRY_VERIFY(m_pWindow->findChild<CareRunner*>()->Current() == nullptr);
        section()->ExportTo(strFile);
        // What the button does once it is there.
        QVERIFY(QMetaObject::invokeMethod(find<QWidget>("linkhand_Page_Care"), "OnCancel"));
        QTRY_COMPARE(told(), QString("Cancelled. Nothing was written."));
        QFile out(strFile);
        QVERIFY(out.open(QIODevice::ReadOnly));
        QCOMPARE(out.readAll(), QByteArray("old"));
        QVERIFY(!QFile::exists(strFile + ".~1~"));
    }

    void anExportTellsHowFarItIs()
    {
        addMany(600);
        ContactExporting exporting(dataFolder() + "/out.csv");
        exporting.Run();
        QCOMPARE(exporting.Code(), long(ORVA_OK));
        QCOMPARE(exporting.Written(), 600);
        QCOMPARE(exporting.Total(), 600);
        QVERIFY(exporting.Done() > 0);
        ContactExporting cancelled(dataFolder() + "/none.csv");
        cancelled.Cancel();
        cancelled.Run();
        QCOMPARE(cancelled.Code(), long(ORVA_E_CANCELLED));
        QVERIFY(!QFile::exists(cancelled.File()));
    }

private:
    ImportSection* section() { return find<ImportSection>("linkhand_Care_import"); }
    void addMany(int iCount)
    {
        ORVA_PBSrv_BeginTransaction(ORVA_MEMORY_LOCAL);
        for (int i = 0; i < iCount; ++i) {
            add({"N" + QString::number(i), QString::number(i)});
        }
        QCOMPARE(ORVA_PBSrv_EndTransaction(ORVA_MEMORY_LOCAL), long(ORVA_OK));
    }
    QString summary() { return find<QLabel>(SUMMARY)->text(); }
    int rowCount() { return find<QAbstractItemView>(LIST)->model()->rowCount(); }

    QString file(const char* pszName, const QByteArray& content)
    {
        const QString strFile = dataFolder() + "/" + pszName;
        QFile file(strFile);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            qFatal("no file");
        }
        return strFile;
    }

    // Notes what the list says when it comes, and closes it.
    void noteLeft()
    {
        QTimer* pTimer = new QTimer(m_pWindow.data());
        connect(pTimer, &QTimer::timeout, this, [this, pTimer] {
            QWidget* pDialog = QApplication::activeModalWidget();
            if (pDialog == nullptr) {
                return;
            }
            pTimer->stop();
            const QAbstractItemModel* pModel =
                pDialog->findChild<QAbstractItemView*>("linkhand_Findings_list")->model();
            for (int i = 0; i < pModel->rowCount(); ++i) {
                m_listLeft << pModel->index(i, 0).data().toString() + " " + pModel->index(i, 1).data().toString() +
                                  " " + pModel->index(i, 2).data().toString();
            }
            pDialog->findChild<QPushButton*>("linkhand_Findings_close")->click();
        });
        pTimer->start(5);
    }

    QStringList m_listLeft;
};

QTEST_MAIN(TestHostCareImport)
#include "test_host_care_import.moc"
