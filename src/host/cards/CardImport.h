#ifndef LINKHAND_HOST_CARDS_CARDIMPORT_H
#define LINKHAND_HOST_CARDS_CARDIMPORT_H

#include <QThread>

#include <atomic>
#include <memory>

#include "care/ImportTasks.h"

// Has the SDK look into a file and import it, on this thread. The object lives on the user-interface thread, which
// alone calls its functions.
class CardImport : public QThread
{
    Q_OBJECT

public:
    explicit CardImport(QObject* pParent);

    // Cancels what runs and waits for its step.
    ~CardImport() override;

    // False if the SDK in use does not import by itself.
    static bool IsPossible();

    // Begins what is to be done; the one before has ended.
    void Begin(const ImportPlan& plan, bool bTry);

    // Ends the work after the step that is under way; what is stored stays so.
    void Cancel();

    // The last that was begun. What it found is complete after finished().
    const ContactImporting& Task() const;

protected:
    void run() override;

private:
    void waitForEnd();

    std::unique_ptr<ContactImporting> m_pTask;

    // Publishes what run() found to whoever saw its end. QThread does so too, but not visibly for the thread sanitizer.
    std::atomic<int> m_iRuns;
};

#endif // LINKHAND_HOST_CARDS_CARDIMPORT_H
