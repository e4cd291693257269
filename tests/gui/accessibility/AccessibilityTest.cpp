#include <QAccessible>
#include <QtTest>

#include "Director.h"
#include "Inspector.h"
#include "Scenes.h"

// Every window of the program for somebody who sees nothing, or has no mouse.
class AccessibilityTest : public QObject
{
    Q_OBJECT

public:
    explicit AccessibilityTest(const Director& director) : m_director(director) {}

private slots:
    void everyWindowCame();
    void partsHaveNamesAndRolesAndAreReachedByTab_data();
    void partsHaveNamesAndRolesAndAreReachedByTab();

private:
    const Director& m_director;
};

void AccessibilityTest::everyWindowCame()
{
    QVERIFY2(m_director.Failures().isEmpty(), qPrintable(m_director.Failures().join('\n')));
    QCOMPARE(m_director.Shots().size(), 2 * Scenes::All().size());
}

void AccessibilityTest::partsHaveNamesAndRolesAndAreReachedByTab_data()
{
    QTest::addColumn<QStringList>("faults");
    foreach (const Shot& shot, m_director.Shots()) {
        QTest::newRow(qPrintable(shot.strScene + ' ' + shot.strLanguage)) << shot.lstFaults;
    }
}

void AccessibilityTest::partsHaveNamesAndRolesAndAreReachedByTab()
{
    QFETCH(QStringList, faults);
    QVERIFY2(faults.isEmpty(), qPrintable('\n' + faults.join('\n')));
}

int main(int argc, char** argv)
{
    Director director(QList<Director::Pass>() << Director::Pass{"en", false} << Director::Pass{"ar", false}, false);
    director.SetInspector(Inspector::Faults);
    if (!director.Run(argc, argv)) {
        return 1;
    }
    AccessibilityTest test(director);
    return QTest::qExec(&test, argc, argv);
}

#include "AccessibilityTest.moc"
