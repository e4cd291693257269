#include <QLabel>
#include <QLayout>
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

QTEST_MAIN(CoreDialog)
#include "core_dialog.moc"
