#include <QFile>
#include <QtTest>

#include <unistd.h>

#include "DesktopTest.h"
#include "Hand.h"

namespace
{

const char* const TREE = "AddrBookUIPlugin_TreeWidget";
const char* const TABLE = "AddrBookUIPlugin_ContactTable";
const char* const FILE_DIALOG = "QFileDialog";
const char* const FILE_NAME = "QFileDialog/fileNameEdit";
const char* const TITLES = "FieldMapTable1Widget";
const char* const FIELDS = "FieldMapTable2Widget";
const char* const MAP_OK = "AddrUIplugin_FieldMapokbtn";
const char* const MAP_CANCEL = "AddrUIplugin_FieldMapCancelbtn";
const char* const BOX = "linkhand_MessageBox";
const char* const WAITING = "ABWaitingDlg";
const char* const LEFT = "linkhand_StatusArea_findings";
const char* const LEFT_LIST = "linkhand_Findings_list";

// What the SDK refuses is warned about.
const char* const REFUSED = "ORVA_PBSrv_(ImportFrom|ExportTo)File returned|nothing to import";

// Contacts that are hard to write down: separators, quotes, line breaks, blanks at the ends, what a spreadsheet would
// take for a formula or a number, and scripts of all kinds.
const char* const HARD_CONTACTS = "Name,Mobile,officePhone,homePhone,email,remark\n"
                                  "\"Berg, Anna \"\"Ann\"\"\",+491701,0049,*100#,a;b@example.org,\"one\ntwo\n\nfour\"\n"
                                  "=1+1,0001,,,,\"tab\there\"\n"
                                  "\" both ends \",,#31#,,,\" \"\n"
                                  "\xd0\x9e\xd0\xbb\xd1\x8c\xd0\xb3\xd0\xb0,,,0301,,\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d\n"
                                  "e\xcc\x81 and \xf0\x9f\x90\xb1,0170,,,,\"sep=;\"\n"
                                  "\xe7\x8e\x8b\xe5\xb0\x8f\xe6\x98\x8e,+33199000388,,,,\"'quoted'\"\n";

} // namespace

// Contacts in from files and out to files, through the real file dialogs and the field map.
class TestDesktopFiles : public DesktopStoreTest
{
    Q_OBJECT

private slots:
    void init();
    void aTitleIsDraggedOntoAField();
    void cancellingTheFieldMapImportsNothing();
    void filesOfOtherProgramsComeIn_data();
    void filesOfOtherProgramsComeIn();
    void exportedContactsComeBackTheSame_data();
    void exportedContactsComeBackTheSame();
    void aFolderThatCannotBeWrittenIsSaid();
    void aFileInPlaceOfAFolderIsSaid();
    void aFileThatGrowsUnderTheFieldMapIsReadAsItIsThen();
    void aFileThatLosesColumnsUnderTheFieldMapLeavesTheFieldsEmpty();
    void aFileThatVanishesUnderTheFieldMapIsSaid();
    void aFileOfTitlesAloneIsSaid();
    void whatACardLeavesIsListedBehindTheFinalBox();

private:
    bool start();
    // A file on the user's desktop, where the file dialogs start.
    QString path(const QString& strName) const { return m_pFolder->filePath("home/Desktop/" + strName); }
    QString write(const QString& strName, const QByteArray& content) const; // gives the name

    bool chooseAction(const QString& strAction);
    bool answerFileDialog(const QString& strName);
    bool openFieldMap(const QString& strName);
    bool map(const QString& strTitle, const QString& strField);
    QString mapped(const QString& strField);
    bool import(int iFound, int iImported);
    bool exportAll(const QString& strName, const QString& strSaid);
    bool box(const QString& strText);
};

void TestDesktopFiles::init()
{
    DesktopStoreTest::init();
    QVERIFY(QDir().mkpath(path("")));
    m_pHost->SetEnvironment("HOME", m_pFolder->filePath("home"));
}

