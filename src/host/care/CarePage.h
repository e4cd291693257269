#ifndef LINKHAND_HOST_CARE_CAREPAGE_H
#define LINKHAND_HOST_CARE_CAREPAGE_H

#include <QList>
#include <QTimer>
#include <QWidget>

class CareRunner;
class CareSection;
class QLabel;
class QProgressBar;
class QPushButton;
class QStackedWidget;
class QTabWidget;

// The care of the PC's contacts: a way back for what was deleted, and what else is seldom needed and then badly. Long
// work runs on a thread of its own; how far it is and a way to end it stand at the foot. User-interface thread only.
class CarePage : public QWidget
{
    Q_OBJECT

public:
    explicit CarePage(QWidget* pParent);

    // Ends what runs.
    ~CarePage() override;

    // True if the SDK in use has what the page needs.
    static bool IsPossible();

    void Retranslate();

    // Reads anew what the section at the front shows; called as the page is entered.
    void Enter();

    // Brings the backups to the front.
    void ShowBackups();

signals:
    // The PC's contacts are not what they were.
    void contactsChanged();

private slots:
    void OnTabChosen();
    void OnTold(const QString& strText);
    void OnBegun();
    void OnEnded(bool bWrote);
    void OnCancel();
    void OnProgress();

private:
    void addSection(CareSection* pSection);
    void readCurrent();
    void setAllStale();

    CareRunner* m_pRunner;
    QLabel* m_pTitle;
    QTabWidget* m_pTabs;
    QStackedWidget* m_pFoot;
    QLabel* m_pTold;
    QWidget* m_pWork;
    QLabel* m_pWorkText;
    QProgressBar* m_pProgress;
    QPushButton* m_pCancel;
    QList<CareSection*> m_listSections;
    QTimer m_look; // runs with the work
};

#endif // LINKHAND_HOST_CARE_CAREPAGE_H
