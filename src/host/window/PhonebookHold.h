#ifndef LINKHAND_HOST_PHONEBOOKHOLD_H
#define LINKHAND_HOST_PHONEBOOKHOLD_H

#include <QObject>
#include <QTimer>

class WorkerCount;

// Keeps syncs of other programs out of the phonebook while a form is open, a name is edited in a list or a batch runs:
// what ends then writes all of a contact as it was read. User-interface thread only.
class PhonebookHold : public QObject
{
    Q_OBJECT

public:
    // The workers outlive this.
    explicit PhonebookHold(const WorkerCount& workers);
    ~PhonebookHold() override;

    bool Held() const { return m_pHold != nullptr; }

    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private slots:
    void OnLook();

private:
    void take(int iWaitMs);
    void release();
    bool isNeeded() const;

    const WorkerCount& m_workers;
    QTimer m_look; // runs while it is held or wanted
    void* m_pHold;
};

#endif // LINKHAND_HOST_PHONEBOOKHOLD_H
