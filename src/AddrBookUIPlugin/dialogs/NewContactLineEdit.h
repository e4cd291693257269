#ifndef ADDRBOOKUIPLUGIN_NEWCONTACTLINEEDIT_H
#define ADDRBOOKUIPLUGIN_NEWCONTACTLINEEDIT_H

#include <QClipboard>
#include <QLineEdit>
#include <QPointer>
#include <QTextEdit>

#include "logic/AddrBookTypes.h"
#include "logic/NumberText.h"

// The inputs of the contact form. User-interface thread only.

class NewContactTextEdit;

// A one-line input. Up and Down move the caret like Left and Right. A telephone number that is pasted or dropped into
// an input of numbers comes in without blanks and the like, so that these do not count.
class NewContactLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    // In a right-to-left application this turns the application's layout direction to left-to-right and back, so
    // that widgets laid out before follow once more.
    explicit NewContactLineEdit(QWidget* pParent);

    bool m_bNumberKeysOnly; // printable keys must fit the local memory's mobile field, whatever memory is served
    AddrBookField m_field;  // the field that is entered here
    QPointer<NewContactTextEdit> m_pNote; // takes the extension of a number; may be null

signals:
    // Ctrl+N and Ctrl+F. The form leaves them unconnected.
    void newContact();
    void showHideSearchControl();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    Q_DISABLE_COPY(NewContactLineEdit)

    bool cleanedNumber(const QString& strText, NumberText& cleaned) const;
    bool pasteNumber(QClipboard::Mode enMode);
    void addNote(const QString& strNote);

    void moveCaret(const QKeyEvent& event);
    static bool isNumberKey(const QKeyEvent& event);
};

// An input of several lines.
class NewContactTextEdit : public QTextEdit
{
    Q_OBJECT

public:
    explicit NewContactTextEdit(QWidget* pParent);

    // Whether a further line fits into the field.
    bool hasRoomFor(const QString& strLine) const;

    AddrBookField m_field; // the field that is entered here

private:
    Q_DISABLE_COPY(NewContactTextEdit)
};

#endif // ADDRBOOKUIPLUGIN_NEWCONTACTLINEEDIT_H
