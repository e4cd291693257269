#ifndef LINKHAND_HOST_CARDS_CARDIMPORT_H
#define LINKHAND_HOST_CARDS_CARDIMPORT_H

#include <QObject>

#include <memory>

#include "care/ImportTasks.h"
#include "work/WorkThread.h"

// Has the SDK look into a file and import it, on a thread of its own. Lives on the user-interface thread, which alone
// calls its functions.
class CardImport : public QObject
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

    // Whether finished() is still to come.
    bool IsRunning() const { return m_thread.IsBusy(); }

    // Ends the work after the step that is under way; what is stored stays so.
    void Cancel();

    // The last that was begun. What it found is complete after finished().
    const ContactImporting& Task() const { return *m_pTask; }

signals:
    void finished();

private slots:
    void OnWorkEnded();

private:
    void run();

    std::unique_ptr<ContactImporting> m_pTask;
    WorkThread m_thread; // goes first
};

#endif // LINKHAND_HOST_CARDS_CARDIMPORT_H
