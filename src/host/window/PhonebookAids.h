#ifndef LINKHAND_HOST_PHONEBOOKAIDS_H
#define LINKHAND_HOST_PHONEBOOKAIDS_H

#include "window/CopyKeys.h"
#include "window/DragReturn.h"
#include "window/PhonebookCounts.h"
#include "window/PhonebookLayout.h"
#include "window/SearchKeys.h"

// What the host adds to the phonebook's window from outside: keys of the search box, copies by key, the return from a
// drag, counts in the status area, and how the user has divided it.
class PhonebookAids
{
public:
    // All outlive this; the phonebook's window is on the page already.
    PhonebookAids(QWidget& page, const WorkerCount& workers, StatusArea& status, HostSettings& settings)
        : m_keys(page), m_copy(page), m_return(page, workers), m_counts(page, status), m_layout(page, settings)
    {
    }

    PhonebookLayout& Layout() { return m_layout; }

private:
    Q_DISABLE_COPY(PhonebookAids)
    SearchKeys m_keys;
    CopyKeys m_copy;
    DragReturn m_return;
    PhonebookCounts m_counts;
    PhonebookLayout m_layout;
};

#endif // LINKHAND_HOST_PHONEBOOKAIDS_H
