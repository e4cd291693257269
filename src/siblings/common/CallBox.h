#ifndef LINKHAND_SIBLINGS_CALLBOX_H
#define LINKHAND_SIBLINGS_CALLBOX_H

#include <QElapsedTimer>
#include <QFrame>
#include <QString>
#include <QTimer>

class QLabel;
class QPushButton;

// A call in progress: whom to, for how long, and the button that ends it.
class CallBox : public QFrame
{
    Q_OBJECT

public:
    // strPlugin is the plug-in whose texts are shown, and the beginning of the widgets' object names.
    explicit CallBox(const QString& strPlugin, QWidget* pParent = nullptr);

    void Start(const QString& strNumber);
    void Stop();
    int Seconds() const { return m_timer.isActive() ? int(m_elapsed.elapsed() / 1000) : 0; }
    void Retranslate();

    // Minutes and seconds.
    static QString DurationText(int iSeconds);

private slots:
    void OnTick();
    void OnHangUp();

private:
    const QString m_strPlugin;
    QLabel* m_pNumber;
    QLabel* m_pState;
    QLabel* m_pDuration;
    QPushButton* m_pHangUp;
    QTimer m_timer;
    QElapsedTimer m_elapsed;
};

#endif // LINKHAND_SIBLINGS_CALLBOX_H
