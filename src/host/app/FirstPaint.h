#ifndef LINKHAND_HOST_FIRSTPAINT_H
#define LINKHAND_HOST_FIRSTPAINT_H

#include <QObject>

class QWidget;

// Knows whether a window has been painted since this object was made.
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
