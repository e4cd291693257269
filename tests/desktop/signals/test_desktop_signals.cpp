#include <QElapsedTimer>
#include <QProcess>
#include <QTest>

#include <csignal>

#include "Ending.h"

namespace
{

const int LIMIT_MS = 2000;
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
const int SLOWDOWN = 5; // the sanitizers' own time
#else
const int SLOWDOWN = 1;
#endif
const int SIGNALS[] = {SIGTERM, SIGINT, SIGHUP};
const char* const NAMES[] = {"SIGTERM", "SIGINT", "SIGHUP"};

} // namespace

// Whatever is open, a signal ends the program at once and well.
class TestDesktopSignals : public QObject
{
    Q_OBJECT

private slots:
    void theProgramEnds_data();
    void theProgramEnds();
    void aSecondSignalDoesNotCutTheFirstShort();
    void theProgramEndsAtALogOut_data();
    void theProgramEndsAtALogOut();

private:
    // Runs the scene in a process of its own; how it went wrong, empty if it did not.
    static QString end(const QString& strScene, int iSignal, int iTimes, QProcess* pSession = nullptr);
};

QString TestDesktopSignals::end(const QString& strScene, int iSignal, int iTimes, QProcess* pSession)
{
    QProcess process;
    if (pSession != nullptr) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("SESSION_MANAGER", pSession->readLine().trimmed());
        process.setProcessEnvironment(environment);
    }
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(),
                  {"--scene", strScene, QString::number(iSignal), QString::number(iTimes)});
    QByteArray said;
    while (!said.contains("signalled") && process.state() != QProcess::NotRunning) {
        process.waitForReadyRead(500);
        said += process.readAllStandardOutput();
    }
    QElapsedTimer timer;
    timer.start();
    if (pSession != nullptr) {
        pSession->write("\n");
        pSession->waitForBytesWritten();
    }
    const bool bEnded = process.waitForFinished(10000 * SLOWDOWN) || process.state() == QProcess::NotRunning;
    const qint64 iTime = timer.elapsed();
    if (!bEnded) {
        process.kill();
        process.waitForFinished();
        return "it does not end";
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        return QString("exit code %1, %2").arg(process.exitCode()).arg(process.exitStatus());
    }
    return iTime < LIMIT_MS * SLOWDOWN ? QString() : QString("it took %1 ms").arg(iTime);
}

void TestDesktopSignals::theProgramEnds_data()
{
    QTest::addColumn<QString>("scene");
    QTest::addColumn<int>("signal");
    const bool bAll = qEnvironmentVariableIsSet("LINKHAND_FULL");
    int iScene = 0;
    // Each scene by one of the signals, in its long form by each.
    foreach (const Scene& scene, Ending::Scenes()) {
        for (int i = 0; i < 3; ++i) {
            if (bAll || iScene % 3 == i) {
                QTest::newRow(qPrintable(scene.strName + ' ' + NAMES[i])) << scene.strName << SIGNALS[i];
            }
        }
        ++iScene;
    }
}

void TestDesktopSignals::theProgramEnds()
{
    QFETCH(QString, scene);
    QFETCH(int, signal);
    const QString strWrong = end(scene, signal, 1);
    QVERIFY2(strWrong.isEmpty(), qPrintable(strWrong));
}

void TestDesktopSignals::aSecondSignalDoesNotCutTheFirstShort()
{
    foreach (const int iSignal, QList<int>() << SIGTERM << SIGINT << SIGHUP) {
        const QString strWrong = end("group-editor-empty", iSignal, 1000);
        QVERIFY2(strWrong.isEmpty(), qPrintable(strWrong));
    }
}

void TestDesktopSignals::theProgramEndsAtALogOut_data()
{
    QTest::addColumn<QString>("scene");
    foreach (const char* pszScene, (QList<const char*>() << "phonebook"
                                                         << "group-editor-empty"
                                                         << "edit-contact"
                                                         << "delete-contacts")) {
        QTest::newRow(pszScene) << QString(pszScene);
    }
}

void TestDesktopSignals::theProgramEndsAtALogOut()
{
    QFETCH(QString, scene);
    QProcess session;
    session.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    session.start(QCoreApplication::applicationDirPath() + "/session_manager", QStringList());
    QVERIFY(session.waitForReadyRead());
    const QString strWrong = end(scene, 0, 0, &session);
    QVERIFY2(strWrong.isEmpty(), qPrintable(strWrong));
    // It knows of the end, and nothing called the log-out off.
    QVERIFY(session.waitForFinished());
    QCOMPARE(session.exitCode(), 0);
    QVERIFY(!session.readAll().contains("cancelled"));
}

int main(int argc, char** argv)
{
    if (argc == 5 && qstrcmp(argv[1], "--scene") == 0) {
        const QString strName = QString::fromLocal8Bit(argv[2]);
        foreach (const Scene& scene, Ending::Scenes()) {
            if (scene.strName == strName) {
                return Ending::Run(argc, argv, scene, atoi(argv[3]), atoi(argv[4]));
            }
        }
        return 98;
    }
    QCoreApplication application(argc, argv);
    TestDesktopSignals test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_desktop_signals.moc"