bool TestDesktopFiles::start()
{
    return m_pHost->Start(DataFolder()) &&
           HostDriver::WaitUntil([this] { return m_pHost->Rows(TABLE) == m_pStore->Used("local"); });
}

QString TestDesktopFiles::write(const QString& strName, const QByteArray& content) const
{
    QFile file(path(strName));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? strName : QString();
}

bool TestDesktopFiles::chooseAction(const QString& strAction)
{
    const QRect rect = m_pHost->Widget(TABLE).rect;
    m_pHost->ClickAt(QPoint(rect.center().x(), rect.bottom() - 20), 3);
    return m_pHost->ClickAction(strAction) && m_pHost->WaitFor(FILE_DIALOG);
}

bool TestDesktopFiles::answerFileDialog(const QString& strName)
{
    if (!m_pHost->WaitForModal() || !HostDriver::WaitUntil([this] { return m_pHost->Widget(FILE_NAME).bFocused; })) {
        return false;
    }
    // The list of names that complete what is typed may be open or come late; it takes the next click, wherever.
    const auto answered = [this] { return !m_pHost->Exists(FILE_DIALOG); };
    return HostDriver::WaitUntil([&] {
        if (!answered() && m_pHost->Text(FILE_NAME) != strName) {
            m_pHost->Key("ctrl+a");
            m_pHost->Type(strName);
            HostDriver::WaitUntil([&] { return m_pHost->Text(FILE_NAME) == strName; }, 5000);
            m_pHost->Click("QFileDialog/fileNameLabel");
        }
        return answered() ||
               (m_pHost->Click("QFileDialog/QDialogButtonBox/QPushButton[0]") && HostDriver::WaitUntil(answered, 3000));
    });
}

bool TestDesktopFiles::openFieldMap(const QString& strName)
{
    return chooseAction(QString::fromUtf8("Import contacts…")) && answerFileDialog(strName) &&
           m_pHost->WaitFor(FIELDS) && m_pHost->WaitForModal();
}

QString TestDesktopFiles::mapped(const QString& strField)
{
    const QString strRow = m_pHost->Cell(FIELDS, strField, 0).strPath;
    foreach (const CellInfo& cell, m_pHost->Cells(FIELDS)) {
        if (cell.iColumn == 1 && cell.strPath == strRow) {
            return cell.strText;
        }
    }
    return QString();
}

// The title takes its place with the first movement after the drop.
bool TestDesktopFiles::map(const QString& strTitle, const QString& strField)
{
    const QRect view = m_pHost->Widget(TITLES).rect;
    const auto title = [&] {
        foreach (const CellInfo& cell, m_pHost->Cells(TITLES)) {
            if (cell.strText == strTitle && cell.rect.bottom() < view.bottom() - 5) {
                return cell;
            }
        }
        return CellInfo();
    };
    // The list of titles is turned with the wheel until the title is there: down, and up again.
    for (int i = 0; i < 60 && title().iColumn < 0; ++i) {
        m_pHost->ClickAt(view.center(), i < 30 ? 5 : 4);
    }
    const CellInfo from = title();
    const CellInfo field = m_pHost->Cell(FIELDS, strField, 0);
    if (from.iColumn < 0 || field.iColumn < 0) {
        return false;
    }
    Hand hand;
    hand.Press(from.rect.center());
    hand.MoveTo(field.rect.center());
    hand.Release();
    return HostDriver::WaitUntil([&] {
        hand.MoveTo(field.rect.center() + QPoint(2, 0));
        return mapped(strField) == strTitle;
    });
}

bool TestDesktopFiles::box(const QString& strText)
{
    if (!m_pHost->WaitFor(BOX) || !m_pHost->WaitForModal() || m_pHost->Text(BOX) != strText) {
        qWarning("The box says: %s", qPrintable(m_pHost->Text(BOX)));
        return false;
    }
    m_pHost->Key("Return");
    return m_pHost->WaitGone(BOX);
}

