#ifndef LINKHAND_HOST_CONTACTBOOK_H
#define LINKHAND_HOST_CONTACTBOOK_H

#include <QElapsedTimer>
#include <QObject>

#include <memory>

#include "device/ContactIndex.h"

// The names and numbers of PC, card and device, read on a thread of its own whenever somebody is about to need them: a
// large phonebook takes longer than a page may take to open. User-interface thread only.
class ContactBook : public QObject
{
    Q_OBJECT

public:
    explicit ContactBook(QObject* pParent = nullptr);

    // Waits until nothing is being read any more, which is at once.
    ~ContactBook() override;

    // Reads, unless that was done a moment ago; with bAnew also then. contactsRead follows when something was read.
    void Read(bool bAnew);

    // As last read; empty before.
    const ContactIndex& Index() const { return *m_pIndex; }

signals:
    void contactsRead();

private slots:
    void OnRead();

private:
    class Reader;

    std::unique_ptr<Reader> m_pReader;
    std::shared_ptr<const ContactIndex> m_pIndex;
    QElapsedTimer m_age; // of the index, invalid while there is none
    bool m_bReading;
    bool m_bAgain; // what is being read may be too old
};

#endif // LINKHAND_HOST_CONTACTBOOK_H
