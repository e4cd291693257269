#include "PageUser.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDesktopServices>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QUrl>
#include <QtTest>

#include "Actor.h"
#include "Screen.h"
#include "fit/PageView.h"
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

const int s_iFilling = 4;        // so many of the links show something of their own
const int s_iPatienceMs = 10000; // what has not come by then does not come

QStringList pageKinds()
{
    return {"page button", "page line", "page list", "page tab", "page choice"};
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
        m_actor.effects().is("message");
        write(form);
    } else if (what < 25) {
        turn();
    } else if (what < 32) {
        if (m_actor.chance(40))
            dropCards();
        else
            openLink();
    } else if (QWidget* page = window->Page(window->CurrentPage())) {
        if (window->CurrentPage() == "AddrBookUIPlugin")
            turn();
        else
            use(page);
    }
}

QStringList PageUser::kinds()
{
    return pageKinds() + QStringList{"link", "cards", "file dialog"};
}

bool PageUser::goFor(const QString& kind)
{
    static const QStringList s_phonebook = {"node", "row", "menu", "drag"};
    const QString wanted = s_phonebook.contains(kind) ? "AddrBookUIPlugin"
                           : kind == "file dialog"    ? "Care"
                           : kind == "page choice"    ? "Preferences"
                                                      : QString();
    MainWindow* window = Screen::mainWindow();
    if (window == nullptr || !window->isVisible())
        return true;
    QWidget* page = window->Page(window->CurrentPage());
    if (!wanted.isEmpty() && window->CurrentPage() != wanted)
        turnTo(wanted);
    else if ((kind == "link" && m_linked) || (kind == "cards" && m_dropped))
        return false;
    else if (kind == "link")
        openLink();
    else if (kind == "cards")
        dropCards();
    else if (kind == "file dialog" && page != nullptr)
        chooseFile(page);
    else if (pageKinds().contains(kind) && (page == nullptr || window->CurrentPage() == "AddrBookUIPlugin"))
        turn();
    else if (pageKinds().contains(kind))
        useAs(kind, page);
    else
        return false;
    return true;
}

void PageUser::turn()
{
    static const char* const s_pages[] = {"AddrBookUIPlugin", "Messages", "VoiceCallPlugin", "Care", "Care",
                                          "Preferences"};
    turnTo(s_pages[m_actor.below(6)]);
}

void PageUser::turnTo(const QString& page)
{
    m_actor.say("page " + page);
    m_actor.effects().is("page");
    Screen::mainWindow()->ShowPage(page);
}

void PageUser::chooseFile(QWidget* care)
{
    QAbstractButton* choose = care->findChild<QAbstractButton*>("linkhand_Care_import_file");
    QTabWidget* tabs = care->findChild<QTabWidget*>("linkhand_Care_tabs");
    m_actor.say("choose a file to import");
    m_actor.effects().is("page button");
    if (choose == nullptr || tabs == nullptr)
        return;
    tabs->setCurrentWidget(PageView::Of(care->findChild<QWidget*>("linkhand_Care_import")));
    if (choose->isEnabled())
        QTest::mouseClick(choose, Qt::LeftButton);
}

void PageUser::use(QWidget* part)
{
    const int what = m_actor.below(100);
    useAs(pageKinds().at(what < 40 ? 0 : what < 55 ? 1 : what < 80 ? 2 : what < 90 ? 3 : 4), part);
}

void PageUser::useAs(const QString& kind, QWidget* part)
{
    m_actor.effects().is(kind);
    if (kind == "page button")
        useButton(part);
    else if (kind == "page line")
        useLine(part);
    else if (kind == "page list")
        useList(part);
    else if (kind == "page tab")
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
    const int last = choice->count() - 1;
    const bool down = choice->currentIndex() <= 0 || (choice->currentIndex() < last && m_actor.chance(50));
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

// One that was clicked elsewhere.
void PageUser::openLink()
{
    static const char* const s_links[] = {"tel:+491700000001", "tel:0170000002;ext=12",
                                          "tel:*100%23",       "sms:+491700000003?body=See%20you",
                                          "sms:nobody",        "tel:"};
    const int which = m_actor.below(6);
    const QString link = QString::fromLatin1(s_links[which]);
    m_actor.say("link " + link);
    m_actor.effects().is("link", true);
    m_linked = which < s_iFilling;
    m_waiting.start();
    QDesktopServices::openUrl(QUrl(link));
}

// As the window system sends it: what has not come in cannot be dropped.
void PageUser::dropCards()
{
    m_actor.say("drop card.vcf");
    m_actor.effects().is("cards", true);
    m_dropped = true;
    m_waiting.start();
    QWidget* window = Screen::mainWindow();
    QMimeData files;
    files.setUrls(QList<QUrl>() << QUrl::fromLocalFile(m_folder + "/card.vcf"));
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(window, &enter);
    QDragMoveEvent move(QPoint(6, 6), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    move.ignore();
    QApplication::sendEvent(window, &move);
    QDropEvent drop(QPoint(6, 6), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window, &drop);
}

bool PageUser::isWaiting() const
{
    return (m_linked || m_dropped) && m_waiting.elapsed() < s_iPatienceMs;
}

void PageUser::noteLate()
{
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal != nullptr && modal->objectName() == "linkhand_Cards" && m_cardsDialog != modal) {
        m_cardsDialog = QApplication::activeModalWidget();
        m_actor.effects().did("cards");
        m_dropped = false;
    }
    const MainWindow* window = Screen::mainWindow();
    if (!m_linked || window == nullptr)
        return;
    const QLineEdit* number = window->findChild<QLineEdit*>("VoiceCallPlugin_lineeditNumber");
    const QWidget* form = messageForm();
    const QPlainTextEdit* text = form != nullptr ? form->findChild<QPlainTextEdit*>() : nullptr;
    const bool filled = number != nullptr && (number->text() == "+491700000001" || number->text() == "0170000002");
    bool told = false; // of a code
    for (const QLabel* label : modal != nullptr ? modal->findChildren<QLabel*>() : QList<QLabel*>())
        told = told || label->text().contains("*100#");
    if (filled || told || (text != nullptr && text->toPlainText() == "See you")) {
        m_linked = false;
        m_actor.effects().did("link");
    }
}
