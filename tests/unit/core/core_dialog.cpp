#include <QLabel>
#include <QLayout>
#include <QScopedPointer>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

#include "linkhand/core/ExtendDialog.h"

class CoreDialog : public QObject
{
    Q_OBJECT

private slots:
    void contentFillsTheFrame();
    void secondContentReplacesTheFirst();
    void contentMayDieFirst();
    void titleAndFlagsActOnTheFrame();
    void escapeAndCloseReject();
    void isAWindowOfItsParent();
    void holdsOnePointerBesideItsBase();
    void aFixedSizeThatTheScreenLacksIsScrolled();
    void theFrameHasRoomForItsContent();
};

void CoreDialog::contentFillsTheFrame()
{
    ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG);
    QWidget parent;
    // A content that was made with the caller's parent is hidden when it moves; it shows with the dialog.
    QLabel* pContent = new QLabel("content", &parent);
    pContent->hide();
    dialog.AddMainWidget(pContent);
    dialog.setFixedSize(300, 200);
    dialog.show();
    QCOMPARE(pContent->parentWidget(), static_cast<QWidget*>(&dialog));
    QVERIFY(pContent->isVisible());
    QVERIFY(dialog.rect().adjusted(12, 12, -12, -12).width() <= pContent->width());
    QVERIFY(dialog.rect().contains(pContent->geometry()));

    ExtendDialog plain(nullptr, Qt::WindowFlags(), WIDGET_TYPE_PLAIN);
    plain.AddMainWidget(new QLabel("content"));
    plain.resize(300, 200);
    plain.show();
    QCOMPARE(plain.findChild<QLabel*>()->geometry(), plain.rect());
}

void CoreDialog::secondContentReplacesTheFirst()
{
    ExtendDialog dialog(nullptr, Qt::WindowFlags(), WIDGET_TYPE_DIALOG);
    QScopedPointer<QLabel> pFirst(new QLabel("first"));
    dialog.AddMainWidget(pFirst.data());
    QLabel* pSecond = new QLabel("second");
    dialog.AddMainWidget(pSecond);
    dialog.AddMainWidget(pSecond);
    QVERIFY(pFirst->parentWidget() == nullptr);
    QVERIFY(!pFirst->isVisible());
    dialog.show();
    QVERIFY(pSecond->isVisible());
    QCOMPARE(dialog.layout()->count(), 1);
    dialog.AddMainWidget(nullptr);
    QVERIFY(pSecond->parentWidget() == nullptr);
    delete pSecond;
}

void CoreDialog::contentMayDieFirst()
{
    ExtendDialog dialog(nullptr, Qt::WindowFlags(), WIDGET_TYPE_DIALOG);
    QLabel* pContent = new QLabel("content");
    dialog.AddMainWidget(pContent);
    delete pContent;
    dialog.AddMainWidget(new QLabel("next"));
    QCOMPARE(dialog.layout()->count(), 1);
}

void CoreDialog::titleAndFlagsActOnTheFrame()
{
    ExtendDialog dialog(nullptr, Qt::Dialog | Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG);
    QVERIFY(dialog.windowFlags() & Qt::WindowCloseButtonHint);
    dialog.setWindowTitle("title");
    QCOMPARE(dialog.windowTitle(), QString("title"));
    dialog.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    QVERIFY(dialog.windowFlags() & Qt::CustomizeWindowHint);
    QVERIFY(!(dialog.windowFlags() & Qt::WindowCloseButtonHint));
}

void CoreDialog::escapeAndCloseReject()
{
    ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG);
    QSignalSpy rejected(&dialog, SIGNAL(rejected()));
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(rejected.count(), 1);
    dialog.show();
    dialog.close();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(rejected.count(), 2);
}

void CoreDialog::isAWindowOfItsParent()
{
    QWidget parent;
    ExtendDialog* pDialog = new ExtendDialog(&parent, Qt::WindowFlags(), WIDGET_TYPE_DIALOG);
    QVERIFY(pDialog->isWindow());
    QCOMPARE(pDialog->parentWidget(), &parent);
    QVERIFY(pDialog->inherits("ExtendDialog"));
}

void CoreDialog::holdsOnePointerBesideItsBase()
{
    // Plug-ins derive from it: its size is part of the binary contract.
    QCOMPARE(sizeof(ExtendDialog), sizeof(QDialog) + sizeof(void*));
}

void CoreDialog::aFixedSizeThatTheScreenLacksIsScrolled()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    ExtendDialog dialog(nullptr, Qt::WindowFlags(), WIDGET_TYPE_PLAIN);
    QWidget* pContent = new QWidget;
    dialog.AddMainWidget(pContent);
    dialog.setFixedSize(300, screen.height() + 100);
    dialog.show();
    QVERIFY(dialog.height() < screen.height());
    // The form stays as it is, and a scroll bar leads through it.
    QTRY_COMPARE(pContent->size(), QSize(300, screen.height() + 100));
    QVERIFY(dialog.findChild<QScrollArea*>()->isAncestorOf(pContent));
    QTRY_VERIFY(dialog.findChild<QScrollArea*>()->verticalScrollBar()->isVisible());
    QTRY_VERIFY(!dialog.findChild<QScrollArea*>()->horizontalScrollBar()->isVisible());

    // Another content stands in the frame itself.
    QScopedPointer<QWidget> pFirst(pContent);
    QLabel* pSecond = new QLabel("second");
    dialog.AddMainWidget(pSecond);
    QCOMPARE(pSecond->parentWidget(), static_cast<QWidget*>(&dialog));
    QVERIFY(pFirst->parentWidget() == nullptr);
}

void CoreDialog::theFrameHasRoomForItsContent()
{
    ExtendDialog dialog(nullptr, Qt::WindowFlags(), WIDGET_TYPE_DIALOG);
    QLabel* pContent = new QLabel("A text that is wider than somebody thought of");
    pContent->setMinimumSize(10, 10);
    dialog.AddMainWidget(pContent);
    dialog.resize(20, 20);
    dialog.show();
    QTRY_VERIFY(pContent->width() >= pContent->sizeHint().width());
    QVERIFY(pContent->height() >= pContent->sizeHint().height());
}

QTEST_MAIN(CoreDialog)
#include "core_dialog.moc"
