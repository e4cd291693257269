#include "dialogs/NewContactLineEdit.h"

#include <QApplication>
#include <QKeyEvent>
#include <QRegExp>

#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookLogic.h"

NewContactLineEdit::NewContactLineEdit(QWidget* pParent) : QLineEdit(pParent), m_bNumberKeysOnly(false), m_field()
{
    if (QApplication::isRightToLeft()) {
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QApplication::setLayoutDirection(Qt::RightToLeft);
    }
}

void NewContactLineEdit::keyPressEvent(QKeyEvent* event)
{
    if (event == nullptr || CommonUtils::IsShuttingDown())
        return;

    const bool bControl = (QApplication::keyboardModifiers() & Qt::ControlModifier) != 0;
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        event->accept();
        moveCaret(*event);
        return;
    case Qt::Key_N:
        if (bControl)
            emit newContact();
        event->accept();
        break;
    case Qt::Key_F:
        if (bControl)
            emit showHideSearchControl();
        event->accept();
        break;
    default:
        break;
    }

    if (!m_bNumberKeysOnly || isNumberKey(*event))
        QLineEdit::keyPressEvent(event);
}

void NewContactLineEdit::moveCaret(const QKeyEvent& event)
{
    const int iKey = event.key() == Qt::Key_Up ? Qt::Key_Left : Qt::Key_Right;
    QKeyEvent eventMove(QEvent::KeyPress, iKey, event.modifiers(), QString(), false, 1);
    QLineEdit::keyPressEvent(&eventMove);
}

// Keys without a printable text are always let through: Backspace, Return, and the combinations that cut and paste.
bool NewContactLineEdit::isNumberKey(const QKeyEvent& event)
{
    const QString strText = event.text();
    if (strText.isEmpty() || !strText.at(0).isPrint() || event.key() == 0)
        return true;

    QString strAllowed;
    if (AddrBookLogic* pLogic = AddrBookLogic::Instance())
        pLogic->GetRegExpForNewContactDlg(PB_MEM_LOCAL, strAllowed, QLatin1String("mobile"));
    const QRegExp regExp(QLatin1String("[+]{0,1}[") + strAllowed + QLatin1String("]"), Qt::CaseSensitive);
    return regExp.exactMatch(strText);
}

NewContactTextEdit::NewContactTextEdit(QWidget* pParent) : QTextEdit(pParent), m_field() {}
