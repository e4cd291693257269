#include <QAction>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QLoggingCategory>
#include <QMenu>
#include <QMimeData>
#include <QPluginLoader>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

#include "../window/RealHost.h"
#include "csv/ColumnGuess.h"
#include "linkhand/QtCompat.h"
#include "linkhand/plugin/IUIPlugin.h"
#include "orva/orva_sim.h"

namespace
{

const int TWO_COLUMNS = 65536; // a guess from this on joins two columns, which no drag can do

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
// dialog, and the field map with a drop for each field that the map did not find by itself.
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

    static void sendMouse(QWidget* pWidget, QEvent::Type enType, const QPoint& point, Qt::MouseButton enButton)
    {
        QMouseEvent event(enType, point, pWidget->mapToGlobal(point), enButton,
                          enType == QEvent::MouseButtonPress ? enButton : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(pWidget, &event);
    }

    // A press on the title, its drop on the field and the movement after it.
    static void drop(QTableWidget* pTitles, int iTitle, QTableWidget* pFields, int iField)
    {
        pTitles->scrollToItem(pTitles->item(iTitle, 0));
        const QPoint press = pTitles->visualItemRect(pTitles->item(iTitle, 0)).center();
        sendMouse(pTitles->viewport(), QEvent::MouseButtonPress, press, Qt::LeftButton);
        sendMouse(pTitles->viewport(), QEvent::MouseButtonRelease, press, Qt::LeftButton);
        QMimeData data;
        data.setText(pTitles->item(iTitle, 0)->text());
        const QPoint place = pFields->visualItemRect(pFields->item(iField, 0)).center();
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(pFields->viewport(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(pFields->viewport(), &event);
        sendMouse(pFields->viewport(), QEvent::MouseMove, place, Qt::NoButton);
    }

    // Which column a person would drag where; a name out of two columns takes the first alone.
    struct DraggedMap {
        QList<int> lstColumns; // by field, -1: none
        bool bJoinedName = false;
    };

    static DraggedMap draggedMap(const QStringList& lstTitles)
    {
        std::vector<std::string> titles;
        for (const QString& strTitle : lstTitles)
            titles.push_back(strTitle.toStdString());
        const orva::ColumnGuess guess(titles);
        DraggedMap map;
        map.bJoinedName = guess.forLabel("ID_STR_NAME") >= TWO_COLUMNS;
        for (const char* szLabel : {"ID_STR_NAME", "ID_STR_MOBILE_PHONE", "ID_STR_BUSINESS_PHONE", "ID_STR_HOME_PHONE",
                                    "ID_STR_EMAIL", "ID_STR_NOTES"}) {
            const int iColumn = guess.forLabel(szLabel);
            map.lstColumns << (iColumn >= TWO_COLUMNS ? iColumn % TWO_COLUMNS : iColumn);
        }
        return map;
    }

    // What the user does in the field map. False while the dialog is another one.
    static bool mapFields(QDialog* pDialog, const DraggedMap& map, int iTitles, QStringList& lstShown)
    {
        auto* pOk = pDialog->findChild<QPushButton*>("AddrUIplugin_FieldMapokbtn");
        if (pOk == nullptr)
            return false;
        const QList<QTableWidget*> listTables = pDialog->findChildren<QTableWidget*>();
        const bool bTitlesFirst = listTables.at(0)->columnCount() == 1;
        QTableWidget* pTitles = listTables.at(bTitlesFirst ? 0 : 1);
        QTableWidget* pFields = listTables.at(bTitlesFirst ? 1 : 0);
        for (int iRow = 0; iRow < iTitles; ++iRow)
            lstShown << pTitles->item(iRow, 0)->text();
        for (int iField = 0; iField < map.lstColumns.size(); ++iField) {
            if (map.lstColumns.at(iField) >= 0)
                drop(pTitles, map.lstColumns.at(iField), pFields, iField);
            else
                pFields->item(iField, 1)->setText(" ");
        }
        pOk->click();
        return true;
    }

    static void compareStored(const QStringList& lstExpected, bool bJoinedName)
    {
        const QList<QStringList> listStored = stored();
        QCOMPARE(listStored.size(), lstExpected.size());
        for (int i = 0; i < listStored.size(); ++i) {
            QStringList lstWanted = lstExpected.at(i).split('\t').mid(1, 6);
            if (bJoinedName) {
                // The first of the two columns alone, which may be empty.
                const QString& strFirst = listStored.at(i).first();
                QVERIFY2(strFirst.isEmpty() || QString(lstWanted.first() + ' ').startsWith(strFirst + ' '),
                         qPrintable(strFirst));
                lstWanted.first() = strFirst;
            }
            QCOMPARE(listStored.at(i), lstWanted);
        }
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
        const DraggedMap map = draggedMap(lstTitles);

        // The dialog wants the extension.
        const QString strPath = m_folder->filePath("theirs.csv");
        QVERIFY(QFile::copy(fixtures() + file, strPath));
        QTimer chooser;
        onDialog<QFileDialog>(chooser, [&strPath](QFileDialog* pDialog) {
            pDialog->selectFile(strPath);
            return QMetaObject::invokeMethod(pDialog, "accept");
        });
        QTimer mapper;
        QStringList lstShown;
        onDialog<QDialog>(mapper,
                          [&](QDialog* pDialog) { return mapFields(pDialog, map, lstTitles.size(), lstShown); });
        import();
        QVERIFY(!chooser.isActive() && !mapper.isActive());
        QCOMPARE(lstShown, lstTitles);
        QTRY_COMPARE(m_host->m_lstSaid,
                     QStringList(QString("Contacts found: %1, imported: %1").arg(lstExpected.size())));
        compareStored(lstExpected, map.bJoinedName);
    }
};

QTEST_MAIN(FixtureFilesTest)
#include "FixtureFilesTest.moc"
