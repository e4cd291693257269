#ifndef LINKHAND_SIBLINGS_MESSAGEWINDOW_H
#define LINKHAND_SIBLINGS_MESSAGEWINDOW_H

#include "linkhand/core/ExtendDialog.h"

class MessageEditor;

// The window around an editor, which closes only when the editor lets it: by its cross, Escape or the form's button.
class MessageWindow : public ExtendDialog
{
    Q_OBJECT

public:
    // Takes the editor over.
    MessageWindow(MessageEditor* pEditor, QWidget* pParent);

    MessageEditor& Editor() { return *m_pEditor; }

public slots:
    void reject() override;

private:
    MessageEditor* m_pEditor;
};

#endif // LINKHAND_SIBLINGS_MESSAGEWINDOW_H