bool TestDesktopFiles::import(int iFound, int iImported)
{
    return m_pHost->Click(MAP_OK) &&
           box(QStringLiteral("Contacts found: %1, imported: %2").arg(iFound).arg(iImported)) &&
           m_pHost->WaitGone(WAITING);
}

bool TestDesktopFiles::exportAll(const QString& strName, const QString& strSaid)
{
    return chooseAction(QString::fromUtf8("Export all contacts…")) && answerFileDialog(strName) && box(strSaid);
}

void TestDesktopFiles::aTitleIsDraggedOntoAField()
{
    const QString strFile = write("mine.csv", "Who,Mobile,Private number,Remarks\n"
                                              "Anna,0170,0301,\"tea, no milk\"\n"
                                              "Bea,0171,,\n");
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(openFieldMap(strFile));
    QCOMPARE(mapped("Mobile"), QStringLiteral("Mobile"));
    QCOMPARE(mapped("Name"), QStringLiteral(" "));
    QVERIFY(map("Who", "Name"));
    QVERIFY(map("Private number", "Home"));
    QVERIFY(map("Private number", "Office"));
    QVERIFY(map("Remarks", "Office")); // the last one counts
    QVERIFY(map("Remarks", "Notes"));
    // The field of the last drop is the current one.
    QVERIFY(m_pHost->ClickCell(FIELDS, "Office"));
    m_pHost->Key("Delete");
    QTRY_COMPARE(mapped("Office"), QStringLiteral(" "));
    QCOMPARE(mapped("Home"), QStringLiteral("Private number"));
    QVERIFY(import(2, 2));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 2);
    QCOMPARE(m_pHost->Cell(TREE, "Computer").strText, QStringLiteral("Computer(2)"));
    const QList<QStringList> listExpected = {{"Anna", "0170", "", "0301", "", "tea, no milk"},
                                             {"Bea", "0171", "", "", "", ""}};
    QCOMPARE(m_pStore->Contacts("local"), listExpected);
}

void TestDesktopFiles::cancellingTheFieldMapImportsNothing()
{
    const QString strFile = write("mine.csv", "Name,Mobile\nAnna,0170\n");
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(openFieldMap(strFile));
    QVERIFY(m_pHost->Click(MAP_CANCEL));
    QVERIFY(m_pHost->WaitGone(FIELDS));
    QVERIFY(openFieldMap(strFile));
    m_pHost->Key("Escape");
    QVERIFY(m_pHost->WaitGone(FIELDS));
    QVERIFY(!m_pHost->Exists("modal"));
    QCOMPARE(m_pHost->Rows(TABLE), 0);
    QCOMPARE(m_pStore->Used("local"), 0);
}

