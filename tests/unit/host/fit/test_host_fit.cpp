#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QtTest>

#include "fit/PageView.h"
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

} // namespace

class TestHostFit : public QObject
{
    Q_OBJECT

private slots:
    void aPageFillsItsPlace();
    void aPageThatIsLargerGetsScrollBars();
    void whatGetsTheKeysComesIntoSight();
    void aRowGoesOnInTheNextLine();
    void aRowBeginsAtTheRightFromRightToLeft();
    void whatCanGrowTakesTheRestOfItsLine();
    void theSideBarLeavesItsWordsOutWhereItIsLow();
    void theSideBarLeavesItsWordsOutInANarrowWindow();
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

QTEST_MAIN(TestHostFit)
#include "test_host_fit.moc"
