#include "BareLoops.h"

#include <QFile>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QThread>
#include <QVBoxLayout>

#include <cstdio>
#include <cstdlib>

#include "orva/orva_sdk.h"

namespace
{

const int transactionSize = 200;
const unsigned long pause = 500; // microseconds
const char* const localKeys[] = {"Name", "Mobile", "officePhone", "homePhone", "email", "remark"};
const char* const deviceKeys[] = {"Name", "Number"};

int keyCount(int memory)
{
    return memory == ORVA_MEMORY_LOCAL ? 6 : 2;
}

const char* key(int memory, int field)
{
    return memory == ORVA_MEMORY_LOCAL ? localKeys[field] : deviceKeys[field];
}

void commitAt(int index, int memory)
{
    if (index % transactionSize != 0)
        return;
    expect(ORVA_PBSrv_EndTransaction(memory));
    expect(ORVA_PBSrv_BeginTransaction(memory));
}

} // namespace

BareDialog::BareDialog()
{
    setFixedSize(410, 160);
    setWindowFlags(Qt::CustomizeWindowHint | Qt::Dialog | Qt::FramelessWindowHint);
    auto* frame = new QFrame(this);
    frame->setGeometry(0, 0, width(), height());
    frame->setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    auto* status = new QLabel("Deleting contacts", this);
    status->setAlignment(Qt::AlignCenter);
    status->setWordWrap(true);
    status->setMargin(12);
    auto* counter = new QLabel("1000/2000", this);
    counter->setAlignment(Qt::AlignCenter);
    counter->setFixedSize(220, 20);
    auto* bar = new QProgressBar(this);
    bar->setFixedSize(340, 23);
    bar->setMaximum(2000);
    bar->setValue(1000);
    bar->setTextVisible(false);
    auto* button = new QPushButton("Cancel", this);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 10);
    const QList<QWidget*> parts = {status, counter, bar, button};
    for (QWidget* part : parts) {
        auto* row = new QHBoxLayout;
        row->addWidget(part);
        if (part != status)
            row->setAlignment(Qt::AlignCenter);
        rows->addLayout(row);
    }
}

void expect(long code)
{
    if (code == ORVA_OK)
        return;
    std::fprintf(stderr, "the library returned %ld\n", code);
    std::exit(2);
}

QStringList contact(int n, int numbers)
{
    const QString digits = QString::number(1000000 + n);
    return QStringList() << "Contact " + QString::number(n) << (numbers > 0 ? "+49" + digits : QString())
                         << (numbers > 1 ? "030" + digits : QString()) << (numbers > 2 ? "040" + digits : QString())
                         << "c" + digits + "@example.org"
                         << "A note on " + digits;
}

int addContact(int memory, const QStringList& values)
{
    void* record = nullptr;
    int id = 0;
    expect(ORVA_PBSrv_CreateAddrRecord(memory, &record));
    for (int field = 0; field < keyCount(memory); ++field)
        expect(ORVA_PBSrv_AddrRecord_SetValue(record, key(memory, field), values.at(field).utf16()));
    expect(ORVA_PBSrv_AddAddrRec(record, &id));
    expect(ORVA_PBSrv_AddrRecord_Release(record));
    return id;
}

QList<int> addContacts(int memory, int count, int numbers)
{
    QList<int> ids;
    expect(ORVA_PBSrv_BeginTransaction(memory));
    for (int i = 0; i < count; ++i) {
        commitAt(i, memory);
        ids << addContact(memory, contact(i, numbers));
    }
    expect(ORVA_PBSrv_EndTransaction(memory));
    return ids;
}

QList<int> allContacts(int memory)
{
    QList<int> ids;
    void* set = nullptr;
    expect(ORVA_PBSrv_GetAddrRecList(memory, &set));
    if (set == nullptr)
        return ids;
    for (long code = ORVA_PBSrv_AddrRecordSet_MoveFirst(set); code == ORVA_OK;
         code = ORVA_PBSrv_AddrRecordSet_MoveNext(set)) {
        int id = 0;
        expect(ORVA_PBSrv_AddrRecordSet_GetID(set, &id));
        ids << id;
    }
    expect(ORVA_PBSrv_AddrRecordSet_Release(set));
    return ids;
}

void eraseAll(int memory)
{
    const QList<int> ids = allContacts(memory);
    expect(ORVA_PBSrv_BeginTransaction(memory));
    for (int i = 0; i < ids.size(); ++i) {
        commitAt(i, memory);
        expect(ORVA_PBSrv_DelAddrRec(ids.at(i), memory));
    }
    expect(ORVA_PBSrv_EndTransaction(memory));
}

void addBarely(int memory, const QList<QStringList>& contacts, bool join, BareDialog& dialog)
{
    expect(ORVA_PBSrv_BeginTransaction(memory));
    for (int i = 0; i < contacts.size(); ++i) {
        commitAt(i, memory);
        const int id = addContact(memory, contacts.at(i));
        if (join)
            expect(ORVA_PBSrv_AddAddrToGroup(0, id, memory));
        QThread::usleep(pause);
        dialog.repaint();
    }
    expect(ORVA_PBSrv_EndTransaction(memory));
}

void deleteBarely(int memory, const QList<int>& ids, BareDialog& dialog)
{
    expect(ORVA_PBSrv_BeginTransaction(memory));
    for (int i = 0; i < ids.size(); ++i) {
        commitAt(i, memory);
        expect(ORVA_PBSrv_DelAddrRec(ids.at(i), memory));
        QThread::usleep(pause);
        dialog.repaint();
    }
    expect(ORVA_PBSrv_EndTransaction(memory));
}

void readBarely(int memory, const QList<int>& ids, const QString& file, const QByteArray& bytes)
{
    for (const int id : ids) {
        void* record = nullptr;
        expect(ORVA_PBSrv_GetAddrRecord(id, memory, &record));
        for (int field = 0; field < keyCount(memory); ++field) {
            unsigned short* text = nullptr;
            expect(ORVA_PBSrv_AddrRecord_GetValue(record, key(memory, field), &text));
            delete[] text;
        }
        expect(ORVA_PBSrv_AddrRecord_Release(record));
        QFile input(file);
        if (input.open(QIODevice::ReadOnly))
            input.readAll();
        input.close();
        QFile output(file);
        if (!output.open(QIODevice::WriteOnly) || output.write(bytes) != bytes.size())
            std::exit(2);
    }
}
