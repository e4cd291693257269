#include "ToolItems.h"

using namespace ToolItems;

// What each event does to the tool items and the entries that follow them, whatever they were before.
class ToolItemEventsTest : public WindowTest
{
    Q_OBJECT

private:
    // One event with what becomes of the six: On, Off, or the Same as before.
    struct Event {
        const char* name;
        Selection selection;
        bool online;
        QList<int> expected;
    };
    const QList<int> m_allOff{Off, Off, Off, Off, Off, Off};

    static void addBefore()
    {
        QTest::addColumn<bool>("before");
        QTest::newRow("all were on") << true;
        QTest::newRow("all were off") << false;
    }

    static void buildFilled(WindowFixture& f)
    {
        WindowFixture::fillStores();
        f.build();
    }

    static void goOnline(const WindowFixture& f, bool on)
    {
        f.window()->OnRFStatusChanged(false);
        f.window()->OnNetStatusChanged(on);
    }

    static void goOffByRadio(const WindowFixture& f)
    {
        f.window()->OnNetStatusChanged(true);
        f.window()->OnRFStatusChanged(true);
    }

private slots:
    void theSelectionOnTheToolItems_data() { addBefore(); }
    void theSelectionOnTheToolItems()
    {
        QFETCH(bool, before);
        WindowFixture f;
        buildFilled(f);
        // The selection alone: with no record to show, the preview changes nothing.
        FakeSdk::failAlways("GetAddrRecord");
        const QList<Event> selections{
            {"selection none, online", None, true, m_allOff},
            {"selection none, offline", None, false, m_allOff},
            {"selection one, online", One, true, {On, On, On, On, On, On}},
            {"selection one, offline", One, false, {On, On, Same, Same, Same, Same}},
            {"selection several, online", Several, true, {Off, On, Off, On, On, Off}},
            {"selection several, offline", Several, false, {Off, On, Same, Same, Same, Same}},
        };
        for (const Event& event : selections) {
            select(f, event.selection);
            for (int how = 0; how < (event.online ? 1 : 2); ++how) {
                if (how == 0)
                    goOnline(f, event.online);
                else
                    goOffByRadio(f);
                preset(f, before);
                f.window()->OnTableItemSelectionChanged();
                compare(f, event.expected, before, event.name);
            }
        }
    }

    void thePreviewOnTheToolItems_data() { addBefore(); }
    void thePreviewOnTheToolItems()
    {
        QFETCH(bool, before);
        WindowFixture f;
        buildFilled(f);
        const QList<Event> previews{
            {"preview of one row, online", One, true, {On, On, On, On, On, On}},
            {"preview of one row, offline", One, false, {On, On, Off, Same, Same, Off}},
            {"preview of several, online", Several, true, {Off, On, Off, On, On, Off}},
            {"preview of several, offline", Several, false, {Off, On, Off, Same, Same, Off}},
            {"preview without a selected row", None, true, {Off, Same, Off, Same, Same, Off}},
        };
        for (const Event& event : previews) {
            select(f, event.selection);
            goOnline(f, event.online);
            preset(f, before);
            QString text;
            f.window()->constructPreview(1, 6, text, tableRowData(f.table()->item(1, 0)));
            compare(f, event.expected, before, event.name);
        }
    }

    void theNetworkOnTheToolItems_data() { addBefore(); }
    void theNetworkOnTheToolItems()
    {
        QFETCH(bool, before);
        WindowFixture f;
        buildFilled(f);
        AddrBookDlg* const w = f.window();
        const QList<Event> networks{
            {"network up, one row", One, true, {Same, Same, On, On, On, On}},
            {"network up, several", Several, true, {Same, Same, Same, On, On, Same}},
            {"network up, none", None, true, {Same, Same, Same, Same, Same, Same}},
            {"network down, one row", One, false, {Same, Same, Off, Off, Off, Off}},
        };
        for (const Event& event : networks) {
            select(f, event.selection);
            w->OnRFStatusChanged(false);
            preset(f, before);
            w->OnNetStatusChanged(event.online);
            compare(f, event.expected, before, event.name);
            w->OnRFStatusChanged(true);
            preset(f, before);
            w->OnNetStatusChanged(event.online);
            compare(f, {Same, Same, Off, Off, Off, Off}, before, "network with the radio off");
        }
    }

    void theRadioOnTheToolItems_data() { addBefore(); }
    void theRadioOnTheToolItems()
    {
        QFETCH(bool, before);
        WindowFixture f;
        buildFilled(f);
        AddrBookDlg* const w = f.window();
        const QList<Event> radios{
            {"radio on, network up, one row", One, true, {Same, Same, On, On, On, On}},
            {"radio on, network up, several", Several, true, {Same, Same, On, On, On, On}},
            {"radio on, network up, none", None, true, {Same, Same, Same, Same, Same, Same}},
            {"radio on, network down", One, false, {Same, Same, Off, Off, Off, Off}},
        };
        for (const Event& event : radios) {
            select(f, event.selection);
            w->OnNetStatusChanged(event.online);
            preset(f, before);
            w->OnRFStatusChanged(false);
            compare(f, event.expected, before, event.name);
            preset(f, before);
            w->OnRFStatusChanged(true);
            compare(f, {Same, Same, Off, Off, Off, Off}, before, "radio off");
        }
    }

    void emptySpaceAndAnotherNodeOnTheToolItems_data() { addBefore(); }
    void emptySpaceAndAnotherNodeOnTheToolItems()
    {
        QFETCH(bool, before);
        WindowFixture f;
        buildFilled(f);
        AddrBookDlg* const w = f.window();
        select(f, None);
        preset(f, before);
        w->OnTableEmptyAreaRightClicked();
        compare(f, m_allOff, before, "empty area, none");
        preset(f, before);
        w->OnTableClicked(-1, -1);
        compare(f, m_allOff, before, "click on nothing, none");
        select(f, One);
        preset(f, before);
        w->OnTableEmptyAreaRightClicked();
        compare(f, {Same, Same, Same, Same, Same, Same}, before, "empty area, one");
        preset(f, before);
        f.in().current() = nullptr;
        w->OnTreeClicked(f.in().local());
        compare(f, m_allOff, before, "switch of node");
        QVERIFY(f.waitRead());
    }
};

QTEST_MAIN(ToolItemEventsTest)
#include "ToolItemEventsTest.moc"
