#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QtTest>

#include "fit/PageView.h"
#include "fit/WordBox.h"
#include "shared/WrapLayout.h"
#include "window/NavBar.h"

namespace
{

// Of one size, whatever the style.
QPushButton* newButton(QWidget* pParent, int iWidth)
{
    QPushButton* pButton = new QPushButton(pParent);
    pButton->setFixedSize(iWidth, 20);
    return pButton;
}

// Can be as small as one likes and would be of this size.
class Wish : public QWidget
{
public:
    Wish(QWidget* pParent, const QSize& size) : QWidget(pParent), m_size(size), m_sizeLeast(10, 10) {}

    // From now on it must be as large as this.
    void Need(const QSize& size)
    {
        m_sizeLeast = size;
        updateGeometry();
    }

    QSize sizeHint() const override { return m_size; }
    QSize minimumSizeHint() const override { return m_sizeLeast; }

private:
    QSize m_size;
    QSize m_sizeLeast;
};

// Twice as high where it is half as wide.
class Flowing : public QWidget
{
public:
    int heightForWidth(int iWidth) const override { return 60000 / iWidth; }
};

} // namespace

class TestHostFit : public QObject
{
    Q_OBJECT

private slots:
    void aPageFillsItsPlace();
    void aPageThatIsLargerGetsScrollBars();
    void aScrollBarTakesItsRoomFromThePage();
    void aPageOfWordsIsAsHighAsItsLines();
    void aPageWithoutALayoutIsAsHighAsItSays();
    void aPageThatNeedsMoreLaterGetsIt();
    void theViewIsNotSeen();
    void whatGetsTheKeysComesIntoSight();
    void aRowGoesOnInTheNextLine();
    void aRowBeginsAtTheRightFromRightToLeft();
    void whatCanGrowTakesTheRestOfItsLine();
    void aRowKeepsItsMargins();
    void whatIsWiderThanTheRowIsMadeSmaller();
    void allOfALineAreAsHighAsItsHighest();
    void theSideBarLeavesOutWhatIsHidden();
    void theSideBarFollowsALongerWord();
    void theSideBarLeavesItsWordsOutWhereItIsLow();
    void theSideBarLeavesItsWordsOutInANarrowWindow();
    void picturesGetSmallerWhereTheSideBarIsLow();
    void aBoxOfWordsIsWideEnoughInAnyLanguage();
};

void TestHostFit::aPageFillsItsPlace()
{
    QLabel* pPage = new QLabel("page");
    PageView view(pPage);
    view.resize(400, 300);
    view.show();
    QTRY_COMPARE(pPage->size(), view.size());
    view.resize(300, 200);
    QTRY_COMPARE(pPage->size(), view.size());
}

void TestHostFit::aPageThatIsLargerGetsScrollBars()
{
    QWidget* pPage = new QWidget;
    pPage->setMinimumSize(500, 100);
    PageView view(pPage);
    view.resize(300, 300);
    view.show();
    QTRY_COMPARE(pPage->width(), 500);
    QTRY_VERIFY(view.horizontalScrollBar()->isVisible());
    QVERIFY(!view.verticalScrollBar()->isVisible());
    QCOMPARE(pPage->height(), view.viewport()->height());
    // What comes later counts as well.
    (new QVBoxLayout(pPage))->addWidget(newButton(pPage, 10));
    pPage->setMinimumSize(0, 0);
    QTRY_COMPARE(pPage->size(), view.size());
}

void TestHostFit::aScrollBarTakesItsRoomFromThePage()
{
    QWidget* pPage = new QWidget;
    (new QVBoxLayout(pPage))->addWidget(newButton(pPage, 10));
    pPage->setMinimumSize(100, 500);
    PageView view(pPage);
    QCOMPARE(view.LeastWidth(), 100);
    QCOMPARE(view.LeastHeight(300), 500);
    view.resize(300, 300);
    view.show();
    QTRY_VERIFY(view.viewport()->width() < 300);
    QCOMPARE(pPage->size(), QSize(view.viewport()->width(), 500));
    QVERIFY(!view.horizontalScrollBar()->isVisible());
    // Both ways.
    pPage->setMinimumSize(300, 290);
    QTRY_COMPARE(pPage->size(), view.size());
    pPage->setMinimumSize(310, 100);
    QTRY_VERIFY(view.viewport()->height() < 300);
    QCOMPARE(pPage->size(), QSize(310, view.viewport()->height()));
    QVERIFY(!view.verticalScrollBar()->isVisible());
}

