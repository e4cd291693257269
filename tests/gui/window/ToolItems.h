#ifndef TESTS_GUI_WINDOW_TOOLITEMS_H
#define TESTS_GUI_WINDOW_TOOLITEMS_H

#include "WindowFixture.h"

// The four tool items that follow the selection and the network, and the two menu entries that follow them.
namespace ToolItems
{

enum Selection { None, One, Several };
enum State { Off, On, Same };

inline void select(const WindowFixture& f, Selection selection)
{
    f.selectRows(selection == None ? QList<int>{} : selection == One ? QList<int>{1} : QList<int>{0, 1});
}

// Sets all four tool items and the two entries that follow them.
inline void preset(const WindowFixture& f, bool on)
{
    for (int id : {TOOL_EDIT, TOOL_DELETE, TOOL_CALL, TOOL_SEND}) {
        if (on)
            f.window()->enableItem(id);
        else
            f.window()->disableItem(id);
    }
    f.window()->updateTableSend(on);
    f.window()->updateTableCall(on);
}

inline void compare(const WindowFixture& f, const QList<int>& expected, bool before, const char* event)
{
    const bool now[] = {f.button(TOOL_EDIT)->isEnabled(),
                        f.button(TOOL_DELETE)->isEnabled(),
                        f.button(TOOL_CALL)->isEnabled(),
                        f.button(TOOL_SEND)->isEnabled(),
                        f.tableAction("IDS_PMMENU_SEND_MSG")->isEnabled(),
                        f.tableAction("IDS_PMMENU_CALL")->isEnabled()};
    static const char* const s_names[] = {"9001", "9002", "9003", "9005", "send", "call"};
    for (int i = 0; i < 6; ++i) {
        const bool wanted = expected.at(i) == Same ? before : expected.at(i) == On;
        QVERIFY2(now[i] == wanted, qPrintable(QString("%1: %2 is %3, was %4")
                                                  .arg(event, s_names[i])
                                                  .arg(now[i] ? "on" : "off", before ? "on" : "off")));
    }
}

} // namespace ToolItems

#endif // TESTS_GUI_WINDOW_TOOLITEMS_H
