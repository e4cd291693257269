#ifndef ADDRBOOKUIPLUGIN_NEWCONTACTLINEEDIT_H
#define ADDRBOOKUIPLUGIN_NEWCONTACTLINEEDIT_H

#include <QLineEdit>
#include <QTextEdit>

#include "logic/AddrBookTypes.h"

// The inputs of the contact form. User-interface thread only.

// A one-line input. Up and Down move the caret like Left and Right.
class NewContactLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    // In a right-to-left application this turns the application's layout direction to left-to-right and back, so
    // that widgets laid out before follow once more.
    explicit NewContactLineEdit(QWidget* pParent);

    bool m_bNumberKeysOnly; // printable keys must fit the local memory's mobile field, whatever memory is served
    AddrBookField m_field;  // the field that is entered here

signals:
    // Ctrl+N and Ctrl+F. The form leaves them unconnected.
    void newContact();
    void showHideSearchControl();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    Q_DISABLE_COPY(NewContactLineEdit)

    void moveCaret(const QKeyEvent& event);
    static bool isNumberKey(const QKeyEvent& event);
};

// An input of several lines.
class NewContactTextEdit : public QTextEdit
{
    Q_OBJECT

public:
    explicit NewContactTextEdit(QWidget* pParent);

    AddrBookField m_field; // the field that is entered here

private:
    Q_DISABLE_COPY(NewContactTextEdit)
};

#endif // ADDRBOOKUIPLUGIN_NEWCONTACTLINEEDIT_H
