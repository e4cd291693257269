#ifndef LINKHAND_HOST_FIRSTPAINT_H
#define LINKHAND_HOST_FIRSTPAINT_H

#include <QObject>

class QWidget;

// Knows whether a window has been painted since this object was made. The first painting also writes one line to the
// file that the environment variable LINKHAND_TEST_SHOWN names, such as a pipe that somebody waits at to time the
// start.
class FirstPaint : public QObject
{
    Q_OBJECT

public:
    explicit FirstPaint(QWidget* pWindow);

    bool HasCome() const { return m_bCome; }
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private:
    bool m_bCome;
};

#endif // LINKHAND_HOST_FIRSTPAINT_H
