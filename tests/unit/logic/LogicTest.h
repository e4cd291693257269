#ifndef TESTS_UNIT_LOGIC_LOGICTEST_H
#define TESTS_UNIT_LOGIC_LOGICTEST_H

#include <QLoggingCategory>
#include <QtTest>

#include "FailingNew.h"
#include "fakecore/FakeCore.h"
#include "fakesdk/FakeSdk.h"
#include "logic/AddrBookLogic.h"

// What every test of the logic begins and ends with: fresh fakes, a fresh logic object, nothing left behind.
class LogicTest : public QObject
{
    Q_OBJECT

protected:
    static AddrBookLogic* logic() { return AddrBookLogic::Instance(); }

    // Fills the field cache of a memory, so that a test sees only the calls that it is about.
    static void cacheFields(_ORVA_EN_PHONEBOOK_MEMORY enMemory)
    {
        QList<AddrBookField> fields;
        QCOMPARE(logic()->GetAllFields(fields, enMemory), 0);
        FakeSdk::clearCalls();
    }

    static QStringList contact(const QString& name, const QString& mobile = "")
    {
        return QStringList{name, mobile, "", "", "", ""};
    }

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("default.debug=false"); }

    void init()
    {
        FakeSdk::reset();
        FakeCore::reset();
        FailingNew::failNth(0);
    }

    void cleanup()
    {
        AddrBookLogic::Destroy();
        QCOMPARE(FakeSdk::leaks(), QString());
    }
};

#endif // TESTS_UNIT_LOGIC_LOGICTEST_H
