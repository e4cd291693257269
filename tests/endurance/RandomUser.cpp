#include "RandomUser.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColor>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMimeData>
#include <QTableWidget>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QtTest>

#include <csignal>

#include "Store.h"
#include "app/Services.h"
#include "device/SimulatedHardware.h"
#include "linkhand/plugin/Codes.h"
#include "loader/PluginContainer.h"
#include "loader/PluginHandle.h"
#include "logic/ItemData.h"
#include "orva/orva_sim.h"
#include "widgets/DragFormat.h"
#include "window/MainWindow.h"

namespace
{
QList<QTreeWidgetItem*> nodes(QTreeWidget* tree)
{
    QList<QTreeWidgetItem*> list;
    for (QTreeWidgetItemIterator it(tree); *it != nullptr; ++it)
        list << *it;
    return list;
}
} // namespace

RandomUser::RandomUser(quint32 seed, Services& services, const QString& folder)
    : Actor(seed),
      m_pages(*this, folder),
      m_services(services),
      m_folder(folder),
      m_triesAside(0),
      m_storing(false),
      m_stored(false)
{
}

QString RandomUser::act()
{
    say(QString());
    // Whoever clicks into a window has it active; the editors of cells end by the change of focus.
    MainWindow* window = Screen::mainWindow();
    if (window != nullptr && window->isVisible() && QApplication::activeWindow() != window &&
        QApplication::activePopupWidget() == nullptr && QApplication::activeModalWidget() == nullptr) {
        QApplication::setActiveWindow(window);
        return said();
    }
    m_pages.noteLate();
    noteStored();
    if (m_pages.isWaiting() && QApplication::activePopupWidget() == nullptr &&
        QApplication::activeModalWidget() == nullptr)
        return said();
    const Effects::Trial trial(Actor::effects());
    if (chance(8)) {
        Actor::effects().is("hardware");
        switchHardware();
    } else if (QWidget* menu = QApplication::activePopupWidget()) {
        Actor::effects().is("menu entry");
        actInMenu(menu);
    } else if (QWidget* dialog = QApplication::activeModalWidget()) {
        Actor::effects().is("dialog");
        actInDialog(dialog);
    } else {
        actOnWindow();
    }
    if (said().isEmpty())
        Actor::effects().is(QString()); // there was nothing to do it to
    return said();
}

// Now and then what has had the fewest effects so far.
void RandomUser::actOnWindow()
{
    static const QStringList s_goals = {"node",   "row",  "menu",     "key",  "type",
                                        "button", "drag", "language", "code", "window"};
    // Each with its weight.
    static const struct {
        int weight;
        const char* kind;
        Action action;
    } s_actions[] = {
        {22, "node", &RandomUser::clickNode},
        {16, "row", &RandomUser::clickRow},
        {8, "menu", &RandomUser::openMenu},
        {12, "key", &RandomUser::pressKey},
        {6, "type", &RandomUser::type},
        {10, "button", &RandomUser::clickButton},
        {8, "drag", &RandomUser::dragRows},
        {10, "hardware", &RandomUser::switchHardware},
        {2, "language", &RandomUser::changeLanguage},
        {3, "code", &RandomUser::sendCode},
        {3, "window", &RandomUser::hideOrShow},
        {35, "page", &RandomUser::usePages},
    };
    const QString rarest = chance(40) ? Actor::effects().rarest(m_pages.kinds() + s_goals) : QString();
    if (!rarest.isEmpty() && m_pages.goFor(rarest))
        return;
    int sum = 0;
    for (const auto& entry : s_actions)
        sum += entry.weight;
    int at = below(sum);
    for (const auto& entry : s_actions) {
        at -= entry.weight;
        if (rarest.isEmpty() ? at < 0 : rarest == entry.kind) {
            Actor::effects().is(entry.kind);
            (this->*entry.action)();
            break;
        }
    }
}

