#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "single/Message.h"
#include "single/SingleInstance.h"

namespace
{

const uid_t OTHER_USER = 65534;

} // namespace

// One program a data folder, and what a further start hands over.
class TestHostSingle : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aFurtherStartHandsOverWhatItWasGiven();
    void eachDataFolderHasItsOwn();
    void theSameFolderByAnotherPathIsTheSame();
    void whatAKilledProgramLeftIsTakenOver();
    void aProgramThatHangsIsGivenUp();
    void aProgramThatEndsMakesRoomForTheNext();
    void nothingIsLeftBehind();
    void onlyTheUserMayComeNear();
    void aFolderThatOthersCanSeeIsNotUsed_data();
    void aFolderThatOthersCanSeeIsNotUsed();
    void withoutAPrivateFolderEachStandsByItself();
    void moreThanIsTakenIsNotSent();
    void whatIsNoMessageIsDropped_data();
    void whatIsNoMessageIsDropped();
    void whoSaysNothingIsDropped();
    void anotherUsersProgramIsToldNothing();
    void anotherUserIsNotHeard();

private:
    QString run() const { return m_pFolder->filePath("run"); }
    QString data(const QString& strName = "data") const { return m_pFolder->filePath(strName); }
    QString fileIn(const QString& strFolder, const QString& strEnding) const;
    SingleInstance::Outcome beginElsewhere(const QStringList& lstTexts, int iLimitMs = 20000);
    int connected();
    static bool closedWithoutAWord(int iSocket);

    QScopedPointer<QTemporaryDir> m_pFolder;
};

void TestHostSingle::init()
{
    m_pFolder.reset(new QTemporaryDir);
    QVERIFY(QDir(m_pFolder->path()).mkpath("run") && QDir(m_pFolder->path()).mkpath("data"));
    QCOMPARE(chmod(qPrintable(run()), 0700), 0);
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(run()));
}

void TestHostSingle::cleanup()
{
    qunsetenv("TMPDIR");
    m_pFolder.reset();
}

QString TestHostSingle::fileIn(const QString& strFolder, const QString& strEnding) const
{
    const QDir folder(strFolder);
    return folder.filePath(
        folder.entryList({"linkhand-*" + strEnding}, QDir::Files | QDir::System | QDir::Hidden).value(0));
}

// A start in another thread, while this one goes on as the first program does.
SingleInstance::Outcome TestHostSingle::beginElsewhere(const QStringList& lstTexts, int iLimitMs)
{
    std::atomic<int> iOutcome(-1);
    std::thread start([&] { iOutcome = SingleInstance(data(), iLimitMs).Begin(lstTexts); });
    const bool bOver = QTest::qWaitFor([&] { return iOutcome >= 0; }, 60000);
    start.join();
    if (!bOver) {
        qWarning("the start took too long");
    }
    return static_cast<SingleInstance::Outcome>(iOutcome.load());
}

int TestHostSingle::connected()
{
    const int iSocket = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, QFile::encodeName(fileIn(run(), ".socket")).constData(), sizeof address.sun_path);
    return ::connect(iSocket, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 ? iSocket : -1;
}

bool TestHostSingle::closedWithoutAWord(int iSocket)
{
    char c = 0;
    ssize_t iRead = -1;
    const bool bOver = QTest::qWaitFor(
        [&] {
            iRead = recv(iSocket, &c, 1, MSG_DONTWAIT);
            return iRead >= 0 || (errno != EAGAIN && errno != EWOULDBLOCK);
        },
        60000);
    return bOver && iRead <= 0;
}

void TestHostSingle::aFurtherStartHandsOverWhatItWasGiven()
{
    SingleInstance first(data());
    QCOMPARE(first.Begin({"unheard"}), SingleInstance::FIRST);
    QVERIFY(first.Take().isEmpty());
    QSignalSpy received(&first, SIGNAL(received()));
    QCOMPARE(beginElsewhere({"", "tel:+49171", QString::fromUtf8("/\xC3\xA4\n.vcf")}), SingleInstance::PASSED_ON);
    QCOMPARE(beginElsewhere({}), SingleInstance::PASSED_ON);
    QCOMPARE(beginElsewhere({"sms:1"}), SingleInstance::PASSED_ON);
    QTRY_COMPARE(received.count(), 3);
    const QList<QStringList> listTaken = first.Take();
    QCOMPARE(listTaken, (QList<QStringList>{{"", "tel:+49171", QString::fromUtf8("/\xC3\xA4\n.vcf")}, {}, {"sms:1"}}));
    QVERIFY(first.Take().isEmpty());
}

