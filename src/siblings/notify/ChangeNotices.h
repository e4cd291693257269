#ifndef LINKHAND_SIBLINGS_CHANGENOTICES_H
#define LINKHAND_SIBLINGS_CHANGENOTICES_H

#include <QList>
#include <QObject>
#include <QPair>
#include <QString>
#include <QTimer>

// Makes one notice of each change of a contact, though the phonebook sends a message for each of its numbers, and one
// of many changes that follow each other at once. Who it was takes the host a while to tell: the notice waits for it,
// but for another change. User-interface thread only.
class ChangeNotices : public QObject
{
    Q_OBJECT

public:
    ChangeNotices();

    // A message of the phonebook's; what it sends for one contact comes without an event in between.
    void Note(unsigned int uiMsg, unsigned int uiMemory, unsigned int uiNumber);

public slots:
    // Tells what was gathered, as far as it is known.
    void Flush();

    // The host's answer.
    void OnContactNamed(int iTicket, const QString& strName);

signals:
    // One contact, with its name where it is known, or several.
    void due(unsigned int uiMsg, bool bSeveral, const QString& strName);

private slots:
    void OnContactEnds();
    void OnQuiet();

private:
    void ask();

    QTimer m_quiet; // runs until nothing follows
    unsigned int m_uiMsg;
    int m_iContacts;
    bool m_bInContact;
    bool m_bDue;                                         // but for the name
    QString m_strName;                                   // of the first
    QList<QPair<unsigned int, unsigned int>> m_listWays; // memory and number by which it may yet be found
    bool m_bAsking;
    int m_iTicket; // of the last question
};

#endif // LINKHAND_SIBLINGS_CHANGENOTICES_H
