#include <QLocale>
#include <QTimer>

#include "CareSetup.h"

namespace
{

const char* const LIST = "linkhand_Care_duplicates_list";
const char* const SIDES = "linkhand_Care_duplicates_sides";
const char* const MERGE = "linkhand_Care_duplicates_merge";
const char* const ALL = "linkhand_Care_duplicates_all";
enum Column { NAMES, KIND };
enum Side { FIELD, MERGED, FIRST, SECOND };
enum Row { NAME, MOBILE, WORK, HOME, EMAIL, NOTES };

} // namespace

class TestHostCareDuplicates : public CareSetup
{
    Q_OBJECT

private slots:
    void init() { beginCare(); }
    void cleanup() { endCare(); }

    void aPairStandsSideBySideWithWhatBecomesOfIt()
    {
        add({"Ada", "0170111", "", "", "", "old friend"});
        add({"ada", "0170111", "0300222", "", "", ""});
        add({"Bo", "0170333"});
        openSection("duplicates");
        QTRY_COMPARE(rows(LIST).size(), 1);
        QCOMPARE(rows(LIST).first(), QStringList() << "Ada; ada"
                                                   << "The same person");
        QTRY_COMPARE(rows(SIDES).value(WORK).value(MERGED), QString("0300222"));
        const QList<QStringList> listSides = rows(SIDES);
        QCOMPARE(listSides.at(NAME).mid(FIELD, 4), QStringList() << "Name"
                                                                 << "Ada"
                                                                 << "Ada"
                                                                 << "ada");
        QCOMPARE(listSides.at(NOTES).at(MERGED), QString("old friend"));
        QCOMPARE(contacts(), 3);
        click(MERGE);
        QTRY_COMPARE(told(), QString("Contacts merged into one: 1"));
        QCOMPARE(contacts(), 2);
        QTRY_VERIFY(rows(LIST).isEmpty());
        QVERIFY(!find<QPushButton>(MERGE)->isEnabled());
        QVERIFY(rows(SIDES).isEmpty());
    }

    void withoutAPairOneSentenceStandsThere()
    {
        add({"Ada", "0170111"});
        openSection("duplicates");
        QTRY_VERIFY(find<QWidget>("linkhand_Care_duplicates")->isVisible());
        QVERIFY(!find<QWidget>(SIDES)->isVisible());
        QVERIFY(find<QWidget>(LIST)->isVisible());
        add({"Ada", "0170111"});
        find<QTabWidget>("linkhand_Care_tabs")->setCurrentIndex(0);
        openSection("duplicates");
        QTRY_VERIFY(find<QWidget>(SIDES)->isVisible());
        find<QWidget>(SIDES)->setFocus();
        click(MERGE);
        QTRY_VERIFY(!find<QWidget>(SIDES)->isVisible());
        QVERIFY(find<QWidget>(LIST)->hasFocus());
    }

    // The preview is what the merge does: what has no room goes into the notes.
    void whatHasNoRoomIsShownInTheNotes()
    {
        add({"Ada", "0170111", "", "", "ada@x.org", ""});
        add({"Ada", "0170222", "", "", "ada@x.org", ""});
        openSection("duplicates");
        QTRY_VERIFY(rows(SIDES).value(NOTES).value(MERGED).contains("0170222"));
        QCOMPARE(rows(SIDES).at(MOBILE).at(MERGED), QString("0170111"));
    }

    void mergingAllLeavesFamiliesAndWhatWasSkipped()
    {
        add({"Ada", "0170111"});
        add({"Ada", "0170111"});
        add({"Bo", "0170222"});
        add({"Bo", "0170222"});
        add({"Cy", "0170333"});
        add({"Di", "0170333"});
        openSection("duplicates");
        QTRY_COMPARE(rows(LIST).size(), 3);
        QVERIFY(column(LIST, KIND).contains("One number, other names"));
        QVERIFY(select(LIST, NAMES, "Bo; Bo"));
        click("linkhand_Care_duplicates_skip");
        QCOMPARE(rows(LIST).size(), 2);
        QVERIFY(!column(LIST, NAMES).contains("Bo; Bo"));
        QString strQuestion;
        QTimer looker;
        connect(&looker, &QTimer::timeout, this, [&] {
            if (QWidget* pBox = QApplication::activeModalWidget()) {
                looker.stop();
                foreach (const QLabel* pLabel, pBox->findChildren<QLabel*>()) {
                    strQuestion += pLabel->text();
                }
                pBox->findChildren<QPushButton*>().first()->click();
            }
        });
        looker.start(5);
        click(ALL);
        QVERIFY2(strQuestion.contains("more than once: 1"), qPrintable(strQuestion));
        QTRY_COMPARE(told(), QString("Contacts merged into one: 1"));
        QCOMPARE(contacts(), 5);
        QTRY_COMPARE(column(LIST, NAMES), QStringList("Cy; Di"));
        QVERIFY(!find<QPushButton>(ALL)->isEnabled());
    }

    // The window goes on while it is looked for: the time that matters is that of the thread.
    void manyAreFoundAndMergedOffTheWindow()
    {
        const int iPairs = 2000;
        ORVA_PBSrv_BeginTransaction(ORVA_MEMORY_LOCAL);
        for (int i = 0; i < iPairs; ++i) {
            const QStringList lstValues{"N" + QString::number(i), QString::number(1000000 + i)};
            add(lstValues);
            add(lstValues);
        }
        QCOMPARE(ORVA_PBSrv_EndTransaction(ORVA_MEMORY_LOCAL), long(ORVA_OK));
        openSection("duplicates");
        QVERIFY(rows(LIST).isEmpty());
        QTRY_COMPARE_WITH_TIMEOUT(rows(LIST).size(), iPairs, 30000);
        int iBoxes = 0;
        QTimer looker;
        connect(&looker, &QTimer::timeout, this, [&] {
            if (QWidget* pBox = QApplication::activeModalWidget()) {
                ++iBoxes;
                looker.stop();
                pBox->findChildren<QPushButton*>().first()->click();
            }
        });
        looker.start(5);
        click(ALL);
        QCOMPARE(iBoxes, 1);
        QTRY_COMPARE_WITH_TIMEOUT(told(), QString("Contacts merged into one: %1").arg(QLocale().toString(iPairs)),
                                  30000);
        QCOMPARE(contacts(), iPairs);
    }
};

QTEST_MAIN(TestHostCareDuplicates)
#include "test_host_care_duplicates.moc"
