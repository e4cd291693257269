#include <QAction>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QMenu>
#include <QPluginLoader>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

#include "../window/RealHost.h"
#include "linkhand/QtCompat.h"
#include "linkhand/plugin/IUIPlugin.h"
#include "orva/orva_sim.h"

namespace
{

const int FIELDS = 6;
const int MOBILE = 1;

class Host : public RealHost
{
public:
    using RealHost::RealHost;
    int MessageAnswer(QMessageBox::Icon, const QString&, const QString& strText) override
    {
        m_lstSaid << strText;
        return QMessageBox::Ok;
    }
    QStringList m_lstSaid;
};

QString escaped(QString strText)
{
    return strText.replace('\n', "\\n").replace('\r', "\\r").replace('\t', "\\t");
}

QString taken(unsigned short* pText)
{
    QString strText = pText != nullptr ? QtCompat::fromUtf16(pText) : QString();
    delete[] pText;
    return strText;
}

// The contacts of the computer's memory, in the order in which they came.
QList<QStringList> stored()
{
    static const char* const s_keys[] = {"Name", "Mobile", "officePhone", "homePhone", "email", "remark"};
    QList<QStringList> listContacts;
    void* pSet = nullptr;
    if (ORVA_PBSrv_GetAddrRecList(ORVA_MEMORY_LOCAL, &pSet) != ORVA_OK)
        return listContacts;
    for (long code = ORVA_PBSrv_AddrRecordSet_MoveFirst(pSet); code == ORVA_OK;
         code = ORVA_PBSrv_AddrRecordSet_MoveNext(pSet)) {
        QStringList lstValues;
        for (const char* szKey : s_keys) {
            unsigned short* pValue = nullptr;
            ORVA_PBSrv_AddrRecordSet_GetValue(pSet, szKey, &pValue);
            lstValues << escaped(taken(pValue));
        }
        listContacts << lstValues;
    }
    ORVA_PBSrv_AddrRecordSet_Release(pSet);
    return listContacts;
}

} // namespace

// Files as other programs write them, through the real dialogs of the built plug-in on the real libraries: the file
// dialog, and the field map as it opens.
class FixtureFilesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Host> m_host;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QPluginLoader> m_loader;
    std::unique_ptr<QWidget> m_page;
    IUIPlugin* m_plugin = nullptr;

    static QString fixtures()
    {
        return QString::fromLocal8Bit(qgetenv("LINKHAND_SOURCE_DIR")) + "/tests/sdk/files/fixtures/";
    }

    // Runs once when a dialog that this finds is on the screen.
    template <typename Dialog>
    static void onDialog(QTimer& timer, std::function<bool(Dialog*)> user)
    {
        timer.setInterval(0);
        connect(&timer, &QTimer::timeout, &timer, [&timer, user] {
            auto* pDialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (pDialog != nullptr && pDialog->isVisible() && user(pDialog))
                timer.stop();
        });
        timer.start();
    }

    // What the user sees in the field map, and takes as it is. False while the dialog is another one.
    static bool acceptMap(QDialog* pDialog, QStringList& lstTitles, QStringList& lstMapped)
    {
        auto* pOk = pDialog->findChild<QPushButton*>("AddrUIplugin_FieldMapokbtn");
        if (pOk == nullptr)
            return false;
        const QList<QTableWidget*> listTables = pDialog->findChildren<QTableWidget*>();
        const bool bTitlesFirst = listTables.at(0)->columnCount() == 1;
        const QTableWidget* pTitles = listTables.at(bTitlesFirst ? 0 : 1);
        QTableWidget* pFields = listTables.at(bTitlesFirst ? 1 : 0);
        for (int iRow = 0; iRow < pTitles->rowCount() && !pTitles->item(iRow, 0)->text().isEmpty(); ++iRow)
            lstTitles << pTitles->item(iRow, 0)->text();
        // A card's file has one number, which its user drags where it belongs.
        if (lstTitles == QStringList{"Name", "Number"})
            pFields->item(MOBILE, 1)->setText("Number");
        for (int iRow = 0; iRow < FIELDS; ++iRow)
            lstMapped << pFields->item(iRow, 1)->text();
        pOk->click();
        return true;
    }

    static void compareStored(const QStringList& lstExpected)
    {
        const QList<QStringList> listStored = stored();
        QCOMPARE(listStored.size(), lstExpected.size());
        for (int i = 0; i < listStored.size(); ++i)
            QCOMPARE(listStored.at(i), lstExpected.at(i).split('\t').mid(1, FIELDS));
    }

    static void import()
    {
        for (QWidget* pWidget : QApplication::allWidgets()) {
            const auto* pMenu = qobject_cast<QMenu*>(pWidget);
            for (QAction* pAction : pMenu != nullptr ? pMenu->actions() : QList<QAction*>()) {
                if (pAction->text().startsWith("Import contacts")) {
                    pAction->trigger();
                    return;
                }
            }
        }
        QFAIL("there is no menu entry");
    }

    // Imports a file as a user does who takes the field map as it opens.
    static void importFile(const QString& strPath, QStringList& lstTitles, QStringList& lstMapped)
    {
        QTimer chooser;
        onDialog<QFileDialog>(chooser, [&strPath](QFileDialog* pDialog) {
            // A name of a folder that is still being read is not taken while the input has the keyboard.
            pDialog->selectFile(strPath);
            return QFileInfo(pDialog->selectedFiles().value(0)).fileName() == QFileInfo(strPath).fileName() &&
                   QMetaObject::invokeMethod(pDialog, "accept");
        });
        QTimer mapper;
        onDialog<QDialog>(mapper, [&](QDialog* pDialog) { return acceptMap(pDialog, lstTitles, lstMapped); });
        import();
        QVERIFY(!chooser.isActive() && !mapper.isActive());
    }

