#ifndef LINKHAND_CORE_SEARCHLINEEDIT_H
#define LINKHAND_CORE_SEARCHLINEEDIT_H

#include <QKeyEvent>
#include <QLineEdit>
#include <QWidget>

#include "linkhand/core/CoreExport.h"

class ToolBarLogic;

// The search box of a tool bar, made by ToolBarLogic::CreateToolBar alone. User-interface thread only.
class LINKHAND_CORE_API SearchLineEdit : public QLineEdit
{
    Q_OBJECT

signals:
    // Ctrl+N was pressed in the box.
    void controlN();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    friend class ToolBarLogic;
    explicit SearchLineEdit(QWidget* pParent);
};

#endif // LINKHAND_CORE_SEARCHLINEEDIT_H
