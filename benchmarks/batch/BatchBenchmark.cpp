// Times what the window does to many contacts against bare loops of the library's calls. Both sides take turns in one
// run, and the best round of each counts. Arguments pick parts: batches, import, card, reading, tree.

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <cstdio>

#include "BareLoops.h"
#include "BatchWindow.h"
#include "RealHost.h"
#include "linkhand/QtCompat.h"
#include "logic/AddrBookLogic.h"
#include "orva/orva_sim.h"

namespace
{

struct Counts {
    int batch;
    int file;
    int card;
    int reading;
    int fewGroups;
    int manyGroups;
    int rounds;
};

QList<QStringList> contacts(int count, int numbers)
{
    QList<QStringList> list;
    for (int i = 0; i < count; ++i)
        list << contact(i, numbers);
    return list;
}

void check(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "not as expected: %s\n", what);
    std::exit(2);
}

// The folder that holds the usage file's, as the host makes it.
QString usageFolder()
{
    unsigned short* text = nullptr;
    expect(ORVA_GetLogDirectory(&text));
    QString path = QDir::cleanPath(QtCompat::fromUtf16(text) + "../OnlineUpdate");
    delete[] text;
    return path;
}

// A library on a new folder, with all its memories and room in them.
class Store
{
public:
    Store()
    {
        expect(ORVA_Sim_Reset(m_folder.path().toUtf8().constData()));
        expect(ORVA_Sim_SetCapacity(ORVA_MEMORY_LOCAL, 1000000));
        expect(ORVA_Sim_SetCapacity(ORVA_MEMORY_CARD, 100000));
        expect(ORVA_Sim_SetCapacity(ORVA_MEMORY_DEVICE, 100000));
        expect(ORVA_Sim_WaitEvents());
        QDir().mkpath(usageFolder());
    }
    ~Store()
    {
        AddrBookLogic::Destroy();
        ORVA_Sim_Reset(nullptr);
    }

private:
    QTemporaryDir m_folder;
};

void measureBatches(const Counts& counts, BareDialog& bare, bench::Table& table)
{
    const Store store;
    BatchWindow window;
    const QList<QStringList> list = contacts(counts.batch, 3);
    bench::Best add;
    bench::Best addBare;
    bench::Best erase;
    bench::Best eraseBare;
    double longest = 1e9;
    for (int round = 0; round < counts.rounds; ++round) {
        addBare.add(bench::timeOf([&] { addBarely(ORVA_MEMORY_LOCAL, list, true, bare); }));
        const QList<int> ids = allContacts(ORVA_MEMORY_LOCAL);
        check(ids.size() == counts.batch, "contacts of the bare loop");
        eraseBare.add(bench::timeOf([&] { deleteBarely(ORVA_MEMORY_LOCAL, ids, bare); }));
        window.show(ORVA_MEMORY_LOCAL);
        {
            const Patience patience;
            add.add(window.add(list));
            check(window.rows() == counts.batch, "rows after the batch");
            erase.add(window.deleteAll());
            check(window.rows() == 0, "rows after the delete");
            longest = std::min(longest, patience.longestSeconds());
        }
    }
    char what[80];
    std::snprintf(what, sizeof what, "batch that adds %d contacts, per record", counts.batch);
    table.ratio(what, "bare loop, pause, one repaint", bench::perItem(add.time(), counts.batch),
                bench::perItem(addBare.time(), counts.batch), 1.5);
    std::snprintf(what, sizeof what, "batch that deletes %d contacts, per record", counts.batch);
    table.ratio(what, "bare loop, pause, one repaint", bench::perItem(erase.time(), counts.batch),
                bench::perItem(eraseBare.time(), counts.batch), 1.5);
    table.note("longest time without an answer of the user interface in these batches", longest * 1e3, "ms",
               "aim 50 ms");
}

void measureImport(const Counts& counts, BareDialog& bare, bench::Table& table)
{
    const Store store;
    const QTemporaryDir files;
    const QString file = files.path() + "/contacts.csv";
    const QList<int> ids = addContacts(ORVA_MEMORY_LOCAL, counts.file, 3);
    expect(ORVA_PBSrv_ExportToFile(file.utf16(), ids.toVector().data(), counts.file, ORVA_MEMORY_LOCAL));
    eraseAll(ORVA_MEMORY_LOCAL);
    const QList<QStringList> list = contacts(counts.file, 3);
    BatchWindow window;
    bench::Best import;
    bench::Best importBare;
    for (int round = 0; round < std::max(1, counts.rounds / 2); ++round) {
        importBare.add(bench::timeOf([&] { addBarely(ORVA_MEMORY_LOCAL, list, true, bare); }));
        eraseAll(ORVA_MEMORY_LOCAL);
        window.show(ORVA_MEMORY_LOCAL);
        import.add(window.importFile(file));
        check(window.rows() == counts.file, "rows after the import");
        eraseAll(ORVA_MEMORY_LOCAL);
    }
    char what[80];
    std::snprintf(what, sizeof what, "import of %d rows, from OK in the field map", counts.file);
    table.ratio(what, "bare loop of add and join, pause, one repaint", import.time(), importBare.time(), 1.5);
}

