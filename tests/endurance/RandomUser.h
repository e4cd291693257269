#ifndef TESTS_ENDURANCE_RANDOMUSER_H
#define TESTS_ENDURANCE_RANDOMUSER_H

#include <QPointer>
#include <QString>

#include "Actor.h"
#include "PageUser.h"
#include "Screen.h"

class QFileDialog;
class QWidget;
class Services;

// One action after the other, from a seeded stream. An action may end in a dialog's or a menu's own event loop: the
// next one is then due inside it.
class RandomUser : private Actor
{
public:
    RandomUser(quint32 seed, Services& services, const QString& folder);

    // Does something, and says what.
    QString act();

    // One step towards a window without menus, dialogs and editors; true once there are none.
    bool putAside();

    // What came of all that.
    QString effects() { return Actor::effects().told(); }
    void goOnFrom(const QString& effects) { Actor::effects().add(effects); }

    // Whether cards were stored since the last question: where the phonebook is in use they wait for "show".
    bool takeStored();

    // Ends the program in one of the ways there are.
    QString quit();

private:
    using Action = void (RandomUser::*)();

    void actInMenu(QWidget* menu);
    void actInDialog(QWidget* dialog);
    void actInFileDialog(QFileDialog* dialog);
    void actInCards(QWidget* dialog);
    void noteStored();
    void actOnWindow();
    void clickNode();
    void clickRow();
    void openMenu();
    void pressKey();
    void type();
    void clickButton();
    void dragRows();
    void switchHardware();
    void changeLanguage();
    void sendCode();
    void hideOrShow();
    void usePages();

    PageUser m_pages;
    Services& m_services;
    QString m_folder;
    int m_triesAside;
    bool m_storing; // dropped cards
    bool m_stored;
};

#endif // TESTS_ENDURANCE_RANDOMUSER_H
