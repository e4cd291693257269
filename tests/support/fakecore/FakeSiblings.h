#ifndef TESTS_SUPPORT_FAKESIBLINGS_H
#define TESTS_SUPPORT_FAKESIBLINGS_H

#include <QObject>

#include "fakecore/FakeCoreState.h"

// The sibling plug-ins: they note what they are asked for.

class FakeSms : public QObject, public ISMSUIService
{
    Q_OBJECT
    Q_INTERFACES(ISMSUIService)

public:
    void SendMessage(QString strNumbers, QString strText, QWidget* pParent) override
    {
        fakecore::state().sms << FakeCore::Sms{strNumbers, strText, pParent};
    }
};

class FakeMms : public QObject, public IMMSUIPlugin
{
    Q_OBJECT
    Q_INTERFACES(IMMSUIPlugin)

public:
    void SendMessage(QString strNumbers) override { fakecore::state().mms << strNumbers; }
};

class FakeNotify : public QObject, public INotifyService
{
    Q_OBJECT
    Q_INTERFACES(INotifyService)

public:
    void Broadcast(unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2) override
    {
        fakecore::state().notices << FakeCore::Notice{false, uiMsg, uiParam1, uiParam2};
    }
    void Push(unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2) override
    {
        fakecore::state().notices << FakeCore::Notice{true, uiMsg, uiParam1, uiParam2};
    }
};

class FakeDeviceMgr : public QObject, public IDeviceMgr
{
    Q_OBJECT
    Q_INTERFACES(IDeviceMgr)
};

#endif // TESTS_SUPPORT_FAKESIBLINGS_H
