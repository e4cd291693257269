#include "linkhand/core/SearchLineEdit.h"

SearchLineEdit::SearchLineEdit(QWidget* pParent) : QLineEdit(pParent) {}

void SearchLineEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_N && event->modifiers() == Qt::ControlModifier) {
        event->accept();
        emit controlN();
        return;
    }
    QLineEdit::keyPressEvent(event);
}
