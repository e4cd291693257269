// The user's hand: mouse and keys, by xdotool.

#include "HostDriver.h"

#include <QTest>

namespace
{
const int STEP_MS = 20;
} // namespace

bool HostDriver::Click(const QString& strAddress, int iButton)
{
    // A widget may still be moving to its place, and a new window be on its way to the display.
    WidgetInfo before;
    const bool bReady = WaitUntil([&] {
        const WidgetInfo now = Widget(strAddress);
        const bool bStill = now.bExposed && now.bEnabled && before.bFound && now.rect == before.rect;
        before = now;
        return bStill;
    });
    if (bReady) {
        ClickAt(before.rect.center(), iButton);
    }
    return bReady;
}

bool HostDriver::ClickCell(const QString& strAddress, const QString& strText, int iButton)
{
    CellInfo cell;
    if (!WaitUntil([&] { return (cell = Cell(strAddress, strText)).iColumn >= 0; })) {
        return false;
    }
    ClickAt(cell.rect.center(), iButton);
    return true;
}

bool HostDriver::DoubleClickCell(const QString& strAddress, const QString& strText)
{
    CellInfo cell;
    if (!WaitUntil([&] { return (cell = Cell(strAddress, strText)).iColumn >= 0; })) {
        return false;
    }
    ClickAt(cell.rect.center(), 1, 2);
    return true;
}

bool HostDriver::ClickAction(const QString& strText)
{
    ActionInfo action;
    if (!WaitUntil([&] { return !(action = Action(strText)).rect.isEmpty(); })) {
        return false;
    }
    ClickAt(action.rect.center());
    return true;
}

void HostDriver::ClickAt(const QPoint& point, int iButton, int iTimes)
{
    xdotool(QStringList() << "mousemove" << QString::number(point.x()) << QString::number(point.y()) << "click"
                          << "--repeat" << QString::number(iTimes) << "--delay"
                          << "40" << QString::number(iButton));
}

void HostDriver::ClickAtHolding(const QString& strKey, const QPoint& point)
{
    xdotool(QStringList() << "keydown" << strKey);
    ClickAt(point);
    xdotool(QStringList() << "keyup" << strKey);
}

void HostDriver::MoveTo(const QPoint& point)
{
    xdotool(QStringList() << "mousemove" << QString::number(point.x()) << QString::number(point.y()));
}

void HostDriver::Drag(const QPoint& from, const QPoint& to)
{
    MoveTo(from);
    xdotool(QStringList() << "mousedown"
                          << "1");
    // A drag begins after some way, and its targets want to see the pointer move.
    const int iSteps = 12;
    for (int i = 1; i <= iSteps; ++i) {
        MoveTo(from + (to - from) * i / iSteps);
        QTest::qWait(STEP_MS);
    }
    MoveTo(to + QPoint(1, 1));
    MoveTo(to);
    QTest::qWait(5 * STEP_MS);
    xdotool(QStringList() << "mouseup"
                          << "1");
}

void HostDriver::Key(const QString& strKey)
{
    xdotool(QStringList() << "key"
                          << "--clearmodifiers" << strKey);
}

void HostDriver::Type(const QString& strText)
{
    xdotool(QStringList() << "type"
                          << "--delay"
                          << "5"
                          << "--" << strText);
}

void HostDriver::CloseActiveWindow()
{
    Key("alt+F4");
}

void HostDriver::xdotool(const QStringList& lstArguments)
{
    const int iCode = QProcess::execute("xdotool", lstArguments);
    if (iCode != 0) {
        qWarning("xdotool %s: %d", qPrintable(lstArguments.join(' ')), iCode);
    }
}
