#include "Hand.h"

#include <QProcess>
#include <QtTest>

namespace
{

const int STEPS = 10;

void xdotool(const QStringList& lstArguments)
{
    QProcess::execute("xdotool", lstArguments);
}

} // namespace

Hand::~Hand()
{
    Release();
    LetGo();
}

void Hand::Press(const QPoint& point)
{
    m_at = point;
    xdotool({"mousemove", QString::number(point.x()), QString::number(point.y()), "mousedown", "1"});
    m_bDown = true;
}

void Hand::MoveTo(const QPoint& point)
{
    const QPoint from = m_at;
    QStringList lstArguments;
    for (int i = 1; i <= STEPS; ++i) {
        m_at = from + (point - from) * i / STEPS;
        lstArguments << "mousemove" << QString::number(m_at.x()) << QString::number(m_at.y()) << "sleep"
                     << "0.01";
    }
    lstArguments << "mousemove" << QString::number(m_at.x() + 1) << QString::number(m_at.y()) << "mousemove"
                 << QString::number(m_at.x()) << QString::number(m_at.y());
    xdotool(lstArguments);
}

void Hand::Release()
{
    if (m_bDown)
        xdotool({"mouseup", "1"});
    m_bDown = false;
}

void Hand::Tap(const QString& strKey)
{
    xdotool({"key", strKey});
}

void Hand::Hold(const QString& strKey)
{
    xdotool({"keydown", strKey});
    m_strHeld = strKey;
}

void Hand::LetGo()
{
    if (!m_strHeld.isEmpty())
        xdotool({"keyup", m_strHeld});
    m_strHeld.clear();
}
