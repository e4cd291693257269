#ifndef TESTS_UNIT_WORKER_WORKERTEST_H
#define TESTS_UNIT_WORKER_WORKERTEST_H

#include <QEventLoop>
#include <QLoggingCategory>
#include <QPointer>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

#include "FailingNew.h"
#include "fakecore/FakeCore.h"
#include "fakesdk/FakeSdk.h"
#include "logic/AddrBookLogic.h"
#include "logic/PointerCarrier.h"
#include "worker/AddrBookThread.h"

// The user interface's end of a worker: takes every signal, owns the records, and answers each batch result.
class Receiver : public QObject
{
    Q_OBJECT

public:
    struct Contact {
        int type;
        int id;
        QList<QString> values;
        int group;
        int row;
        int columns;
    };
    struct Result {
        bool ok;
        int id;
        QList<QString> values;
    };

    explicit Receiver(AddrBookThread* worker, bool withMove = true) : m_worker(worker)
    {
        connect(worker, SIGNAL(addContacts(int, qlonglong, int, int, int)),
                SLOT(OnAddContacts(int, qlonglong, int, int, int)));
        connect(worker, SIGNAL(addResult(bool, qlonglong)), SLOT(OnRecordResult(bool, qlonglong)));
        connect(worker, SIGNAL(delResult(bool, int)), SLOT(OnDelResult(bool, int)));
        if (withMove)
            connect(worker, SIGNAL(moveResult(bool, qlonglong)), SLOT(OnRecordResult(bool, qlonglong)));
        connect(worker, SIGNAL(addSelectDialogContact(int, int, int)), SLOT(OnAddSelect(int, int, int)));
        connect(worker, SIGNAL(deleteSelectDialogContact(int, int)), SLOT(OnDeleteSelect(int, int)));
        connect(worker, SIGNAL(removeContactFromGroup(int, int, int)), SLOT(OnRemove(int, int, int)));
        connect(worker, SIGNAL(signalAddSimOrNvTreeNodes(int, qlonglong, qlonglong, int)),
                SLOT(OnTreeNode(int, qlonglong, qlonglong, int)));
        connect(worker, SIGNAL(signalAddGroupsToTree(int, qlonglong)), SLOT(OnTreeGroup(int, qlonglong)));
        connect(worker, SIGNAL(signalAddContactGroups(int, qlonglong, qlonglong)),
                SLOT(OnTreeMember(int, qlonglong, qlonglong)));
        connect(worker, SIGNAL(signalAddContactsToTree(int)), SLOT(OnTreeContact(int)));
    }

    // Takes what is still on its way, as every receiver of heap records has to.
    ~Receiver() override { QCoreApplication::sendPostedEvents(this, QEvent::MetaCall); }

