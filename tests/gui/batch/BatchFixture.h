#ifndef TESTS_GUI_BATCH_BATCHFIXTURE_H
#define TESTS_GUI_BATCH_BATCHFIXTURE_H

#include <atomic>
#include <memory>

#include "../contacts/ContactsSupport.h"
#include "../copy/CopyFixture.h"
#include "../files/FileUser.h"

// Keeps a worker inside one call of an operation until it is let go: nothing happens by the clock.
class Held
{
public:
    Held(const QByteArray& operation, int nth);
    ~Held() { letGo(); }
    bool wait() const; // until the worker is there
    void letGo() { m_state->open = true; }

private:
    Q_DISABLE_COPY(Held)
    struct State {
        std::atomic<bool> there{false};
        std::atomic<bool> open{false};
    };
    std::shared_ptr<State> m_state;
};

// The window with a user who drags, answers file dialogs and saves numbers, and a batch whose record is still in hand.
class BatchFixture : public CopyFixture, public FileUser
{
public:
    // Four contacts of one number each.
    static void fillLocal();
    static QStringList ones() { return {"One 1", "One 2", "One 3", "One 4"}; }

    // A copy of the four to the card, cancelled while its first record is being written.
    void cancelledCopy();

    // The same with an import of n contacts to the PC.
    void cancelledImport(int n);

    // Behind a cancel: the progress has gone, and the window has the keyboard again.
    bool waitForTheWindow() const;

    // The batch ends and is told, as it does while a dialog of the user's is open.
    void letEnd() const;

    static QString copied(int total, int success);
    static QString imported(int total, int success);

    std::unique_ptr<Held> held;
};

#endif // TESTS_GUI_BATCH_BATCHFIXTURE_H
