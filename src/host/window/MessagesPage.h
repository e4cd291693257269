#ifndef LINKHAND_HOST_MESSAGESPAGE_H
#define LINKHAND_HOST_MESSAGESPAGE_H

#include <QTimer>
#include <QWidget>

#include "linkhand/plugin/IPluginContainer.h"

class IMessageForms;
class MessageStore;
class Modem;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QTextBrowser;
class QTreeWidget;
struct StoredMessage;

// The messages, the one selected in full, and the ways to write a new one or go on with one that is there. With the
// simulated modem they are an outbox that nothing leaves; with a real one each says what has become of it.
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
    void OnSearch();
    void OnOpen();
    void OnForward();
    void OnSend();
    void OnNewSms();
    void OnNewMms();
    void OnDelete();

private:
    int currentId() const;
    bool isReal() const;
    bool isSending(int iId) const;
    bool canSend(const StoredMessage& stored) const;
    bool canOpen(const StoredMessage& stored) const;
    IMessageForms* forms(int iKind) const;
    void makeLayout();
    QLayout* makeDeeds();
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
    QLineEdit* m_pSearch;
    QPushButton* m_pOpen;
    QPushButton* m_pForward;
    QPushButton* m_pSend;
    QPushButton* m_pDelete;
    QTreeWidget* m_pList;
    QTextBrowser* m_pPreview;
    QTimer m_refresh;
};

#endif // LINKHAND_HOST_MESSAGESPAGE_H
