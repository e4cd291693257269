#ifndef LINKHAND_HOST_SINGLE_SINGLEINSTANCE_H
#define LINKHAND_HOST_SINGLE_SINGLEINSTANCE_H

#include <QObject>
#include <QScopedPointer>
#include <QStringList>

#include "single/Listener.h"
#include "single/MeetingPlace.h"

// One program a data folder: the first to begin is the one, every further start hands it what it was given and goes.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    enum Outcome {
        FIRST,     // this is the one, and listens
        PASSED_ON, // the one that runs has taken what there was to tell
        NO_ANSWER, // it runs, or ends, and has not answered in time
        FOREIGN,   // what answers is another user's
        TOO_MUCH   // more to tell than it takes
    };

    // The longest wait for the other side.
    explicit SingleInstance(const QString& strDataFolder, int iLimitMs = LIMIT_MS);

    // Where no folder is private enough to meet in, everybody is the first.
    Outcome Begin(const QStringList& lstTexts);

    // What has been received since, oldest first; a start that had nothing to tell is an empty list.
    QList<QStringList> Take();

    // Listens no more. Whoever starts now waits for this process to end, and is the first then.
    void StopListening();

    static const int LIMIT_MS = 10000;

signals:
    // There is something to take.
    void received();

private slots:
    void OnReceived(const QStringList& lstTexts);

private:
    // False: there is nobody to talk to, yet or any more.
    bool talk(const QByteArray& message, int iLimitMs, Outcome& enOutcome) const;

    MeetingPlace m_place;
    const int m_iLimitMs;
    QScopedPointer<Listener> m_pListener;
    QList<QStringList> m_listReceived;
};

#endif // LINKHAND_HOST_SINGLE_SINGLEINSTANCE_H
