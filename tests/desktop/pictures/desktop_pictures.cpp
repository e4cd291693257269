// Usage: desktop_pictures DEMO FOLDER. Runs the program on the demo contacts in DEMO, uses it as the tests do, and
// writes pictures of what it shows into FOLDER.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>

#include "HostDriver.h"
#include "Profile.h"
#include "orva/orva_sdk.h"

namespace
{

const char* const TREE = "AddrBookUIPlugin_TreeWidget";
const char* const TABLE = "AddrBookUIPlugin_ContactTable";
const char* const WINDOW = "linkhand_MainWindow";
const char* const CHOICE = "AddrBookUIPlugin_selectContacts_treeContacts";
const int TITLE_HEIGHT = 22; // with the window manager's frame

// Ends the program, saying which step failed.
void must(bool bDone, const char* pszStep)
{
    if (!bDone)
        qFatal("%s", pszStep);
}

#define MUST(step) must(step, #step)

QStringList linesOf(const QString& strFile)
{
    QFile file(strFile);
    MUST(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
}

class Camera
{
public:
    // iScale: pixels of the screen for one of the window.
    Camera(const QString& strDemo, const QString& strFolder, int iScale = 1) : m_folder(strFolder), m_iScale(iScale)
    {
        m_host.SetEnvironment("QT_SCALE_FACTOR", QString::number(iScale));
        MUST(m_profile.Import(ORVA_MEMORY_LOCAL, linesOf(strDemo + "/contacts.csv")));
        MUST(m_profile.Import(ORVA_MEMORY_CARD, linesOf(strDemo + "/card.csv")));
        m_profile.Close();
        MUST(m_host.Start(m_profile.Path()));
        MUST(HostDriver::WaitUntil([this] { return m_host.Rows(TABLE) > 1000 && !isBusy(); }));
    }
    ~Camera() { m_host.Quit(); }

    // The size of the pictures of whole windows.
    void MakeLarge();
    void TakeMenus();
    void TakeSharpToolBar();
    void TakeToolBar();
    void TakeEditors();
    void TakeSync();

private:
    // True while the first fill moves what was clicked.
    bool isBusy() { return m_host.Cell(TREE, "SIM").iColumn < 0; }
    void take(const QString& strFile, const QRect& rect);
    void takeWindow(const QString& strFile, const QString& strAddress);
    void select(const QStringList& lstContacts);
    QString current();
    void takePicker();

    Profile m_profile;
    HostDriver m_host;
    QDir m_folder;
    int m_iScale;
};

void Camera::take(const QString& strFile, const QRect& rect)
{
    const QString strArea = QString("%1x%2+%3+%4").arg(rect.width()).arg(rect.height()).arg(rect.x()).arg(rect.y());
    MUST(QProcess::execute("import", {"-silent", "-window", "root", "-crop", strArea, "+repage", "-strip",
                                      m_folder.filePath(strFile)}) == 0);
    QTextStream(stdout) << m_folder.filePath(strFile) << '\n';
}

void Camera::takeWindow(const QString& strFile, const QString& strAddress)
{
    m_host.MoveTo(QPoint(1, 1)); // nothing lights up below the mouse
    take(strFile, m_host.Widget(strAddress).rect.adjusted(-1, -TITLE_HEIGHT, 1, 1));
}

void Camera::select(const QStringList& lstContacts)
{
    MUST(m_host.ClickCell(TABLE, lstContacts.first()));
    foreach (const QString& strContact, lstContacts.mid(1))
        m_host.ClickAtHolding("ctrl", m_host.Cell(TABLE, strContact).rect.center());
    MUST(HostDriver::WaitUntil([&] { return m_host.Cell(TABLE, lstContacts.last()).bSelected; }));
}

void Camera::MakeLarge()
{
    QProcess::execute("xdotool", {"getactivewindow", "windowsize", "--sync", "1280", "800"});
    MUST(HostDriver::WaitUntil([this] { return m_host.Widget(WINDOW).rect.size() == QSize(1280, 800); }));
}

void Camera::TakeMenus()
{
    MUST(m_host.ClickCell(TABLE, "Amelia Ingram", 3));
    MUST(m_host.ClickAction("Send"));
    MUST(HostDriver::WaitUntil([this] { return m_host.Actions().size() == 2; }));
    take("table-menu.png", m_host.Widget(WINDOW).rect);
    m_host.Key("Escape");
    m_host.Key("Escape");
    MUST(m_host.WaitGone("popup"));
    MUST(m_host.ClickCell(TREE, "Family"));
    MUST(HostDriver::WaitUntil([this] { return m_host.Rows(TABLE) < 1000 && m_host.Widget(TREE).bFocused; }));
    MUST(m_host.ClickCell(TREE, "Family", 3));
    MUST(m_host.WaitFor("popup"));
    take("tree-menu.png", m_host.Widget(WINDOW).rect);
    m_host.Key("Escape");
    MUST(m_host.WaitGone("popup"));
    MUST(m_host.ClickCell(TREE, "Computer"));
    MUST(HostDriver::WaitUntil([this] { return m_host.Rows(TABLE) > 1000; }));
}

void Camera::TakeToolBar()
{
    m_host.Key("ctrl+f");
    MUST(m_host.WaitForFocus("AddrBookUIPlugin_SearchBox"));
    m_host.Type("hart");
    MUST(HostDriver::WaitUntil([this] { return m_host.Rows(TABLE) < 100; }));
    select({"Ada Hartley"});
    m_host.MoveTo(QPoint(1, 1));
    const QRect bar = m_host.Widget("AddrBookUIPlugin_ToolBar").rect;
    take("toolbar.png", QRect(bar.topLeft(), QSize(bar.width(), bar.height() + 200)));
    MUST(m_host.Click("AddrBookUIPlugin_ToolButton_9005"));
    MUST(HostDriver::WaitUntil([this] { return m_host.Actions().size() == 2; }));
    take("toolbar-send-menu.png", QRect(bar.topLeft(), QSize(bar.width(), bar.height() + 200)));
    m_host.Key("Escape");
    MUST(m_host.WaitGone("popup"));
    m_host.Key("ctrl+f");
    MUST(HostDriver::WaitUntil([this] { return m_host.Rows(TABLE) > 1000; }));
}

// The left part, where the buttons are.
void Camera::TakeSharpToolBar()
{
    m_host.ClickAt(m_host.Cell(TABLE, "Ada Dunmore").rect.center() * m_iScale);
    MUST(HostDriver::WaitUntil([this] { return m_host.Widget("AddrBookUIPlugin_ToolButton_9001").bEnabled; }));
    const QRect bar = m_host.Widget("AddrBookUIPlugin_ToolBar").rect;
    const QRect search = m_host.Widget("AddrBookUIPlugin_ToolButton_9006").rect;
    take("toolbar-200-percent.png",
         QRect(bar.topLeft() * m_iScale, QSize(search.right() - bar.left() + 5, bar.height()) * m_iScale));
}

void Camera::TakeEditors()
{
    select({"Ada Dunmore", "Amelia Hartley", "Amelia Yardley"});
    m_host.Key("ctrl+t");
    MUST(m_host.WaitForFocus("SMSUIPlugin_texteditText"));
    m_host.Type("The train is late, start without me. See you at eight!");
    takeWindow("sms-editor.png", "SMSUIPlugin_window");
    takePicker();
    // What is written would be asked for.
    MUST(m_host.Click("SMSUIPlugin_texteditText"));
    m_host.Key("ctrl+a");
    m_host.Key("Delete");
    MUST(m_host.Click("SMSUIPlugin_buttonClose"));
    MUST(m_host.WaitGone("SMSUIPlugin_window"));
    MUST(m_host.WaitForFocus(TABLE));
    m_host.Key("ctrl+m");
    MUST(m_host.WaitForFocus("MMSUIPlugin_texteditText"));
    m_host.Type("Photos of Sunday follow. Which one shall we print?");
    MUST(m_host.Click("MMSUIPlugin_lineeditSubject"));
    m_host.Type("Sunday");
    takeWindow("mms-editor.png", "MMSUIPlugin_window");
    m_host.Key("ctrl+a");
    m_host.Key("Delete");
    MUST(m_host.Click("MMSUIPlugin_texteditText"));
    m_host.Key("ctrl+a");
    m_host.Key("Delete");
    MUST(m_host.Click("MMSUIPlugin_buttonClose"));
    MUST(m_host.WaitGone("MMSUIPlugin_window"));
}

// With a folder of nobody's.
void Camera::TakeSync()
{
    const QString strCards = QDir::home().filePath("Contacts");
    MUST(m_host.Click("linkhand_NavBar_Care"));
    MUST(m_host.WaitFor("linkhand_Care_tabs/QTabBar"));
    for (int i = 0; i < 20 && !m_host.Widget("linkhand_Care_tabs/QTabBar").bFocused; ++i)
        m_host.Key("shift+Tab");
    m_host.Key("End");
    for (int i = 0; i < 10 && !m_host.Exists("linkhand_Care_sync_kind"); ++i)
        m_host.Key("Right");
    MUST(HostDriver::WaitUntil([this] { return !m_host.Text("linkhand_Care_sync_last").isEmpty(); }));
    for (int i = 0; i < 5 && !m_host.Widget("linkhand_Care_sync_kind").bFocused; ++i)
        m_host.Key("Tab");
    m_host.Key("Down");
    MUST(m_host.Click("linkhand_Care_sync_folder"));
    m_host.Type(strCards);
    MUST(m_host.Click("linkhand_Care_sync_setup"));
    MUST(HostDriver::WaitUntil([this] { return m_host.Widget("linkhand_Care_sync_now").bEnabled; }));
    MUST(m_host.Click("linkhand_Care_sync_now"));
    MUST(HostDriver::WaitUntil(
        [this] { return m_host.Text("linkhand_Care_sync_last").contains("Both sides are the same now."); }, 60000));
    m_host.MoveTo(QPoint(1, 1));
    take("sync.png", m_host.Widget(WINDOW).rect);
    QDir(strCards).removeRecursively();
}

QString Camera::current()
{
    foreach (const CellInfo& cell, m_host.Cells(CHOICE)) {
        if (cell.bSelected)
            return cell.strText;
    }
    return QString();
}

void Camera::takePicker()
{
    MUST(m_host.Click("SMSUIPlugin_buttonAddRecipients"));
    // The caller's numbers are ticked when all memories have been read.
    MUST(HostDriver::WaitUntil([this] { return m_host.Cell(CHOICE, "Computer").iCheckState == Qt::Checked; }));
    // Down to a group with one of them, whose numbers are opened.
    m_host.Type("Family");
    MUST(HostDriver::WaitUntil([this] { return m_host.Cell(CHOICE, "Family").bSelected; }));
    for (int i = 0; i < 10 && current() != "Ada Dunmore"; ++i) {
        const QString strBefore = current();
        m_host.Key("Down");
        MUST(HostDriver::WaitUntil([&] { return current() != strBefore; }));
    }
    m_host.Key("Right");
    MUST(HostDriver::WaitUntil([this] { return m_host.Cell(CHOICE, "Ada Dunmore").iCheckState == Qt::Checked; }));
    m_host.MoveTo(m_host.Widget(CHOICE).rect.center());
    for (int i = 0; i < 3; ++i)
        m_host.ClickAt(m_host.Widget(CHOICE).rect.center(), 5); // the wheel
    MUST(HostDriver::WaitUntil([this] { return m_host.Cell(CHOICE, "Home ").iColumn == 0; }));
    takeWindow("pick-numbers.png", "modal");
    m_host.Key("Escape");
    MUST(m_host.WaitGone("modal"));
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 3) {
        QTextStream(stderr) << "Usage: desktop_pictures DEMO FOLDER\n";
        return 2;
    }
    const QString strDemo = QFile::decodeName(argv[1]);
    const QString strFolder = QFile::decodeName(argv[2]);
    {
        Camera camera(strDemo, strFolder);
        camera.MakeLarge();
        camera.TakeMenus();
        camera.TakeToolBar();
        camera.TakeEditors();
        camera.TakeSync();
    }
    Camera(strDemo, strFolder, 2).TakeSharpToolBar();
    return 0;
}
