#ifndef LINKHAND_SIBLINGS_CALLPAGE_H
#define LINKHAND_SIBLINGS_CALLPAGE_H

#include <QWidget>

class CallBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;

// Dials, shows the call in progress, of whatever direction, and lists the calls of this run.
class CallPage : public QWidget
{
    Q_OBJECT

public:
    explicit CallPage(const QString& strPlugin);

    void Start(const QString& strNumber, int iType);
    void Stop();

    // How far a real call is, a HostCallProgress.
    void SetProgress(int iProgress);
    void Retranslate();

    // Reads anew whether there is a video call plug-in.
    void Enter();

private slots:
    void OnEdited();
    void OnCall();
    void OnVideoCall();

private:
    QString text(const char* pszId) const;
    void dial(int iType);

    const QString m_strPlugin;
    QLabel* m_pTitle;
    QLabel* m_pHint;
    QLineEdit* m_pNumber;
    QPushButton* m_pCall;
    QPushButton* m_pVideoCall;
    CallBox* m_pBox;
    bool m_bInCall; // of either type
    int m_iEnd;     // how the call ended, a HostCallProgress; -1: a simulated one
    QTreeWidget* m_pCalls;
};

#endif // LINKHAND_SIBLINGS_CALLPAGE_H
