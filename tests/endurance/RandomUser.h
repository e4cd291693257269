#ifndef TESTS_ENDURANCE_RANDOMUSER_H
#define TESTS_ENDURANCE_RANDOMUSER_H

#include <QPointer>
#include <QRandomGenerator>
#include <QStringList>

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
class RandomUser
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

    int below(int limit) { return int(m_random.bounded(limit)); }
    bool chance(int percent) { return below(100) < percent; }
    void say(const QString& text) { m_said = text; }

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
    void clickButtonOf(QWidget* window);
    void typeInto(QWidget* widget);
    void clickInto(QAbstractItemView* view, const QPoint& at, Qt::MouseButton button, Qt::KeyboardModifiers keys);

    QRandomGenerator m_random;
    Services& m_services;
    QString m_folder;
    QString m_said;
    int m_triesAside;
};

#endif // TESTS_ENDURANCE_RANDOMUSER_H
