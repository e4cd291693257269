#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QPushButton>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

#include "WindowSetup.h"
#include "findings/FindingsDialog.h"
#include "loader/WorkerCount.h"
#include "orva/orva_care.h"
#include "window/FindingsNotice.h"
#include "window/StatusArea.h"

// What an import left, as the host shows it.
class TestHostFindings : public WindowSetup
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { end(); }
    void theListIsOfferedOnceTheBoxesOfTheImportAreClosed();
    void anImportThatLeavesNothingTakesTheOfferAway();
    void aRowNamesLineColumnReasonAndText();
    void theListNamesWhatACardHasNoFieldFor();
    void eachReasonHasItsWordsInEachLanguage_data();
    void eachReasonHasItsWordsInEachLanguage();
    void whatCannotBeSeenIsShownByItsCode();
    void theListIsCopiedInWholeOrByItsChosenRows();
    void theListIsSavedAsAText();
    void theKeyboardWillDo();

private:
    void import(const QString& strName, const QByteArray& content, int iFields = 6);
    QToolButton* button() { return m_pWindow->findChild<QToolButton*>("linkhand_StatusArea_findings"); }

    QScopedPointer<QTemporaryDir> m_pFiles;
};

namespace
{

const QByteArray LEFT = "Name,Mobile,email,Shoe\nAda,1,nobody,38\n,,,\nBo,2,,\n";

} // namespace

void TestHostFindings::init()
{
    m_pFiles.reset(new QTemporaryDir);
    QCOMPARE(ORVA_Sim_Reset(QFile::encodeName(m_pFiles->filePath("data")).constData()), long(ORVA_OK));
    begin();
}

// With the columns as they stand there.
void TestHostFindings::import(const QString& strName, const QByteArray& content, int iFields)
{
    QFile file(m_pFiles->filePath(strName));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    const bool bCards = strName.endsWith(".vcf");
    QVector<int> map = bCards ? QVector<int>({0, 1, 2, 3, 4, 5}) : QVector<int>({0, 1, -1, -1, 2, -1});
    map.resize(iFields);
    void* pSet = nullptr;
    ORVA_PBSrv_ImportFromFile(file.fileName().utf16(), map.data(), ORVA_MEMORY_LOCAL, &pSet);
    ORVA_PBSrv_AddrRecordSet_Release(pSet);
    ORVA_Sim_WaitEvents();
    QCoreApplication::sendPostedEvents();
}

void TestHostFindings::theListIsOfferedOnceTheBoxesOfTheImportAreClosed()
{
    WorkerCount workers;
    FindingsNotice notice(workers, m_pWindow->Status());
    notice.Start();
    QDialog box;
    box.setModal(true);
    box.show();
    import("left.csv", LEFT);
    QVERIFY(button()->isHidden());
    workers.Increment("file", "function");
    box.close();
    import("left.csv", LEFT);
    QVERIFY(button()->isHidden());
    workers.Decrement("file", "function");
    QTRY_VERIFY(!button()->isHidden());
    QCOMPARE(button()->text(), QString("Left by the import: 3"));
    notice.Stop();
}

void TestHostFindings::anImportThatLeavesNothingTakesTheOfferAway()
{
    WorkerCount workers;
    FindingsNotice notice(workers, m_pWindow->Status());
    notice.Start();
    import("left.csv", LEFT);
    QTRY_VERIFY(!button()->isHidden());
    import("whole.csv", "Name,Mobile,email\nAda,1,\n");
    QTRY_VERIFY(button()->isHidden());
    // One that fails says why.
    import("none.csv", "Name,Mobile,email\n,,\n");
    QTRY_COMPARE(button()->text(), QString("Left by the import: 1"));
    QVERIFY(!button()->isHidden());
    notice.Stop();
    import("left.csv", LEFT);
    QCOMPARE(button()->text(), QString("Left by the import: 1"));
}

void TestHostFindings::aRowNamesLineColumnReasonAndText()
{
    import("left.csv", LEFT);
    const FindingList list = FindingList::Read();
    QCOMPARE(list.Source(), QString("left.csv"));
    QCOMPARE(list.Text(), QString("Line\tColumn\tReason\tText\n"
                                  "2\temail\tPut into the notes: no e-mail address\tnobody\n"
                                  "3\t\tNot taken: nothing that has a field\t\n"
                                  "\tShoe\tNo field is for it; values: 1\t\n"));
    QCOMPARE(list.More(), QString());
}

void TestHostFindings::theListNamesWhatACardHasNoFieldFor()
{
    import("some.vcf", "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Ada\r\nBDAY:1815-12-10\r\nPHOTO;ENCODING=b:AAAA\r\n"
                       "ADR:;;1 Street;Town;;;\r\nX-SKYPE:ada\r\nTEL:1234567890123456789012345678901234567890123\r\n"
                       "END:VCARD\r\n");
    QStringList lstFound;
    foreach (const FindingList::Entry& entry, FindingList::Read().Entries()) {
        lstFound << entry.Column();
    }
    QCOMPARE(lstFound, QStringList() << "Birthday"
                                     << "Photo"
                                     << "Address"
                                     << "X-SKYPE"
                                     << "Mobile");
}

