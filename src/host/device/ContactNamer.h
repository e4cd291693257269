#ifndef LINKHAND_HOST_CONTACTNAMER_H
#define LINKHAND_HOST_CONTACTNAMER_H

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include "work/WorkThread.h"

// Looks on a thread of its own for the names of contacts that were just changed: in a large phonebook, or on a card,
// that takes longer than the window may stand still. User-interface thread only.
class ContactNamer : public QObject
{
    Q_OBJECT

public:
    // Waits at its end for the name that is being looked for.
    ContactNamer();

    // As ChangedContact::Name. The asker's slot OnContactNamed(int iTicket, QString strName) is called later, unless he
    // is gone by then; one question is answered after the other.
    void Ask(unsigned int uiMsg, unsigned int uiMemory, unsigned int uiNumber, QObject* pAsker, int iTicket);

private slots:
    void OnFound();

private:
    struct Question {
        unsigned int uiMsg;
        unsigned int uiMemory;
        unsigned int uiNumber;
        QPointer<QObject> pAsker;
        int iTicket;
    };

    void find();

    QList<Question> m_listQuestions; // the first is being looked into
    QString m_strName;               // of the first
    WorkThread m_thread;             // goes first
};

#endif // LINKHAND_HOST_CONTACTNAMER_H
