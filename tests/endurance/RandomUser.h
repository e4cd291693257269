#ifndef TESTS_ENDURANCE_RANDOMUSER_H
#define TESTS_ENDURANCE_RANDOMUSER_H

#include <QPointer>
#include <QString>

#include "Actor.h"
#include "PageUser.h"

class MainWindow;
class QAbstractItemView;
class QFileDialog;
class QPoint;
class QRect;
class QTableWidget;
class QTreeWidget;
class QWidget;
class Services;

// The window's parts as a user finds them; null while they are not there.
namespace Screen
{
MainWindow* mainWindow();
QTreeWidget* tree();
QTableWidget* table();

// Where a click hits an item: the middle of what shows of it.
QPoint shown(const QAbstractItemView* view, const QRect& item);
} // namespace Screen

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

    // Ends the program in one of the ways there are.
    QString quit();

private:
    using Action = void (RandomUser::*)();

    void actInMenu(QWidget* menu);
    void actInDialog(QWidget* dialog);
    void actInFileDialog(QFileDialog* dialog);
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
};

#endif // TESTS_ENDURANCE_RANDOMUSER_H