void TestHostFindings::eachReasonHasItsWordsInEachLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << "en";
    QTest::newRow("German") << "de";
    QTest::newRow("Arabic") << "ar";
    QTest::newRow("Chinese") << "zh_CN";
}

void TestHostFindings::eachReasonHasItsWordsInEachLanguage()
{
    QFETCH(QString, language);
    m_pServices->SetLanguage(language);
    QSet<QString> setWords;
    for (int i = ORVA_FINDING_QUOTE; i <= ORVA_FINDING_REFUSED; ++i) {
        FindingList::Entry entry;
        entry.iLine = 1;
        entry.iColumn = 3;
        entry.iReason = i;
        entry.iCount = 2;
        QVERIFY2(!entry.Reason().contains("IDS_") && !entry.Reason().contains('%'), qPrintable(entry.Reason()));
        setWords.insert(entry.Reason());
        QVERIFY2(!entry.Column().contains("IDS_"), qPrintable(entry.Column()));
    }
    QCOMPARE(setWords.size(), int(ORVA_FINDING_REFUSED));
    FindingList::Entry entry;
    entry.iColumn = -1;
    foreach (const char* pszName, (QList<const char*>() << "PHOTO"
                                                        << "BDAY"
                                                        << "ADR"
                                                        << "ORG"
                                                        << "TITLE"
                                                        << "URL"
                                                        << "CATEGORIES"
                                                        << "NICKNAME"
                                                        << "TEL"
                                                        << "EMAIL"
                                                        << "NOTE"
                                                        << "FN"
                                                        << "Mobile"
                                                        << "remark")) {
        entry.strName = pszName;
        QVERIFY2(!entry.Column().contains("ID") && !entry.Column().isEmpty(), qPrintable(entry.Column()));
    }
    m_pServices->SetLanguage("en");
}

void TestHostFindings::whatCannotBeSeenIsShownByItsCode()
{
    FindingList::Entry entry;
    entry.iColumn = 0;
    entry.strName = QString("a") + QChar(0x202E) + "b";
    entry.strValue = QString("x\ny\tz") + QChar(0x7) + QChar(0x200F);
    QCOMPARE(entry.Column(), QString("a\\u202eb"));
    QCOMPARE(entry.Value(), QString("x y z\\u0007\\u200f"));
}

void TestHostFindings::theListIsCopiedInWholeOrByItsChosenRows()
{
    import("left.csv", LEFT);
    const FindingList list = FindingList::Read();
    FindingsDialog dialog(list, m_pWindow.data());
    QTreeWidget* pTree = dialog.findChild<QTreeWidget*>("linkhand_Findings_list");
    QPushButton* pCopy = dialog.findChild<QPushButton*>("linkhand_Findings_copy");
    QCOMPARE(pTree->topLevelItemCount(), 3);
    pCopy->click();
    QCOMPARE(QApplication::clipboard()->text(), list.Text());
    pTree->topLevelItem(0)->setSelected(true);
    pTree->topLevelItem(2)->setSelected(true);
    pCopy->click();
    QCOMPARE(QApplication::clipboard()->text(), QString("2\temail\tPut into the notes: no e-mail address\tnobody\n"
                                                        "\tShoe\tNo field is for it; values: 1\t\n"));
}

void TestHostFindings::theListIsSavedAsAText()
{
    import("left.csv", LEFT);
    const FindingList list = FindingList::Read();
    const FindingsDialog dialog(list, m_pWindow.data());
    const QString strFile = m_pFiles->filePath("list.txt");
    QVERIFY(dialog.SaveTo(strFile));
    QFile file(strFile);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()), list.Text());
    QVERIFY(!dialog.SaveTo(m_pFiles->filePath("nowhere/list.txt")));
    QVERIFY(!dialog.SaveTo("/dev/full"));
}

void TestHostFindings::theKeyboardWillDo()
{
    import("left.csv", LEFT);
    FindingsDialog dialog(FindingList::Read(), m_pWindow.data());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTreeWidget* pTree = dialog.findChild<QTreeWidget*>("linkhand_Findings_list");
    QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(pTree));
    QVERIFY(!pTree->accessibleName().isEmpty());
    QTest::keyClick(pTree, Qt::Key_Down);
    QCOMPARE(pTree->currentItem(), pTree->topLevelItem(1));
    QApplication::clipboard()->clear();
    QTest::keyClick(pTree, Qt::Key_C, Qt::ControlModifier);
    QVERIFY(QApplication::clipboard()->text().startsWith("Line\tColumn"));
    QTest::keyClick(pTree, Qt::Key_Tab);
    QVERIFY(dialog.findChild<QPushButton*>("linkhand_Findings_copy")->hasFocus());
    QTest::keyClick(pTree, Qt::Key_Escape);
    QTRY_VERIFY(!dialog.isVisible());
}

QTEST_MAIN(TestHostFindings)
#include "test_host_findings.moc"
