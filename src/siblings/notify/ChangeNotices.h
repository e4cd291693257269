#ifndef LINKHAND_SIBLINGS_CHANGENOTICES_H
#define LINKHAND_SIBLINGS_CHANGENOTICES_H

#include <QObject>
#include <QString>
#include <QTimer>

// Makes one notice of each change of a contact, though the phonebook sends a message for each of its numbers, and one
// of many changes that follow each other at once. User-interface thread only.
class ChangeNotices : public QObject
{
    Q_OBJECT

public:
    ChangeNotices();

    // A message of the phonebook's; what it sends for one contact comes without an event in between.
    void Note(unsigned int uiMsg, unsigned int uiMemory, unsigned int uiNumber);

public slots:
    // Tells what was gathered.
    void Flush();

signals:
    // One contact, with its name where it is known, or several.
    void due(unsigned int uiMsg, bool bSeveral, const QString& strName);

private slots:
    void OnContactEnds();

private:
    QTimer m_quiet; // runs until nothing follows
    unsigned int m_uiMsg;
    int m_iContacts;
    bool m_bInContact;
    QString m_strName; // of the first
};

#endif // LINKHAND_SIBLINGS_CHANGENOTICES_H
