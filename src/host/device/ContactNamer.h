#ifndef LINKHAND_HOST_CONTACTNAMER_H
#define LINKHAND_HOST_CONTACTNAMER_H

#include <QList>
#include <QObject>
#include <QPointer>

#include <memory>

// Looks on a thread of its own for the names of contacts that were just changed: in a large phonebook, or on a card,
// that takes longer than the window may stand still. User-interface thread only.
class ContactNamer : public QObject
{
    Q_OBJECT

public:
    ContactNamer();

    // Waits for the name that is being looked for.
    ~ContactNamer() override;

    // As ChangedContact::Name. The asker's slot OnContactNamed(int iTicket, QString strName) is called later, unless he
    // is gone by then; one question is answered after the other.
    void Ask(unsigned int uiMsg, unsigned int uiMemory, unsigned int uiNumber, QObject* pAsker, int iTicket);

private slots:
    void OnFound();

private:
    class Finder;
    struct Question {
        unsigned int uiMsg;
        unsigned int uiMemory;
        unsigned int uiNumber;
        QPointer<QObject> pAsker;
        int iTicket;
    };

    void find();

    QList<Question> m_listQuestions; // the first is being looked into
    std::unique_ptr<Finder> m_pFinder;
};

#endif // LINKHAND_HOST_CONTACTNAMER_H
