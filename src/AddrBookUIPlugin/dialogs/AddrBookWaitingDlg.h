#ifndef ADDRBOOKUIPLUGIN_ADDRBOOKWAITINGDLG_H
#define ADDRBOOKUIPLUGIN_ADDRBOOKWAITINGDLG_H

#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QString>
#include <QWidget>

// The progress window itself. Only its controller closes it: neither Escape nor a close request does while it is in
// use. User-interface thread only.
class ABWaitingDlg : public QDialog
{
    Q_OBJECT

public:
    explicit ABWaitingDlg(QWidget* pParent);

    // Makes the frame behind the content, as large as the dialog.
    void CreateOuterFrame();

    bool m_bBlockClose; // while true, a close request is refused

public slots:
    void reject() override; // does nothing, so that Escape does nothing

protected:
    void closeEvent(QCloseEvent* pEvent) override;

private:
    QFrame* m_pframeOuter;
};

// Drives the one progress dialog of the long operations: status, counter, bar and Cancel. It runs nothing itself; the
// window's result slots feed it and ask it whether the user has cancelled. Singleton, never shown; whoever keeps its
// address keeps it in a QPointer, since a cancel that has been asked for deletes it. User-interface thread only.
class AddrBookWaitingDlg : public QWidget
{
    Q_OBJECT

public:
    // The singleton. The first call makes it, with a dialog above pParent; later ones ignore pParent.
    static AddrBookWaitingDlg* GetWaitingDlgInstance(QWidget* pParent);
    static void Destroy();

    ~AddrBookWaitingDlg() override;

    // Opens the dialog for an operation of iSteps steps, or starts it anew; returns at once.
    void ShowAnimation(QString strText, int iSteps);

    // Shows "iCurrent/iTotal", or nothing if iTotal is 0, and repaints at once.
    void UpDateLabel(int iCurrent, int iTotal);

    // One step is done. The last one closes the dialog.
    void UpDateProgress(int iCurrent, int iTotal);

    // True if the user has cancelled. The singleton is gone then, this object included.
    bool GetProgressDlgCancelStatus();

    // A dialog in use keeps its language.
    void SetLanguage();

public slots:
    void UpdateProgressBar();
    void CloseWaitingDialog(); // the object stays
    void OnCancelClicked();    // also called when the memory in work goes away

private:
    AddrBookWaitingDlg();
    Q_DISABLE_COPY(AddrBookWaitingDlg)

    void initDialog(QWidget* pParent);
    bool createParts();
    void layOutParts();

    static AddrBookWaitingDlg* m_pInst;

    // The dialog belongs to its parent window as well, and takes its content with it.
    QPointer<ABWaitingDlg> m_pdialog;
    QPointer<QLabel> m_plabelStatus;
    QPointer<QLabel> m_plabelCount;
    QPointer<QProgressBar> m_pprogressBar;
    QPointer<QPushButton> m_pbuttonCancel;
    int m_iProgressValue; // the bar's next value
    int m_iProgressMax;
    bool m_bCancelled;
};

#endif // ADDRBOOKUIPLUGIN_ADDRBOOKWAITINGDLG_H