void TestHostFit::aPageOfWordsIsAsHighAsItsLines()
{
    QWidget* pPage = new QWidget;
    QLabel* pWords = new QLabel(QStringLiteral("word ").repeated(400), pPage);
    pWords->setWordWrap(true);
    (new QVBoxLayout(pPage))->addWidget(pWords);
    PageView view(pPage);
    QVERIFY(view.LeastHeight(200) > view.LeastHeight(400) + 100);
    view.resize(300, 200);
    view.show();
    QTRY_VERIFY(view.verticalScrollBar()->isVisible());
    QTRY_COMPARE(pWords->height(), pWords->heightForWidth(pWords->width()));
}

void TestHostFit::aPageWithoutALayoutIsAsHighAsItSays()
{
    PageView view(new Flowing);
    QCOMPARE(view.LeastHeight(200), 300);
    QCOMPARE(view.LeastHeight(100), 600);
}

void TestHostFit::aPageThatNeedsMoreLaterGetsIt()
{
    // The page of a plug-in has no layout.
    Wish* pPlain = new Wish(nullptr, QSize(10, 10));
    PageView plain(pPlain);
    plain.resize(300, 300);
    plain.show();
    QTRY_COMPARE(pPlain->size(), QSize(300, 300));
    pPlain->Need(QSize(500, 10));
    QTRY_COMPARE(pPlain->width(), 500);

    // Others have one, and may be out of sight when their words change.
    QWidget* pPage = new QWidget;
    QVBoxLayout* pLayout = new QVBoxLayout(pPage);
    pLayout->setContentsMargins(0, 0, 0, 0);
    Wish* pPart = new Wish(pPage, QSize(10, 10));
    pLayout->addWidget(pPart);
    PageView view(pPage);
    view.resize(300, 300);
    view.show();
    QTRY_COMPARE(pPage->size(), QSize(300, 300));
    pPart->Need(QSize(400, 10));
    QTRY_COMPARE(pPart->width(), 400);
    view.hide();
    pPart->Need(QSize(500, 10));
    QTRY_COMPARE(pPage->width(), 500);
}

void TestHostFit::theViewIsNotSeen()
{
    QWidget* pPage = new QWidget;
    (new QVBoxLayout(pPage))->addWidget(newButton(pPage, 500));
    PageView view(pPage);
    QCOMPARE(PageView::Of(pPage), &view);
    QVERIFY(PageView::Of(&view) == nullptr);
    QCOMPARE(view.focusPolicy(), Qt::NoFocus);
    QVERIFY(!pPage->autoFillBackground());
    QVERIFY(!view.viewport()->autoFillBackground());
    // However small the place is.
    QVERIFY(view.minimumSizeHint().width() < 100);
}

void TestHostFit::whatGetsTheKeysComesIntoSight()
{
    QWidget* pPage = new QWidget;
    QVBoxLayout* pLayout = new QVBoxLayout(pPage);
    QLineEdit* pFirst = new QLineEdit(pPage);
    QLineEdit* pLast = new QLineEdit(pPage);
    pLayout->addWidget(pFirst);
    pLayout->addSpacing(800);
    pLayout->addWidget(pLast);
    PageView view(pPage);
    view.resize(300, 200);
    view.show();
    view.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    pFirst->setFocus();
    QTRY_VERIFY(pLast->visibleRegion().isEmpty());
    pLast->setFocus();
    QTRY_COMPARE(pLast->visibleRegion().boundingRect().size(), pLast->size());
}