void TestDesktopFiles::filesOfOtherProgramsComeIn_data()
{
    QTest::addColumn<QStringList>("maps"); // title and field in turn; the others are found
    QTest::addColumn<QList<QStringList>>("stored");
    QTest::newRow("excel-windows.csv")
        << (QStringList() << "Nachname"
                          << "Name"
                          << "Handy"
                          << "Mobile" << QString::fromUtf8("Telefon geschäftlich") << "Office"
                          << "Bemerkung"
                          << "Notes")
        << (QList<QStringList>() << QStringList({QString::fromUtf8("Müller"), "1713920091", "03023125902", "",
                                                 "juergen@example.com", QString::fromUtf8("führende Null verloren")})
                                 << QStringList({QString::fromUtf8("Peña"), "+491713920092", "", "", "",
                                                 QString::fromUtf8("5 € – „fünf“")}));
    QTest::newRow("excel-unicode.txt") << QStringList({"Work phone", "Office"})
                                       << (QList<QStringList>()
                                           << QStringList({QString::fromUtf8("José Núñez"), "+12025550150", "", "", "",
                                                           "has a \"quote\""})
                                           << QStringList({QString::fromUtf8("김민준"), "+12025550151", "+12025550152",
                                                           "", "", QString::fromUtf8("줄\n바꿈")}));
    QTest::newRow("thunderbird-de.csv") << (QStringList()
                                            << "Anzeigename"
                                            << "Name"
                                            << "Mobil-Tel.-Nr."
                                            << "Mobile"
                                            << "Tel. dienstlich"
                                            << "Office"
                                            << "Tel. privat"
                                            << "Home" << QString::fromUtf8("Primäre E-Mail-Adresse") << "E-mail"
                                            << "Notizen"
                                            << "Notes")
                                        << (QList<QStringList>() << QStringList(
                                                {QString::fromUtf8("Götz Schäfer"), "01713920063", "03023125601",
                                                 "03023125602", "goetz@example.org", "Tab\tin der Notiz"}));
    QTest::newRow("evolution.csv") << (QStringList() << "full_name"
                                                     << "Name"
                                                     << "mobile_phone"
                                                     << "Mobile"
                                                     << "business_phone"
                                                     << "Office"
                                                     << "home_phone"
                                                     << "Home"
                                                     << "email_1"
                                                     << "E-mail"
                                                     << "note"
                                                     << "Notes")
                                   << (QList<QStringList>()
                                       << QStringList({"Vet @ the Corner", "", "+441632960704", "", "", ""})
                                       << QStringList({QString::fromUtf8("Ольга Соколова"), "+447700900703",
                                                       "+441632960701", "+441632960702", "olga@example.com",
                                                       QString::fromUtf8("Звонить\nвечером")}));
    QTest::newRow("excel-sep-line.csv") << QStringList()
                                        << (QList<QStringList>() << QStringList(
                                                {QString::fromUtf8("Žofie Příhoda"), "+447700900931", "", "", "", ""}));
}

void TestDesktopFiles::filesOfOtherProgramsComeIn()
{
    QFETCH(const QStringList, maps);
    QFETCH(const QList<QStringList>, stored);
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    // The dialog wants the extension.
    const QString strFixtures = QString::fromLocal8Bit(qgetenv("LINKHAND_SOURCE_DIR")) + "/tests/sdk/files/fixtures/";
    QVERIFY(QFile::copy(strFixtures + QTest::currentDataTag(), path("theirs.csv")));
    QVERIFY(openFieldMap("theirs.csv"));
    for (int i = 0; i + 1 < maps.size(); i += 2) {
        QVERIFY2(map(maps.at(i), maps.at(i + 1)), qPrintable(maps.at(i)));
    }
    QVERIFY(import(stored.size(), stored.size()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), stored.size());
    QCOMPARE(m_pStore->Contacts("local"), stored);
}

void TestDesktopFiles::exportedContactsComeBackTheSame_data()
{
    QTest::addColumn<QString>("memory");
    QTest::addColumn<QString>("node");
    QTest::addColumn<QString>("text");
    QTest::newRow("the computer's") << "local"
                                    << "Computer" << QString::fromUtf8(HARD_CONTACTS);
    QTest::newRow("the card's") << "card"
                                << "SIM"
                                << QString::fromUtf8("Name,Number\n\"B, \"\"A\"\"\",+491701\n=1+1,0001\nÅsa,*100#\n");
    QTest::newRow("the device's") << "device"
                                  << "Device"
                                  << QString::fromUtf8("Name,Number\n\"Berg; Anna\",+491701\n王小明,#31#1\n");
}

