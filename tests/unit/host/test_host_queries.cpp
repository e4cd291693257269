#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QtTest>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "app/FirstPaint.h"
#include "test/TestCompanion.h"
#include "test/TestSocket.h"
#include "test/WidgetQueries.h"

// The answers that desktop tests steer by.
class TestHostQueries : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void widgetsAreFoundByPath();
    void hiddenWidgetsAreNotFound();
    void aWidgetTellsTextAndPlace();
    void cellsOfATable();
    void nodesOfATree();
    void headersOfATable();
    void hiddenRowsDoNotCount();
    void entriesOfAMenu();
    void specialCharactersAreEscaped();
    void unknownQueriesAndAddresses();
    void theSocketAnswersLineByLine();
    void withoutAPathThereIsNoSocket();
    void aFileThatTheSocketDidNotMakeStays();
    void boxesAreAnsweredFromTheEnvironment();
    void theFirstPaintingOfAWindowIsSeen();
    void theFirstPaintingLeavesAMark();
    void theFirstPaintingOfSortedContactsLeavesAMark();

private:
    static QStringList ask(const QString& strQuery)
    {
        bool bFound = false;
        const QStringList lstAnswer = WidgetQueries::Answer(strQuery, bFound);
        return bFound ? lstAnswer : QStringList("none");
    }

    QScopedPointer<QWidget> m_pTop;
    QLabel* m_pSecond = nullptr;
    QTableWidget* m_pTable = nullptr;
    QTreeWidget* m_pTree = nullptr;
};

void TestHostQueries::init()
{
    m_pTop.reset(new QWidget);
    m_pTop->setObjectName("top");
    QVBoxLayout* pLayout = new QVBoxLayout(m_pTop.data());
    pLayout->addWidget(new QLabel("one"));
    m_pSecond = new QLabel("two");
    pLayout->addWidget(m_pSecond);
    m_pTable = new QTableWidget(3, 2);
    m_pTable->setObjectName("table");
    m_pTable->setItem(0, 0, new QTableWidgetItem("a"));
    m_pTable->setItem(2, 1, new QTableWidgetItem("f"));
    pLayout->addWidget(m_pTable);
    m_pTree = new QTreeWidget;
    QTreeWidgetItem* pRoot = new QTreeWidgetItem(m_pTree, QStringList("root"));
    new QTreeWidgetItem(pRoot, QStringList("child"));
    pLayout->addWidget(m_pTree);
    m_pTop->resize(400, 500);
    m_pTop->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_pTop.data()));
}

void TestHostQueries::widgetsAreFoundByPath()
{
    QCOMPARE(WidgetQueries::Find("top"), m_pTop.data());
    QCOMPARE(WidgetQueries::Find("top/table"), m_pTable);
    QCOMPARE(WidgetQueries::Find("QTreeWidget"), m_pTree);
    QCOMPARE(WidgetQueries::Find("top/QLabel[1]"), m_pSecond);
    QVERIFY(WidgetQueries::Find("top/QLabel[7]") == nullptr);
    QVERIFY(WidgetQueries::Find("table/top") == nullptr);
}

void TestHostQueries::hiddenWidgetsAreNotFound()
{
    m_pTable->hide();
    QVERIFY(WidgetQueries::Find("top/table") == nullptr);
}

void TestHostQueries::aWidgetTellsTextAndPlace()
{
    const QStringList lstFields = ask("widget\ttop/QLabel[1]").first().split('\t');
    QCOMPARE(lstFields.value(0), QStringLiteral("QLabel"));
    QCOMPARE(lstFields.value(2), QStringLiteral("two"));
    const QPoint corner = m_pSecond->mapToGlobal(QPoint());
    QCOMPARE(lstFields.mid(3), QStringList()
                                   << QString::number(corner.x()) << QString::number(corner.y())
                                   << QString::number(m_pSecond->width()) << QString::number(m_pSecond->height()) << "1"
                                   << "0"
                                   << "0"
                                   << "1");
}