bool RandomUser::putAside()
{
    QWidget* open = QApplication::activePopupWidget();
    if (open == nullptr)
        open = QApplication::activeModalWidget();
    QLineEdit* editor = Screen::tree() != nullptr ? Screen::tree()->findChild<QLineEdit*>() : nullptr;
    if (open == nullptr && editor != nullptr) {
        QTest::keyClick(editor, Qt::Key_Escape);
        return false;
    }
    if (open == nullptr) {
        foreach (QWidget* window, QApplication::topLevelWidgets()) {
            if (window->isVisible() && window != Screen::mainWindow()) {
                window->close(); // a message editor
                return false;
            }
        }
        m_triesAside = 0;
        return true;
    }
    // A box without a way out by Escape has a button for Return; a window takes its close button.
    static const Qt::Key s_keys[] = {Qt::Key_Escape, Qt::Key_Escape, Qt::Key_Return};
    const int step = m_triesAside++ % 4;
    if (step < 3)
        QTest::keyClick(open, s_keys[step]);
    else
        open->close();
    return false;
}

QString RandomUser::quit()
{
    switch (below(3)) {
    case 0:
        QApplication::quit();
        return "quit";
    case 1:
        if (Screen::mainWindow() != nullptr)
            Screen::mainWindow()->close();
        return "close the window";
    default:
        std::raise(SIGTERM);
        return "signal";
    }
}

void RandomUser::actInMenu(QWidget* menu)
{
    if (chance(25)) {
        say("leave menu");
        QTest::keyClick(menu, Qt::Key_Escape);
        return;
    }
    const int steps = 1 + below(12);
    say(QString("menu entry %1").arg(steps));
    const QPointer<QWidget> still(menu);
    for (int i = 0; i < steps && !still.isNull(); ++i)
        QTest::keyClick(menu, Qt::Key_Down);
    if (!still.isNull())
        QTest::keyClick(menu, chance(80) ? Qt::Key_Return : Qt::Key_Right);
}

void RandomUser::actInDialog(QWidget* dialog)
{
    if (QFileDialog* files = qobject_cast<QFileDialog*>(dialog)) {
        Actor::effects().is("file dialog");
        actInFileDialog(files);
        return;
    }
    if (dialog->objectName() == "linkhand_Cards") {
        Actor::effects().is("cards dialog");
        actInCards(dialog);
        return;
    }
    const int what = below(100);
    if (what < 45) {
        clickButtonOf(dialog);
    } else if (what < 75) {
        QWidget* focus = dialog->focusWidget();
        typeInto(focus != nullptr ? focus : dialog);
    } else if (what < 85) {
        say("tab in " + nameOf(dialog));
        QTest::keyClick(dialog, Qt::Key_Tab);
    } else if (what < 93) {
        say("escape " + nameOf(dialog));
        QTest::keyClick(dialog, Qt::Key_Escape);
    } else {
        say("close " + nameOf(dialog));
        dialog->close();
    }
}

// The first one ends with its contacts in the phonebook.
void RandomUser::actInCards(QWidget* dialog)
{
    QAbstractButton* import = dialog->findChild<QAbstractButton*>("linkhand_Cards_import");
    const bool ready = import != nullptr && import->isEnabled();
    const bool first = Actor::effects().rarest({"cards stored", "node"}) == "cards stored";
    if (ready && (first || chance(30))) {
        say("import the cards");
        m_storing = true;
        m_stored = true;
        QTest::mouseClick(import, Qt::LeftButton);
    } else if (QComboBox* existing = dialog->findChild<QComboBox*>("linkhand_Cards_existing");
               existing != nullptr && existing->isEnabled() && !first && chance(40)) {
        say("other choice for the cards");
        QTest::keyClick(existing, chance(50) ? Qt::Key_Down : Qt::Key_Up);
    } else if (!first || chance(5)) {
        clickButtonOf(dialog);
    }
}

bool RandomUser::takeStored()
{
    const bool stored = m_stored;
    m_stored = false;
    return stored;
}

void RandomUser::noteStored()
{
    if (m_storing && Store::holds("Dropped")) {
        m_storing = false;
        Actor::effects().did("cards stored");
    }
}

// A user who knows the way: nothing outside the test's own folder is touched.
void RandomUser::actInFileDialog(QFileDialog* dialog)
{
    QLineEdit* edit = dialog->findChild<QLineEdit*>("fileNameEdit");
    if (edit == nullptr || chance(30)) {
        say("leave file dialog");
        dialog->reject();
        return;
    }
    const bool save = dialog->acceptMode() == QFileDialog::AcceptSave;
    const QString file = m_folder + (save ? "/out.csv" : "/in.csv");
    say("file " + file);
    edit->setText(file);
    QTest::keyClick(edit, Qt::Key_Return);
}

