#ifndef LINKHAND_HOST_SHOWNMARK_H
#define LINKHAND_HOST_SHOWNMARK_H

#include <QObject>

class QWidget;

// Writes one line to the file that the environment variable LINKHAND_TEST_SHOWN names, such as a pipe that somebody
// waits at, when a window is painted on the screen for the first time. Without the variable it does nothing.
class ShownMark : public QObject
{
    Q_OBJECT

public:
    explicit ShownMark(QWidget* pWindow);

    bool eventFilter(QObject* pObject, QEvent* pEvent) override;
};

#endif // LINKHAND_HOST_SHOWNMARK_H
