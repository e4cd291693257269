// Starts the program on the demo contacts, brings it to the states worth a picture, and writes the pictures.
// Usage: contact_pictures FOLDER (with LINKHAND_BUILD_DIR and LINKHAND_SOURCE_DIR set, in a home of its own).

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>

#include <cstdio>
#include <cstdlib>

#include "Hand.h"
#include "HostDriver.h"
#include "PbCtl.h"

namespace
{

const char* const TREE = "AddrBookUIPlugin_TreeWidget";
const char* const TABLE = "AddrBookUIPlugin_ContactTable";
const char* const FORM = "AddrBookUIPlugin_New_Edit_Dlg";
const char* const FIELDS = "FieldMapTable2Widget";
const QSize SIZE(1280, 800);

QString s_strFolder;

void need(bool bDone, const char* szWhat)
{
    if (!bDone) {
        std::fprintf(stderr, "failed: %s\n", szWhat);
        std::exit(1);
    }
}
#define NEED(condition) need(condition, #condition)

class Studio
{
public:
    Studio();
    ~Studio() { m_host.Quit(); }
    void EditForms();
    void Drags();
    void RenamedGroup();
    void FieldMap();
    void Progress();

private:
    void take(const QString& strName);
    void takeModal(const QString& strName);
    void takeWithPointer(const QString& strName, const QPoint& pointer);
    bool openNode(const QString& strNode);
    void closeForm();
    QPoint handle(const QString& strContact);