void RandomUser::clickNode()
{
    QTreeWidget* tree = Screen::tree();
    if (tree == nullptr || !tree->isVisible() || tree->topLevelItemCount() == 0)
        return;
    const QList<QTreeWidgetItem*> list = nodes(tree);
    QTreeWidgetItem* node = list.at(below(list.size()));
    say("node " + node->text(0));
    clickInto(tree, Screen::shown(tree, tree->visualItemRect(node)), Qt::LeftButton, Qt::NoModifier);
}

void RandomUser::clickRow()
{
    QTableWidget* table = Screen::table();
    if (table == nullptr || !table->isVisible() || table->rowCount() == 0)
        return;
    static const Qt::KeyboardModifiers s_keys[] = {Qt::NoModifier, Qt::NoModifier, Qt::ControlModifier,
                                                   Qt::ShiftModifier};
    const int row = below(table->rowCount());
    say(QString("row %1 of %2").arg(row).arg(table->rowCount()));
    const QTableWidgetItem* item = table->item(row, 0);
    if (item == nullptr)
        return;
    table->scrollToItem(item);
    clickInto(table, Screen::shown(table, table->visualItemRect(item)), Qt::LeftButton, s_keys[below(4)]);
}

void RandomUser::openMenu()
{
    QAbstractItemView* view = chance(50) ? static_cast<QAbstractItemView*>(Screen::tree()) : Screen::table();
    if (view == nullptr || !view->isVisible())
        return;
    const QRect area = view->viewport()->rect();
    const QPoint at(below(qMax(area.width(), 1)), below(qMax(qMin(area.height(), 200), 1)));
    say("menu on " + nameOf(view));
    const QPointer<QWidget> viewport(view->viewport());
    QTest::mouseClick(viewport, Qt::RightButton, Qt::NoModifier, at);
    if (viewport.isNull() || QApplication::activePopupWidget() != nullptr)
        return;
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, viewport->mapToGlobal(at));
    QApplication::sendEvent(viewport, &event);
}

void RandomUser::pressKey()
{
    static const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
    } s_keys[] = {
        {Qt::Key_Up, Qt::NoModifier},          {Qt::Key_Down, Qt::NoModifier},   {Qt::Key_Home, Qt::NoModifier},
        {Qt::Key_End, Qt::ShiftModifier},      {Qt::Key_Delete, Qt::NoModifier}, {Qt::Key_F2, Qt::NoModifier},
        {Qt::Key_A, Qt::ControlModifier},      {Qt::Key_N, Qt::ControlModifier}, {Qt::Key_F, Qt::ControlModifier},
        {Qt::Key_T, Qt::ControlModifier},      {Qt::Key_Return, Qt::NoModifier}, {Qt::Key_Escape, Qt::NoModifier},
        {Qt::Key_Tab, Qt::NoModifier},         {Qt::Key_Menu, Qt::NoModifier},   {Qt::Key_O, Qt::ControlModifier},
        {Qt::Key_Return, Qt::ControlModifier}, {Qt::Key_S, Qt::ControlModifier},
    };
    QWidget* focus = QApplication::focusWidget();
    if (focus == nullptr)
        focus = Screen::table();
    if (focus == nullptr)
        return;
    const auto& key = s_keys[below(int(sizeof s_keys / sizeof s_keys[0]))];
    say(QKeySequence(int(key.modifiers) | key.key).toString() + " in " + nameOf(focus));
    QTest::keyClick(focus, key.key, key.modifiers);
}

void RandomUser::type()
{
    QWidget* focus = QApplication::focusWidget();
    const MainWindow* window = Screen::mainWindow();
    if (window != nullptr && chance(50)) {
        if (QLineEdit* search = window->findChild<QLineEdit*>("AddrBookUIPlugin_SearchEdit"))
            focus = search;
    }
    if (focus != nullptr)
        typeInto(focus);
}

void RandomUser::usePages()
{
    m_pages.act();
}

void RandomUser::clickButton()
{
    if (QWidget* window = Screen::mainWindow())
        clickButtonOf(window);
}

