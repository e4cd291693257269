#include "PageCheck.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

#include "Store.h"
#include "care/CareRunner.h"
#include "fit/PageView.h"
#include "messages/MessageStore.h"
#include "orva/orva_care.h"
#include "orva/orva_store.h"
#include "settings/DataFolder.h"
#include "window/MainWindow.h"

namespace
{
const int s_iLimitMs = 60000;
const int s_iCallsAtOnce = 200; // what the list shows before somebody scrolls

int binEntries()
{
    ORVA_BIN_ENTRY* entries = nullptr;
    int count = 0;
    if (ORVA_Care_GetBin(ORVA_MEMORY_LOCAL, &entries, &count) != ORVA_OK)
        return -1;
    ORVA_Care_BinRelease(ORVA_MEMORY_LOCAL, &entries);
    return count;
}

int backups()
{
    ORVA_STORE_BACKUP* entries = nullptr;
    int count = 0;
    if (ORVA_Store_GetBackups(ORVA_MEMORY_LOCAL, &entries, &count) != ORVA_OK)
        return -1;
    ORVA_Store_BackupsRelease(ORVA_MEMORY_LOCAL, &entries);
    return count;
}

int messages()
{
    return int(MessageStore(DataFolder::Path()).Messages().size());
}

int calls()
{
    return qMin(s_iCallsAtOnce, int(MessageStore(DataFolder::Path()).Calls().size()));
}

int contacts()
{
    return Store::records(ORVA_MEMORY_LOCAL);
}

void clear(const QWidget& page, const char* search)
{
    if (QLineEdit* line = page.findChild<QLineEdit*>(search))
        line->clear();
}

QString compare(const QWidget& page, const char* list, int (*stored)())
{
    const QAbstractItemView* view = page.findChild<QAbstractItemView*>(list);
    if (view == nullptr)
        return QString("there is no ") + list;
    if (QTest::qWaitFor([&] { return view->model()->rowCount() == stored(); }, s_iLimitMs / 4))
        return QString();
    return QString("%1 shows %2 rows, the store has %3").arg(list).arg(view->model()->rowCount()).arg(stored());
}

QString checkMessages(const QWidget& page)
{
    clear(page, "linkhand_Messages_search");
    return compare(page, "linkhand_Messages_list", messages);
}

QString checkCalls(const QWidget& page)
{
    const QList<QAbstractButton*> buttons = page.findChildren<QAbstractButton*>("VoiceCallPlugin_buttonHangUp");
    for (QAbstractButton* hangUp : buttons) {
        if (hangUp->isVisible())
            hangUp->click();
    }
    clear(page, "VoiceCallPlugin_lineeditSearch");
    return compare(page, "VoiceCallPlugin_treeCalls", calls);
}

// Tab by tab: each reads when it is turned to.
QString checkCare(const QWidget& page)
{
    static const struct {
        const char* section;
        const char* search;
        const char* list;
        int (*stored)();
    } s_tabs[] = {
        {"linkhand_Care_bin", "linkhand_Care_bin_search", "linkhand_Care_bin_list", binEntries},
        {"linkhand_Care_backups", "", "linkhand_Care_backups_list", backups},
        {"linkhand_Care_details", "linkhand_Care_details_search", "linkhand_Care_details_contacts", contacts}};
    QTabWidget* tabs = page.findChild<QTabWidget*>("linkhand_Care_tabs");
    const CareRunner* runner = page.findChild<CareRunner*>();
    if (tabs == nullptr || runner == nullptr)
        return "the care page is not whole";
    for (const auto& tab : s_tabs) {
        tabs->setCurrentWidget(PageView::Of(page.findChild<QWidget*>(tab.section)));
        if (!QTest::qWaitFor([&] { return runner->Current() == nullptr; }, s_iLimitMs))
            return QString("does not come to rest: ") + tab.section;
        clear(page, tab.search);
        const QString wrong = compare(page, tab.list, tab.stored);
        if (!wrong.isEmpty())
            return wrong;
    }
    return QString();
}
} // namespace

QString PageCheck::run(MainWindow& window)
{
    static const struct {
        const char* page;
        QString (*check)(const QWidget& page);
    } s_pages[] = {{"Messages", checkMessages}, {"VoiceCallPlugin", checkCalls}, {"Care", checkCare}};
    const QString before = window.CurrentPage();
    QString wrong;
    for (const auto& page : s_pages) {
        window.ShowPage(page.page);
        if (wrong.isEmpty() && window.Page(page.page) != nullptr)
            wrong = page.check(*window.Page(page.page));
    }
    window.ShowPage(before);
    // What was changed there waits, while somebody is in the middle of something, for a press of this button.
    QAbstractButton* changed = window.findChild<QAbstractButton*>("linkhand_StatusArea_changed");
    if (changed != nullptr && changed->isVisible())
        changed->click();
    return wrong;
}
