#ifndef TESTS_ENDURANCE_LIFE_H
#define TESTS_ENDURANCE_LIFE_H

#include <QFile>
#include <QList>
#include <QObject>
#include <QPointer>

#include "RandomUser.h"
#include "ScreenCheck.h"
#include "window/MainWindow.h"

// One run of the program under a random user: so many actions, with a look at screen and store after each hundred.
class Life : public QObject
{
    Q_OBJECT

public:
    // What was done goes to the file "actions.log" in the folder, so that a crash can be traced.
    Life(quint32 seed, int actions, Services& services, const QString& folder);

    void start();

    // What came of the actions of earlier lives, which counts for this one.
    void goOnFrom(const QString& effects) { m_user.goOnFrom(effects); }

    // True once all was done; a program that ended before it has ended itself.
    bool ended() const { return m_ended; }

    // Empty if all went well.
    QString failure() const { return m_failure; }

private slots:
    void OnNext();
    void OnCareWrote();

private:
    void watchCare();
    void look();
    void checkMemory();
    void note(const QString& text);
    void end();

    RandomUser m_user;
    ScreenCheck m_check;
    QPointer<MainWindow> m_watched;
    Services& m_services;
    QFile m_log;
    QString m_failure;
    int m_actions;
    int m_done;
    int m_restfulSteps;
    int m_looks;
    QList<int> m_widgets;    // at each look
    QList<size_t> m_heapKiB; // in use at each look; 0 under a sanitizer
    bool m_lookDue;
    bool m_looking;
    bool m_careWrote; // and nothing was looked at since
    bool m_ended;
};

#endif // TESTS_ENDURANCE_LIFE_H
