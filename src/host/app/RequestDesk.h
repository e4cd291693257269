#ifndef LINKHAND_HOST_REQUESTDESK_H
#define LINKHAND_HOST_REQUESTDESK_H

#include <QObject>
#include <QStringList>
#include <QTimer>

class IPluginContainer;
class MainWindow;
class QUrl;
class SingleInstance;
struct Request;

// Does what arguments, further starts, links and drops ask for, one after the other and never under an open dialog: it
// fills forms and opens previews, and calls, sends and stores nothing by itself.
class RequestDesk : public QObject
{
    Q_OBJECT

public:
    // All outlive the object. Links to "tel:" and "sms:" that the program opens come here as long as it lives.
    RequestDesk(MainWindow& window, IPluginContainer& container, SingleInstance& instance);
    ~RequestDesk() override;

    // The pages are there: from now on things are done.
    void Start();

    void Add(const QStringList& lstTexts);

signals:
    // Contacts have come into the PC's phonebook.
    void contactsChanged();

private slots:
    void OnReceived();
    void OnDropped(const QStringList& lstUrls);
    void OnLink(const QUrl& url);
    void OnLook();

private:
    void bringUp(const QString& strToken);
    void carryOut(const QString& strText);
    void call(const Request& request);
    void write(const Request& request);
    void showCards(const QString& strFile);
    void tell(const QString& strText);

    MainWindow& m_window;
    IPluginContainer& m_container;
    SingleInstance& m_instance;
    QStringList m_lstTexts;
    QTimer m_look;
    bool m_bStarted;
    bool m_bBusy; // with the first, whose dialog is open
    bool m_bSaid; // that the others wait
};

#endif // LINKHAND_HOST_REQUESTDESK_H
