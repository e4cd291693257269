#include <QtTest>

#include "HostDriver.h"
#include "PbCtl.h"
#include "Steps.h"

namespace
{

const int TASKS = 10;
const int MOST_PRESSES = 60;
const int PLACE_MS = 1500; // a key may leave the keyboard where it is
const int SEEN_MS = 5000;
const char* const TREE = "AddrBookUIPlugin_TreeWidget";
const char* const TABLE = "AddrBookUIPlugin_ContactTable";
const char* const CHAPTER = "Ten everyday tasks";

QString source(const char* pszPath)
{
    return QString::fromLocal8Bit(qgetenv("LINKHAND_SOURCE_DIR")) + '/' + pszPath;
}

bool begins(const QStringList& lstTexts, const QString& strText)
{
    foreach (QString strOne, lstTexts) {
        // Marks of direction are not read.
        if (strOne.remove(QChar(0x2066)).remove(QChar(0x2068)).remove(QChar(0x2069)).startsWith(strText)) {
            return true;
        }
    }
    return false;
}

} // namespace

// What docs/using.md tells somebody new to the program, done as it stands there: by the keyboard, on the demo profile.
class TestDesktopNewcomer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void theDocumentTellsTenTasks();
    void eachTaskIsDoneByItsKeys_data();
    void eachTaskIsDoneByItsKeys();

private:
    typedef bool (TestDesktopNewcomer::*Outcome)();
    struct Known {
        const char* pszTitle;
        Outcome done;
    };
    static const Known s_known[TASKS];

    bool follow(const Step& step);
    bool pressUntil(const QString& strKey, const QString& strPlace);
    bool start();
    QString fileOfHome(const char* pszName) { return QDir::home().filePath(QString::fromLatin1(pszName)); }
    QStringList contact(const QString& strMemory, const QString& strName);

    bool isAdded();
    bool isCalled();
    bool isChanged();
    bool isInGroup();
    bool isOnCard();
    bool isSent();
    bool isImported();
    bool isExported();
    bool isBack();
    bool isGerman();

    QTemporaryDir m_demo; // as run.sh fills it
    QScopedPointer<QTemporaryDir> m_pFolder;
    QScopedPointer<PbCtl> m_pStore;
    QScopedPointer<HostDriver> m_pHost;
};

const TestDesktopNewcomer::Known TestDesktopNewcomer::s_known[TASKS] = {
    {"Add a contact", &TestDesktopNewcomer::isAdded},
    {"Find somebody and call", &TestDesktopNewcomer::isCalled},
    {"Change a number", &TestDesktopNewcomer::isChanged},
    {"Make a group and put somebody in", &TestDesktopNewcomer::isInGroup},
    {"Copy somebody to the card", &TestDesktopNewcomer::isOnCard},
    {"Write to somebody by name", &TestDesktopNewcomer::isSent},
    {"Import a file", &TestDesktopNewcomer::isImported},
    {"Export all contacts", &TestDesktopNewcomer::isExported},
    {"Bring back a contact that was deleted", &TestDesktopNewcomer::isBack},
    {"Change the language", &TestDesktopNewcomer::isGerman}};

void TestDesktopNewcomer::initTestCase()
{
    PbCtl store(m_demo.filePath("data"));
    QVERIFY(store.Run({"import", source("demo/contacts.csv")}));
    QVERIFY(store.Run({"--memory", "card", "import", source("demo/card.csv")}));
}