void TestHostFit::aRowGoesOnInTheNextLine()
{
    QWidget window;
    WrapLayout* pRow = new WrapLayout(&window);
    pRow->setContentsMargins(0, 0, 0, 0);
    pRow->setSpacing(5);
    QPushButton* const apButtons[] = {newButton(&window, 100), newButton(&window, 100), newButton(&window, 100)};
    for (QPushButton* pButton : apButtons) {
        pRow->addWidget(pButton);
    }
    QCOMPARE(pRow->sizeHint(), QSize(310, 20));
    QCOMPARE(pRow->minimumSize(), QSize(100, 20));
    QCOMPARE(pRow->heightForWidth(310), 20);
    QCOMPARE(pRow->heightForWidth(309), 45);
    QCOMPARE(pRow->heightForWidth(204), 70);
    pRow->setGeometry(QRect(0, 0, 309, 45));
    QCOMPARE(apButtons[1]->geometry(), QRect(105, 0, 100, 20));
    QCOMPARE(apButtons[2]->geometry(), QRect(0, 25, 100, 20));
    // What is hidden takes no room.
    window.show();
    apButtons[1]->hide();
    QCOMPARE(pRow->heightForWidth(205), 20);
}

void TestHostFit::aRowBeginsAtTheRightFromRightToLeft()
{
    QWidget window;
    window.setLayoutDirection(Qt::RightToLeft);
    WrapLayout* pRow = new WrapLayout(&window);
    pRow->setContentsMargins(0, 0, 0, 0);
    QPushButton* pButton = newButton(&window, 100);
    pRow->addWidget(pButton);
    pRow->setGeometry(QRect(0, 0, 300, 20));
    QCOMPARE(pButton->geometry(), QRect(200, 0, 100, 20));
}

void TestHostFit::whatCanGrowTakesTheRestOfItsLine()
{
    QWidget window;
    WrapLayout* pRow = new WrapLayout(&window);
    pRow->setContentsMargins(0, 0, 0, 0);
    pRow->setSpacing(5);
    QPushButton* pFirst = newButton(&window, 100);
    QPushButton* pLast = newButton(&window, 100);
    pRow->addWidget(pFirst);
    pRow->AddStretch();
    pRow->addWidget(pLast);
    pRow->setGeometry(QRect(0, 0, 400, 20));
    QCOMPARE(pFirst->geometry().left(), 0);
    QCOMPARE(pLast->geometry().right(), 399);
    // A gap takes no room by itself.
    QCOMPARE(pRow->sizeHint(), QSize(205, 20));
    QCOMPARE(pRow->heightForWidth(205), 20);
    QCOMPARE(pRow->heightForWidth(204), 45);
    // Several share it.
    QPushButton* pMiddle = newButton(&window, 50);
    pRow->AddStretch();
    pRow->addWidget(pMiddle);
    pRow->setGeometry(QRect(0, 0, 400, 20));
    QCOMPARE(pLast->geometry().left(), 105 + 70);
    QCOMPARE(pMiddle->geometry().right(), 399);
    QVERIFY(pRow->takeAt(-1) == nullptr);
    QVERIFY(pRow->takeAt(pRow->count()) == nullptr);
}

void TestHostFit::aRowKeepsItsMargins()
{
    QWidget window;
    WrapLayout* pRow = new WrapLayout(&window);
    pRow->setContentsMargins(1, 2, 4, 8);
    pRow->setSpacing(5);
    QPushButton* pFirst = newButton(&window, 100);
    QPushButton* pLast = newButton(&window, 100);
    pRow->addWidget(pFirst);
    pRow->addWidget(pLast);
    QCOMPARE(pRow->sizeHint(), QSize(210, 30));
    QCOMPARE(pRow->minimumSize(), QSize(105, 30));
    QCOMPARE(pRow->heightForWidth(210), 30);
    QCOMPARE(pRow->heightForWidth(209), 55);
    pRow->setGeometry(QRect(0, 0, 209, 55));
    QCOMPARE(pFirst->geometry(), QRect(1, 2, 100, 20));
    QCOMPARE(pLast->geometry(), QRect(1, 27, 100, 20));
}

