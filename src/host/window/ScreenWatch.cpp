#include "window/ScreenWatch.h"

#include <QTimer>
#include <QWidget>

#include "linkhand/QtCompat.h"
#include "window/WindowPlace.h"

ScreenWatch::ScreenWatch(QWidget& window) : m_window(window)
{
    QtCompat::connectScreenGone(this, SLOT(OnScreenGone()));
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
