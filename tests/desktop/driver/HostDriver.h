#ifndef LINKHAND_TESTS_HOSTDRIVER_H
#define LINKHAND_TESTS_HOSTDRIVER_H

#include <QList>
#include <QPoint>
#include <QProcess>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

// A widget as the program tells of it; positions are in pixels of the screen.
struct WidgetInfo {
    bool bFound = false;
    QString strClass;
    QString strName;
    QString strText;
    QRect rect;
    bool bEnabled = false;
    bool bFocused = false;
    bool bChecked = false;
    bool bExposed = false; // its window is on the display
};

// A cell of a table, or a node of a tree (path "1/0": the first child of the second root).
struct CellInfo {
    QString strPath;
    int iColumn = -1; // -1: there is none
    QString strText;
    QRect rect;
    bool bSelected = false;
    int iCheckState = -1; // as Qt::CheckState; -1: there is no check box
};

// An entry of a menu.
struct ActionInfo {
    QString strText;
    QRect rect; // empty: there is none
    bool bEnabled = false;
    bool bChecked = false;
    bool bSubmenu = false;
    bool bLit = false; // under the mouse, or reached by key
};

// Runs the real program and uses it as a person would: it looks where things are, through the program's test socket,
// and moves the real mouse and presses real keys, through xdotool. Addresses are those of WidgetQueries.h.
//
// Everything that waits, waits for a condition, up to a limit far beyond what is normal.
class HostDriver
{
public:
    HostDriver();

    // Kills the program if it still runs.
    ~HostDriver();

    // The program to run; the built one unless set.
    void SetProgram(const QString& strProgram) { m_strProgram = strProgram; }

    // A command that runs the program in its own place, such as setpriv with its options.
    void SetRunner(const QStringList& lstRunner) { m_lstRunner = lstRunner; }
    void SetEnvironment(const QString& strName, const QString& strValue) { m_environment.insert(strName, strValue); }

    // Starts the program on a data folder and waits until its main window is on the screen. False, with the reason in
    // Log(), if it does not come.
    bool Start(const QString& strDataDir, const QStringList& lstArguments = QStringList());

    // Starts it without waiting for a window; without a data folder, on the one that the environment says.
    bool Launch(const QString& strDataDir, const QStringList& lstArguments = QStringList());

    // Presses Ctrl+Q and waits for the end. The time in milliseconds from the key to the end, -1 if it did not end.
    int Quit();

    // Waits for the end. The exit code, -1 for a crash or none within the limit.
    int WaitForExit(int iLimitMs = 20000);

    // The folder of the test socket, which the program must be able to write.
    QString SocketFolder() const { return m_folder.path(); }
    bool Running() const { return m_process.state() == QProcess::Running; }
    qint64 Pid() const { return m_process.processId(); }

    // What the program wrote on its error channel so far.
    QString Log();

    // The lines of it that should not be there: everything but what the phonebook and Qt are known to say.
    QStringList ErrorLines();

    // What the screen shows.
    WidgetInfo Widget(const QString& strAddress);
    QString Text(const QString& strAddress) { return Widget(strAddress).strText; }
    bool Exists(const QString& strAddress) { return Widget(strAddress).bFound; }
    int Rows(const QString& strAddress); // -1: no such view
    QList<CellInfo> Cells(const QString& strAddress);

    // The first cell whose text begins so, in any column or in the one given.
    CellInfo Cell(const QString& strAddress, const QString& strText, int iColumn = -1);
    // The header sections of a table or tree, as cells of the row "header".
    QList<CellInfo> Headers(const QString& strAddress);
    QList<ActionInfo> Actions(const QString& strAddress = QStringLiteral("popup"));
    ActionInfo Action(const QString& strText, const QString& strAddress = QStringLiteral("popup"));
    QStringList Windows();

    // The names of the place that has the keyboard, and all texts of the window in front.
    QStringList Place();
    QStringList Texts();

    // Waits until the condition holds; false after the limit.
    static bool WaitUntil(const std::function<bool()>& condition, int iLimitMs = 15000);
    bool WaitFor(const QString& strAddress);
    bool WaitGone(const QString& strAddress);
    bool WaitForFocus(const QString& strAddress);

    // Waits until the modal window has the focus and stays in its place: the window manager has put it there.
    bool WaitForModal();

    // Waits until the main window has the focus, which it gets back a moment after a dialog is gone.
    bool WaitForMainWindow();

    // Gives the keyboard to the modal window, or to the main window if there is none. A window manager may leave it
    // where it was when a window comes or goes; a person then clicks the title.
    bool TakeKeyboard();

    // What a person does. False if the target does not come.
    bool Click(const QString& strAddress, int iButton = 1);
    bool ClickCell(const QString& strAddress, const QString& strText, int iButton = 1);
    bool DoubleClickCell(const QString& strAddress, const QString& strText);
    bool ClickAction(const QString& strText);
    void ClickAt(const QPoint& point, int iButton = 1, int iTimes = 1);
    void MoveTo(const QPoint& point);
    void Drag(const QPoint& from, const QPoint& to);

    // Keys in xdotool's names, such as "ctrl+n" or "Return"; text as it is.
    void Key(const QString& strKey);
    void Type(const QString& strText);

    // The same with a key held down, such as "ctrl".
    void ClickAtHolding(const QString& strKey, const QPoint& point);

    // Asks the window manager to close the window with this object name, as its close button does.
    void CloseActiveWindow();

    // Writes a picture of the whole screen or of a part of it.
    bool Screenshot(const QString& strFile, const QRect& part = QRect());

private:
    QStringList ask(const QString& strQuery, bool& bFound);
    bool connectSocket();
    void disconnectSocket();
    static void xdotool(const QStringList& lstArguments);

    QTemporaryDir m_folder;
    QString m_strProgram;
    QStringList m_lstRunner;
    QProcessEnvironment m_environment;
    QProcess m_process;
    QByteArray m_log;
    QByteArray m_pending;
    int m_iSocket;
};

#endif // LINKHAND_TESTS_HOSTDRIVER_H
