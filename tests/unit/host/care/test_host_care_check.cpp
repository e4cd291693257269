#include <QLocale>
#include <QTextBrowser>

#include "CareSetup.h"

class TestHostCareCheck : public CareSetup
{
    Q_OBJECT

private slots:
    void init() { beginCare(); }
    void cleanup()
    {
        QLocale::setDefault(QLocale::system());
        endCare();
    }

    void aSoundStoreIsSaidToBeSound()
    {
        add({"Ada"});
        openSection("check");
        QTRY_COMPARE(found(), QString("The store is sound. Contacts: 1"));
        add({"Bo"});
        click("linkhand_Care_check_again");
        QTRY_COMPARE(found(), QString("The store is sound. Contacts: 2"));
    }

    void numbersAreWrittenAsTheLanguageWritesThem()
    {
        QLocale::setDefault(QLocale("ar"));
        add({"Ada"});
        openSection("check");
        QTRY_COMPARE(found(), QString::fromUtf8("The store is sound. Contacts: ١"));
    }

    void aDamagedFileIsToldWithWhatCameThroughAndWhereItLies()
    {
        for (int i = 0; i < 50; ++i) {
            add({"N" + QString::number(i)});
        }
        // The library lets the file go.
        QCOMPARE(ORVA_Sim_Reset(QFile::encodeName(dataFolder()).constData()), long(ORVA_OK));
        QFile file(dataFolder() + "/local.db");
        QVERIFY(file.resize(file.size() - 4096));
        openSection("check");
        QTRY_VERIFY2(found().contains("replaced by a new one"), qPrintable(found()));
        int iContacts = 0;
        QCOMPARE(ORVA_PBSrv_GetSize(ORVA_MEMORY_LOCAL, &iContacts), long(ORVA_OK));
        QVERIFY2(found().contains(QString("Came through: contacts %1, groups 0").arg(iContacts)), qPrintable(found()));
        const QStringList lstKept = QDir(dataFolder()).entryList(QStringList("local*damaged*"));
        QVERIFY(!lstKept.isEmpty());
        QVERIFY2(found().contains(dataFolder() + "/" + lstKept.first()), qPrintable(found()));
        QVERIFY(found().contains("What was found:"));
    }

private:
    QString found() { return find<QTextBrowser>("linkhand_Care_check_found")->toPlainText(); }
};

QTEST_MAIN(TestHostCareCheck)
#include "test_host_care_check.moc"