void TestHostQueries::cellsOfATable()
{
    m_pTable->selectRow(2);
    const QStringList lstCells = ask("cells\ttop/table");
    QCOMPARE(lstCells.size(), 6);
    QVERIFY(lstCells.at(0).startsWith("0\t0\ta\t"));
    QVERIFY(lstCells.at(0).endsWith("\t0\t-1"));
    QVERIFY(lstCells.at(5).startsWith("2\t1\tf\t"));
    QVERIFY(lstCells.at(5).endsWith("\t1\t-1"));
}

void TestHostQueries::nodesOfATree()
{
    QCOMPARE(ask("cells\ttop/QTreeWidget").size(), 1);
    m_pTree->expandAll();
    const QStringList lstCells = ask("cells\ttop/QTreeWidget");
    QCOMPARE(lstCells.size(), 2);
    QVERIFY(lstCells.at(1).startsWith("0/0\t0\tchild\t"));
}

void TestHostQueries::headersOfATable()
{
    m_pTable->setHorizontalHeaderLabels(QStringList() << "Name"
                                                      << "Number");
    const QStringList lstHeaders = ask("headers\ttop/table");
    QCOMPARE(lstHeaders.size(), 2);
    QVERIFY(lstHeaders.at(1).startsWith("1\tNumber\t"));
    QCOMPARE(lstHeaders.at(0).section('\t', 4, 4).toInt(), m_pTable->columnWidth(0));
    m_pTable->setColumnHidden(0, true);
    QCOMPARE(ask("headers\ttop/table").size(), 1);
    QCOMPARE(ask("headers\ttop"), QStringList("none"));
}

void TestHostQueries::hiddenRowsDoNotCount()
{
    QCOMPARE(ask("rows\ttop/table"), QStringList("3"));
    m_pTable->setRowHidden(1, true);
    QCOMPARE(ask("rows\ttop/table"), QStringList("2"));
}

void TestHostQueries::entriesOfAMenu()
{
    QMenu menu;
    menu.addAction("first");
    menu.addSeparator();
    menu.addAction("second")->setEnabled(false);
    menu.popup(QPoint(5, 5));
    QTRY_COMPARE(QApplication::activePopupWidget(), &menu);
    const QStringList lstActions = ask("actions\tpopup");
    QCOMPARE(lstActions.size(), 2);
    QVERIFY(lstActions.at(0).startsWith("first\t"));
    QVERIFY(lstActions.at(0).endsWith("\t1\t0\t0\t0"));
    QVERIFY(lstActions.at(1).endsWith("\t0\t0\t0\t0"));
    menu.setActiveAction(menu.actions().first());
    QVERIFY(ask("actions\tpopup").at(0).endsWith("\t1\t0\t0\t1"));
    menu.close();
    QCOMPARE(ask("actions\tpopup"), QStringList("none"));
}

void TestHostQueries::specialCharactersAreEscaped()
{
    m_pSecond->setText("a\tb\nc\\");
    QCOMPARE(ask("widget\ttop/QLabel[1]").first().section('\t', 2, 2), QStringLiteral("a\\tb\\nc\\\\"));
}

void TestHostQueries::unknownQueriesAndAddresses()
{
    QCOMPARE(ask("widget\tnobody"), QStringList("none"));
    QCOMPARE(ask("frobnicate\ttop"), QStringList("none"));
    QCOMPARE(ask("cells\ttop"), QStringList("none"));
    QCOMPARE(ask("widget\tmodal"), QStringList("none"));
    QCOMPARE(ask(""), QStringList("none"));
    QVERIFY(ask("windows").filter("top").size() == 1);
}

