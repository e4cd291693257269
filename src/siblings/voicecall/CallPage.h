#ifndef LINKHAND_SIBLINGS_CALLPAGE_H
#define LINKHAND_SIBLINGS_CALLPAGE_H

#include <QWidget>

class CallBox;
class CallList;
class QAction;
class QLabel;
class QLineEdit;
class QPushButton;

// Dials, shows the call in progress, of whatever direction, and lists the calls; the one selected there can be called,
// written to, saved and forgotten.
class CallPage : public QWidget
{
    Q_OBJECT

public:
    explicit CallPage(const QString& strPlugin);

    void Start(const QString& strNumber, int iType);
    void Stop();

    // Puts a number where it can be called; nothing is dialled.
    void Fill(const QString& strNumber);

    // How far a real call is, a HostCallProgress.
    void SetProgress(int iProgress);
    void Retranslate();

    // Reads anew which plug-ins are there, and the calls.
    void Enter();

private slots:
    void OnEdited();
    void OnCall();
    void OnVideoCall();
    void OnSearch();
    void OnSelectionChanged();
    void OnActivated();
    void OnCallNumber();
    void OnMessage();
    void OnSaveNumber();
    void OnDelete();

private:
    // A button beneath the list, and the same in its menu.
    struct Deed {
        QPushButton* pButton = nullptr;
        QAction* pAction = nullptr;
    };

    QString text(const char* pszId) const;
    Deed makeDeed(const char* pszName, const char* pszSlot);
    static void setEnabled(const Deed& deed, bool bEnabled);
    void setText(const Deed& deed, const char* pszId);
    void makeLayout();
    void lookAround();
    void dial(const QString& strNumber, int iType);
    void report(const char* pszId);

    const QString m_strPlugin;
    QLabel* m_pTitle;
    QLabel* m_pHint;
    QLineEdit* m_pNumber;
    QPushButton* m_pCall;
    QPushButton* m_pVideoCall;
    CallBox* m_pBox;
    bool m_bInCall; // of either type
    QLineEdit* m_pSearch;
    CallList* m_pCalls;
    Deed m_callNumber;
    Deed m_message;
    Deed m_saveNumber;
    Deed m_delete;
};

#endif // LINKHAND_SIBLINGS_CALLPAGE_H