    QList<Contact> contacts;
    QList<Result> results;
    QStringList lines; // the remaining signals
    QList<qlonglong> nodes;
    bool answers = true;                     // each result by SetSlotExecutionStatus
    std::function<void(int count)> onResult; // before the answer
    std::function<void(int count)> onContact;

private slots:
    void OnAddContacts(int enType, qlonglong iData, int iGroupid, int iCurrentRow, int iColumnCount)
    {
        const std::unique_ptr<AddrBookRecord> record(carrierToPointer<AddrBookRecord>(iData));
        contacts << Contact{enType, record->iID, record->lstValues, iGroupid, iCurrentRow, iColumnCount};
        if (onContact)
            onContact(contacts.size());
    }
    void OnRecordResult(bool bResult, qlonglong iPtrAddrBookRecord)
    {
        const std::unique_ptr<AddrBookRecord> record(carrierToPointer<AddrBookRecord>(iPtrAddrBookRecord));
        finish(Result{bResult, record->iID, record->lstValues});
    }
    void OnDelResult(bool bResult, int iRecordId) { finish(Result{bResult, iRecordId, {}}); }
    void OnAddSelect(int iType, int iID, int iGroupID) { note("added %1 %2 %3", iType, iID, iGroupID); }
    void OnDeleteSelect(int iType, int iRecordId) { lines << QString("deleted %1 %2").arg(iType).arg(iRecordId); }
    void OnRemove(int iType, int iRecordId, int iGroupID) { note("removed %1 %2 %3", iType, iRecordId, iGroupID); }
    void OnTreeNode(int iType, qlonglong iRecord, qlonglong iNode, int iIndex)
    {
        const std::unique_ptr<AddrBookRecord> record(carrierToPointer<AddrBookRecord>(iRecord));
        note("node %1 %2 %3", iType, record->iID, iIndex);
        nodes << iNode;
    }
    void OnTreeGroup(int iType, qlonglong iGroup)
    {
        const std::unique_ptr<AddrBookGroup> group(carrierToPointer<AddrBookGroup>(iGroup));
        lines << QString("group %1 %2 %3").arg(iType).arg(group->iGroupID).arg(group->strName);
    }
    void OnTreeMember(int iType, qlonglong iGroup, qlonglong iRecord)
    {
        const std::unique_ptr<AddrBookRecord> record(carrierToPointer<AddrBookRecord>(iRecord));
        note("member %1 %2 %3", iType, carrierToPointer<AddrBookGroup>(iGroup)->iGroupID, record->iID);
    }
    void OnTreeContact(int iIndex) { lines << QString("contact %1").arg(iIndex); }

private:
    void note(const char* text, int a, int b, int c) { lines << QString(text).arg(a).arg(b).arg(c); }
    void finish(const Result& result)
    {
        results << result;
        if (onResult)
            onResult(results.size());
        if (answers && m_worker)
            m_worker->SetSlotExecutionStatus();
    }

    QPointer<AddrBookThread> m_worker;
};

class WorkerTest : public QObject
{
    Q_OBJECT

protected:
    static QStringList contact(const QString& name, const QString& mobile = "")
    {
        return QStringList{name, mobile, "", "", "", ""};
    }

    static AddrBookRecord record(const QStringList& values, int id = 0)
    {
        AddrBookRecord made;
        made.iID = id;
        made.lstValues = values;
        return made;
    }

    static QList<AddrBookRecord> records(int count)
    {
        QList<AddrBookRecord> list;
        for (int i = 1; i <= count; ++i)
            list << record(contact(QString("Contact %1").arg(i)), i);
        return list;
    }

    // Starts the worker and runs the event loop until its "finished" has arrived behind all its other signals.
    static bool runToEnd(AddrBookThread& worker)
    {
        QEventLoop loop;
        QTimer guard;
        guard.setSingleShot(true);
        connect(&worker, SIGNAL(finished()), &loop, SLOT(quit()));
        connect(&guard, SIGNAL(timeout()), &loop, SLOT(quit()));
        guard.start(60000);
        worker.start(QThread::InheritPriority);
        loop.exec();
        worker.wait(1000);
        return worker.isFinished();
    }

    static void cacheFields(_ORVA_EN_PHONEBOOK_MEMORY enMemory)
    {
        QList<AddrBookField> fields;
        AddrBookLogic::Instance()->GetAllFields(fields, enMemory);
        FakeSdk::clearCalls();
    }

    // The worker only tests it for null, so that the tests do without a widget and a platform.
    static QTableWidget* table()
    {
        static int anything = 0;
        return reinterpret_cast<QTableWidget*>(&anything);
    }

    static void setRead(AddrBookThread& worker, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroup)
    {
        worker.SetOperation(ADDRBOOK_OP_READ, enMemory, QList<AddrBookRecord>(), iGroup);
        worker.SetReadOperation(table(), 6);
    }

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("default.debug=false\ndefault.warning=false"); }

    void init()
    {
        FakeSdk::reset();
        FakeCore::reset();
        FailingNew::failNth(0);
        AddrBookLogic::Instance();
    }

    void cleanup()
    {
        AddrBookLogic::Destroy();
        QCOMPARE(FakeSdk::leaks(), QString());
        QCOMPARE(FakeCore::runningWorkers(), 0);
    }
};

#endif // TESTS_UNIT_WORKER_WORKERTEST_H
