#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

#include "ContactsSupport.h"
#include "MessageLog.h"
#include "linkhand/QtCompat.h"

namespace
{
const unsigned int s_uiOrdinaryUser = 65534;

// Runs what follows as an ordinary user, up to its end; needs root.
class AsOrdinaryUser
{
public:
    AsOrdinaryUser() : m_ok(setegid(s_uiOrdinaryUser) == 0 && seteuid(s_uiOrdinaryUser) == 0) {}
    ~AsOrdinaryUser()
    {
        if (seteuid(0) != 0 || setegid(0) != 0)
            qFatal("cannot become root again");
    }
    bool ok() const { return m_ok; }

private:
    bool m_ok;
};
} // namespace

// The small file that says that the phonebook is in use. Its permission lets root alone open it again, so that each
// test that rewrites it needs root, and each that is stopped by the permission an ordinary user.
class UsageFileTest : public WindowTest
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WindowFixture> m_fixture;
    QDomDocument m_document;

    QString file() const { return m_folder->path() + "/OnlineUpdate/UpdateInfo/kpi-pb.dat"; }
    AddrBookDlg* window() const { return m_fixture->window(); }
    bool note() const { return window()->SavePBInfoForAgent("PB01", "PBisUsing", "1"); }

    QByteArray content() const
    {
        QFile f(file());
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("unreadable");
    }

    void write(const QByteArray& text) const
    {
        QDir().mkpath(QFileInfo(file()).path());
        QFile f(file());
        QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(text);
    }

    // Read anew; elements are good up to the next call.
    QDomElement root()
    {
        m_document = QDomDocument();
        return m_document.setContent(content()) ? m_document.documentElement() : QDomElement();
    }

    // "tag=text" of each child.
    static QStringList children(const QDomElement& item)
    {
        QStringList list;
        for (QDomElement e = item.firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
            list << e.tagName() + "=" + e.text();
        return list;
    }

    static int mode(const QString& path)
    {
        struct stat info;
        return stat(QFile::encodeName(path).constData(), &info) == 0 ? int(info.st_mode & 07777) : -1;
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        m_fixture = std::make_unique<WindowFixture>();
        m_fixture->build();
        FakeSdk::setLogDirectory(m_folder->path() + "/log/");
        QDir(m_folder->path()).mkpath("OnlineUpdate");
    }

    void cleanup()
    {
        m_fixture.reset();
        m_folder.reset();
        WindowTest::cleanup();
    }

    // ---- As root ---------------------------------------------------------------------------------------------------

    void firstReportMakesFolderAndFile()
    {
        if (geteuid() != 0)
            QSKIP("an ordinary user cannot open the file again: needs root");
        const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
        QVERIFY(note());
        QVERIFY(QRegExp("<\\?xml version=['\"]1\\.0['\"].*").exactMatch(QString::fromUtf8(content())));
        QCOMPARE(root().tagName(), QString("Client"));
        QCOMPARE(root().attribute("version"), QString("1.0"));
        QCOMPARE(root().attribute("entity"), QString("agent"));
        QCOMPARE(root().childNodes().size(), 1);
        const QDomElement item = root().firstChildElement("Item");
        QCOMPARE(item.attribute("itemname"), QString("PB01"));
        QCOMPARE(children(item).mid(1), QStringList({"ReportType=2", "PBisUsing=1"}));
        const QString time = item.firstChildElement().text();
        QCOMPARE(item.firstChildElement().tagName(), QString("LogStartTime"));
        QVERIFY2(QRegExp("\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d").exactMatch(time), qPrintable(time));
        const QDateTime noted = QDateTime::fromString(time, "yyyy-MM-dd HH:mm:ss");
        QVERIFY(noted >= before && noted <= QDateTime::currentDateTime());
        QCOMPARE(mode(file()), 02);
        // Rewritten with an indent of four.
        QVERIFY2(content().contains("\n    <Item itemname=\"PB01\">\n        <LogStartTime>"), content().constData());
    }

    void laterReportsChangeNothingInSubstance()
    {
        if (geteuid() != 0)
            QSKIP("an ordinary user cannot open the file again: needs root");
        write("<Client version=\"1.0\" entity=\"agent\"><Item itemname=\"PB01\"><LogStartTime>2001-02-03 "
              "04:05:06</LogStartTime><ReportType>2</ReportType><PBisUsing>0</PBisUsing></Item></Client>");
        QVERIFY(note());
        const QByteArray once = content();
        QCOMPARE(children(root().firstChildElement()),
                 QStringList({"LogStartTime=2001-02-03 04:05:06", "ReportType=2", "PBisUsing=1"}));
        QCOMPARE(mode(file()), 02);
        QVERIFY(note());
        QCOMPARE(content(), once);
    }

    void contentChangedFromOutsideIsTakenUp()
    {
        if (geteuid() != 0)
            QSKIP("an ordinary user cannot open the file again: needs root");
        QVERIFY(note());
        QVERIFY(note());
        write("<Client><Item itemname=\"PB01\"><PBisUsing>0</PBisUsing><Other>8</Other></Item></Client>");
        QVERIFY(note());
        QCOMPARE(children(root().firstChildElement()), QStringList({"PBisUsing=1", "Other=8"}));
        QVERIFY(note());
        QVERIFY(window()->SavePBInfoForAgent("PB01", "PBisUsing", "2"));
        QCOMPARE(children(root().firstChildElement()), QStringList({"PBisUsing=2", "Other=8"}));
    }

    void nothingIsLeftOfALongerContent()
    {
        if (geteuid() != 0)
            QSKIP("an ordinary user cannot open the file again: needs root");
        write("<Client><Item itemname=\"PB01\"><PBisUsing>" + QByteArray(5000, '7') + "</PBisUsing></Item></Client>" +
              QByteArray(300, ' '));
        QVERIFY(note());
        QVERIFY2(content().size() < 200, content().constData());
        QCOMPARE(children(root().firstChildElement()), QStringList("PBisUsing=1"));
    }

    void itemWithoutTheElementGetsItAppended()
    {
        if (geteuid() != 0)
            QSKIP("an ordinary user cannot open the file again: needs root");
        write("<Client><Item itemname=\"PB01\"><LogStartTime>then</LogStartTime></Item></Client>");
        QVERIFY(note());
        QCOMPARE(children(root().firstChildElement()), QStringList({"LogStartTime=then", "PBisUsing=1"}));
        write("<Client><Item itemname=\"PB01\"/></Client>");
        QVERIFY(note());
        QCOMPARE(children(root().firstChildElement()), QStringList("PBisUsing=1"));
    }

    void firstElementOfTheTagIsReplacedAndNoOther()
    {
        if (geteuid() != 0)
            QSKIP("an ordinary user cannot open the file again: needs root");
        write("<Client><!-- note --><Item itemname=\"X\"><PBisUsing>7</PBisUsing></Item>"
              "<Item itemname=\"PB01\"><PBisUsing>5</PBisUsing><Other>8</Other><PBisUsing>6</PBisUsing></Item>"
              "<Item itemname=\"PB01\"><PBisUsing>9</PBisUsing></Item></Client>");
        QVERIFY(note());
        const QDomElement first = root().firstChildElement();
        QCOMPARE(children(first), QStringList("PBisUsing=7"));
        QCOMPARE(children(first.nextSiblingElement()), QStringList({"PBisUsing=1", "Other=8", "PBisUsing=6"}));
        QCOMPARE(children(first.nextSiblingElement().nextSiblingElement()), QStringList("PBisUsing=9"));
    }

    void firstCallWithAnotherItemMakesBoth()
    {
        if (geteuid() != 0)
            QSKIP("an ordinary user cannot open the file again: needs root");
        QVERIFY(window()->SavePBInfoForAgent("PB02", "Colour", "red & blue"));
        const QDomElement first = root().firstChildElement();
        QCOMPARE(first.attribute("itemname"), QString("PB01"));
        QCOMPARE(children(first).mid(1), QStringList({"ReportType=2", "PBisUsing=1"}));
        const QDomElement second = first.nextSiblingElement();
        QCOMPARE(second.tagName(), QString("Item"));
        QCOMPARE(second.attribute("itemname"), QString("PB02"));
        QCOMPARE(children(second), QStringList("Colour=red & blue"));
        QVERIFY(window()->SavePBInfoForAgent("PB02", "Size", QString::fromUtf8("gro\xc3\x9f")));
        QCOMPARE(children(root().lastChildElement()),
                 QStringList({"Colour=red & blue", QString::fromUtf8("Size=gro\xc3\x9f")}));
    }

    void fileWithoutTheItemGetsItWithItsFixedValues()
    {
        if (geteuid() != 0)
            QSKIP("an ordinary user cannot open the file again: needs root");
        write("<Client><Item itemname=\"X\"/></Client>");
        QVERIFY(window()->SavePBInfoForAgent("PB01", "Ignored", "ignored"));
        const QStringList list = children(root().lastChildElement());
        QCOMPARE(list.size(), 3);
        QVERIFY(list.first().startsWith("LogStartTime=2"));
        QCOMPARE(list.mid(1), QStringList({"ReportType=2", "PBisUsing=1"}));
    }

    void brokenFileStaysAsItIs_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut off") << QByteArray("<Client><Item itemname=\"PB01\">");
        QTest::newRow("not XML") << QByteArray("in use\n");
        QTest::newRow("zeros") << QByteArray(100, '\0');
    }
    void brokenFileStaysAsItIs()
    {
        QFETCH(QByteArray, text);
        if (geteuid() != 0)
            QSKIP("an ordinary user cannot open the file again: needs root");
        write(text);
        QVERIFY(!note());
        QCOMPARE(content(), text);
        QVERIFY(!note());
        QCOMPARE(content(), text);
    }

    void logDirectoryWithoutASlashGivesARelativePath()
    {
        if (geteuid() != 0)
            QSKIP("an ordinary user cannot open the file again: needs root");
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_folder->path()));
        FakeSdk::setLogDirectory("log");
        const bool noted = note();
        QDir::setCurrent(before);
        QVERIFY(noted);
        QVERIFY(QFile::exists(file()));
    }

    void folderIsBesideTheLogFolder_data()
    {
        QTest::addColumn<QString>("log");
        QTest::newRow("with the last slash") << "/log/";
        // Without it a level more goes.
        QTest::newRow("one level down, no slash") << "/below/log";
    }
    void folderIsBesideTheLogFolder()
    {
        QFETCH(QString, log);
        if (geteuid() != 0)
            QSKIP("an ordinary user cannot open the file again: needs root");
        FakeSdk::setLogDirectory(m_folder->path() + log);
        QVERIFY(note());
        QVERIFY(QFile::exists(file()));
    }

    // ---- As anybody ------------------------------------------------------------------------------------------------

    void missingFolderAboveIsNotMade()
    {
        QVERIFY(QDir(m_folder->path()).rmdir("OnlineUpdate"));
        QVERIFY(!note());
        QVERIFY(!note());
        QVERIFY(!QFile::exists(m_folder->path() + "/OnlineUpdate"));
    }

    void noLogDirectoryNoReport_data()
    {
        QTest::addColumn<bool>("fails");
        QTest::newRow("the call fails") << true;
        QTest::newRow("the call gives nothing") << false;
    }
    void noLogDirectoryNoReport()
    {
        QFETCH(bool, fails);
        if (fails)
            FakeSdk::failAlways("GetLogDirectory");
        else
            FakeSdk::giveNull("GetLogDirectory", 0);
        QVERIFY(!note());
        QVERIFY(!QFile::exists(file()));
        QVERIFY(!QFile::exists("OnlineUpdate"));
    }

    void folderInPlaceOfTheFileIsLeftAlone()
    {
        QVERIFY(QDir().mkpath(file()));
        QVERIFY(!note());
        QVERIFY(QFileInfo(file()).isDir());
    }

    void failuresAreTheLogsAlone()
    {
        FakeSdk::failAlways("GetLogDirectory");
        MessageLog log;
        QtCompat::setDebugEnabled(true);
        const bool written = note();
        QtCompat::setDebugEnabled(false);
        QVERIFY(!written);
        QCOMPARE(MessageLog::lines().filter("Error open file: ").size(), 1);
        QVERIFY(FakeCore::messages().isEmpty());
    }

    // ---- As an ordinary user ---------------------------------------------------------------------------------------

    void ordinaryUsersReportEndsBehindTheFirstWrite()
    {
        bool first = true;
        bool second = true;
        if (geteuid() == 0) {
            QCOMPARE(chown(QFile::encodeName(m_folder->path()).constData(), s_uiOrdinaryUser, s_uiOrdinaryUser), 0);
            QCOMPARE(chown(QFile::encodeName(m_folder->path() + "/OnlineUpdate").constData(), s_uiOrdinaryUser,
                           s_uiOrdinaryUser),
                     0);
            AsOrdinaryUser user;
            QVERIFY(user.ok());
            first = note();
            second = window()->SavePBInfoForAgent("PB02", "Colour", "red");
        } else {
            first = note();
            second = window()->SavePBInfoForAgent("PB02", "Colour", "red");
        }
        QVERIFY(!first);
        QVERIFY(!second);
        QCOMPARE(mode(file()), 02);
        if (geteuid() != 0)
            return; // cannot look into the file either
        // It stays as it was first written.
        QCOMPARE(root().tagName(), QString("Client"));
        QCOMPARE(root().childNodes().size(), 1);
        QCOMPARE(children(root().firstChildElement()).mid(1), QStringList({"ReportType=2", "PBisUsing=1"}));
    }

    void fileOfAnotherOwnerIsLeftAlone()
    {
        if (geteuid() != 0)
            QSKIP("only root can make a file of another owner");
        const QByteArray text("<Client><Item itemname=\"PB01\"><PBisUsing>0</PBisUsing></Item></Client>");
        write(text);
        QCOMPARE(chmod(QFile::encodeName(m_folder->path()).constData(), 0755), 0);
        QCOMPARE(chmod(QFile::encodeName(file()).constData(), 0600), 0);
        bool noted = true;
        {
            AsOrdinaryUser user;
            QVERIFY(user.ok());
            noted = note();
        }
        QVERIFY(!noted);
        QCOMPARE(content(), text);
        QCOMPARE(mode(file()), 0600);
    }

    void folderOfAnotherOwnerGetsNoFile()
    {
        if (geteuid() != 0)
            QSKIP("only root can make a folder of another owner");
        QCOMPARE(chmod(QFile::encodeName(m_folder->path()).constData(), 0755), 0);
        bool noted = true;
        {
            AsOrdinaryUser user;
            QVERIFY(user.ok());
            noted = note();
        }
        QVERIFY(!noted);
        QVERIFY(!QFile::exists(m_folder->path() + "/OnlineUpdate/UpdateInfo"));
    }

    void fileThatAllMayReadAndWriteIsUpdatedForAnybody()
    {
        if (geteuid() != 0)
            QSKIP("only root can make a file of another owner");
        write("<Client><Item itemname=\"PB01\"><PBisUsing>0</PBisUsing></Item></Client>");
        QCOMPARE(chmod(QFile::encodeName(m_folder->path()).constData(), 0755), 0);
        QCOMPARE(chmod(QFile::encodeName(file()).constData(), 0666), 0);
        bool noted = false;
        {
            AsOrdinaryUser user;
            QVERIFY(user.ok());
            noted = note();
        }
        QVERIFY(noted);
        QCOMPARE(children(root().firstChildElement()), QStringList("PBisUsing=1"));
    }
};

QTEST_MAIN(UsageFileTest)
#include "UsageFileTest.moc"
