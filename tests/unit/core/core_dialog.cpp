#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QScopedPointer>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextEdit>
#include <QVBoxLayout>
#include <QtTest>

#include "linkhand/core/ExtendDialog.h"

namespace
{

QRect screenOf()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

// A form as the program's own: something that can grow, and a button below it.
class Form : public QWidget
{
public:
    Form() : m_pText(new QTextEdit(this)), m_pClose(new QPushButton(QStringLiteral("Close"), this))
    {
        QVBoxLayout* pLayout = new QVBoxLayout(this);
        m_pText->setTabChangesFocus(true);
        pLayout->addWidget(m_pText);
        pLayout->addWidget(m_pClose);
    }

    // Lines that break, hidden at first.
    QLabel* AddLine()
    {
        QLabel* pLine = new QLabel(QStringLiteral("A text of some words. ").repeated(10), this);
        pLine->setWordWrap(true);
        pLine->hide();
        static_cast<QVBoxLayout*>(layout())->insertWidget(0, pLine);
        return pLine;
    }

    bool IsCloseSeen() const
    {
        return m_pClose->visibleRegion().boundingRect() == m_pClose->rect() &&
               window()->rect().contains(QRect(m_pClose->mapTo(window(), QPoint()), m_pClose->size()));
    }

    QTextEdit* m_pText;
    QPushButton* m_pClose;
};

} // namespace

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
    void aFixedFormKeepsItsMargins();
    void aSmallestSizeThatTheScreenLacksIsAWish_data();
    void aSmallestSizeThatTheScreenLacksIsAWish();
    void whatNeedsMoreThanTheScreenHasIsScrolled();
    void aDialogComesUpWhereItsTitleIsSeen_data();
    void aDialogComesUpWhereItsTitleIsSeen();
    void theFrameHasRoomForItsContent();
    void linesThatBreakAreAllSeen();
    void aDialogGrowsWithWhatItsContentNeeds();
    void aDialogGrowsOntoTheScreen();
    void contentThatComesToNeedMoreThanTheScreenHasIsScrolled();
    void aFixedDialogStaysAsItIs();
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
    const QRect screen = screenOf();
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

void CoreDialog::aFixedFormKeepsItsMargins()
{
    ExtendDialog dialog(nullptr, Qt::WindowFlags(), WIDGET_TYPE_DIALOG);
    QWidget* pContent = new QWidget;
    dialog.AddMainWidget(pContent);
    dialog.setFixedSize(300, screenOf().height() + 100);
    dialog.show();
    QTRY_COMPARE(pContent->size(), QSize(300 - 12, screenOf().height() + 100 - 12));
}

void CoreDialog::aSmallestSizeThatTheScreenLacksIsAWish_data()
{
    QTest::addColumn<QSize>("dialogs");
    QTest::addColumn<QSize>("contents");
    const QSize more = screenOf().size() + QSize(200, 100);
    QTest::newRow("the dialog's") << more << QSize();
    QTest::newRow("the content's") << QSize() << more;
    QTest::newRow("both") << more << more;
    QTest::newRow("too high") << QSize(300, more.height()) << QSize();
    QTest::newRow("too wide") << QSize() << QSize(more.width(), 200);
}

// A form that can do with less is made smaller, and nobody has to scroll to its button.
void CoreDialog::aSmallestSizeThatTheScreenLacksIsAWish()
{
    QFETCH(QSize, dialogs);
    QFETCH(QSize, contents);
    ExtendDialog dialog(nullptr, Qt::WindowFlags(), WIDGET_TYPE_DIALOG);
    Form* pForm = new Form;
    if (contents.isValid()) {
        pForm->setMinimumSize(contents);
    }
    dialog.AddMainWidget(pForm);
    if (dialogs.isValid()) {
        dialog.setMinimumSize(dialogs);
    }
    // Also when it comes up once more.
    for (int i = 0; i < 2; ++i) {
        dialog.show();
        QTRY_VERIFY(screenOf().contains(dialog.frameGeometry()));
        QTRY_VERIFY(pForm->IsCloseSeen());
        QCOMPARE(pForm->parentWidget(), static_cast<QWidget*>(&dialog));
        dialog.hide();
    }
}

