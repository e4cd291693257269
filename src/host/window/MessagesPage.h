#ifndef LINKHAND_HOST_MESSAGESPAGE_H
#define LINKHAND_HOST_MESSAGESPAGE_H

#include <QWidget>

#include "linkhand/plugin/IPluginContainer.h"

class Outbox;
class QLabel;
class QPushButton;
class QTextBrowser;
class QTreeWidget;

// The outbox: messages that wait for a modem, the one selected in full, and the ways to write a new one.
class MessagesPage : public QWidget
{
    Q_OBJECT

public:
    MessagesPage(Outbox& outbox, IPluginContainer& container, QWidget* pParent);

    void Retranslate();

    // Reads anew which messaging plug-ins are there; called as the page is entered.
    void Enter();

private slots:
    void OnOutboxChanged();
    void OnSelectionChanged();
    void OnNewSms();
    void OnNewMms();
    void OnDelete();

private:
    int currentId() const;

    Outbox& m_outbox;
    IPluginContainer& m_container;
    QLabel* m_pTitle;
    QLabel* m_pHint;
    QPushButton* m_pNewSms;
    QPushButton* m_pNewMms;
    QPushButton* m_pDelete;
    QTreeWidget* m_pList;
    QTextBrowser* m_pPreview;
};

#endif // LINKHAND_HOST_MESSAGESPAGE_H
