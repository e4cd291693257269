#ifndef TESTS_ENDURANCE_PAGEUSER_H
#define TESTS_ENDURANCE_PAGEUSER_H

#include <QElapsedTimer>
#include <QPointer>
#include <QString>

class Actor;
class QWidget;

// What a user does beside the phonebook: messages, calls, care of the contacts, preferences, help, and what the desktop
// passes on to the program.
class PageUser
{
public:
    // The folder holds "card.vcf".
    PageUser(Actor& actor, const QString& folder) : m_actor(actor), m_folder(folder) {}

    void act();

    // What can be gone for, and a step towards it: true if that was all that could be done for now.
    static QStringList kinds();
    bool goFor(const QString& kind);

    // Notes what has come of links and dropped files: that takes until nothing else is open.
    void noteLate();

    // Whether the user still waits for one of them: a moment, unless a dialog keeps it back.
    bool isWaiting() const;

private:
    void turn();
    void turnTo(const QString& page);
    void chooseFile(QWidget* care);
    void use(QWidget* part);
    void useAs(const QString& kind, QWidget* part);
    void useButton(QWidget* part);
    void useLine(QWidget* part);
    void useList(QWidget* part);
    void useChoice(QWidget* part);
    void useTabs(QWidget* part);
    void write(QWidget* form);
    void openLink();
    void dropCards();

    Actor& m_actor;
    const QString m_folder;
    bool m_linked = false;           // a link waits to be opened
    bool m_dropped = false;          // and cards
    QElapsedTimer m_waiting;         // since the last of them
    QPointer<QWidget> m_cardsDialog; // the last that was seen
};

#endif // TESTS_ENDURANCE_PAGEUSER_H