void TestHostSingle::eachDataFolderHasItsOwn()
{
    QVERIFY(QDir(m_pFolder->path()).mkpath("other"));
    SingleInstance first(data());
    SingleInstance second(data("other"));
    SingleInstance third(data("not there"));
    QCOMPARE(first.Begin({}), SingleInstance::FIRST);
    QCOMPARE(second.Begin({}), SingleInstance::FIRST);
    QCOMPARE(third.Begin({}), SingleInstance::FIRST);
}

void TestHostSingle::theSameFolderByAnotherPathIsTheSame()
{
    QVERIFY(QFile::link(data(), data("link")));
    SingleInstance first(data("link"));
    QCOMPARE(first.Begin({}), SingleInstance::FIRST);
    QCOMPARE(beginElsewhere({}), SingleInstance::PASSED_ON);
    QCOMPARE(SingleInstance(data("run/../data/"), 200).Begin({}), SingleInstance::NO_ANSWER);
}

void TestHostSingle::whatAKilledProgramLeftIsTakenOver()
{
    int aiReady[2];
    QCOMPARE(pipe(aiReady), 0);
    const pid_t iFirst = fork();
    if (iFirst == 0) {
        SingleInstance first(data());
        const char c = first.Begin({}) == SingleInstance::FIRST ? 'y' : 'n';
        if (write(aiReady[1], &c, 1) == 1) {
            pause();
        }
        _exit(0);
    }
    char c = 0;
    QVERIFY(read(aiReady[0], &c, 1) == 1 && c == 'y');
    QCOMPARE(SingleInstance(data(), 200).Begin({}), SingleInstance::NO_ANSWER);
    QCOMPARE(kill(iFirst, SIGKILL), 0);
    QCOMPARE(waitpid(iFirst, nullptr, 0), iFirst);
    close(aiReady[0]);
    close(aiReady[1]);
    QVERIFY(QFile::exists(fileIn(run(), ".lock")) && !fileIn(run(), ".socket").endsWith('/'));
    SingleInstance next(data());
    QCOMPARE(next.Begin({}), SingleInstance::FIRST);
    QCOMPARE(beginElsewhere({}), SingleInstance::PASSED_ON);
}

// Its event loop does not run.
void TestHostSingle::aProgramThatHangsIsGivenUp()
{
    SingleInstance first(data());
    QCOMPARE(first.Begin({}), SingleInstance::FIRST);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(SingleInstance(data(), 300).Begin({"tel:1"}), SingleInstance::NO_ANSWER);
    QVERIFY(timer.elapsed() >= 300);
    // Nor does a queue that is full keep anybody for longer.
    std::vector<int> sockets;
    for (int i = 0; i < 64; ++i) {
        const int iSocket = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, QFile::encodeName(fileIn(run(), ".socket")).constData(), sizeof address.sun_path);
        sockets.push_back(iSocket);
        if (::connect(iSocket, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) {
            break;
        }
    }
    QCOMPARE(SingleInstance(data(), 300).Begin({"tel:1"}), SingleInstance::NO_ANSWER);
    for (const int iSocket : sockets) {
        close(iSocket);
    }
}

void TestHostSingle::aProgramThatEndsMakesRoomForTheNext()
{
    QScopedPointer<SingleInstance> pFirst(new SingleInstance(data()));
    QCOMPARE(pFirst->Begin({}), SingleInstance::FIRST);
    pFirst->StopListening();
    QCOMPARE(SingleInstance(data(), 100).Begin({}), SingleInstance::NO_ANSWER);
    std::atomic<int> iOutcome(-1);
    // Of Qt's own, since it is to listen there.
    const QScopedPointer<QThread> pStart(
        QThread::create([&] { iOutcome = SingleInstance(data(), 60000).Begin({"tel:1"}); }));
    pStart->start();
    pFirst.reset();
    QVERIFY(pStart->wait(60000));
    QCOMPARE(iOutcome.load(), int(SingleInstance::FIRST));
}

