#ifndef LINKHAND_HOST_SCREENWATCH_H
#define LINKHAND_HOST_SCREENWATCH_H

#include <QObject>

class QWidget;

// Fits a window into what is left when a screen has gone: the window comes to another one in the size that it had.
class ScreenWatch : public QObject
{
    Q_OBJECT

public:
    // The window outlives this.
    explicit ScreenWatch(QWidget& window);

private slots:
    void OnScreenGone();
    void OnSettled();

private:
    QWidget& m_window;
};

#endif // LINKHAND_HOST_SCREENWATCH_H
