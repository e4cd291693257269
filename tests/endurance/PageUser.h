#ifndef TESTS_ENDURANCE_PAGEUSER_H
#define TESTS_ENDURANCE_PAGEUSER_H

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

private:
    void turn();
    void use(QWidget* part);
    void useButton(QWidget* part);
    void useLine(QWidget* part);
    void useList(QWidget* part);
    void useChoice(QWidget* part);
    void useTabs(QWidget* part);
    void write(QWidget* form);
    void passOn();
    void dropCards();

    Actor& m_actor;
    const QString m_folder;
};

#endif // TESTS_ENDURANCE_PAGEUSER_H
