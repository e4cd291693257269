#ifndef LINKHAND_HOST_KEYBOARDWITNESS_H
#define LINKHAND_HOST_KEYBOARDWITNESS_H

#include <QObject>

// Makes a window active that Qt does not know to be: a key or a click that reaches it proves where the keyboard is.
//
// Qt hands a focus that comes while a modal window stands in the way on to that window. Where that one closes before
// the window manager has shown it, such as the progress of a short batch, nobody is told, and the shortcuts are dead
// until the focus has gone to another program and come back.
class KeyboardWitness : public QObject
{
    Q_OBJECT

public:
    // Watches the whole application for as long as it lives.
    KeyboardWitness();

    bool eventFilter(QObject* pObject, QEvent* pEvent) override;
};

#endif // LINKHAND_HOST_KEYBOARDWITNESS_H
