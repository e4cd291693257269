#ifndef LINKHAND_HOST_WELCOMENOTE_H
#define LINKHAND_HOST_WELCOMENOTE_H

#include <QFrame>
#include <QTimer>

class QLabel;
class QToolButton;

// A line above the phonebook that says where to begin. It is there while the PC's phonebook is empty and its page is
// shown, until the user has read it. User-interface thread only.
class WelcomeNote : public QFrame
{
    Q_OBJECT

public:
    explicit WelcomeNote(QWidget* pParent);

    // Whether the user has put the note away for good; at first it is taken that he has.
    void SetDismissed(bool bDismissed);

    // Whether the page of the phonebook is the one in front.
    void SetPhonebookShown(bool bShown);

    void Retranslate();

signals:
    // The user puts the note away.
    void dismissed();

protected:
    void resizeEvent(QResizeEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;

private slots:
    void OnDismiss();
    void OnRefresh();

private:
    void fitLetters();

    QLabel* m_pText;
    QToolButton* m_pDismiss;
    QTimer m_timer;
    bool m_bDismissed;
    bool m_bPhonebookShown;
};

#endif // LINKHAND_HOST_WELCOMENOTE_H