// The keys bring the button into sight.
void CoreDialog::whatNeedsMoreThanTheScreenHasIsScrolled()
{
    ExtendDialog dialog(nullptr, Qt::WindowFlags(), WIDGET_TYPE_DIALOG);
    Form* pForm = new Form;
    pForm->m_pText->setFixedHeight(screenOf().height() + 200);
    dialog.AddMainWidget(pForm);
    dialog.show();
    QTRY_VERIFY(screenOf().contains(dialog.frameGeometry()));
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    pForm->m_pText->setFocus();
    QTest::keyClick(pForm->m_pText, Qt::Key_Tab);
    QVERIFY(pForm->m_pClose->hasFocus());
    QTRY_VERIFY(pForm->IsCloseSeen());
    const QScrollArea* pScroll = dialog.findChild<QScrollArea*>();
    QVERIFY(pScroll->verticalScrollBar()->isVisible());
    QVERIFY(!pScroll->horizontalScrollBar()->isVisible());
    // Also when it comes up once more.
    dialog.hide();
    dialog.show();
    QTRY_VERIFY(screenOf().contains(dialog.frameGeometry()));
    QCOMPARE(dialog.findChild<QScrollArea*>(), pScroll);
    QVERIFY(pScroll->isAncestorOf(pForm));
}

void CoreDialog::aDialogComesUpWhereItsTitleIsSeen_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::newRow("above") << screenOf().topLeft() - QPoint(0, 100);
    QTest::newRow("left") << screenOf().topLeft() - QPoint(100, 0);
    QTest::newRow("below") << screenOf().bottomRight() - QPoint(300, 50);
    QTest::newRow("right") << screenOf().bottomRight() - QPoint(50, 300);
}

void CoreDialog::aDialogComesUpWhereItsTitleIsSeen()
{
    QFETCH(QPoint, place);
    ExtendDialog dialog(nullptr, Qt::WindowFlags(), WIDGET_TYPE_DIALOG);
    dialog.AddMainWidget(new QLabel("content"));
    dialog.resize(200, 100);
    dialog.move(place);
    dialog.show();
    // With room for a title above it.
    QTRY_VERIFY(screenOf().adjusted(1, 10, -1, -1).contains(dialog.geometry()));
    QCOMPARE(dialog.size(), QSize(200, 100));

    ExtendDialog fine(nullptr, Qt::WindowFlags(), WIDGET_TYPE_DIALOG);
    fine.AddMainWidget(new QLabel("content"));
    fine.resize(200, 100);
    fine.move(screenOf().topLeft() + QPoint(100, 80));
    fine.show();
    QCOMPARE(fine.pos(), screenOf().topLeft() + QPoint(100, 80));
}

void CoreDialog::theFrameHasRoomForItsContent()
{
    ExtendDialog dialog(nullptr, Qt::WindowFlags(), WIDGET_TYPE_DIALOG);
    QLabel* pContent = new QLabel("A text that is wider than somebody thought of");
    pContent->setMinimumSize(10, 10);
    dialog.AddMainWidget(pContent);
    dialog.resize(20, 20);
    dialog.show();
    // From the first moment on: it does not grow in sight.
    QVERIFY(dialog.width() > pContent->sizeHint().width());
    QTRY_VERIFY(pContent->width() >= pContent->sizeHint().width());
    QVERIFY(pContent->height() >= pContent->sizeHint().height());
}

// As wide as it was made; the lines decide about the height.
void CoreDialog::linesThatBreakAreAllSeen()
{
    ExtendDialog dialog(nullptr, Qt::WindowFlags(), WIDGET_TYPE_DIALOG);
    QLabel* pContent = new QLabel(QStringLiteral("A text of some words. ").repeated(10));
    pContent->setWordWrap(true);
    dialog.AddMainWidget(pContent);
    dialog.resize(400, 20);
    dialog.show();
    QTRY_VERIFY(pContent->height() >= pContent->heightForWidth(pContent->width()));
    QCOMPARE(dialog.width(), 400);
    QVERIFY(pContent->height() < 2 * pContent->heightForWidth(pContent->width()));
}