// The events of a drag in the order in which the window system sends them; the mouse itself is the desktop tests'.
void RandomUser::dragRows()
{
    QTreeWidget* tree = Screen::tree();
    QTableWidget* table = Screen::table();
    if (tree == nullptr || table == nullptr || !tree->isVisible() || !table->isVisible())
        return;
    QByteArray ids;
    for (const QModelIndex& index : table->selectionModel()->selectedRows()) {
        if (const TableRowData* data = tableRowData(table->item(index.row(), 0)))
            ids += QByteArray::number(data->iRecordID) + "-1" + QByteArray::number(data->iGroupID) + "-1";
    }
    const QList<QTreeWidgetItem*> list = nodes(tree);
    if (ids.isEmpty()) {
        Actor::effects().is("row");
        clickRow();
    }
    if (ids.isEmpty() || list.isEmpty())
        return;
    QMimeData rows;
    rows.setData(dragIdsFormat(), ids);
    rows.setData(dragColourFormat(), QVariant(QColor(Qt::transparent)).toByteArray());
    QTreeWidgetItem* target = list.at(below(list.size()));
    say("drag to " + target->text(0));
    const QPoint over = Screen::shown(tree, tree->visualItemRect(target));
    const Qt::KeyboardModifiers keys = chance(40) ? Qt::ControlModifier : Qt::NoModifier;
    const QPointer<QWidget> viewport(tree->viewport());
    QDragEnterEvent enter(over, Qt::CopyAction | Qt::MoveAction, &rows, Qt::LeftButton, keys);
    enter.ignore();
    QApplication::sendEvent(viewport, &enter);
    QDragMoveEvent move(over, Qt::CopyAction | Qt::MoveAction, &rows, Qt::LeftButton, keys);
    move.ignore();
    QApplication::sendEvent(viewport, &move);
    if (viewport.isNull())
        return;
    if (chance(20) || !move.isAccepted()) {
        QDragLeaveEvent leave;
        QApplication::sendEvent(viewport, &leave);
        return;
    }
    QDropEvent drop(over, Qt::CopyAction | Qt::MoveAction, &rows, Qt::LeftButton, keys);
    QApplication::sendEvent(viewport, &drop);
}

void RandomUser::switchHardware()
{
    const int what = below(8);
    const bool on = chance(60);
    say(QString("hardware %1 %2").arg(what).arg(on));
    switch (what) {
    case 0:
    case 1:
        SimulatedHardware::SetDevice(on);
        break;
    case 2:
    case 3:
        SimulatedHardware::SetCard(on);
        break;
    case 4:
        SimulatedHardware::SetRadio(on);
        break;
    case 5:
        SimulatedHardware::SetNetwork(on);
        break;
    case 6:
        SimulatedHardware::SetPinStatus(on ? 1 : 3);
        break;
    default:
        SimulatedHardware::SendReady();
    }
}

void RandomUser::changeLanguage()
{
    const QStringList files = QDir(m_services.LanguagesPath()).entryList(QStringList("linkhand_*.qm"));
    if (files.isEmpty())
        return;
    const QString code = files.at(below(files.size())).mid(9).section('.', 0, 0);
    say("language " + code);
    QMetaObject::invokeMethod(Screen::mainWindow(), "languageChosen", Q_ARG(QString, code));
}

void RandomUser::sendCode()
{
    const PluginContainer* container = dynamic_cast<PluginContainer*>(m_services.PluginContainer());
    static const int s_codes[] = {HOST_NOTIFY_LANGUAGE,
                                  HOST_NOTIFY_REGISTRATION,
                                  HOST_NOTIFY_NETWORK_LOST,
                                  HOST_NOTIFY_NETWORK_GAINED,
                                  HOST_NOTIFY_CARD_ENABLED,
                                  HOST_NOTIFY_CARD_DISABLED,
                                  HOST_NOTIFY_SYSTEM_MODE,
                                  0,
                                  0x7fffffff};
    const int code = s_codes[below(int(sizeof s_codes / sizeof s_codes[0]))];
    say(QString("code %1").arg(code));
    if (container == nullptr)
        return;
    for (PluginHandle* handle : container->Handles())
        handle->Notify(unsigned(code), unsigned(below(2)), 0);
}

void RandomUser::hideOrShow()
{
    MainWindow* window = Screen::mainWindow();
    if (window == nullptr)
        return;
    const int what = below(4);
    say(QString("window %1").arg(what));
    switch (what) {
    case 0:
        window->hide();
        window->show();
        break;
    case 1:
        window->showMinimized();
        window->showNormal();
        break;
    case 2:
        window->resize(600 + below(800), 400 + below(500));
        break;
    default:
        window->ShowPage("AddrBookUIPlugin");
    }
}
