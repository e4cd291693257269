#include "window/ScreenWatch.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include "window/WindowPlace.h"

ScreenWatch::ScreenWatch(QWidget& window) : m_window(window)
{
    // Qt 4 has no such signal, and moves nothing.
    if (qApp->metaObject()->indexOfSignal("screenRemoved(QScreen*)") >= 0) {
        connect(qApp, SIGNAL(screenRemoved(QScreen*)), this, SLOT(OnScreenGone()));
    }
}

// Told before the windows have moved.
void ScreenWatch::OnScreenGone()
{
    QTimer::singleShot(0, this, SLOT(OnSettled()));
}

void ScreenWatch::OnSettled()
{
    if (m_window.isVisible()) {
        WindowPlace::Fit(m_window);
    }
}