void TestHostQueries::theSocketAnswersLineByLine()
{
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.filePath("test.sock"));
    const TestSocket server(path);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
    const int iSocket = socket(AF_UNIX, SOCK_STREAM, 0);
    QCOMPARE(::connect(iSocket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    const QByteArray queries = "rows\ttop/table\nwidget\tnobody\nro";
    QCOMPARE(write(iSocket, queries.constData(), size_t(queries.size())), ssize_t(queries.size()));
    QByteArray answers;
    const auto more = [&] {
        char acBuffer[256];
        const ssize_t iRead = recv(iSocket, acBuffer, sizeof acBuffer, MSG_DONTWAIT);
        answers.append(acBuffer, qMax(0, int(iRead)));
        return answers;
    };
    QTRY_COMPARE(more(), QByteArray("ok 1\n3\nnone\n"));
    answers.clear();
    QCOMPARE(write(iSocket, "ws\ttop/table\n", 13), ssize_t(13));
    QTRY_COMPARE(more(), QByteArray("ok 1\n3\n"));
    close(iSocket);
}

void TestHostQueries::withoutAPathThereIsNoSocket()
{
    const TestSocket server{QByteArray()};
    QVERIFY(server.children().isEmpty());
}

void TestHostQueries::aFileThatTheSocketDidNotMakeStays()
{
    const QTemporaryDir folder;
    const QString strTaken = folder.filePath("taken");
    QFile file(strTaken);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("mine") == 4);
    file.close();
    {
        QTest::ignoreMessage(QtWarningMsg, qPrintable("cannot listen on " + strTaken));
        const TestSocket server(QFile::encodeName(strTaken));
    }
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("mine"));
    const QString strOwn = folder.filePath("own");
    {
        const TestSocket server(QFile::encodeName(strOwn));
        QVERIFY(QFileInfo(strOwn).exists());
    }
    QVERIFY2(!QFileInfo(strOwn).exists(), "it takes its own away");
    {
        const TestSocket server(QFile::encodeName(strOwn));
        QVERIFY(QFile::remove(strOwn));
        QVERIFY(QFile::copy(strTaken, strOwn));
    }
    QVERIFY2(QFileInfo(strOwn).isFile(), "somebody else's has come in its place");
}

void TestHostQueries::boxesAreAnsweredFromTheEnvironment()
{
    TestCompanion companion;
    QVERIFY(companion.Answers().isEmpty());
    qputenv("LINKHAND_MESSAGE_ANSWERS", "1024, 4194304,x");
    const QList<int> listAnswers = companion.Answers();
    qunsetenv("LINKHAND_MESSAGE_ANSWERS");
    QCOMPARE(listAnswers, QList<int>() << 1024 << 4194304);
}

void TestHostQueries::theFirstPaintingOfAWindowIsSeen()
{
    QWidget window;
    const FirstPaint firstPaint(&window);
    QVERIFY(!firstPaint.HasCome());
    window.show();
    QTRY_VERIFY(firstPaint.HasCome());
}

void TestHostQueries::theFirstPaintingLeavesAMark()
{
    const QTemporaryDir folder;
    const QString strFile = folder.filePath("shown");
    TestCompanion companion;
    companion.Painted();
    qputenv("LINKHAND_TEST_SHOWN", QFile::encodeName(strFile));
    companion.Painted();
    qunsetenv("LINKHAND_TEST_SHOWN");
    QFile file(strFile);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("shown\n"));
}

void TestHostQueries::theFirstPaintingOfSortedContactsLeavesAMark()
{
    const QTemporaryDir folder;
    const QString strFile = folder.filePath("rows");
    QWidget page;
    QTableWidget* const pTable = new QTableWidget(3, 1, &page);
    pTable->setObjectName("AddrBookUIPlugin_ContactTable");
    qputenv("LINKHAND_TEST_ROWS", QFile::encodeName(strFile));
    TestCompanion companion;
    companion.PhonebookShown(page);
    page.show();
    const FirstPaint painted(pTable->viewport());
    QTRY_VERIFY(painted.HasCome());
    QCoreApplication::processEvents();
    QVERIFY2(!QFileInfo(strFile).exists(), "rows may still arrive");
    pTable->setSortingEnabled(true);
    QTRY_VERIFY(QFileInfo(strFile).size() > 0);
    qunsetenv("LINKHAND_TEST_ROWS");
    QFile file(strFile);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("rows\n"));
}

QTEST_MAIN(TestHostQueries)
#include "test_host_queries.moc"