void TestHostSingle::nothingIsLeftBehind()
{
    {
        SingleInstance first(data());
        QCOMPARE(first.Begin({}), SingleInstance::FIRST);
        QCOMPARE(QDir(run()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size(), 2);
    }
    QCOMPARE(QDir(run()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot), QStringList());
}

void TestHostSingle::onlyTheUserMayComeNear()
{
    SingleInstance first(data());
    QCOMPARE(first.Begin({}), SingleInstance::FIRST);
    for (const char* szEnding : {".socket", ".lock"}) {
        struct stat status = {};
        QCOMPARE(stat(QFile::encodeName(fileIn(run(), szEnding)).constData(), &status), 0);
        QCOMPARE(int(status.st_mode & 07777), 0600);
    }
}

void TestHostSingle::aFolderThatOthersCanSeeIsNotUsed_data()
{
    QTest::addColumn<int>("mode"); // 0: there is none
    QTest::newRow("to be read by others") << 0744;
    QTest::newRow("to be entered by the group") << 0710;
    QTest::newRow("to be written by all") << 0777;
    QTest::newRow("not there") << 0;
}

void TestHostSingle::aFolderThatOthersCanSeeIsNotUsed()
{
    QFETCH(int, mode);
    if (mode == 0) {
        qunsetenv("XDG_RUNTIME_DIR");
    } else {
        QCOMPARE(chmod(qPrintable(run()), mode_t(mode)), 0);
    }
    QVERIFY(QDir(m_pFolder->path()).mkpath("tmp"));
    qputenv("TMPDIR", QFile::encodeName(data("tmp")));
    SingleInstance first(data());
    QCOMPARE(first.Begin({}), SingleInstance::FIRST);
    QVERIFY(QDir(run()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).isEmpty());
    struct stat status = {};
    QCOMPARE(stat(qPrintable(data("tmp/linkhand-%1").arg(geteuid())), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), 0700);
    QCOMPARE(beginElsewhere({}), SingleInstance::PASSED_ON);
}

void TestHostSingle::withoutAPrivateFolderEachStandsByItself()
{
    qunsetenv("XDG_RUNTIME_DIR");
    const QString strOwn = data("tmp/linkhand-%1").arg(geteuid());
    QVERIFY(QDir().mkpath(strOwn));
    QCOMPARE(chmod(qPrintable(strOwn), 0777), 0);
    qputenv("TMPDIR", QFile::encodeName(data("tmp")));
    SingleInstance first(data());
    SingleInstance second(data());
    QCOMPARE(first.Begin({}), SingleInstance::FIRST);
    QCOMPARE(second.Begin({}), SingleInstance::FIRST);
    // Nor is a link to a private one taken: somebody else may have laid it.
    QVERIFY(QDir(strOwn).removeRecursively() && QFile::link(data(), strOwn));
    SingleInstance third(data());
    QCOMPARE(chmod(qPrintable(data()), 0700), 0);
    QCOMPARE(third.Begin({}), SingleInstance::FIRST);
    QVERIFY(QDir(data()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).isEmpty());
}

void TestHostSingle::moreThanIsTakenIsNotSent()
{
    SingleInstance first(data());
    QCOMPARE(first.Begin({}), SingleInstance::FIRST);
    QStringList lstMany;
    for (int i = 0; i <= Message::TEXTS_LIMIT; ++i) {
        lstMany.append("tel:1");
    }
    QCOMPARE(beginElsewhere(lstMany), SingleInstance::TOO_MUCH);
    QCOMPARE(beginElsewhere({QString(Message::OCTETS_LIMIT, 'a')}), SingleInstance::TOO_MUCH);
    QVERIFY(first.Take().isEmpty());
    lstMany.removeLast();
    QCOMPARE(beginElsewhere(lstMany), SingleInstance::PASSED_ON);
}

void TestHostSingle::whatIsNoMessageIsDropped_data()
{
    QTest::addColumn<QByteArray>("octets");
    const QByteArray head("linkhand 1");
    const QByteArray zero(1, '\0');
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("another head") << QByteArray("GET / HTTP/1.0\r\n\r\n");
    QTest::newRow("a later head") << "linkhand 10" + zero + "tel:1";
    QTest::newRow("a head without its end") << QByteArray("linkhand ");
    QTest::newRow("no text") << head + zero + "\xff\xfe";
    QTest::newRow("too many") << head + (zero + "tel:1").repeated(Message::TEXTS_LIMIT + 1);
    QTest::newRow("too long") << head + zero + QByteArray(Message::OCTETS_LIMIT, 'a');
}

void TestHostSingle::whatIsNoMessageIsDropped()
{
    QFETCH(QByteArray, octets);
    SingleInstance first(data());
    QCOMPARE(first.Begin({}), SingleInstance::FIRST);
    const int iSocket = connected();
    QVERIFY(iSocket >= 0);
    std::thread sender([&] {
        int iSent = 0;
        while (iSent < octets.size()) {
            const ssize_t iWritten =
                send(iSocket, octets.constData() + iSent, size_t(octets.size() - iSent), MSG_NOSIGNAL);
            if (iWritten <= 0) {
                break;
            }
            iSent += int(iWritten);
        }
        shutdown(iSocket, SHUT_WR);
    });
    QVERIFY(closedWithoutAWord(iSocket));
    sender.join();
    close(iSocket);
    QVERIFY(first.Take().isEmpty());
    QCOMPARE(beginElsewhere({"tel:1"}), SingleInstance::PASSED_ON);
}

void TestHostSingle::whoSaysNothingIsDropped()
{
    SingleInstance first(data(), 200);
    QCOMPARE(first.Begin({}), SingleInstance::FIRST);
    const int iSocket = connected();
    QVERIFY(iSocket >= 0);
    QVERIFY(closedWithoutAWord(iSocket));
    close(iSocket);
    QVERIFY(first.Take().isEmpty());
}

// It began to listen as somebody else.
void TestHostSingle::anotherUsersProgramIsToldNothing()
{
    if (geteuid() != 0) {
        QSKIP("only root can be another user");
    }
    SingleInstance first(data());
    QCOMPARE(first.Begin({}), SingleInstance::FIRST);
    const QString strSocket = fileIn(run(), ".socket");
    first.StopListening();
    int aiReady[2];
    QCOMPARE(pipe(aiReady), 0);
    const pid_t iOther = fork();
    if (iOther == 0) {
        const int iSocket = socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, QFile::encodeName(strSocket).constData(), sizeof address.sun_path);
        char c = 0;
        const bool bListens = bind(iSocket, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 &&
                              setresuid(OTHER_USER, OTHER_USER, OTHER_USER) == 0 && listen(iSocket, 4) == 0 &&
                              write(aiReady[1], &c, 1) == 1;
        const int iConnection = bListens ? accept(iSocket, nullptr, nullptr) : -1;
        _exit(iConnection >= 0 ? int(read(iConnection, &c, 1)) : 99);
    }
    char c = 0;
    QCOMPARE(read(aiReady[0], &c, 1), ssize_t(1));
    QCOMPARE(SingleInstance(data(), 20000).Begin({"tel:1"}), SingleInstance::FOREIGN);
    int iStatus = 0;
    QCOMPARE(waitpid(iOther, &iStatus, 0), iOther);
    QVERIFY(WIFEXITED(iStatus));
    QCOMPARE(WEXITSTATUS(iStatus), 0); // octets that it was told
    close(aiReady[0]);
    close(aiReady[1]);
}

// Even where the files are open to him.
void TestHostSingle::anotherUserIsNotHeard()
{
    if (geteuid() != 0) {
        QSKIP("only root can be another user");
    }
    SingleInstance first(data());
    QCOMPARE(first.Begin({}), SingleInstance::FIRST);
    const QByteArray socketFile = QFile::encodeName(fileIn(run(), ".socket"));
    QCOMPARE(chmod(socketFile.constData(), 0666), 0);
    QCOMPARE(chmod(qPrintable(run()), 0755), 0);
    QCOMPARE(chmod(qPrintable(m_pFolder->path()), 0755), 0);
    const pid_t iOther = fork();
    if (iOther == 0) {
        const int iSocket = socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        const QByteArray message = Message::Of({"", "tel:1"});
        // By way of the working folder, since those above may be closed to him.
        const bool bConnected = chdir(qPrintable(run())) == 0 && setresuid(OTHER_USER, OTHER_USER, OTHER_USER) == 0 &&
                                qstrncpy(address.sun_path, socketFile.mid(socketFile.lastIndexOf('/') + 1).constData(),
                                         sizeof address.sun_path) != nullptr &&
                                ::connect(iSocket, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
        // It may be closed before all of it is said.
        if (send(iSocket, message.constData(), size_t(message.size()), MSG_NOSIGNAL) > 0) {
            shutdown(iSocket, SHUT_WR);
        }
        char c = 0;
        _exit(!bConnected ? 99 : recv(iSocket, &c, 1, 0) > 0 ? 1 : 0);
    }
    int iStatus = 0;
    QVERIFY(QTest::qWaitFor([&] { return waitpid(iOther, &iStatus, WNOHANG) == iOther; }, 60000));
    QVERIFY(WIFEXITED(iStatus));
    QCOMPARE(WEXITSTATUS(iStatus), 0); // 1: it was answered
    QVERIFY(first.Take().isEmpty());
    QCOMPARE(chmod(qPrintable(run()), 0700), 0);
    QCOMPARE(beginElsewhere({"tel:2"}), SingleInstance::PASSED_ON);
    QCOMPARE(first.Take(), (QList<QStringList>{{"tel:2"}}));
}

QTEST_GUILESS_MAIN(TestHostSingle)
#include "test_host_single.moc"
