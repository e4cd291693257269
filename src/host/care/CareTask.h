#ifndef LINKHAND_HOST_CARE_CARETASK_H
#define LINKHAND_HOST_CARE_CARETASK_H

#include <atomic>

// Work over the SDK that may take long. Run() is called on a thread of its own and touches no widget; what it found is
// read on the user-interface thread after it has returned. The other functions may be called on both.
class CareTask
{
public:
    enum Kind {
        READING, // what a section shows; gives way to whatever the user asks for, and is done anew then
        ASKING,  // something beside that; gives way likewise, and is forgotten
        WRITING  // may change contacts
    };

    explicit CareTask(Kind enKind) : m_enKind(enKind), m_iDone(0), m_iTotal(0), m_bCancelled(false), m_nCode(0) {}
    virtual ~CareTask() {}
    CareTask(const CareTask&) = delete;
    CareTask& operator=(const CareTask&) = delete;

    virtual void Run() = 0;

    Kind KindOf() const { return m_enKind; }

    // Whether its section gets it though it was cancelled.
    virtual bool IsTakenCancelled() const { return m_enKind == WRITING; }

    // True for one that waits itself for forms and batches to end, and so is none of them.
    virtual bool TakesTurns() const { return false; }

    // The first code of the SDK that was not 0.
    long Code() const { return m_nCode; }

    // Of work that could not be begun.
    void Fail(long nCode) { succeeded(nCode); }

    // Ends the work after the step that is under way; what is done stays done.
    void Cancel() { m_bCancelled = true; }
    bool IsCancelled() const { return m_bCancelled; }

    // Steps done, of how many; 0 for a number that is not known.
    int Done() const { return m_iDone; }
    int Total() const { return m_iTotal; }

protected:
    void setTotal(int iTotal) { m_iTotal = iTotal; }
    void setDone(int iDone) { m_iDone = iDone; }
    void advance() { ++m_iDone; }

    // Keeps a code that is not 0; true for 0.
    bool succeeded(long nCode)
    {
        if (nCode != 0 && m_nCode == 0) {
            m_nCode = nCode;
        }
        return nCode == 0;
    }

private:
    const Kind m_enKind;
    std::atomic<int> m_iDone;
    std::atomic<int> m_iTotal;
    std::atomic<bool> m_bCancelled;
    std::atomic<long> m_nCode;
};

#endif // LINKHAND_HOST_CARE_CARETASK_H