void TestDesktopFiles::exportedContactsComeBackTheSame()
{
    QFETCH(const QString, memory);
    QFETCH(const QString, node);
    QFETCH(const QString, text);
    QVERIFY2(m_pStore->Import(memory, text), qPrintable(m_pStore->Said()));
    const QList<QStringList> listBefore = m_pStore->Contacts(memory);
    QVERIFY(listBefore.size() > 1);
    const auto open = [&](int iRows) {
        return m_pHost->ClickCell(TREE, node) && HostDriver::WaitUntil([&] { return m_pHost->Rows(TABLE) == iRows; });
    };
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(open(listBefore.size()));
    QVERIFY(exportAll("out", "The contacts have been exported."));
    QVERIFY(QFile::exists(path("out.csv")));
    QVERIFY(m_pHost->WaitForMainWindow());
    QVERIFY(m_pHost->Quit() >= 0);

    // Into an empty memory, with what the field map finds by itself.
    QVERIFY(QDir(DataFolder()).removeRecursively());
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(open(0));
    QVERIFY(openFieldMap("out.csv"));
    QVERIFY(import(listBefore.size(), listBefore.size()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), listBefore.size());
    QCOMPARE(m_pStore->Contacts(memory), listBefore);
}

void TestDesktopFiles::aFolderThatCannotBeWrittenIsSaid()
{
    Expect(REFUSED);
    QVERIFY2(m_pStore->Import("local", "Name,Mobile\nAnna,0170\n"), qPrintable(m_pStore->Said()));
    const QString strHome = m_pFolder->filePath("home");
    QVERIFY(QDir().mkpath(strHome + "/run") && QDir().mkpath(path("locked")));
    QVERIFY(QFile::setPermissions(strHome + "/run", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVERIFY(
        QFile::setPermissions(path("locked"), QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));
    if (geteuid() == 0) {
        // To the superuser no folder is locked: the program runs as nobody, in a home of his own.
        const QStringList lstNobody = {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", "--"};
        const QString strProgram = QString::fromLocal8Bit(qgetenv("LINKHAND_BUILD_DIR")) + "/linkhand";
        if (QProcess::execute("setpriv", lstNobody.mid(1) + QStringList({"test", "-x", strProgram})) != 0) {
            QSKIP("the build folder is closed to other users");
        }
        foreach (const QString& strFolder, QStringList({m_pFolder->path(), m_pHost->SocketFolder()})) {
            QCOMPARE(QProcess::execute("chown", {"-R", "65534:65534", strFolder}), 0);
        }
        m_pHost->SetRunner(lstNobody);
        for (const char* szName : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"}) {
            m_pHost->SetEnvironment(szName, strHome);
        }
        m_pHost->SetEnvironment("XDG_RUNTIME_DIR", strHome + "/run");
    }
    QVERIFY2(m_pHost->Start(DataFolder()), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 1);
    QVERIFY(exportAll("locked/contacts.csv", "The contacts could not be exported."));
    QVERIFY(QDir(path("locked")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty());
    // The next try works.
    QVERIFY(exportAll("contacts.csv", "The contacts have been exported."));
    QVERIFY(QFile::exists(path("contacts.csv")));
}

void TestDesktopFiles::aFileInPlaceOfAFolderIsSaid()
{
    Expect(REFUSED);
    const QString strFile = write("file", "not a folder");
    QVERIFY2(m_pStore->Import("local", "Name,Mobile\nAnna,0170\n"), qPrintable(m_pStore->Said()));
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    const QStringList lstBefore = QDir(path(".")).entryList(QDir::Files | QDir::Hidden);
    QVERIFY(exportAll(strFile + "/contacts.csv", "The contacts could not be exported."));
    QCOMPARE(QDir(path(".")).entryList(QDir::Files | QDir::Hidden), lstBefore);
    QFile file(path(strFile));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("not a folder"));
    // The next try works.
    QVERIFY(exportAll("contacts.csv", "The contacts have been exported."));
    QVERIFY(QFile::exists(path("contacts.csv")));
}

void TestDesktopFiles::aFileThatGrowsUnderTheFieldMapIsReadAsItIsThen()
{
    const QString strFile = write("mine.csv", "Name,Mobile\nAnna,0170\n");
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(openFieldMap(strFile));
    write("mine.csv", "Name,Mobile,Notes\nAnna,0170,tea\nBea,0171,\nCleo,0172,\n");
    QVERIFY(import(3, 3));
    const QList<QStringList> listExpected = {
        {"Anna", "0170", "", "", "", ""}, {"Bea", "0171", "", "", "", ""}, {"Cleo", "0172", "", "", "", ""}};
    QCOMPARE(m_pStore->Contacts("local"), listExpected);
    QTRY_COMPARE(m_pHost->Rows(TABLE), 3);
}

void TestDesktopFiles::aFileThatLosesColumnsUnderTheFieldMapLeavesTheFieldsEmpty()
{
    const QString strFile = write("mine.csv", "Mobile,Notes,Name\n0170,tea,Anna\n");
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(openFieldMap(strFile));
    write("mine.csv", "Mobile\n0171\n0172\n");
    QVERIFY(import(2, 2));
    const QList<QStringList> listExpected = {{"", "0171", "", "", "", ""}, {"", "0172", "", "", "", ""}};
    QCOMPARE(m_pStore->Contacts("local"), listExpected);
}

void TestDesktopFiles::aFileThatVanishesUnderTheFieldMapIsSaid()
{
    Expect(REFUSED);
    const QString strFile = write("mine.csv", "Name,Mobile\nAnna,0170\n");
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(openFieldMap(strFile));
    QVERIFY(QFile::remove(path(strFile)));
    QVERIFY(m_pHost->Click(MAP_OK));
    QVERIFY(box("The contacts could not be read."));
    QVERIFY(!m_pHost->Exists("modal"));
    QCOMPARE(m_pStore->Used("local"), 0);
    // The window works as before.
    QVERIFY(openFieldMap(write("mine.csv", "Name,Mobile\nBea,0171\n")));
    QVERIFY(import(1, 1));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 1);
}

void TestDesktopFiles::aFileOfTitlesAloneIsSaid()
{
    Expect(REFUSED);
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(openFieldMap(write("mine.csv", "Name,Mobile\n")));
    QVERIFY(m_pHost->Click(MAP_OK));
    QVERIFY(box("The contacts could not be read."));
    QVERIFY(!m_pHost->Exists("modal"));
    QCOMPARE(m_pStore->Used("local"), 0);
}

// A file of vCards, whose name is typed: it comes in with its six fields, and the status bar has the list of the rest.
void TestDesktopFiles::whatACardLeavesIsListedBehindTheFinalBox()
{
    const QString strFile = write("friends.vcf", "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Ada\r\nTEL;TYPE=CELL:0170\r\n"
                                                 "BDAY:1815-12-10\r\nPHOTO;ENCODING=b:AAAA\r\nEND:VCARD\r\n");
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(chooseAction(QString::fromUtf8("Import contacts…")));
    QTRY_VERIFY(m_pHost->Widget(FILE_NAME).bFocused);
    m_pHost->Type(strFile);
    QTRY_COMPARE(m_pHost->Text(FILE_NAME), strFile);
    m_pHost->Key("Return");
    QVERIFY(m_pHost->WaitFor(FIELDS) && m_pHost->WaitForModal() && m_pHost->Click(MAP_OK));
    QVERIFY(m_pHost->WaitFor(BOX) && !m_pHost->Exists(LEFT) && box("Contacts found: 1, imported: 1"));
    QTRY_COMPARE(m_pHost->Text(LEFT), QStringLiteral("Left by the import: 2"));
    QVERIFY(m_pHost->Click(LEFT) && m_pHost->WaitFor(LEFT_LIST) && m_pHost->WaitForModal());
    QVERIFY(m_pHost->Cell(LEFT_LIST, "Birthday").iColumn > 0 && m_pHost->Cell(LEFT_LIST, "Photo").iColumn > 0);
    m_pHost->Key("Escape");
    QVERIFY(m_pHost->WaitGone(LEFT_LIST));
}

QTEST_GUILESS_MAIN(TestDesktopFiles)
#include "test_desktop_files.moc"
