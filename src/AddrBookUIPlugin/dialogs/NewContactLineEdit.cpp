#include "dialogs/NewContactLineEdit.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QRegExp>

#include "linkhand/QtCompat.h"
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

    if (m_bNumberKeysOnly && !isNumberKey(*event))
        return;
    // On X, Insert with these two pastes what is selected elsewhere.
    const bool bSelection =
        event->key() == Qt::Key_Insert && event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
    if (event->matches(QKeySequence::Paste) && pasteNumber(bSelection ? QClipboard::Selection : QClipboard::Clipboard))
        event->accept();
    else
        QLineEdit::keyPressEvent(event);
}

void NewContactLineEdit::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton && QApplication::clipboard()->supportsSelection()) {
        deselect();
        if (pasteNumber(QClipboard::Selection))
            return;
    }
    QLineEdit::mouseReleaseEvent(event);
}

void NewContactLineEdit::dropEvent(QDropEvent* event)
{
    NumberText cleaned;
    if (!cleanedNumber(event->mimeData()->text(), cleaned)) {
        QLineEdit::dropEvent(event);
        return;
    }
    QMimeData number;
    number.setText(cleaned.strNumber);
    QDropEvent eventDrop(QtCompat::dropPosition(*event), event->possibleActions(), &number, Qt::NoButton,
                         QtCompat::dropModifiers(*event));
    eventDrop.setDropAction(event->dropAction());
    const QString strBefore = text();
    QLineEdit::dropEvent(&eventDrop);
    event->setDropAction(eventDrop.dropAction());
    event->setAccepted(eventDrop.isAccepted());
    if (text() != strBefore)
        addNote(cleaned.strNote);
}

// False where the text goes in as it is: it is clean, it is no number, or no number is asked for.
bool NewContactLineEdit::cleanedNumber(const QString& strText, NumberText& cleaned) const
{
    const bool bNumber = m_field.strType == QLatin1String("Mobile") || m_field.strType == QLatin1String("Number");
    return bNumber && !isReadOnly() &&
           cleanNumberText(strText, m_field.strIncludeChars.contains(QLatin1Char('p')), m_pNote != nullptr, cleaned) &&
           !cleaned.strNumber.isEmpty() && cleaned.strNumber != strText &&
           (cleaned.strNote.isEmpty() || m_pNote->hasRoomFor(cleaned.strNote));
}

bool NewContactLineEdit::pasteNumber(QClipboard::Mode enMode)
{
    NumberText cleaned;
    if (!cleanedNumber(QApplication::clipboard()->text(enMode), cleaned))
        return false;
    const QString strBefore = text();
    insert(cleaned.strNumber);
    if (text() != strBefore)
        addNote(cleaned.strNote);
    return true;
}

void NewContactLineEdit::addNote(const QString& strNote)
{
    if (m_pNote != nullptr && !strNote.isEmpty())
        m_pNote->append(strNote);
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

bool NewContactTextEdit::hasRoomFor(const QString& strLine) const
{
    const int iLength = toPlainText().size();
    return iLength + (iLength > 0 ? 1 : 0) + strLine.size() <= m_field.iMaxLength;
}
