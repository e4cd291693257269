// Prints one ratio: saving a contact in the form with 50,000 contacts stored, whose numbers are all compared, against
// one walk of the same set into a list of records. The best of some rounds in which the two sides take turns.

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "dialogs/AddrBookEditDlg.h"
#include "logic/AddrBookLogic.h"
#include "orva/orva_sdk.h"
#include "orva/orva_sim.h"

namespace
{

const int memory = ORVA_MEMORY_LOCAL;
const int contacts = 50000;
const char* const keys[] = {"Name", "Mobile", "officePhone", "homePhone", "email", "remark"};

void expect(long code)
{
    if (code == ORVA_OK)
        return;
    std::fprintf(stderr, "the library returned %ld\n", code);
    std::exit(1);
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
            record.lstValues.append(QString::fromUtf16(text));
            delete[] text;
        }
        records.append(record);
    } while (ORVA_PBSrv_AddrRecordSet_MoveNext(set) == ORVA_OK);
    expect(ORVA_PBSrv_AddrRecordSet_Release(set));
}

double walkSeconds()
{
    QElapsedTimer timer;
    timer.start();
    walk();
    return double(timer.nsecsElapsed()) / 1e9;
}

// From the click on OK until the form has ended.
double saveSeconds(int round)
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
    QElapsedTimer timer;
    QTimer::singleShot(0, window, [&] {
        timer.start();
        window->findChildren<QPushButton*>().first()->click();
    });
    if (dialog.Exec() != 0) {
        std::fprintf(stderr, "the contact was not saved\n");
        std::exit(1);
    }
    return double(timer.nsecsElapsed()) / 1e9;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules("*.debug=false\n*.warning=false"); // as the host sets it unless asked to log
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QTemporaryDir folder;
    fillStore(folder.path());

    double once = 1e9;
    double save = 1e9;
    for (int round = 0; round < 7; ++round) {
        once = std::min(once, walkSeconds());
        save = std::min(save, saveSeconds(round));
    }
    AddrBookLogic::Destroy();
    const double ratio = save / once;
    std::printf(
        "from OK to the end of the form, 50,000 contacts: %.0f ms, one walk %.0f ms, ratio %.2f, at most 1.5 %s\n",
        save * 1e3, once * 1e3, ratio, ratio <= 1.5 ? "" : "MISSED");
    return ratio <= 1.5 ? 0 : 1;
}
