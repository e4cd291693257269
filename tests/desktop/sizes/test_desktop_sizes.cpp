#include <QDir>
#include <QtTest>

#include "Director.h"
#include "Fit.h"
#include "SizeScenes.h"

// Every window of the program with letters of one size, LINKHAND_TEST_FONT in points, on the screen that there is.

class TestDesktopSizes : public QObject
{
    Q_OBJECT

public:
    explicit TestDesktopSizes(const Director& director) : m_director(director) {}

private slots:
    void everyWindowCame();
    void windowsAndControlsHaveTheirRoom();
    void noTextIsCutOff();

private:
    void report(QStringList Shot::*pFaults);

    const Director& m_director;
};

// Each by itself: a message of a test is cut off at some length.
void TestDesktopSizes::report(QStringList Shot::*pFaults)
{
    int iFaults = 0;
    foreach (const Shot& shot, m_director.Shots()) {
        foreach (const QString& strFault, shot.*pFaults) {
            // In a narrow window the tree has a scroll bar; Qt lays its own windows out as it likes.
            if (strFault.startsWith("PBTreeWidget") || strFault.contains("qt_msgbox_label") ||
                shot.strScene == "open-file") {
                continue;
            }
            qWarning("%s %s: %s", qPrintable(shot.strLanguage), qPrintable(shot.strScene), qPrintable(strFault));
            ++iFaults;
        }
    }
    QCOMPARE(iFaults, 0);
}

void TestDesktopSizes::everyWindowCame()
{
    QVERIFY2(m_director.Failures().isEmpty(), qPrintable(m_director.Failures().join('\n')));
    QVERIFY(!m_director.Shots().isEmpty());
}

void TestDesktopSizes::windowsAndControlsHaveTheirRoom()
{
    report(&Shot::lstFaults);
}

void TestDesktopSizes::noTextIsCutOff()
{
    report(&Shot::lstCut);
}

int main(int argc, char** argv)
{
    const QString strShots = QString::fromLocal8Bit(qgetenv("LINKHAND_TEST_SHOTS"));
    QList<Director::Pass> listPasses;
    foreach (const QString& strLanguage, QString::fromLatin1(qgetenv("LINKHAND_TEST_LANGUAGES")).split(' ')) {
        listPasses << Director::Pass{strLanguage, false};
    }
    Director director(listPasses, !strShots.isEmpty());
    director.SetScenes(SizeScenes::All());
    director.SetWindowSize(QSize());
    director.SetFontPoints(qgetenv("LINKHAND_TEST_FONT").toInt());
    director.SetInspector(Fit::Faults);
    if (!director.Run(argc, argv)) {
        return 1;
    }
    foreach (const Shot& shot, director.Shots()) {
        if (!strShots.isEmpty() && QDir().mkpath(strShots)) {
            shot.image.save(QStringLiteral("%1/%2-%3.png").arg(strShots, shot.strLanguage, shot.strScene));
        }
    }
    TestDesktopSizes test(director);
    return QTest::qExec(&test, argc, argv);
}

#include "test_desktop_sizes.moc"