    QTemporaryDir m_folder;
    HostDriver m_host;
};

Studio::Studio()
{
    const QString strDemo = QString::fromLocal8Bit(qgetenv("LINKHAND_SOURCE_DIR")) + "/demo/";
    PbCtl store(m_folder.filePath("data"));
    store.Run({"import", strDemo + "contacts.csv"});
    store.Run({"import", "--memory", "card", strDemo + "card.csv"});
    NEED(store.Used("local") > 1000 && store.Used("card") > 100);
    NEED(QDir().mkpath(m_folder.filePath("home/Desktop")));
    m_host.SetEnvironment("HOME", m_folder.filePath("home"));
    NEED(m_host.Start(m_folder.filePath("data")));
    NEED(QProcess::execute("xdotool", {"getactivewindow", "windowmove", "20", "30", "windowsize", "--sync",
                                       QString::number(SIZE.width()), QString::number(SIZE.height())}) == 0);
    NEED(HostDriver::WaitUntil([this] { return m_host.Widget("linkhand_MainWindow").rect.size() == SIZE; }));
    NEED(HostDriver::WaitUntil([&] { return m_host.Rows(TABLE) == store.Used("local"); }));
}

void Studio::take(const QString& strName)
{
    // Everything drawn that was asked for: the answers come after it.
    QTest::qWait(300);
    NEED(m_host.Screenshot(s_strFolder + '/' + strName, m_host.Widget("linkhand_MainWindow").rect));
}

void Studio::takeModal(const QString& strName)
{
    NEED(m_host.WaitForModal());
    take(strName);
}

// A picture of the screen lacks the pointer: it is drawn in.
void Studio::takeWithPointer(const QString& strName, const QPoint& pointer)
{
    take(strName);
    const QPoint tip = pointer - m_host.Widget("linkhand_MainWindow").rect.topLeft();
    const QString strArrow =
        QStringLiteral("translate %1,%2 polygon 0,0 0,16 4,12.5 6.5,18.5 9,17.5 6.5,11.5 11.5,11.5");
    NEED(QProcess::execute("mogrify", {"-fill", "white", "-stroke", "black", "-draw",
                                       strArrow.arg(tip.x()).arg(tip.y()), s_strFolder + '/' + strName}) == 0);
}

bool Studio::openNode(const QString& strNode)
{
    return m_host.ClickCell(TREE, strNode) &&
           HostDriver::WaitUntil([&] { return m_host.Cell(TREE, strNode).bSelected; });
}

void Studio::closeForm()
{
    m_host.Key("Escape");
    NEED(m_host.WaitGone(FORM));
}

QPoint Studio::handle(const QString& strContact)
{
    const QRect rect = m_host.Cell(TABLE, strContact, 0).rect;
    return QPoint(rect.left() + rect.width() / 5, rect.center().y());
}

void Studio::EditForms()
{
    NEED(m_host.DoubleClickCell(TABLE, "Ada Dunmore"));
    NEED(m_host.WaitFor(FORM));
    takeModal("edit-pc.png");
    closeForm();

    NEED(openNode("SIM"));
    NEED(HostDriver::WaitUntil([this] { return m_host.Cell(TABLE, "Ada Kern").iColumn == 0; }));
    NEED(m_host.DoubleClickCell(TABLE, "Ada Kern"));
    NEED(m_host.WaitFor(FORM));
    takeModal("edit-card.png");
    closeForm();

    NEED(openNode("Device"));
    NEED(HostDriver::WaitUntil([this] { return m_host.Rows(TABLE) == 0; }));
    m_host.Key("ctrl+n");
    NEED(m_host.WaitFor(FORM) && m_host.WaitForModal());
    m_host.Type("Harbour office");
    m_host.Key("Tab");
    m_host.Type("+441632960117");
    takeModal("edit-device.png");
    closeForm();
    NEED(openNode("Computer"));
    NEED(HostDriver::WaitUntil([this] { return m_host.Cell(TABLE, "Ada Hartley").iColumn == 0; }));
}

void Studio::Drags()
{
    NEED(m_host.ClickCell(TABLE, "Ada Hartley"));
    m_host.ClickAtHolding("ctrl", handle("Akkordeonhau"));
    Hand hand;
    hand.Press(handle("Ada Hartley"));
    const QPoint target = m_host.Cell(TREE, "Neighbours").rect.center();
    hand.MoveTo(target);
    NEED(HostDriver::WaitUntil([this] { return m_host.Cell(TREE, "Neighbours").bSelected; }));
    takeWithPointer("drag.png", target);
    hand.Tap("Escape");
}

void Studio::RenamedGroup()
{
    NEED(openNode("Work"));
    NEED(HostDriver::WaitUntil([this] { return m_host.Rows(TABLE) < 200; }));
    m_host.Key("F2");
    NEED(m_host.WaitFor("AddrBookUIPlugin_TreeWidget/QLineEdit"));
    m_host.Key("End");
    take("rename-group.png");
    m_host.Key("Return");
    NEED(m_host.WaitGone("AddrBookUIPlugin_TreeWidget/QLineEdit"));
    NEED(openNode("Computer"));
}

void Studio::FieldMap()
{
    const QRect table = m_host.Widget(TABLE).rect;
    m_host.ClickAt(QPoint(table.right() - 60, table.center().y()), 3);
    NEED(m_host.ClickAction(QString::fromUtf8("Import contacts…")));
    NEED(m_host.WaitFor("QFileDialog") && m_host.WaitForModal());
    QFile file(m_folder.filePath("home/Desktop/choir.csv"));
    NEED(file.open(QIODevice::WriteOnly));
    file.write("Singer,Voice,Mobile,Private number,E-mail,Since\nAnna,Alto,0170,030,a@example.org,2019\n");
    file.close();
    m_host.Key("ctrl+a");
    m_host.Type("choir.csv");
    NEED(HostDriver::WaitUntil([this] { return m_host.Text("QFileDialog/fileNameEdit") == "choir.csv"; }));
    // The list of completions may be open, and takes the first click.
    NEED(HostDriver::WaitUntil([this] {
        return !m_host.Exists("QFileDialog") ||
               (m_host.Click("QFileDialog/QDialogButtonBox/QPushButton[0]") &&
                HostDriver::WaitUntil([this] { return !m_host.Exists("QFileDialog"); }, 2000));
    }));
    NEED(m_host.WaitFor(FIELDS) && m_host.WaitForModal());
    Hand hand;
    const QPoint name = m_host.Cell(FIELDS, "Name", 0).rect.center();
    hand.Press(m_host.Cell("FieldMapTable1Widget", "Singer").rect.center());
    hand.MoveTo(name);
    hand.Release();
    hand.MoveTo(name + QPoint(2, 0));
    NEED(HostDriver::WaitUntil([this] { return m_host.Cell(FIELDS, "Singer", 1).iColumn == 1; }));
    hand.Press(m_host.Cell("FieldMapTable1Widget", "Private number").rect.center());
    const QPoint home = m_host.Cell(FIELDS, "Home", 0).rect.center();
    hand.MoveTo(home);
    takeWithPointer("field-map.png", home);
    hand.Release();
    m_host.Key("Escape");
    NEED(m_host.WaitGone(FIELDS));
}

void Studio::Progress()
{
    // Slow enough for a picture half way.
    NEED(m_host.Click("linkhand_NavBar_device"));
    NEED(m_host.Click("linkhand_DevicePanel_speed"));
    NEED(m_host.ClickCell("popup/QAbstractItemView", "10 ms"));
    NEED(m_host.Click("linkhand_NavBar_device"));
    NEED(openNode("SIM"));
    NEED(HostDriver::WaitUntil([this] { return m_host.Rows(TABLE) == 120; }));
    NEED(m_host.ClickCell(TABLE, "Ada Kern"));
    m_host.Key("ctrl+a");
    m_host.Key("Delete");
    NEED(m_host.WaitFor("linkhand_MessageBox"));
    NEED(m_host.Click("linkhand_MessageBox/QPushButton[0]"));
    NEED(HostDriver::WaitUntil(
        [this] { return m_host.Text("ABWaitingDlg/QLabel[1]").section('/', 0, 0).toInt() > 30; }));
    NEED(m_host.Screenshot(s_strFolder + "/progress.png", m_host.Widget("linkhand_MainWindow").rect));
    NEED(m_host.Click("ABWaitingDlg/QPushButton"));
    NEED(m_host.WaitGone("ABWaitingDlg"));
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    NEED(argc == 2);
    s_strFolder = QString::fromLocal8Bit(argv[1]);
    Studio studio;
    studio.EditForms();
    studio.Drags();
    studio.RenamedGroup();
    studio.FieldMap();
    studio.Progress();
    return 0;
}
