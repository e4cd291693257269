#ifndef LINKHAND_TESTS_MODEMFIXTURE_H
#define LINKHAND_TESTS_MODEMFIXTURE_H

#include <QScopedPointer>
#include <QTemporaryDir>
#include <QtTest>

#include "FakeModemManager.h"
#include "device/ModemManagerModem.h"
#include "messages/MessageStore.h"
#include "shared/HostLink.h"
#include "support/modem/PrivateBus.h"

// A bus of the test's own, from before the first connection to it until the end of the process.
class TestBus
{
public:
    TestBus()
    {
        for (const auto& variable : m_bus.environment()) {
            qputenv(variable.first.c_str(), QByteArray::fromStdString(variable.second));
        }
    }

private:
    modemsim::PrivateBus m_bus;
};

// A modem behind a scripted ModemManager, with a store of its own.
struct ModemFixture {
    explicit ModemFixture(bool bPlugged = true, const QString& strPort = QString())
        : store(folder.path()), modem(strPort, store)
    {
        if (bPlugged) {
            manager.Run();
            manager.Plug();
        }
        modem.Start();
    }

    bool IsReady()
    {
        return QTest::qWaitFor([this] { return modem.Status().bRegistered; });
    }

    static OutgoingMessage Sms(const QString& strText, const QStringList& lstNumbers = {"+491711234567"})
    {
        OutgoingMessage message;
        message.iKind = HOST_MESSAGE_SMS;
        message.lstNumbers = lstNumbers;
        message.strText = strText;
        return message;
    }

    int State(int iIndex = 0) const { return store.Messages().value(iIndex).iState; }

    // What the store says if the program ended now.
    int StateOnDisk(int iIndex = 0) const
    {
        const MessageStore other(folder.path());
        return other.Messages().value(iIndex).iState;
    }

    QTemporaryDir folder;
    MessageStore store;
    FakeModemManager manager;
    ModemManagerModem modem;
};

#endif // LINKHAND_TESTS_MODEMFIXTURE_H
