#include <QtTest>

#include <utility>

#include "linkhand/SdkText.h"
#include "sdk/OwnedHandle.h"

namespace
{

int s_iReleased = 0;
void* s_pReleased = nullptr;

long release(void* pHandle)
{
    ++s_iReleased;
    s_pReleased = pHandle;
    return ORVA_OK;
}

typedef OwnedHandle<release> Owned;

int s_aThings[2]; // whose addresses stand for handles

void give(void** ppHandle, int iThing)
{
    *ppHandle = &s_aThings[iThing];
}

// As the SDK hands a text out.
void giveText(unsigned short** ppusText)
{
    *ppusText = new unsigned short[3]{'o', 'k', 0};
}

} // namespace

// Who owns what the SDK hands out. Under the address sanitizer a text that is not freed, or freed twice, is told as
// well.
class TestHostOwned : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void aHandleIsReleasedOnceAtTheEndOfItsScope();
    void aHandleThatIsNullIsNotReleased();
    void aNewHandleReleasesTheOneBefore();
    void aMovedHandleIsReleasedByItsNewOwnerAlone();
    void aRecordOfTheSdkIsReleased();
    void aTextIsReadAsOftenAsWanted();
    void aMovedTextIsItsNewOwners();
};

void TestHostOwned::init()
{
    s_iReleased = 0;
    s_pReleased = nullptr;
}

void TestHostOwned::aHandleIsReleasedOnceAtTheEndOfItsScope()
{
    {
        Owned owned;
        give(owned.Out(), 0);
        QVERIFY(!owned.IsNull());
        QCOMPARE(owned.Get(), static_cast<void*>(&s_aThings[0]));
        QCOMPARE(s_iReleased, 0);
    }
    QCOMPARE(s_iReleased, 1);
    QCOMPARE(s_pReleased, static_cast<void*>(&s_aThings[0]));
}

void TestHostOwned::aHandleThatIsNullIsNotReleased()
{
    {
        Owned owned;
        QVERIFY(owned.IsNull());
        *owned.Out() = nullptr;
    }
    QCOMPARE(s_iReleased, 0);
}

void TestHostOwned::aNewHandleReleasesTheOneBefore()
{
    Owned owned;
    give(owned.Out(), 0);
    give(owned.Out(), 1);
    QCOMPARE(s_iReleased, 1);
    QCOMPARE(s_pReleased, static_cast<void*>(&s_aThings[0]));
    QCOMPARE(owned.Get(), static_cast<void*>(&s_aThings[1]));
}

void TestHostOwned::aMovedHandleIsReleasedByItsNewOwnerAlone()
{
    {
        Owned last;
        give(last.Out(), 1);
        {
            Owned first;
            give(first.Out(), 0);
            Owned second(std::move(first));
            QCOMPARE(second.Get(), static_cast<void*>(&s_aThings[0]));
            last = std::move(second);
        }
        QCOMPARE(s_iReleased, 1);
        QCOMPARE(s_pReleased, static_cast<void*>(&s_aThings[1]));
        QCOMPARE(last.Get(), static_cast<void*>(&s_aThings[0]));
    }
    QCOMPARE(s_iReleased, 2);
    QCOMPARE(s_pReleased, static_cast<void*>(&s_aThings[0]));
}

void TestHostOwned::aRecordOfTheSdkIsReleased()
{
    void* pHandle = nullptr;
    {
        OwnedRecord record;
        QCOMPARE(ORVA_PBSrv_CreateAddrRecord(ORVA_MEMORY_LOCAL, record.Out()), long(ORVA_OK));
        pHandle = record.Get();
    }
    QVERIFY(ORVA_PBSrv_AddrRecord_Release(pHandle) != ORVA_OK);
}

void TestHostOwned::aTextIsReadAsOftenAsWanted()
{
    SdkText text;
    QVERIFY(text.isNull());
    QVERIFY(text.toString().isNull());
    giveText(text.out());
    QCOMPARE(text.toString(), QString("ok"));
    QCOMPARE(text.toString(), QString("ok"));
    text.out();
    QVERIFY(text.isNull());
}

void TestHostOwned::aMovedTextIsItsNewOwners()
{
    unsigned short* pusText = nullptr;
    giveText(&pusText);
    SdkText first(pusText);
    SdkText second(std::move(first));
    QCOMPARE(second.toString(), QString("ok"));
    SdkText third;
    giveText(third.out());
    third = std::move(second);
    QCOMPARE(third.toString(), QString("ok"));
}

QTEST_MAIN(TestHostOwned)
#include "test_host_owned.moc"
