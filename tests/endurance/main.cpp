// Drives the real program with a seeded stream of random actions, over several starts on one profile.
//
//   linkhand_endurance [--pbctl FILE] [--seed N] [--actions N] [--each N]
//
// Each start is a process of its own. With LINKHAND_FULL=1 there are 20,000 actions, else 500. What fails is named with
// its random number and the last actions. At the end stands what came of each kind of action, as effects/actions; in
// 500 or more each has some.

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>

#include <csignal>
#include <cstdio>

#include "Effects.h"
#include "Life.h"
#include "Store.h"
#include "app/CommandLine.h"
#include "app/HostApplication.h"
#include "app/Services.h"
#include "linkhand/QtCompat.h"
#include "linkhand/core/HostServices.h"
#include "settings/DataFolder.h"
#include "single/SingleInstance.h"

namespace
{
const int s_iLifeLimitMs = 900000;
const int s_iEnoughActions = 500; // for each kind to have had an effect

QString option(const QStringList& arguments, const char* name, const QString& otherwise)
{
    const int at = arguments.indexOf(name);
    return at >= 0 && at + 1 < arguments.size() ? arguments.at(at + 1) : otherwise;
}

QStringList lastActions(const QString& folder)
{
    QFile file(folder + "/actions.log");
    file.open(QIODevice::ReadOnly);
    return QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
}

void writeImportFile(const QString& name)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write("Name,Mobile,E-mail\n");
    for (int i = 0; i < 15; ++i)
        file.write(QString("Imported %1,%2,i%1@example.org\n").arg(i).arg(500000 + i).toUtf8());
}

void writeCards(const QString& name)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly))
        return;
    for (int i = 0; i < 3; ++i)
        file.write(QString("BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Dropped %1\r\nN:%1;Dropped;;;\r\nTEL;TYPE=CELL:60000%1\r\n"
                           "BDAY:1990-12-31\r\nEND:VCARD\r\n")
                       .arg(i)
                       .toUtf8());
}

// One start of the program, in this process.
int live(int& argc, char** argv)
{
    QtCompat::prepareApplication();
    QApplication application(argc, argv);
    QApplication::setApplicationName("linkhand");
    QApplication::setQuitOnLastWindowClosed(false);
    QtCompat::setDebugEnabled(false);
    const QStringList arguments = QApplication::arguments();
    const quint32 seed = option(arguments, "--live", "1").toUInt();
    const int actions = option(arguments, "--actions", "100").toInt();

    SingleInstance instance(DataFolder::Path());
    HostApplication host(CommandLine(), instance);
    HostServices* services =
        reinterpret_cast<HostServices*>(quintptr(qApp->property(LINKHAND_HOST_SERVICES).toLongLong()));
    Life life(seed, actions, *static_cast<Services*>(services), QDir::homePath());
    life.goOnFrom(option(arguments, "--effects", QString()));
    life.start();
    const int code = host.Run();
    if (!life.failure().isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(life.failure()));
        return 1;
    }
    if (!life.ended()) {
        std::fprintf(stderr, "the program ended by itself\n");
        return 1;
    }
    return code;
}

bool run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(s_iLifeLimitMs)) {
        std::fprintf(stderr, "%s hangs\n", qPrintable(program));
        ::kill(pid_t(process.processId()), SIGABRT);
        process.waitForFinished(60000);
        return false;
    }
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

int runAll(const QStringList& arguments)
{
    const bool full = qEnvironmentVariableIsSet("LINKHAND_FULL");
    const int actions = option(arguments, "--actions", full ? "20000" : "500").toInt();
    const int each = option(arguments, "--each", full ? "2000" : "125").toInt();
    const quint32 seed = option(arguments, "--seed", "20260101").toUInt();
    const QString pbctl = option(arguments, "--pbctl", QString());
    writeImportFile(QDir::homePath() + "/in.csv");
    writeCards(QDir::homePath() + "/card.vcf");
    Store::fill();
    Effects effects;
    for (int done = 0, life = 0; done < actions; done += each, ++life) {
        QElapsedTimer time;
        time.start();
        const bool ended =
            run(arguments.first(), QStringList() << "--live" << QString::number(seed + quint32(life)) << "--actions"
                                                 << QString::number(each) << "--effects" << effects.told());
        const QStringList log = lastActions(QDir::homePath());
        if (!ended || (!pbctl.isEmpty() && !run(pbctl, QStringList("check")))) {
            std::fprintf(stderr, "seed %u of %u actions, which ended so:\n%s\n", seed + quint32(life), unsigned(each),
                         qPrintable(log.mid(qMax(0, log.size() - 60)).join("\n")));
            return 1;
        }
        std::printf("seed %u: %d actions in %lld s, %s\n", seed + quint32(life), each, time.elapsed() / 1000,
                    qPrintable(log.filter("look:").join("; ")));
        std::fflush(stdout);
        effects = Effects();
        effects.add(log.filter("effects: ").value(0).section("effects: ", 1));
    }
    std::printf("effects: %s\n", qPrintable(effects.told()));
    const QStringList vain = effects.vain();
    if (actions >= s_iEnoughActions && !vain.isEmpty())
        std::fprintf(stderr, "never with an effect: %s\n", qPrintable(vain.join(", ")));
    return actions >= s_iEnoughActions && !vain.isEmpty() ? 1 : 0;
}
} // namespace

int main(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "--live") == 0)
            return live(argc, argv);
    }
    QCoreApplication application(argc, argv);
    return runAll(QCoreApplication::arguments());
}
