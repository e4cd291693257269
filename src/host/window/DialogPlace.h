#ifndef LINKHAND_HOST_DIALOGPLACE_H
#define LINKHAND_HOST_DIALOGPLACE_H

#include <QObject>

// Keeps Qt's own dialogs for files within the screen, which come up as large as they were once. Those of the program
// see to it by themselves.
class DialogPlace : public QObject
{
    Q_OBJECT

public:
    DialogPlace();

    bool eventFilter(QObject* pObject, QEvent* pEvent) override;
};

#endif // LINKHAND_HOST_DIALOGPLACE_H
