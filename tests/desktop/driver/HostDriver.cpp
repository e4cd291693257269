#include "HostDriver.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace
{

const int ANSWER_LIMIT_MS = 20000; // the program may be busy filling a table
const int STEP_MS = 20;
const char* const MAIN_WINDOW = "linkhand_MainWindow";

QString unescaped(const QString& strText)
{
    QString strResult;
    for (int i = 0; i < strText.length(); ++i) {
        if (strText.at(i) == '\\' && i + 1 < strText.length()) {
            const QChar c = strText.at(++i);
            strResult += c == 't' ? QChar('\t') : c == 'n' ? QChar('\n') : c;
        } else {
            strResult += strText.at(i);
        }
    }
    return strResult;
}

QStringList fields(const QString& strLine)
{
    QStringList lstFields;
    foreach (const QString& strField, strLine.split('\t')) {
        lstFields.append(unescaped(strField));
    }
    return lstFields;
}

QStringList unescapedLines(const QStringList& lstLines)
{
    QStringList lstTexts;
    foreach (const QString& strLine, lstLines) {
        lstTexts.append(unescaped(strLine));
    }
    return lstTexts;
}

QRect rect(const QStringList& lstFields, int iFirst)
{
    return QRect(lstFields.value(iFirst).toInt(), lstFields.value(iFirst + 1).toInt(),
                 lstFields.value(iFirst + 2).toInt(), lstFields.value(iFirst + 3).toInt());
}

bool flag(const QStringList& lstFields, int iAt)
{
    return lstFields.value(iAt) == "1";
}

} // namespace

HostDriver::HostDriver()
    : m_strProgram(QString::fromLocal8Bit(qgetenv("LINKHAND_BUILD_DIR")) + "/linkhand-test"),
      m_environment(QProcessEnvironment::systemEnvironment()),
      m_iSocket(-1)
{
    m_environment.insert("LINKHAND_TEST_SOCKET", m_folder.filePath("socket"));
    m_process.setProcessChannelMode(QProcess::SeparateChannels);
}

