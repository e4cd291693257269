// What a call of the scripted SDK is to do out of turn, and what was called.

#include "fakesdk/FakeSdk.h"

#include "fakesdk/FakeSdkState.h"

using fakesdk::state;
typedef std::lock_guard<std::mutex> Lock;

void FakeSdk::fail(const QByteArray& name, int nth, long code)
{
    Lock lock(fakesdk::mutex());
    state().failedCall.clear();
    state().rules.push_back(fakesdk::Rule{name, nth, code, false});
}

void FakeSdk::failAlways(const QByteArray& name, long code)
{
    fail(name, 0, code);
}

void FakeSdk::failCall(int k, long code)
{
    fail(QByteArray(), k, code);
}

void FakeSdk::giveNull(const QByteArray& name, int nth)
{
    fail(name, nth, 0);
}

QByteArray FakeSdk::failedCall()
{
    Lock lock(fakesdk::mutex());
    return state().failedCall;
}

void FakeSdk::clearFailures()
{
    Lock lock(fakesdk::mutex());
    state().rules.clear();
    state().failedCall.clear();
}

void FakeSdk::setDelay(const QByteArray& name, int milliseconds)
{
    Lock lock(fakesdk::mutex());
    state().delays[name] = milliseconds;
}

void FakeSdk::onCall(const QByteArray& name, int nth, std::function<void()> function)
{
    Lock lock(fakesdk::mutex());
    state().hooks.push_back(fakesdk::Hook{name, nth, std::move(function)});
}

QList<FakeSdk::Call> FakeSdk::calls()
{
    Lock lock(fakesdk::mutex());
    return state().calls;
}

QStringList FakeSdk::log()
{
    QStringList lines;
    const QList<Call> list = calls();
    for (const Call& call : list)
        lines << QString("%1(%2)").arg(QString::fromLatin1(call.name), call.arguments.join(", "));
    return lines;
}

QStringList FakeSdk::names()
{
    QStringList lines;
    const QList<Call> list = calls();
    for (const Call& call : list)
        lines << QString::fromLatin1(call.name);
    return lines;
}

int FakeSdk::count(const QByteArray& name)
{
    Lock lock(fakesdk::mutex());
    return state().counts.value(name);
}

int FakeSdk::totalCalls()
{
    Lock lock(fakesdk::mutex());
    return state().total;
}

void FakeSdk::clearCalls()
{
    Lock lock(fakesdk::mutex());
    state().calls.clear();
    state().counts.clear();
    state().total = 0;
}

int FakeSdk::openTransactions(int memory)
{
    Lock lock(fakesdk::mutex());
    return state().memories[memory].openTransactions;
}