// What is shown later; the width stays, and so does a dialog that has room enough.
void CoreDialog::aDialogGrowsWithWhatItsContentNeeds()
{
    ExtendDialog dialog(nullptr, Qt::WindowFlags(), WIDGET_TYPE_DIALOG);
    Form* pForm = new Form;
    QLabel* pLine = pForm->AddLine();
    dialog.AddMainWidget(pForm);
    dialog.resize(300, 20);
    dialog.move(screenOf().topLeft() + QPoint(100, 80));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QSize sizeBefore = dialog.size();
    pLine->show();
    QTRY_VERIFY(dialog.height() > sizeBefore.height());
    QTRY_VERIFY(pLine->height() >= pLine->heightForWidth(pLine->width()));
    QVERIFY(pForm->IsCloseSeen());
    QCOMPARE(dialog.width(), sizeBefore.width());
    QCOMPARE(dialog.pos(), screenOf().topLeft() + QPoint(100, 80));
    QVERIFY(pForm->parentWidget() == &dialog);

    const QSize large(500, 500);
    dialog.resize(large);
    pLine->setText(pLine->text() + QStringLiteral(" One more word."));
    QTRY_VERIFY(pLine->height() >= pLine->heightForWidth(pLine->width()));
    QCOMPARE(dialog.size(), large);
}

void CoreDialog::aDialogGrowsOntoTheScreen()
{
    ExtendDialog dialog(nullptr, Qt::WindowFlags(), WIDGET_TYPE_DIALOG);
    Form* pForm = new Form;
    QLabel* pLine = pForm->AddLine();
    dialog.AddMainWidget(pForm);
    dialog.resize(300, 20);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const int iLeft = screenOf().left() + 30;
    dialog.move(iLeft, screenOf().bottom() + 1 - dialog.frameGeometry().height());
    QTRY_COMPARE(dialog.frameGeometry().bottom(), screenOf().bottom());
    pLine->show();
    QTRY_VERIFY(pLine->height() > 0 && pLine->height() >= pLine->heightForWidth(pLine->width()));
    QTRY_VERIFY(screenOf().contains(dialog.frameGeometry()));
    QCOMPARE(dialog.frameGeometry().bottom(), screenOf().bottom());
    QCOMPARE(dialog.frameGeometry().left(), iLeft);
}

void CoreDialog::contentThatComesToNeedMoreThanTheScreenHasIsScrolled()
{
    ExtendDialog dialog(nullptr, Qt::WindowFlags(), WIDGET_TYPE_DIALOG);
    Form* pForm = new Form;
    dialog.AddMainWidget(pForm);
    dialog.resize(300, 20);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    pForm->m_pText->setMinimumHeight(screenOf().height() + 200);
    QTRY_VERIFY(pForm->parentWidget() != &dialog);
    QScrollArea* pScroll = qobject_cast<QScrollArea*>(pForm->parentWidget()->parentWidget());
    QVERIFY(pScroll != nullptr);
    QTRY_VERIFY(pScroll->verticalScrollBar()->isVisible());
    QTRY_VERIFY(screenOf().contains(dialog.frameGeometry()));
    QCOMPARE(pForm->m_pText->height(), screenOf().height() + 200);
    pScroll->ensureWidgetVisible(pForm->m_pClose);
    QTRY_VERIFY(pForm->IsCloseSeen());
}

// Somebody has measured it.
void CoreDialog::aFixedDialogStaysAsItIs()
{
    ExtendDialog dialog(nullptr, Qt::WindowFlags(), WIDGET_TYPE_DIALOG);
    Form* pForm = new Form;
    QLabel* pLine = pForm->AddLine();
    dialog.AddMainWidget(pForm);
    dialog.setFixedSize(300, 150);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    pLine->show();
    QTRY_VERIFY(pLine->isVisible() && pLine->height() > 0);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(dialog.size(), QSize(300, 150));

    pForm->m_pText->setMinimumHeight(screenOf().height() + 200);
    QTRY_COMPARE(pForm->m_pText->height(), screenOf().height() + 200);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(dialog.size(), QSize(300, 150));
    QVERIFY(pForm->parentWidget() == &dialog);
}

QTEST_MAIN(CoreDialog)
#include "core_dialog.moc"