HostDriver::~HostDriver()
{
    disconnectSocket();
    if (Running()) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

bool HostDriver::Launch(const QString& strDataDir, const QStringList& lstArguments)
{
    m_log.clear();
    disconnectSocket();
    m_process.setProcessEnvironment(m_environment);
    QStringList lstCommand = QStringList(m_lstRunner) << m_strProgram;
    if (!strDataDir.isEmpty()) {
        lstCommand << "--data-dir" << strDataDir;
    }
    lstCommand << lstArguments;
    m_process.start(lstCommand.first(), lstCommand.mid(1));
    return m_process.waitForStarted();
}

bool HostDriver::Start(const QString& strDataDir, const QStringList& lstArguments)
{
    if (!Launch(strDataDir, lstArguments) || !WaitUntil([this] { return connectSocket() || !Running(); }) ||
        !WaitFor(MAIN_WINDOW)) {
        m_log += "\nthe main window did not come\n";
        return false;
    }
    // The window manager gives the focus a moment after the window is there.
    return WaitUntil([this] {
        return !Windows().filter(QRegularExpression("^[^\t]*\tlinkhand_MainWindow\t.*\t1$")).isEmpty() ||
               Exists("modal");
    });
}

int HostDriver::Quit()
{
    // A window that has just closed may still be given the keyboard, and takes a key with it.
    for (int i = 0; i < 4 && Running(); ++i) {
        TakeKeyboard();
        QElapsedTimer timer;
        timer.start();
        Key("ctrl+q");
        if (WaitForExit(5000) == 0) {
            return int(timer.elapsed());
        }
    }
    return -1;
}

int HostDriver::WaitForExit(int iLimitMs)
{
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(iLimitMs)) {
        return -1;
    }
    disconnectSocket();
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

QString HostDriver::Log()
{
    if (m_process.isOpen()) {
        m_log += m_process.readAllStandardError();
    }
    return QString::fromLocal8Bit(m_log);
}

QStringList HostDriver::ErrorLines()
{
    // Two connections of the phonebook are asked for though one end does not exist, which Qt says; a node without a
    // group asks for one when the tree is painted anew; a phonebook without groups is told as a walk that cannot
    // begin; without a card there is no PIN to be told of (code 1007); Qt's X11 part may ask for a window that has just
    // closed, and its Wayland part says that windows cannot come up by themselves.
    static const QRegularExpression known("No such slot AddrBookDlg::OnMoveResult|"
                                          "No such signal AddrBookTableWidget::sendMmsMessage|"
                                          "QObject::connect:  \\((sender|receiver) name:|"
                                          "GetGroups: ORVA_PBSrv_AddrGroupSet_MoveFirst returned -1$|"
                                          "GetGroupInfo could not find the info for the given group id|"
                                          "ORVA_DevSrv_GetPinStatus returned 1007|"
                                          "XCB error: 3 \\(BadWindow\\)|"
                                          "Wayland does not support QWindow::requestActivate");
    QStringList lstLines;
    foreach (const QString& strLine, Log().split('\n', Qt::SkipEmptyParts)) {
        if (!known.match(strLine).hasMatch()) {
            lstLines.append(strLine);
        }
    }
    return lstLines;
}

WidgetInfo HostDriver::Widget(const QString& strAddress)
{
    WidgetInfo info;
    const QStringList lstLines = ask("widget\t" + strAddress, info.bFound);
    if (info.bFound) {
        const QStringList lstFields = fields(lstLines.value(0));
        info.strClass = lstFields.value(0);
        info.strName = lstFields.value(1);
        info.strText = lstFields.value(2);
        info.rect = rect(lstFields, 3);
        info.bEnabled = flag(lstFields, 7);
        info.bFocused = flag(lstFields, 8);
        info.bChecked = flag(lstFields, 9);
        info.bExposed = flag(lstFields, 10);
    }
    return info;
}

int HostDriver::Rows(const QString& strAddress)
{
    bool bFound = false;
    const QStringList lstLines = ask("rows\t" + strAddress, bFound);
    return bFound ? lstLines.value(0).toInt() : -1;
}

QList<CellInfo> HostDriver::Cells(const QString& strAddress)
{
    bool bFound = false;
    QList<CellInfo> listCells;
    foreach (const QString& strLine, ask("cells\t" + strAddress, bFound)) {
        const QStringList lstFields = fields(strLine);
        CellInfo cell;
        cell.strPath = lstFields.value(0);
        cell.iColumn = lstFields.value(1).toInt();
        cell.strText = lstFields.value(2);
        cell.rect = rect(lstFields, 3);
        cell.bSelected = flag(lstFields, 7);
        cell.iCheckState = lstFields.value(8).toInt();
        listCells.append(cell);
    }
    return listCells;
}

CellInfo HostDriver::Cell(const QString& strAddress, const QString& strText, int iColumn)
{
    foreach (const CellInfo& cell, Cells(strAddress)) {
        if (cell.strText.startsWith(strText) && (iColumn < 0 || cell.iColumn == iColumn)) {
            return cell;
        }
    }
    return CellInfo();
}

QList<CellInfo> HostDriver::Headers(const QString& strAddress)
{
    bool bFound = false;
    QList<CellInfo> listCells;
    foreach (const QString& strLine, ask("headers\t" + strAddress, bFound)) {
        const QStringList lstFields = fields(strLine);
        CellInfo cell;
        cell.strPath = "header";
        cell.iColumn = lstFields.value(0).toInt();
        cell.strText = lstFields.value(1);
        cell.rect = rect(lstFields, 2);
        listCells.append(cell);
    }
    return listCells;
}

QList<ActionInfo> HostDriver::Actions(const QString& strAddress)
{
    bool bFound = false;
    QList<ActionInfo> listActions;
    foreach (const QString& strLine, ask("actions\t" + strAddress, bFound)) {
        const QStringList lstFields = fields(strLine);
        ActionInfo action;
        action.strText = lstFields.value(0);
        action.rect = rect(lstFields, 1);
        action.bEnabled = flag(lstFields, 5);
        action.bChecked = flag(lstFields, 6);
        action.bSubmenu = flag(lstFields, 7);
        action.bLit = flag(lstFields, 8);
        listActions.append(action);
    }
    return listActions;
}

ActionInfo HostDriver::Action(const QString& strText, const QString& strAddress)
{
    foreach (const ActionInfo& action, Actions(strAddress)) {
        // A text may carry its shortcut behind a tab, and the mark of a mnemonic.
        QString strShown = action.strText.section('\t', 0, 0);
        if (strShown.remove('&') == strText) {
            return action;
        }
    }
    return ActionInfo();
}

QStringList HostDriver::Windows()
{
    bool bFound = false;
    return ask("windows", bFound);
}

QStringList HostDriver::Place()
{
    bool bFound = false;
    return unescapedLines(ask("place", bFound));
}

QStringList HostDriver::Texts()
{
    bool bFound = false;
    return unescapedLines(ask("texts", bFound));
}

bool HostDriver::WaitUntil(const std::function<bool()>& condition, int iLimitMs)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > iLimitMs) {
            return false;
        }
        QTest::qWait(STEP_MS);
    }
    return true;
}

bool HostDriver::WaitFor(const QString& strAddress)
{
    return WaitUntil([&] { return Exists(strAddress); });
}