void TestHostFit::whatIsWiderThanTheRowIsMadeSmaller()
{
    QWidget window;
    WrapLayout* pRow = new WrapLayout(&window);
    pRow->setContentsMargins(0, 0, 0, 0);
    pRow->setSpacing(5);
    Wish* pWide = new Wish(&window, QSize(300, 20));
    pRow->addWidget(pWide);
    QCOMPARE(pRow->minimumSize(), QSize(10, 10));
    QCOMPARE(pRow->heightForWidth(200), 20);
    pRow->setGeometry(QRect(0, 0, 200, 20));
    QCOMPARE(pWide->geometry(), QRect(0, 0, 200, 20));
}

void TestHostFit::allOfALineAreAsHighAsItsHighest()
{
    QWidget window;
    WrapLayout* pRow = new WrapLayout(&window);
    pRow->setContentsMargins(0, 0, 0, 0);
    pRow->setSpacing(5);
    Wish* pHigh = new Wish(&window, QSize(100, 40));
    Wish* pLow = new Wish(&window, QSize(100, 20));
    Wish* pNext = new Wish(&window, QSize(100, 30));
    pRow->addWidget(pHigh);
    pRow->addWidget(pLow);
    pRow->addWidget(pNext);
    QCOMPARE(pRow->heightForWidth(205), 75);
    pRow->setGeometry(QRect(0, 0, 205, 75));
    QCOMPARE(pLow->geometry(), QRect(105, 0, 100, 40));
    QCOMPARE(pNext->geometry(), QRect(0, 45, 100, 30));
    // The third stands alone in its line: what follows it has room beside it.
    QCOMPARE(pRow->heightForWidth(204), 100);
    pRow->addWidget(newButton(&window, 100));
    QCOMPARE(pRow->heightForWidth(205), 75);
    pRow->addWidget(newButton(&window, 100));
    QCOMPARE(pRow->heightForWidth(205), 100);
}

void TestHostFit::theSideBarLeavesOutWhatIsHidden()
{
    QWidget window;
    NavBar bar(&window);
    bar.AddPage(0, "0", Glyphs::OTHER);
    bar.SetPageText(0, "Page");
    window.resize(1200, 900);
    window.show();
    const int iBefore = bar.minimumSizeHint().height();
    bar.SetDeviceAvailable(false);
    QVERIFY(bar.minimumSizeHint().height() < iBefore);

    // One that comes back needs room, and the bar has no more than before.
    const NavButton* pButton = window.findChild<NavButton*>("linkhand_NavBar_0");
    int iHeight = 900;
    const auto isSpaciousAt = [&](int iLow) {
        bar.setGeometry(0, 0, bar.sizeHint().width(), iLow);
        return pButton->sizeHint() == pButton->SizeIn(NavButton::SPACIOUS);
    };
    while (isSpaciousAt(iHeight)) {
        --iHeight;
    }
    QVERIFY(isSpaciousAt(iHeight + 1));
    bar.SetDeviceAvailable(true);
    QTRY_VERIFY(pButton->sizeHint() != pButton->SizeIn(NavButton::SPACIOUS));
}

void TestHostFit::theSideBarFollowsALongerWord()
{
    QWidget window;
    QVBoxLayout* pLayout = new QVBoxLayout(&window);
    NavBar* pBar = new NavBar(&window);
    pBar->AddPage(0, "0", Glyphs::OTHER);
    pBar->SetPageText(0, "Page");
    pLayout->addWidget(pBar);
    const NavButton* pButton = window.findChild<NavButton*>("linkhand_NavBar_0");
    window.resize(4 * pButton->SizeIn(NavButton::CLOSE).width(), 900);
    window.show();
    QTRY_COMPARE(pButton->size(), pButton->SizeIn(NavButton::SPACIOUS));
    QVERIFY(!pButton->IsPicture());
    pBar->SetPageText(0, "A word of another language that is longer by far");
    QVERIFY(pButton->SizeIn(NavButton::CLOSE).width() > pButton->fontMetrics().height() * 8);
    QTRY_VERIFY(pButton->IsPicture());
    QTRY_COMPARE(pBar->width(), pButton->SizeIn(NavButton::PICTURE).width());
}

