#ifndef LINKHAND_SIBLINGS_CALLBOX_H
#define LINKHAND_SIBLINGS_CALLBOX_H

#include <QElapsedTimer>
#include <QFrame>
#include <QString>
#include <QTimer>

class QLabel;
class QPushButton;

// A call in progress: with whom, how far it is, for how long, and the buttons that take and end it.
class CallBox : public QFrame
{
    Q_OBJECT

public:
    // strPlugin is the plug-in whose texts are shown, and the beginning of the widgets' object names.
    explicit CallBox(const QString& strPlugin, QWidget* pParent = nullptr);

    void Start(const QString& strNumber);

    // How far a real call is, a HostCallProgress; its time counts from the moment that it is active.
    void SetProgress(int iProgress);
    void Stop();
    int Seconds() const { return m_timer.isActive() ? int(m_elapsed.elapsed() / 1000) : 0; }
    void Retranslate();

    // How far a call is, in words of a plug-in.
    static QString ProgressText(int iProgress, const QString& strPlugin);

    // Minutes and seconds.
    static QString DurationText(int iSeconds);

private slots:
    void OnContactsRead();
    void OnTick();
    void OnAnswer();
    void OnHangUp();

private:
    const QString m_strPlugin;
    QString m_strNumber;
    QLabel* m_pNumber;
    QLabel* m_pState;
    QLabel* m_pDuration;
    QPushButton* m_pAnswer;
    QPushButton* m_pHangUp;
    int m_iProgress; // -1: a simulated call
    QTimer m_timer;
    QElapsedTimer m_elapsed;
};

#endif // LINKHAND_SIBLINGS_CALLBOX_H
