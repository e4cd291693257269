// Recipients that are offered while somebody types: the look-up against a bare one in sorted vectors, and a keystroke
// from its event to the painted list, with the contacts of a real store.

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTemporaryDir>

#include <algorithm>
#include <vector>

#include "app/ContactLink.h"
#include "benchmarks/support/Bench.h"
#include "common/RecipientCompleter.h"
#include "device/ContactIndex.h"
#include "orva/orva_sdk.h"
#include "orva/orva_sim.h"

namespace
{

const int OFFERED = 12;
const int LOOKUPS = 2000; // of each text, for one round

// As they are typed: names, a second word, a number of this country and one with its code.
const char* const TYPED[] = {"c", "contact num", "contact number 49", "number 7", "0171", "+4917110"};

QString nameOf(int number)
{
    return QLatin1String("Contact number ") + QString::number(number);
}

QString numberOf(int number)
{
    return QLatin1String("+49171") + QString::number(1000000 + number);
}

// Sorted beginnings and nothing else: every word of a name, and digits with and without the country's code.
class BareIndex
{
public:
    explicit BareIndex(int contacts)
    {
        for (int i = 0; i < contacts; ++i) {
            HostContact contact;
            contact.strName = nameOf(i);
            contact.strNumber = numberOf(i);
            m_contacts.push_back(contact);
            const QString name = contact.strName.toLower();
            for (int at = 0; at >= 0; at = name.indexOf(QLatin1Char(' '), at) + 1) {
                m_beginnings.emplace_back(name.mid(at), i);
                if (name.indexOf(QLatin1Char(' '), at) < 0) {
                    break;
                }
            }
            m_beginnings.emplace_back(contact.strNumber.mid(1), i);
            m_beginnings.emplace_back(contact.strNumber.mid(3), i);
        }
        std::sort(m_beginnings.begin(), m_beginnings.end());
    }

    QList<HostContact> Find(const QString& typed) const
    {
        QString text = typed.toLower();
        while (text.startsWith(QLatin1Char('+')) || text.startsWith(QLatin1Char('0'))) {
            text.remove(0, 1);
        }
        QList<HostContact> found;
        for (auto it = std::lower_bound(m_beginnings.begin(), m_beginnings.end(), std::make_pair(text, 0));
             it != m_beginnings.end() && found.size() < OFFERED && it->first.startsWith(text); ++it) {
            found.append(m_contacts[static_cast<std::size_t>(it->second)]);
        }
        return found;
    }

private:
    std::vector<HostContact> m_contacts;
    std::vector<std::pair<QString, int>> m_beginnings;
};

void compareLookUps(bench::Table& table, int contacts, int lookUps)
{
    ContactIndex index;
    for (int i = 0; i < contacts; ++i) {
        index.Add(nameOf(i), numberOf(i), numberOf(i));
    }
    index.Sort();
    const BareIndex bare(contacts);
    std::size_t found = 0;
    std::size_t bareFound = 0;
    bench::Best ours;
    bench::Best base;
    for (int round = 0; round < 5; ++round) {
        const bench::Pair pair = bench::inTurns(
            1,
            [&] {
                for (const char* text : TYPED) {
                    for (int i = 0; i < lookUps; ++i)
                        found += static_cast<std::size_t>(index.Complete(QLatin1String(text), OFFERED).size());
                }
            },
            [&] {
                for (const char* text : TYPED) {
                    for (int i = 0; i < lookUps; ++i)
                        bareFound += static_cast<std::size_t>(bare.Find(QLatin1String(text)).size());
                }
            });
        ours.add(pair.ours);
        base.add(pair.base);
    }
    if (found != bareFound || found == 0)
        std::printf("THE TWO DIFFER: %zu and %zu found\n", found, bareFound);
    const double count = static_cast<double>(lookUps) * static_cast<double>(sizeof TYPED / sizeof *TYPED);
    table.ratio("a recipient looked up by what is typed, 50,000 contacts",
                "a bare look-up in sorted beginnings of the same", bench::perItem(ours.time(), count),
                bench::perItem(base.time(), count), 2.0, bench::By::Processor);
}

void fill(int contacts)
{
    ORVA_PBSrv_BeginTransaction(ORVA_MEMORY_LOCAL);
    for (int i = 0; i < contacts; ++i) {
        void* record = nullptr;
        int id = 0;
        ORVA_PBSrv_CreateAddrRecord(ORVA_MEMORY_LOCAL, &record);
        ORVA_PBSrv_AddrRecord_SetValue(record, "Name", nameOf(i).utf16());
        ORVA_PBSrv_AddrRecord_SetValue(record, "Mobile", numberOf(i).utf16());
        ORVA_PBSrv_AddAddrRec(record, &id);
        ORVA_PBSrv_AddrRecord_Release(record);
    }
    ORVA_PBSrv_EndTransaction(ORVA_MEMORY_LOCAL);
}

// The slowest key of each text that is typed into a line, each key's best round, in milliseconds.
double slowestKey(QLineEdit& line, int rounds)
{
    double slowest = 0;
    for (const char* text : TYPED) {
        std::vector<double> best(std::strlen(text), 1e9);
        for (int round = 0; round < rounds; ++round) {
            line.clear();
            QApplication::processEvents();
            for (std::size_t i = 0; i < best.size(); ++i) {
                const bench::Stopwatch watch;
                QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(QLatin1Char(text[i])));
                QApplication::sendEvent(&line, &press);
                QApplication::processEvents();
                best[i] = std::min(best[i], watch.elapsed().clock * 1e3);
            }
        }
        slowest = std::max(slowest, *std::max_element(best.begin(), best.end()));
    }
    return slowest;
}

void measureKeys(bench::Table& table, int contacts, double most, const char* what, int rounds)
{
    const QTemporaryDir folder;
    ORVA_Sim_Reset(folder.path().toUtf8().constData());
    fill(contacts);
    {
        ContactLink link;
        QEventLoop loop;
        QObject::connect(link.Events(), SIGNAL(contactsRead()), &loop, SLOT(quit()));
        const bench::Stopwatch watch;
        link.Read(true);
        loop.exec();
        table.note("reading those contacts, on a thread of its own", watch.elapsed().clock * 1e3, "ms");
        QLineEdit line;
        new RecipientCompleter(&line, QLatin1String("completion"));
        line.resize(400, 30);
        line.show();
        line.activateWindow();
        line.setFocus();
        QApplication::processEvents();
        table.line(what, "", slowestKey(line, rounds), most, "the slowest key of six texts, in ms");
    }
    ORVA_Sim_Reset(nullptr);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const bool quick = bench::isShort(argc, argv);
    const int part = quick ? 10 : 1;
    bench::Table table(quick ? "Completion, with a tenth of the contacts" : "Completion");
    compareLookUps(table, 50000 / part, LOOKUPS / part);
    measureKeys(table, 10000 / part, 50, "a key of a recipient to the painted offer, 10,000 contacts", quick ? 2 : 5);
    measureKeys(table, 50000 / part, 20, "the same, 50,000 contacts", quick ? 2 : 5);
    return table.result();
}
