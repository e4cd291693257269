#ifndef LINKHAND_HOST_COMPANION_H
#define LINKHAND_HOST_COMPANION_H

#include <QList>

class QWidget;

// What another program made of the same objects adds to a run: the one that tests drive lets itself be looked at. The
// shipped program has none. User-interface thread only.
class Companion
{
public:
    virtual ~Companion() {}

    // The application is there; nothing is on the screen yet. The companion lives until the run is over.
    virtual void Begin() = 0;

    // The main window has been painted for the first time.
    virtual void Painted() = 0;

    // The phonebook's page is on the screen; its contacts may still be on their way. The page outlives the loop of the
    // application.
    virtual void PhonebookShown(QWidget& page) = 0;

    // What the first message boxes are answered with instead of being shown, as ShowMessage returns it.
    virtual QList<int> Answers() = 0;
};

#endif // LINKHAND_HOST_COMPANION_H