void measureDropOnCard(const Counts& counts, BareDialog& bare, bench::Table& table)
{
    const Store store;
    addContacts(ORVA_MEMORY_LOCAL, counts.card, 1);
    QList<QStringList> list;
    for (const QStringList& values : contacts(counts.card, 1))
        list << QStringList{values.at(0), values.at(1)};
    BatchWindow window;
    bench::Best drop;
    bench::Best dropBare;
    for (int round = 0; round < 2 * counts.rounds; ++round) {
        dropBare.add(bench::timeOf([&] { addBarely(ORVA_MEMORY_CARD, list, false, bare); }));
        eraseAll(ORVA_MEMORY_CARD);
        window.show(ORVA_MEMORY_LOCAL);
        bench::Time reading = {};
        bench::Time whole = {};
        window.dropAll(ORVA_MEMORY_CARD, reading, whole);
        drop.add(whole);
        check(allContacts(ORVA_MEMORY_CARD).size() == counts.card, "contacts on the card");
        eraseAll(ORVA_MEMORY_CARD);
    }
    char what[80];
    std::snprintf(what, sizeof what, "drop of %d contacts on a fast card", counts.card);
    table.ratio(what, "bare loop of add, pause, one repaint", drop.time(), dropBare.time(), 1.5);
}

// The device stands for any target here: what is measured ends before the first record goes there.
void measureReading(const Counts& counts, bench::Table& table)
{
    const Store store;
    const QList<int> ids = addContacts(ORVA_MEMORY_LOCAL, counts.reading, 1);
    const QTemporaryDir folder;
    const QByteArray bytes(310, 'x'); // as long as the usage file
    BatchWindow window;
    bench::Best read;
    bench::Best readBare;
    for (int round = 0; round < counts.rounds; ++round) {
        readBare.add(bench::timeOf([&] { readBarely(ORVA_MEMORY_LOCAL, ids, folder.path() + "/usage.dat", bytes); }));
        window.show(ORVA_MEMORY_LOCAL);
        bench::Time reading = {};
        bench::Time whole = {};
        window.dropAll(ORVA_MEMORY_DEVICE, reading, whole);
        read.add(reading);
        check(QFile::exists(usageFolder() + "/UpdateInfo/kpi-pb.dat"), "usage file");
        eraseAll(ORVA_MEMORY_DEVICE);
    }
    char what[80];
    std::snprintf(what, sizeof what, "reading time of a drop of %d contacts", counts.reading);
    table.ratio(what, "bare loop of reads, one rewrite of the usage file each", read.time(), readBare.time(), 1.5);
}

bench::Time repaintTree(int groups, int rounds)
{
    const Store store;
    expect(ORVA_PBSrv_BeginTransaction(ORVA_MEMORY_LOCAL));
    for (int i = 0; i < groups; ++i) {
        void* group = nullptr;
        int id = 0;
        expect(ORVA_PBSrv_CreateAddrGroup(ORVA_MEMORY_LOCAL, &group));
        expect(ORVA_PBSrv_AddrGroup_SetName(group, QString("Group %1").arg(i).utf16()));
        expect(ORVA_PBSrv_AddrGroup_SetParentID(group, 0));
        expect(ORVA_PBSrv_AddGroup(group, &id));
        expect(ORVA_PBSrv_AddrGroup_Release(group));
    }
    expect(ORVA_PBSrv_EndTransaction(ORVA_MEMORY_LOCAL));
    BatchWindow window;
    bench::Best best;
    for (int round = 0; round < rounds; ++round)
        best.add(bench::timeOf([&] { window.dialog().rePaintTree(); }));
    return best.time();
}

void measureTree(const Counts& counts, bench::Table& table)
{
    const bench::Time few = repaintTree(counts.fewGroups, counts.rounds);
    const bench::Time many = repaintTree(counts.manyGroups, counts.rounds);
    char what[80];
    std::snprintf(what, sizeof what, "refresh of a tree of %d groups", counts.fewGroups);
    table.note(what, few.processor * 1e3, "ms", "on the processor");
    std::snprintf(what, sizeof what, "refresh of a tree of %d groups", counts.manyGroups);
    table.note(what, many.processor * 1e3, "ms", "on the processor");
    std::snprintf(what, sizeof what, "its growth, %d against %d groups", counts.manyGroups, counts.fewGroups);
    table.note(what, many.processor / few.processor, "", "linear would be 10");
}

} // namespace

int main(int argc, char** argv)
{
    if (qgetenv("QT_QPA_PLATFORM").isEmpty())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules("*.debug=false\n*.warning=false"); // as the host sets it unless asked to log
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const RealHost host(QCoreApplication::applicationDirPath() + "/..");
    const Counts counts = bench::isShort(argc, argv) ? Counts{300, 500, 100, 300, 20, 200, 2}
                                                     : Counts{2000, 10000, 250, 2000, 50, 500, 5};
    BareDialog bare;
    bare.show();
    QCoreApplication::processEvents();

    bench::Table table("Batches, files and drops");
    const auto wanted = [&](const char* part) { return bench::isWanted(argc, argv, part); };
    if (wanted("batches"))
        measureBatches(counts, bare, table);
    if (wanted("import"))
        measureImport(counts, bare, table);
    if (wanted("card"))
        measureDropOnCard(counts, bare, table);
    if (wanted("reading"))
        measureReading(counts, table);
    if (wanted("tree"))
        measureTree(counts, table);
    return table.result();
}
