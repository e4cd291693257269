// Where the window comes up.

#include <QFileDialog>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QtTest>

#include "window/DialogPlace.h"
#include "window/ScreenWatch.h"
#include "window/WindowPlace.h"

class TestHostPlace : public QObject
{
    Q_OBJECT

private slots:
    void theNearestPlaceWithinTheScreen_data();
    void theNearestPlaceWithinTheScreen();
    void aWindowLargerThanTheScreenComesUpWithinIt();
    void aWindowOnAScreenThatIsGoneComesBack();
    void aWindowThatWasNeverPlacedIsLeftToTheWindowManager();
    void aScreenSmallerThanTheSmallestSizeLowersIt();
    void aWindowThatFillsTheScreenStaysSo_data();
    void aWindowThatFillsTheScreenStaysSo();
    void aWindowIsFittedWhenAScreenGoes();
    void aWindowThatNobodySeesIsLeftWhenAScreenGoes();
    void aDialogForFilesComesUpWithinTheScreen();
    void aDialogOfTheProgramSeesToItself();
};

void TestHostPlace::theNearestPlaceWithinTheScreen_data()
{
    QTest::addColumn<QRect>("window");
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QRect>("fitted");
    const QRect small(0, 0, 1024, 600);
    QTest::newRow("fits") << QRect(10, 20, 800, 500) << small << QRect(10, 20, 800, 500);
    QTest::newRow("fills") << small << small << small;
    QTest::newRow("larger") << QRect(0, 0, 1120, 740) << small << small;
    QTest::newRow("too high") << QRect(100, 50, 800, 740) << small << QRect(100, 0, 800, 600);
    QTest::newRow("right of it") << QRect(1000, 20, 800, 500) << small << QRect(224, 20, 800, 500);
    QTest::newRow("below it") << QRect(10, 590, 800, 500) << small << QRect(10, 100, 800, 500);
    QTest::newRow("left and above") << QRect(-50, -70, 800, 500) << small << QRect(0, 0, 800, 500);
    QTest::newRow("another screen") << QRect(3000, 200, 900, 560) << QRect(1024, 30, 1920, 1050)
                                    << QRect(2044, 200, 900, 560);
    QTest::newRow("tiny screen") << QRect(5, 5, 1120, 740) << QRect(0, 0, 640, 400) << QRect(0, 0, 720, 480);
}

void TestHostPlace::theNearestPlaceWithinTheScreen()
{
    QFETCH(QRect, window);
    QFETCH(QRect, screen);
    QTEST(WindowPlace::Fitted(window, screen, QSize(720, 480)), "fitted");
}

void TestHostPlace::aWindowIsFittedWhenAScreenGoes()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget window;
    window.setMinimumSize(100, 100);
    window.setGeometry(QRect(screen.topLeft(), screen.size() + QSize(300, 200)));
    window.show();
    const ScreenWatch watch(window);
    QVERIFY(!screen.contains(window.geometry()));
    QScreen* const pGone = nullptr;
    QVERIFY(QMetaObject::invokeMethod(qApp, "screenRemoved", Q_ARG(QScreen*, pGone)));
    QTRY_VERIFY(screen.contains(window.geometry()));
}

void TestHostPlace::aWindowLargerThanTheScreenComesUpWithinIt()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget window;
    window.setMinimumSize(100, 100);
    window.setGeometry(QRect(screen.topLeft(), screen.size() + QSize(300, 200)));
    WindowPlace::Fit(window);
    // With room for a title above it.
    QVERIFY(screen.adjusted(1, 10, -1, -1).contains(window.geometry()));
    QVERIFY(window.height() > screen.height() * 3 / 4);
    QVERIFY(window.width() > screen.width() * 3 / 4);
}

void TestHostPlace::aWindowOnAScreenThatIsGoneComesBack()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget window;
    window.setGeometry(QRect(screen.bottomRight() + QPoint(500, 300), QSize(300, 200)));
    WindowPlace::Fit(window);
    QVERIFY(screen.contains(window.geometry()));
    QCOMPARE(window.size(), QSize(300, 200));
}

void TestHostPlace::aWindowThatWasNeverPlacedIsLeftToTheWindowManager()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget window;
    window.resize(screen.size() * 2);
    WindowPlace::Fit(window);
    QVERIFY(!window.testAttribute(Qt::WA_Moved));
    QVERIFY(window.width() < screen.width());
    QVERIFY(window.height() < screen.height());
}

void TestHostPlace::aScreenSmallerThanTheSmallestSizeLowersIt()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget window;
    window.setMinimumSize(screen.size() + QSize(300, 200));
    window.setGeometry(QRect(screen.topLeft(), window.minimumSize()));
    WindowPlace::Fit(window);
    QVERIFY(screen.contains(window.geometry()));
    // One that is smaller than the screen stays.
    window.setMinimumSize(120, 80);
    WindowPlace::Fit(window);
    QCOMPARE(window.minimumSize(), QSize(120, 80));
}

void TestHostPlace::aWindowThatFillsTheScreenStaysSo_data()
{
    QTest::addColumn<int>("state");
    QTest::newRow("maximized") << int(Qt::WindowMaximized);
    QTest::newRow("full screen") << int(Qt::WindowFullScreen);
}

void TestHostPlace::aWindowThatFillsTheScreenStaysSo()
{
    QFETCH(int, state);
    QWidget window;
    const QSize before(3000, 2000);
    window.resize(before);
    window.setWindowState(Qt::WindowState(state));
    WindowPlace::Fit(window);
    QCOMPARE(window.size(), before);
    QCOMPARE(int(window.windowState()), state);
}

void TestHostPlace::aWindowThatNobodySeesIsLeftWhenAScreenGoes()
{
    const QSize before = QGuiApplication::primaryScreen()->availableSize() * 2;
    QWidget window;
    window.resize(before);
    const ScreenWatch watch(window);
    QScreen* const pGone = nullptr;
    QVERIFY(QMetaObject::invokeMethod(qApp, "screenRemoved", Q_ARG(QScreen*, pGone)));
    // Another that is seen tells when it has been taken care of.
    QWidget seen;
    seen.setGeometry(QRect(QPoint(0, 0), before));
    seen.show();
    const ScreenWatch other(seen);
    QVERIFY(QMetaObject::invokeMethod(qApp, "screenRemoved", Q_ARG(QScreen*, pGone)));
    QTRY_VERIFY(seen.width() < before.width());
    QCOMPARE(window.size(), before);
}

void TestHostPlace::aDialogForFilesComesUpWithinTheScreen()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const DialogPlace place;
    QFileDialog dialog;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.resize(screen.size() * 2);
    dialog.show();
    QTRY_VERIFY(screen.contains(dialog.frameGeometry()));
    // What its user does with it later is his.
    dialog.resize(screen.size() * 2);
    QShowEvent again;
    QSpontaneKeyEvent::setSpontaneous(&again);
    qApp->notify(&dialog, &again);
    QCOMPARE(dialog.size(), screen.size() * 2);
}

void TestHostPlace::aDialogOfTheProgramSeesToItself()
{
    const QSize before = QGuiApplication::primaryScreen()->availableSize() * 2;
    const DialogPlace place;
    QDialog dialog;
    dialog.resize(before);
    dialog.show();
    QCOMPARE(dialog.size(), before);
}

QTEST_MAIN(TestHostPlace)
#include "test_host_place.moc"
