#ifndef LINKHAND_HOST_MESSAGESPAGE_H
#define LINKHAND_HOST_MESSAGESPAGE_H

#include <QTimer>
#include <QWidget>

#include "linkhand/plugin/IPluginContainer.h"

class MessageStore;
class Modem;
class QLabel;
class QPushButton;
class QTextBrowser;
class QTreeWidget;
struct StoredMessage;

// The messages, the one selected in full, and the ways to write a new one. With the simulated modem they are an outbox
// that nothing leaves; with a real one each says what has become of it.
class MessagesPage : public QWidget
{
    Q_OBJECT

public:
    // Without a modem it is as with the simulated one.
    MessagesPage(MessageStore& outbox, IPluginContainer& container, Modem* pModem, QWidget* pParent);

    void Retranslate();

    // Reads anew which messaging plug-ins are there; called as the page is entered.
    void Enter();

protected:
    void showEvent(QShowEvent* pEvent) override;
    void hideEvent(QHideEvent* pEvent) override;

private slots:
    void OnOutboxChanged();
    void OnSelectionChanged();
    void OnSend();
    void OnNewSms();
    void OnNewMms();
    void OnDelete();

private:
    int currentId() const;
    bool isReal() const;
    bool canSend(const StoredMessage& stored) const;
    void prepareList();
    void sizeColumns();
    QString stateText(const StoredMessage& stored) const;
    void report(const char* pszId);
    bool isThere(int iId) const;

    MessageStore& m_outbox;
    IPluginContainer& m_container;
    Modem* m_pModem;
    QLabel* m_pTitle;
    QLabel* m_pHint;
    QPushButton* m_pNewSms;
    QPushButton* m_pNewMms;
    QPushButton* m_pSend;
    QPushButton* m_pDelete;
    QTreeWidget* m_pList;
    QTextBrowser* m_pPreview;
    QTimer m_refresh;
};

#endif // LINKHAND_HOST_MESSAGESPAGE_H
