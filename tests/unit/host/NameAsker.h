#ifndef LINKHAND_TESTS_NAMEASKER_H
#define LINKHAND_TESTS_NAMEASKER_H

#include <QObject>
#include <QStringList>
#include <QThread>

// Notes what it is told of its questions, and whether that was on its own thread.
class NameAsker : public QObject
{
    Q_OBJECT

public:
    QStringList lstAnswers; // "ticket name"
    bool bHere = true;

public slots:
    void OnContactNamed(int iTicket, const QString& strName)
    {
        lstAnswers.append(QString("%1 %2").arg(iTicket).arg(strName));
        bHere = bHere && QThread::currentThread() == thread();
    }
};

#endif // LINKHAND_TESTS_NAMEASKER_H