void TestDesktopNewcomer::init()
{
    m_pFolder.reset(new QTemporaryDir);
    QVERIFY(QProcess::execute("cp", {"-r", m_demo.filePath("data"), m_pFolder->path()}) == 0);
    m_pStore.reset(new PbCtl(m_pFolder->filePath("data")));
    m_pHost.reset(new HostDriver);
    m_pHost->SetEnvironment("XDG_CONFIG_HOME", m_pFolder->filePath("config"));
    QFile file(fileOfHome("friends.csv"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("Name,Mobile\nQuinn Abel,01705550111\nQuinn Baker,01705550112\n");
    QFile::remove(fileOfHome("everybody.csv"));
}

void TestDesktopNewcomer::cleanup()
{
    if (m_pHost->Running()) {
        if (QTest::currentTestFailed()) {
            m_pHost->Screenshot(QStringLiteral("%1.png").arg(QString(QTest::currentDataTag()).replace(' ', '-')));
        }
        m_pHost->WaitForMainWindow();
        QVERIFY2(m_pHost->Quit() >= 0, qPrintable(m_pHost->Log()));
        QVERIFY2(m_pHost->ErrorLines().isEmpty(), qPrintable(m_pHost->ErrorLines().join('\n')));
    }
}

bool TestDesktopNewcomer::start()
{
    return m_pHost->Start(m_pFolder->filePath("data")) && HostDriver::WaitUntil([this] {
               return m_pHost->Cell(TREE, "SIM").iColumn >= 0 && !m_pHost->Place().isEmpty();
           }) &&
           HostDriver::WaitUntil(
               [this] { return begins(m_pHost->Texts(), "Contacts: ") && m_pHost->Rows(TABLE) > 1000; });
}

bool TestDesktopNewcomer::follow(const Step& step)
{
    switch (step.enKind) {
    case Step::PRESS:
        m_pHost->Key(step.strKey);
        return true;
    case Step::PRESS_UNTIL:
        return pressUntil(step.strKey, step.strText);
    case Step::TYPE:
        m_pHost->Type(step.strText);
        return true;
    case Step::SEE:
        break;
    }
    const auto isSeen = [&] { return begins(m_pHost->Texts(), step.strText); };
    // Behind a window that has gone, the window manager may leave the keyboard to nobody.
    return HostDriver::WaitUntil(isSeen, SEEN_MS) || (m_pHost->TakeKeyboard() && HostDriver::WaitUntil(isSeen));
}

// As a person does, who looks where the keyboard is before the next press.
bool TestDesktopNewcomer::pressUntil(const QString& strKey, const QString& strPlace)
{
    for (int i = 0; i < MOST_PRESSES; ++i) {
        const QStringList lstPlace = m_pHost->Place();
        if (begins(lstPlace, strPlace)) {
            return true;
        }
        m_pHost->Key(strKey);
        HostDriver::WaitUntil([&] { return m_pHost->Place() != lstPlace; }, PLACE_MS);
    }
    return false;
}

QStringList TestDesktopNewcomer::contact(const QString& strMemory, const QString& strName)
{
    foreach (const QStringList& lstFields, m_pStore->Contacts(strMemory)) {
        if (lstFields.value(0) == strName) {
            return lstFields;
        }
    }
    return QStringList();
}

void TestDesktopNewcomer::theDocumentTellsTenTasks()
{
    QStringList lstTold;
    foreach (const Task& task, Steps::Read(source("docs/using.md"), CHAPTER)) {
        lstTold << task.strTitle;
    }
    QStringList lstKnown;
    for (const Known& known : s_known) {
        lstKnown << known.pszTitle;
    }
    QCOMPARE(lstTold, lstKnown);
}

void TestDesktopNewcomer::eachTaskIsDoneByItsKeys_data()
{
    QTest::addColumn<int>("number");
    for (int i = 0; i < TASKS; ++i) {
        QTest::newRow(s_known[i].pszTitle) << i;
    }
}

void TestDesktopNewcomer::eachTaskIsDoneByItsKeys()
{
    QFETCH(int, number);
    const Task task = Steps::Read(source("docs/using.md"), CHAPTER).value(number);
    QVERIFY(!task.listSteps.isEmpty());
    QVERIFY2(start(), qPrintable(m_pHost->Log() + m_pHost->Texts().mid(0, 40).join(" | ")));
    foreach (const Step& step, task.listSteps) {
        QVERIFY2(follow(step), qPrintable(step.Told() + "\nthe keyboard is at: " + m_pHost->Place().join(" | ") +
                                          "\nto be read: " + m_pHost->Texts().mid(0, 40).join(" | ")));
    }
    QVERIFY(HostDriver::WaitUntil([&] { return (this->*s_known[number].done)(); }));
}

bool TestDesktopNewcomer::isAdded()
{
    return contact("local", "Nora Quill").value(1) == "01705550101";
}

bool TestDesktopNewcomer::isCalled()
{
    return m_pHost->Cell("VoiceCallPlugin_treeCalls", "Ada Hartley").iColumn >= 0 &&
           !m_pHost->Exists("VoiceCallPlugin_callBox");
}

bool TestDesktopNewcomer::isChanged()
{
    return contact("local", "Ada Hartley").value(1) == "01705550102";
}

bool TestDesktopNewcomer::isInGroup()
{
    const QList<QStringList> listMembers = m_pStore->Contacts("local", "Chess");
    return listMembers.size() == 1 && listMembers.first().value(0) == "Ada Hartley";
}

bool TestDesktopNewcomer::isOnCard()
{
    return !contact("card", "Ada Hartley").isEmpty() && !contact("local", "Ada Hartley").isEmpty();
}

bool TestDesktopNewcomer::isSent()
{
    return m_pHost->Cell("linkhand_Messages_list", QString(QChar(0x2068)) + "Ada Hartley").iColumn >= 0 &&
           m_pHost->Cell("linkhand_Messages_list", "See you at eight").iColumn >= 0;
}

bool TestDesktopNewcomer::isImported()
{
    return contact("local", "Quinn Abel").value(1) == "01705550111" && !contact("local", "Quinn Baker").isEmpty();
}

bool TestDesktopNewcomer::isExported()
{
    QFile file(fileOfHome("everybody.csv"));
    return file.open(QIODevice::ReadOnly) && file.readAll().contains("Ada Hartley");
}

bool TestDesktopNewcomer::isBack()
{
    return !contact("local", "Ada Hartley").isEmpty();
}

bool TestDesktopNewcomer::isGerman()
{
    return m_pHost->Text("linkhand_Preferences_title") == "Einstellungen";
}

QTEST_GUILESS_MAIN(TestDesktopNewcomer)
#include "test_desktop_newcomer.moc"
