#ifndef LINKHAND_HOST_PHONEBOOKCOUNTS_H
#define LINKHAND_HOST_PHONEBOOKCOUNTS_H

#include <QObject>
#include <QPointer>
#include <QTimer>

class QTableWidget;
class QWidget;
class StatusArea;

// Has the status area say how many contacts the phonebook's table shows, or how many a search has found, and how many
// are selected. User-interface thread only.
class PhonebookCounts : public QObject
{
    Q_OBJECT

public:
    // Both outlive this; the phonebook's window is on the page already.
    PhonebookCounts(QWidget& page, StatusArea& status);

protected:
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private slots:
    void OnChanged();
    void OnCount();

private:
    QWidget& m_page;
    StatusArea& m_status;
    QPointer<QTableWidget> m_pTable; // the one that is listened to
    QTimer m_timer;                  // gathers changes
};

#endif // LINKHAND_HOST_PHONEBOOKCOUNTS_H
