#include "Life.h"

#include <QApplication>
#include <QTimer>

#include <malloc.h>

#include <algorithm>
#include <cstdio>

#include "PageCheck.h"
#include "app/Services.h"
#include "device/SimulatedHardware.h"
#include "window/MainWindow.h"
#include "window/StatusArea.h"

namespace
{
const int s_iLookEvery = 100;
const int s_iLooks = 5;
const int s_iRestfulSteps = 5; // what a worker has sent last is told within these
const int s_iMoreWidgets = 60; // what is made on first use
const int s_iHeapLooks = 10;
const size_t s_moreHeapKiB = 8192;

// Resident memory of this process in KiB.
long residentKiB()
{
    long pages = 0;
    if (FILE* file = std::fopen("/proc/self/statm", "r")) {
        long size = 0;
        if (std::fscanf(file, "%ld %ld", &size, &pages) != 2)
            pages = 0;
        std::fclose(file);
    }
    return pages * 4;
}
} // namespace

Life::Life(quint32 seed, int actions, Services& services, const QString& folder)
    : m_user(seed, services, folder),
      m_check(services),
      m_services(services),
      m_log(folder + "/actions.log"),
      m_actions(actions),
      m_done(0),
      m_restfulSteps(0),
      m_looks(0),
      m_lookDue(false),
      m_looking(false),
      m_careWrote(false),
      m_ended(false)
{
    m_log.open(QIODevice::WriteOnly | QIODevice::Truncate);
}

void Life::start()
{
    QTimer::singleShot(0, this, SLOT(OnNext()));
}

void Life::note(const QString& text)
{
    m_log.write(QString("%1 %2\n").arg(m_done).arg(text).toUtf8());
    m_log.flush();
}

// The window is made when the program runs.
void Life::watchCare()
{
    MainWindow* const window = Screen::mainWindow();
    if (window != nullptr && window != m_watched)
        connect(window, SIGNAL(contactsChanged()), this, SLOT(OnCareWrote()));
    m_watched = window;
}

// What the care page writes waits for "show" too where the phonebook is in use.
void Life::OnCareWrote()
{
    m_careWrote = true;
}

// The next step is asked for before this one is done: it may be due in the event loop of what this one opens. While the
// screen is looked at, and after the end, nothing is left to do but to answer what a worker still tells.
void Life::OnNext()
{
    QTimer::singleShot(m_lookDue || m_looking || m_ended ? 10 : 0, this, SLOT(OnNext()));
    watchCare();
    if (m_looking || m_ended) {
        m_user.putAside();
        return;
    }
    if (m_lookDue) {
        m_restfulSteps = m_user.putAside() && m_check.isAtRest() ? m_restfulSteps + 1 : 0;
        if (m_restfulSteps == s_iRestfulSteps)
            look();
        return;
    }
    const QString said = m_user.act();
    if (said.isEmpty() || m_ended)
        return;
    note(said);
    ++m_done;
    m_lookDue = m_lookDue || m_done % s_iLookEvery == 0;
    m_restfulSteps = 0;
    if (m_done >= m_actions && !m_lookDue)
        end();
}

void Life::look()
{
    m_looking = true;
    m_lookDue = false;
    if (Screen::mainWindow() != nullptr) {
        m_failure = PageCheck::run(*Screen::mainWindow());
        Screen::mainWindow()->ShowPage("AddrBookUIPlugin");
        const bool stored = m_user.takeStored();
        if (stored || m_careWrote)
            QMetaObject::invokeMethod(&Screen::mainWindow()->Status(), "showChangesRequested");
        m_careWrote = false;
    }
    if (m_failure.isEmpty())
        m_failure = m_check.run();
    m_looking = false;
    // A worker that had been started but did not count yet may have written meanwhile.
    if (!m_failure.isEmpty() && ++m_looks < s_iLooks) {
        note("look again: " + m_failure);
        m_failure.clear();
        m_lookDue = true;
        m_restfulSteps = 0;
        return;
    }
    m_looks = 0;
    checkMemory();
    note(QString("look: %1, %2 KiB, %3 in use, %4 widgets")
             .arg(m_failure.isEmpty() ? "agrees" : m_failure)
             .arg(residentKiB())
             .arg(m_heapKiB.last())
             .arg(m_widgets.last()));
    if (!m_failure.isEmpty() || m_done >= m_actions)
        end();
}

// With all that can be put aside gone, a long life needs no more than a short one. How many contacts there are and what
// is on the screen moves the figures up and down; the smallest of several says what is kept for good.
void Life::checkMemory()
{
    m_widgets.append(QApplication::allWidgets().size());
    m_heapKiB.append(mallinfo2().uordblks / 1024);
    if (m_failure.isEmpty() && m_widgets.last() > m_widgets.first() + s_iMoreWidgets)
        m_failure = QString("%1 widgets are kept, at first %2").arg(m_widgets.last()).arg(m_widgets.first());
    if (m_failure.isEmpty() && m_heapKiB.size() >= 2 * s_iHeapLooks) {
        const auto smallest = [this](int from) {
            return *std::min_element(m_heapKiB.begin() + from, m_heapKiB.begin() + from + s_iHeapLooks);
        };
        const size_t first = smallest(0);
        const size_t last = smallest(m_heapKiB.size() - s_iHeapLooks);
        if (last > 3 * first + s_moreHeapKiB)
            m_failure = QString("%1 KiB are in use, at first %2").arg(last).arg(first);
    }
}

void Life::end()
{
    m_ended = true;
    note("effects: " + m_user.effects());
    note(m_user.quit());
}