void TestHostFit::theSideBarLeavesItsWordsOutWhereItIsLow()
{
    QWidget window;
    NavBar bar(&window);
    for (int i = 0; i < 5; ++i) {
        bar.AddPage(i, QString::number(i), Glyphs::OTHER);
        bar.SetPageText(i, "Page");
    }
    window.resize(1200, 900);
    window.show();
    const NavButton* pButton = window.findChild<NavButton*>("linkhand_NavBar_0");
    bar.setGeometry(0, 0, bar.sizeHint().width(), 900);
    QCOMPARE(pButton->sizeHint(), pButton->SizeIn(NavButton::SPACIOUS));
    bar.setGeometry(0, 0, bar.width(), 7 * (pButton->SizeIn(NavButton::SPACIOUS).height() - 8));
    QCOMPARE(pButton->sizeHint(), pButton->SizeIn(NavButton::CLOSE));
    bar.setGeometry(0, 0, bar.width(), bar.minimumSizeHint().height());
    QVERIFY(pButton->IsPicture());
}

void TestHostFit::theSideBarLeavesItsWordsOutInANarrowWindow()
{
    QWidget window;
    NavBar bar(&window);
    bar.AddPage(0, "0", Glyphs::OTHER);
    bar.SetPageText(0, "Page");
    window.show();
    const NavButton* pButton = window.findChild<NavButton*>("linkhand_NavBar_0");
    const int iWidth = pButton->SizeIn(NavButton::CLOSE).width();
    bar.setGeometry(0, 0, iWidth, 900);
    window.resize(4 * iWidth, 900);
    bar.FitButtons();
    QVERIFY(!pButton->IsPicture());
    window.resize(4 * iWidth - 1, 900);
    bar.FitButtons();
    QVERIFY(pButton->IsPicture());
}

// Down to the least height: none reaches out of the bar, and none is cut off.
void TestHostFit::picturesGetSmallerWhereTheSideBarIsLow()
{
    QWidget window;
    NavBar bar(&window);
    for (int i = 0; i < 5; ++i) {
        bar.AddPage(i, QString::number(i), Glyphs::OTHER);
    }
    window.resize(1200, 900);
    window.show();
    bar.setGeometry(0, 0, bar.sizeHint().width(), bar.minimumSizeHint().height());
    NavButton* pButton = window.findChild<NavButton*>("linkhand_NavBar_0");
    QTRY_COMPARE(pButton->height(), NavButton::LeastHeight());
    QVERIFY(pButton->IsPicture());
    foreach (const NavButton* pOther, bar.findChildren<NavButton*>()) {
        QVERIFY(pOther->isHidden() || bar.rect().contains(pOther->geometry()));
    }
    pButton->setChecked(false);
    const QImage image = pButton->grab().toImage();
    for (int x = 0; x < image.width(); ++x) {
        QCOMPARE(image.pixel(x, 0), image.pixel(0, 0));
        QCOMPARE(image.pixel(x, image.height() - 1), image.pixel(0, 0));
    }
    // With room they are as large as ever.
    bar.setGeometry(0, 0, bar.width(), bar.minimumSizeHint().height() + 7 * 14);
    QTRY_COMPARE(pButton->height(), pButton->SizeIn(NavButton::PICTURE).height());
}

void TestHostFit::aBoxOfWordsIsWideEnoughInAnyLanguage()
{
    WordBox box(nullptr);
    box.addItem("a");
    box.show();
    const int iNarrow = box.minimumSizeHint().width();
    box.clear();
    box.addItem("A word that is much longer");
    QVERIFY(box.minimumSizeHint().width() > iNarrow);
    QCOMPARE(box.minimumSizeHint(), box.sizeHint());
}

QTEST_MAIN(TestHostFit)
#include "test_host_fit.moc"