private slots:
    void initTestCase()
    {
        QLoggingCategory::setFilterRules("default.debug=false\ndefault.warning=false");
        const QString build = QString::fromLocal8Bit(qgetenv("LINKHAND_BUILD_DIR"));
        m_host = std::make_unique<Host>(build);
        m_loader = std::make_unique<QPluginLoader>(build + "/plugins/libAddrBookUIPlugin.so");
    }

    void init()
    {
        m_host->m_lstSaid.clear();
        m_folder = std::make_unique<QTemporaryDir>();
        QCOMPARE(ORVA_Sim_Reset(m_folder->filePath("data").toUtf8().constData()), 0L);
        m_page = std::make_unique<QWidget>();
        QVERIFY2(m_loader->instance() != nullptr, qPrintable(m_loader->errorString()));
        m_plugin = qobject_cast<IUIPlugin*>(m_loader->instance());
        QVERIFY(m_plugin != nullptr);
        QVERIFY(m_plugin->Init());
        QRect rect(0, 0, 800, 600);
        QVERIFY(m_plugin->ShowWindow(m_page.get(), rect));
        m_page->resize(800, 600);
        m_page->show();
        const auto* pTable = m_page->findChild<QTableWidget*>("AddrBookUIPlugin_ContactTable");
        QTRY_VERIFY(pTable->isSortingEnabled());
    }

    void cleanup()
    {
        m_plugin->UnSDKRegisterEvent();
        QTRY_COMPARE(m_host->workers(), 0);
        m_plugin->OnDestroy();
        m_page.reset();
        ORVA_Sim_Reset(nullptr);
    }

    void fileOfAnotherProgramComesIn_data()
    {
        QTest::addColumn<QString>("file");
        const QStringList lstFiles = QDir(fixtures()).entryList({"*.csv", "*.txt"}, QDir::Files);
        QVERIFY(lstFiles.size() >= 15);
        for (const QString& strFile : lstFiles)
            QTest::newRow(qPrintable(strFile)) << strFile;
    }

    void fileOfAnotherProgramComesIn()
    {
        QFETCH(const QString, file);
        QFile expectedFile(fixtures() + file + ".expected");
        QVERIFY(expectedFile.open(QIODevice::ReadOnly));
        QStringList lstExpected = QString::fromUtf8(expectedFile.readAll()).split('\n');
        const QStringList lstTitles = lstExpected.takeFirst().split(',');
        lstExpected.removeAll(QString());

        // The dialog wants the extension.
        const QString strPath = m_folder->filePath("theirs.csv");
        QVERIFY(QFile::copy(fixtures() + file, strPath));
        QStringList lstShown;
        QStringList lstMapped;
        importFile(strPath, lstShown, lstMapped);
        QCOMPARE(lstShown, lstTitles);
        // Whatever the file calls its columns, each field that has anything has found its own.
        for (int iField = 0; iField < FIELDS; ++iField)
            for (const QString& strContact : lstExpected)
                if (!strContact.split('\t').value(1 + iField).isEmpty())
                    QVERIFY2(lstMapped.at(iField) != " ", qPrintable(QString::number(iField)));
        QTRY_COMPARE(m_host->m_lstSaid,
                     QStringList(QString("Contacts found: %1, imported: %1").arg(lstExpected.size())));
        compareStored(lstExpected);
    }

    void fileOfCardsComesIn()
    {
        const QString strPath = m_folder->filePath("theirs.vcf");
        QFile file(strPath);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Ada Byron\r\nTEL;TYPE=CELL:+44 7700 900503\r\n"
                   "TEL;TYPE=WORK:+44 1632 960501\r\nTEL;TYPE=HOME:+44 1632 960502\r\nEMAIL:ada@example.com\r\n"
                   "NOTE:engines\r\nEND:VCARD\r\n");
        file.close();
        QStringList lstTitles;
        QStringList lstMapped;
        importFile(strPath, lstTitles, lstMapped);
        QVERIFY(!lstMapped.contains(" "));
        QTRY_COMPARE(m_host->m_lstSaid, QStringList("Contacts found: 1, imported: 1"));
        compareStored({"1\tAda Byron\t+447700900503\t+441632960501\t+441632960502\tada@example.com\tengines"});
    }
};

QTEST_MAIN(FixtureFilesTest)
#include "FixtureFilesTest.moc"
