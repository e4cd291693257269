#ifndef LINKHAND_CORE_TOOLBARLOGIC_H
#define LINKHAND_CORE_TOOLBARLOGIC_H

#include <QAbstractButton>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QList>
#include <QString>
#include <QWidget>

#include "linkhand/core/CoreExport.h"
#include "linkhand/core/SearchLineEdit.h"

// One button of a tool bar. The default constructor leaves the strings empty and the others unset.
struct ToolItem {
    int iId;                  // id in the button group
    QString strTipId;         // language id of the tooltip
    QString strText2;         // the icon's file name; of the tool bar's own
    QString strText3;         // of the tool bar's own
    bool bSearch;             // the item toggles the search box
    QAbstractButton* pButton; // the button, once the bar stands; null before
};

// Tool bars from a plug-in's menu file. User-interface thread only.
class LINKHAND_CORE_API ToolBarLogic
{
public:
    // Reads the tool items of strPlugin from strFile, an absolute path, into items (cleared first), and the file's
    // subgroups flag into bFlag. An unreadable file gives no items and false; of a malformed one, what stands before
    // the fault.
    static void GetXmlData(QString strFile, QList<ToolItem>& items, bool& bFlag, QString strPlugin);

    // Builds the buttons inside pParent: a button group with the items' ids, a layout on pParent, the search box,
    // hidden, and a label that takes the rest of the room. Fills pButton of the items. True on success; false, with
    // the four pointers null, where there is no parent or no item. The caller owns what it gets.
    static bool CreateToolBar(QString strPlugin, QWidget* pParent, QList<ToolItem>& items, QButtonGroup** ppGroup,
                              QHBoxLayout** ppLayout, SearchLineEdit** ppSearch, QLabel** ppLabel);

    // Enables or disables the button with id iId; 1 if there is one, 0 (and nothing happens) otherwise.
    static int EnableDisableItem(QString strPlugin, QList<ToolItem>& items, int iId, bool bEnable);

    // Shows the box and gives it the focus, or hides it. Null pointers are let be.
    static void ShowHideSearchBox(QWidget* pBar, QHBoxLayout* pLayout, SearchLineEdit* pSearch, bool bShow);

    // Turns the bar's icons to the reading direction.
    static void ChangeToolBarIconDirection(QString strPlugin, QList<ToolItem>& items, bool bRightToLeft,
                                           QLabel** ppLabel);

    // Frees the group and the buttons; their pointers become null. Layout and search box are the caller's to free.
    static void DestroyToolButtonGroup(QList<ToolItem>& items, QButtonGroup** ppGroup);

    // The object name of the bar for style sheets: strPlugin + "_ToolBar".
    static QString GetObjectName(QString strPlugin);

    // True if the plug-in with identifier strId is loaded.
    static bool getPlugin(QString strId);
};

#endif // LINKHAND_CORE_TOOLBARLOGIC_H
