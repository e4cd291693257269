#include "PageUser.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDesktopServices>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QUrl>
#include <QtTest>

#include "Actor.h"
#include "RandomUser.h"
#include "window/MainWindow.h"

namespace
{
template <class T>
T* oneOf(Actor& actor, const QWidget* part)
{
    QList<T*> usable;
    for (T* widget : part->findChildren<T*>()) {
        if (widget->isVisible() && widget->isEnabled() && widget->window() == part->window())
            usable << widget;
    }
    return usable.isEmpty() ? nullptr : usable.at(actor.below(int(usable.size())));
}

// A form for a message, which stands beside the main window.
QWidget* messageForm()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->objectName().endsWith("UIPlugin_window"))
            return window;
    }
    return nullptr;
}
} // namespace

void PageUser::act()
{
    MainWindow* window = Screen::mainWindow();
    if (window == nullptr || !window->isVisible())
        return;
    QWidget* form = messageForm();
    const int what = m_actor.below(100);
    if (form != nullptr && what < 60) {
        write(form);
    } else if (what < 25) {
        turn();
    } else if (what < 32) {
        passOn();
    } else if (QWidget* page = window->Page(window->CurrentPage())) {
        if (window->CurrentPage() == "AddrBookUIPlugin")
            turn();
        else
            use(page);
    }
}

void PageUser::turn()
{
    static const char* const s_pages[] = {"AddrBookUIPlugin", "Messages", "VoiceCallPlugin", "Care", "Care",
                                          "Preferences"};
    const QString page = s_pages[m_actor.below(6)];
    m_actor.say("page " + page);
    Screen::mainWindow()->ShowPage(page);
}

void PageUser::use(QWidget* part)
{
    const int what = m_actor.below(100);
    if (what < 40)
        useButton(part);
    else if (what < 55)
        useLine(part);
    else if (what < 80)
        useList(part);
    else if (what < 90)
        useTabs(part);
    else
        useChoice(part);
}

void PageUser::useButton(QWidget* part)
{
    m_actor.clickButtonOf(part);
}

void PageUser::useLine(QWidget* part)
{
    QLineEdit* line = oneOf<QLineEdit>(m_actor, part);
    if (line == nullptr)
        return;
    line->setFocus();
    if (line->objectName() == "linkhand_Care_sync_folder") {
        m_actor.say("folder to synchronise with");
        line->setText(m_folder + "/cards");
    } else if (m_actor.chance(40)) {
        m_actor.say("clear " + Actor::nameOf(line));
        line->selectAll();
        QTest::keyClick(line, Qt::Key_Delete);
    } else if (m_actor.chance(30) || line->objectName().contains("Number")) {
        const QString number = QString::number(491700000 + m_actor.below(60));
        m_actor.say("number " + number + " into " + Actor::nameOf(line));
        line->setText(number);
    } else {
        m_actor.typeInto(line);
    }
}

void PageUser::useList(QWidget* part)
{
    QAbstractItemView* list = oneOf<QAbstractItemView>(m_actor, part);
    const int rows = list != nullptr && list->model() != nullptr ? list->model()->rowCount() : 0;
    if (rows == 0)
        return;
    static const Qt::KeyboardModifiers s_keys[] = {Qt::NoModifier, Qt::NoModifier, Qt::ControlModifier,
                                                   Qt::ShiftModifier};
    const int row = m_actor.below(rows);
    m_actor.say(QString("row %1 of %2 in %3").arg(row).arg(rows).arg(Actor::nameOf(list)));
    const QModelIndex index = list->model()->index(row, 0);
    list->scrollTo(index);
    m_actor.clickInto(list, Screen::shown(list, list->visualRect(index)), Qt::LeftButton, s_keys[m_actor.below(4)]);
}

// Not the modem: a test must not reach for one that is there.
void PageUser::useChoice(QWidget* part)
{
    QComboBox* choice = oneOf<QComboBox>(m_actor, part);
    if (choice == nullptr || choice->objectName().contains("ardware"))
        return;
    const bool down = m_actor.chance(50);
    m_actor.say(QString(down ? "down" : "up") + " in " + Actor::nameOf(choice));
    QTest::keyClick(choice, down ? Qt::Key_Down : Qt::Key_Up);
}

void PageUser::useTabs(QWidget* part)
{
    QTabBar* tabs = oneOf<QTabBar>(m_actor, part);
    if (tabs == nullptr)
        return;
    const int tab = m_actor.below(tabs->count());
    m_actor.say("tab " + tabs->tabText(tab));
    QTest::mouseClick(tabs, Qt::LeftButton, Qt::NoModifier, tabs->tabRect(tab).center());
}

void PageUser::write(QWidget* form)
{
    const int what = m_actor.below(100);
    if (what < 25) {
        useLine(form);
    } else if (what < 50) {
        if (QPlainTextEdit* text = oneOf<QPlainTextEdit>(m_actor, form))
            m_actor.typeInto(text);
    } else if (what < 95) {
        useButton(form);
    } else {
        m_actor.say("close " + Actor::nameOf(form));
        form->close();
    }
}

// A link that was clicked elsewhere, or a file of contacts.
void PageUser::passOn()
{
    static const char* const s_links[] = {"tel:+491700000001", "tel:0170000002;ext=12",
                                          "tel:*100%23",       "sms:+491700000003?body=See%20you",
                                          "sms:nobody",        "tel:"};
    if (m_actor.chance(40)) {
        dropCards();
        return;
    }
    const QString link = QString::fromLatin1(s_links[m_actor.below(6)]);
    m_actor.say("link " + link);
    QDesktopServices::openUrl(QUrl(link));
}

void PageUser::dropCards()
{
    m_actor.say("drop card.vcf");
    QMimeData files;
    files.setUrls(QList<QUrl>() << QUrl::fromLocalFile(m_folder + "/card.vcf"));
    QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Screen::mainWindow(), &drop);
}
