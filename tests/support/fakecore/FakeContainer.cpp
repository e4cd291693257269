#include "fakecore/FakeSiblings.h"

namespace
{

class Container : public IPluginContainer
{
public:
    Container()
    {
        m_served[qMakePair(QString(FakeCore::SmsId), 4097)] = &m_sms;
        m_served[qMakePair(QString(FakeCore::MmsId), 32785)] = &m_mms;
        m_served[qMakePair(QString(FakeCore::VoiceCallId), 0)] = &m_voiceCall;
        m_served[qMakePair(QString(FakeCore::VideoCallId), 0)] = &m_videoCall;
        m_served[qMakePair(QString(FakeCore::NotifyId), 8209)] = &m_notify;
        m_served[qMakePair(QString(FakeCore::DeviceMgrId), 4097)] = &m_deviceMgr;
    }

    QObject* GetPlugin(QString strId, int iKind) override
    {
        fakecore::State& state = fakecore::state();
        state.lookups << QString("%1 %2").arg(strId).arg(iKind);
        if (state.absent.contains(strId))
            return nullptr;
        const QPair<QString, int> key(strId, iKind);
        if (state.objects.contains(key))
            return state.objects[key];
        // Every plug-in has a root object.
        return m_served.contains(key) || iKind != 0 ? m_served.value(key) : &m_root;
    }

private:
    FakeSms m_sms;
    FakeMms m_mms;
    FakeNotify m_notify;
    FakeDeviceMgr m_deviceMgr;
    QObject m_root;
    QObject m_voiceCall;
    QObject m_videoCall;
    QMap<QPair<QString, int>, QObject*> m_served;
};

} // namespace

IPluginContainer* Startup::GetPluginContainer()
{
    static Container container;
    return fakecore::state().containerPresent ? &container : nullptr;
}

bool ToolBarLogic::getPlugin(QString strId)
{
    return !fakecore::state().absent.contains(strId);
}