bool HostDriver::WaitGone(const QString& strAddress)
{
    return WaitUntil([&] { return !Exists(strAddress); });
}

bool HostDriver::WaitForFocus(const QString& strAddress)
{
    return WaitUntil([&] { return Widget(strAddress).bFocused; });
}

bool HostDriver::WaitForMainWindow()
{
    const auto noModal = [this] { return Windows().filter(QRegularExpression("\t1\t[01]$")).isEmpty(); };
    return WaitUntil(noModal) && TakeKeyboard() && WaitUntil([this] {
               return !Windows().filter(QRegularExpression("^[^\t]*\tlinkhand_MainWindow\t.*\t1$")).isEmpty();
           });
}

bool HostDriver::TakeKeyboard()
{
    for (int i = 0; i < 5; ++i) {
        QStringList lstFields;
        const bool bActive = WaitUntil(
            [&] {
                QStringList lstWindows = Windows().filter(QRegularExpression("\t1\t[01]$"));
                if (lstWindows.isEmpty()) {
                    lstWindows = Windows().filter("\tlinkhand_MainWindow\t");
                }
                lstFields = lstWindows.isEmpty() ? QStringList() : lstWindows.last().split('\t');
                return !lstWindows.filter(QRegularExpression("\t1$")).isEmpty(); // of two modal ones the upper has it
            },
            2000);
        if (bActive) {
            return true;
        }
        if (lstFields.size() == 9) {
            ClickAt(QPoint(lstFields.at(3).toInt() + lstFields.at(5).toInt() / 2, lstFields.at(4).toInt() - 10));
            Key("Shift_L"); // a key tells the program, where the window manager sees no change
        }
    }
    return false;
}

bool HostDriver::WaitForModal()
{
    const auto isThere = [this] { return !Windows().filter(QRegularExpression("\t1\t[01]$")).isEmpty(); };
    if (!WaitUntil(isThere) || !TakeKeyboard()) {
        return false;
    }
    QStringList lstBefore;
    return WaitUntil([&] {
        const QStringList lstNow = Windows().filter(QRegularExpression("\t1\t1$"));
        const bool bStill = !lstNow.isEmpty() && lstNow == lstBefore;
        lstBefore = lstNow;
        return bStill;
    });
}

bool HostDriver::Screenshot(const QString& strFile, const QRect& part)
{
    QStringList lstArguments = {"-silent", "-window", "root"};
    if (!part.isEmpty()) {
        lstArguments << "-crop"
                     << QStringLiteral("%1x%2+%3+%4").arg(part.width()).arg(part.height()).arg(part.x()).arg(part.y())
                     << "+repage";
    }
    return QProcess::execute("import", lstArguments << strFile) == 0;
}

QStringList HostDriver::ask(const QString& strQuery, bool& bFound)
{
    bFound = false;
    if (!connectSocket()) {
        return QStringList();
    }
    const QByteArray query = strQuery.toUtf8() + '\n';
    if (send(m_iSocket, query.constData(), size_t(query.size()), MSG_NOSIGNAL) != ssize_t(query.size())) {
        disconnectSocket();
        return QStringList();
    }
    QStringList lstLines;
    int iExpected = 1;
    while (lstLines.size() < iExpected) {
        const int iEnd = m_pending.indexOf('\n');
        if (iEnd >= 0) {
            lstLines.append(QString::fromUtf8(m_pending.left(iEnd)));
            m_pending.remove(0, iEnd + 1);
            if (lstLines.size() == 1 && lstLines.first().startsWith("ok ")) {
                bFound = true;
                iExpected += lstLines.first().mid(3).toInt();
            }
            continue;
        }
        char acBuffer[65536];
        pollfd poll = {m_iSocket, POLLIN, 0};
        const ssize_t iRead = ::poll(&poll, 1, ANSWER_LIMIT_MS) == 1 ? read(m_iSocket, acBuffer, sizeof acBuffer) : 0;
        if (iRead <= 0) {
            disconnectSocket();
            bFound = false;
            return QStringList();
        }
        m_pending.append(acBuffer, int(iRead));
    }
    lstLines.removeFirst();
    return lstLines;
}

bool HostDriver::connectSocket()
{
    if (m_iSocket >= 0) {
        return true;
    }
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, QFile::encodeName(m_folder.filePath("socket")).constData(), sizeof address.sun_path);
    m_iSocket = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (::connect(m_iSocket, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) {
        disconnectSocket();
        return false;
    }
    return true;
}

void HostDriver::disconnectSocket()
{
    if (m_iSocket >= 0) {
        close(m_iSocket);
    }
    m_iSocket = -1;
    m_pending.clear();
}
