#ifndef LINKHAND_HOST_MESSAGESPAGE_H
#define LINKHAND_HOST_MESSAGESPAGE_H

#include <QTimer>
#include <QWidget>

#include "linkhand/plugin/IPluginContainer.h"

class MessageStore;
class QLabel;
class QPushButton;
class QTextBrowser;
class QTreeWidget;

// The outbox: messages that wait for a modem, the one selected in full, and the ways to write a new one.
class MessagesPage : public QWidget
{
    Q_OBJECT

public:
    MessagesPage(MessageStore& outbox, IPluginContainer& container, QWidget* pParent);

    void Retranslate();

    // Reads anew which messaging plug-ins are there; called as the page is entered.
    void Enter();

protected:
    void showEvent(QShowEvent* pEvent) override;
    void hideEvent(QHideEvent* pEvent) override;

private slots:
    void OnOutboxChanged();
    void OnSelectionChanged();
    void OnNewSms();
    void OnNewMms();
    void OnDelete();

private:
    int currentId() const;
    bool isThere(int iId) const;

    MessageStore& m_outbox;
    IPluginContainer& m_container;
    QLabel* m_pTitle;
    QLabel* m_pHint;
    QPushButton* m_pNewSms;
    QPushButton* m_pNewMms;
    QPushButton* m_pDelete;
    QTreeWidget* m_pList;
    QTextBrowser* m_pPreview;
    QTimer m_refresh;
};

#endif // LINKHAND_HOST_MESSAGESPAGE_H
