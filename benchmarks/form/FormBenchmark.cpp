// Prints one ratio: saving a contact in the form with 50,000 contacts stored, whose numbers are all compared, against
// one walk of the same set into a list of records. The best of some rounds in which the two sides take turns.

#include <QApplication>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

#include "benchmarks/support/Bench.h"
#include "dialogs/AddrBookEditDlg.h"
#include "linkhand/QtCompat.h"
#include "logic/AddrBookLogic.h"
#include "orva/orva_sdk.h"
#include "orva/orva_sim.h"

namespace
{

const int memory = ORVA_MEMORY_LOCAL;
int contacts = 50000;
const char* const keys[] = {"Name", "Mobile", "officePhone", "homePhone", "email", "remark"};

void expect(long code)
{
    if (code == ORVA_OK)
        return;
    std::fprintf(stderr, "the library returned %ld\n", code);
    std::exit(2);
}

void fillStore(const QString& folder)
{
    expect(ORVA_Sim_Reset(folder.toUtf8().constData()));
    expect(ORVA_PBSrv_BeginTransaction(memory));
    for (int i = 0; i < contacts; ++i) {
        void* record = nullptr;
        int id = 0;
        expect(ORVA_PBSrv_CreateAddrRecord(memory, &record));
        expect(ORVA_PBSrv_AddrRecord_SetValue(record, "Name", QString("Contact number %1").arg(i).utf16()));
        expect(ORVA_PBSrv_AddrRecord_SetValue(record, "Mobile", QString("+44%1").arg(7000000 + i).utf16()));
        expect(ORVA_PBSrv_AddrRecord_SetValue(record, "homePhone", QString("020%1").arg(1000000 + i).utf16()));
        expect(ORVA_PBSrv_AddAddrRec(record, &id));
        expect(ORVA_PBSrv_AddrRecord_Release(record));
    }
    expect(ORVA_PBSrv_EndTransaction(memory));
}

// One walk through the C interface into a list of records, which goes at its end like the form's.
void walk()
{
    QList<AddrBookRecord> records;
    void* set = nullptr;
    expect(ORVA_PBSrv_GetAddrRecList(memory, &set));
    expect(ORVA_PBSrv_AddrRecordSet_MoveFirst(set));
    do {
        AddrBookRecord record;
        expect(ORVA_PBSrv_AddrRecordSet_GetID(set, &record.iID));
        for (const char* key : keys) {
            unsigned short* text = nullptr;
            expect(ORVA_PBSrv_AddrRecordSet_GetValue(set, key, &text));
            record.lstValues.append(QtCompat::fromUtf16(text));
            delete[] text;
        }
        records.append(record);
    } while (ORVA_PBSrv_AddrRecordSet_MoveNext(set) == ORVA_OK);
    expect(ORVA_PBSrv_AddrRecordSet_Release(set));
}

// From the click on OK until the form has ended.
bench::Time timeToSave(int round)
{
    AddrBookEditDlg dialog;
    dialog.InitDialog(nullptr, 0, PB_MEM_LOCAL, ADDRBOOK_OP_ADD);
    dialog.setRegEx();
    QWidget* window = nullptr;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (qobject_cast<AddrBookNewContactExtendDialog*>(widget) != nullptr)
            window = widget;
    }
    const QList<QLineEdit*> edits = window->findChildren<QLineEdit*>();
    for (int i = 0; i < 4; ++i)
        edits.at(i)->setText(QString::number(900000 + 10 * round + i));
    bench::Stopwatch watch;
    QTimer::singleShot(0, window, [&] {
        watch = bench::Stopwatch();
        window->findChildren<QPushButton*>().first()->click();
    });
    if (dialog.Exec() != 0) {
        std::fprintf(stderr, "the contact was not saved\n");
        std::exit(2);
    }
    return watch.elapsed();
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules("*.debug=false\n*.warning=false"); // as the host sets it unless asked to log
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const bool quick = bench::isShort(argc, argv);
    contacts /= quick ? 5 : 1;
    const QTemporaryDir folder;
    fillStore(folder.path());

    bench::Best once;
    bench::Best save;
    for (int round = 0; round < 9; ++round) {
        once.add(bench::timeOf(walk));
        save.add(timeToSave(round));
    }
    AddrBookLogic::Destroy();
    bench::Table table(quick ? "Contact form, with a fifth of the contacts" : "Contact form");
    table.ratio("from OK to the end of the edit dialog with 50,000 contacts stored",
                "one walk of the same set through the C API into a list of records", save.time(), once.time(), 1.5);
    return table.result();
}
