#ifndef LINKHAND_HOST_LINK_H
#define LINKHAND_HOST_LINK_H

#include <QPointer>

#include "app/ContactLink.h"
#include "device/ContactNamer.h"
#include "shared/HostLink.h"

class MainWindow;
class MessageStore;
class Modem;

// What the host gives its own siblings, joined to the modem and the main window; with it go the contacts.
class Link : public HostLink
{
public:
    // Modem and store outlive the link; the window may go before it.
    Link(Modem& modem, MessageStore& store, MainWindow* pWindow, const QString& strLogFolder);

    void Publish();
    void Withdraw();

    bool SendMessage(HostMessageKind enKind, const QStringList& lstNumbers, const QString& strSubject,
                     const QString& strText) override;
    int KeepDraft(int iId, HostMessageKind enKind, const QStringList& lstNumbers, const QString& strSubject,
                  const QString& strText) override;
    void ForgetDraft(int iId) override;
    bool Dial(const QString& strNumber, HostCallType enType) override;
    void HangUp() override;
    void Answer() override;
    bool IsSimulated() override;
    QObject* CallEvents() override;
    QList<HostCall> Calls(int iSkipped, int iAtMost) override;
    bool RemoveCall(int iId) override;
    QString CleanNumber(const QString& strNumber) override;
    void ShowPage(const QString& strPlugin) override;
    void ShowStatus(const QString& strText) override;
    QString LogFolder() override { return m_strLogFolder; }
    bool AskChangedContact(unsigned int uiMsg, unsigned int uiMemory, unsigned int uiNumber, QObject* pAsker,
                           int iTicket) override;

private:
    Modem& m_modem;
    MessageStore& m_store;
    QPointer<MainWindow> m_pWindow;
    QString m_strLogFolder;
    ContactLink m_contacts;
    ContactNamer m_namer;
};

#endif // LINKHAND_HOST_LINK_H
