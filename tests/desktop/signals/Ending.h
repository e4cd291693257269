#ifndef LINKHAND_TESTS_ENDING_H
#define LINKHAND_TESTS_ENDING_H

#include <QList>
#include <QObject>
#include <QSize>
#include <QTimer>

#include "Director.h"

// Runs the program in this process, opens one scene in it and then, once that is calm, sends a signal to the process.
// The word "signalled" on the output channel tells when.
class Ending : public QObject
{
    Q_OBJECT

public:
    // The director's scenes and what else may be open.
    static QList<Scene> Scenes();

    // What has to stand before a scene is opened, where it is not the first page with its contacts.
    static void Prepare(const QString& strScene);

    // The exit code of the program: that of its own, or 99 if the scene did not come.
    static int Run(int& argc, char** argv, const Scene& scene, int iSignal, int iTimes);

private slots:
    void OnTick();

private:
    Ending(const Scene& scene, int iSignal, int iTimes);

    enum State { COME_UP, WAIT, SIGNALLED };

    Scene m_scene;
    int m_iSignal;
    int m_iTimes; // how often it is still to be sent
    QTimer m_timer;
    State m_enState;
    int m_iTicks;
    int m_iCalm;
    QSize m_sizeLast;
};

#endif // LINKHAND_TESTS_ENDING_H
