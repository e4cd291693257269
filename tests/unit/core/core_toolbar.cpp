#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

#include "FakeHost.h"
#include "linkhand/QtCompat.h"
#include "linkhand/core/Change.h"
#include "linkhand/core/ToolBarLogic.h"

namespace
{
const QString s_strPlugin = QLatin1String("AddrBookUIPlugin");
} // namespace

class CoreToolBar : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void itemsComeInTheOrderOfTheFile();
    void flagComesFromTheFile();
    void missingFileGivesNothing();
    void itemsAreReplacedNotAdded();
    void barHasAllItsParts();
    void buttonsShowIconsAndSayWhatTheyDo();
    void buttonWithoutIconShowsItsText();
    void clicksCarryTheId();
    void failsWithoutParentItemsOrRoom();
    void enableDisable();
    void iconsTurnWithTheDirection();
    void textsFollowTheLanguage();
    void destroyFreesButtonsAndGroup();
    void objectName();
    void siblingIsLoadedOrNot();
    void iconsAreCrispAtTwiceTheSize();

private:
    bool create()
    {
        return ToolBarLogic::CreateToolBar(s_strPlugin, m_pBar.data(), m_items, &m_pGroup, &m_pLayout, &m_pSearch,
                                           &m_pLabel);
    }

    QScopedPointer<FakeHost> m_pHost;
    QScopedPointer<QWidget> m_pBar;
    QList<ToolItem> m_items;
    bool m_bFlag = true;
    QButtonGroup* m_pGroup = nullptr;
    QHBoxLayout* m_pLayout = nullptr;
    SearchLineEdit* m_pSearch = nullptr;
    QLabel* m_pLabel = nullptr;
};

void CoreToolBar::init()
{
    m_pHost.reset(new FakeHost);
    m_pBar.reset(new QWidget);
    m_bFlag = true;
    ToolBarLogic::GetXmlData(m_pHost->strLibraryPath + "/plugins/AddrBookUIPlugin/Config.xml", m_items, m_bFlag,
                             s_strPlugin);
}

void CoreToolBar::cleanup()
{
    m_pBar.reset();
    m_pHost.reset();
}

void CoreToolBar::itemsComeInTheOrderOfTheFile()
{
    QList<int> ids;
    for (const ToolItem& item : qAsConst(m_items)) {
        ids.append(item.iId);
        QVERIFY(item.strTipId.startsWith("IDS_"));
        QVERIFY(item.strText2.endsWith(".png"));
        QCOMPARE(item.bSearch, item.iId == 9006);
        QVERIFY(item.pButton == nullptr);
    }
    QCOMPARE(ids, QList<int>() << 9000 << 9001 << 9002 << 9003 << 9005 << 9006);
}

void CoreToolBar::flagComesFromTheFile()
{
    QVERIFY(!m_bFlag);
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("<config><toolbar subgroups=\"true\"/></config>");
    file.close();
    ToolBarLogic::GetXmlData(file.fileName(), m_items, m_bFlag, s_strPlugin);
    QVERIFY(m_bFlag);
    QVERIFY(m_items.isEmpty());
}

void CoreToolBar::missingFileGivesNothing()
{
    m_bFlag = true;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("menu file \"/nowhere\""));
    ToolBarLogic::GetXmlData("/nowhere", m_items, m_bFlag, s_strPlugin);
    QVERIFY(m_items.isEmpty());
    QVERIFY(!m_bFlag);
}

void CoreToolBar::itemsAreReplacedNotAdded()
{
    const int iCount = m_items.size();
    ToolBarLogic::GetXmlData(m_pHost->strLibraryPath + "/plugins/AddrBookUIPlugin/Config.xml", m_items, m_bFlag,
                             s_strPlugin);
    QCOMPARE(m_items.size(), iCount);
}

void CoreToolBar::barHasAllItsParts()
{
    QVERIFY(create());
    QVERIFY(m_pGroup != nullptr && m_pLayout != nullptr && m_pSearch != nullptr && m_pLabel != nullptr);
    QCOMPARE(m_pBar->layout(), static_cast<QLayout*>(m_pLayout));
    for (const ToolItem& item : qAsConst(m_items)) {
        QVERIFY(qobject_cast<QToolButton*>(item.pButton) != nullptr);
        QCOMPARE(m_pGroup->button(item.iId), item.pButton);
        QCOMPARE(item.pButton->parentWidget(), m_pBar.data());
    }
    m_pBar->show();
    QVERIFY(!m_pSearch->isVisible());
    QVERIFY(m_pLabel->isVisible());
}

void CoreToolBar::buttonsShowIconsAndSayWhatTheyDo()
{
    QVERIFY(create());
    for (const ToolItem& item : qAsConst(m_items)) {
        QToolButton* pButton = qobject_cast<QToolButton*>(item.pButton);
        QVERIFY(!pButton->icon().isNull());
        QCOMPARE(pButton->toolButtonStyle(), Qt::ToolButtonIconOnly);
        QCOMPARE(pButton->iconSize(), QSize(24, 24));
        QVERIFY(pButton->autoRaise());
        QCOMPARE(pButton->toolTip(), Change::tr(item.strTipId, s_strPlugin));
        QCOMPARE(pButton->accessibleName(), pButton->toolTip());
        QVERIFY(!pButton->accessibleName().startsWith("IDS_"));
    }
}

void CoreToolBar::buttonWithoutIconShowsItsText()
{
    m_items.first().strText2 = "absent.png";
    m_items[1].strText2.clear();
    QVERIFY(create());
    QCOMPARE(qobject_cast<QToolButton*>(m_items.at(0).pButton)->toolButtonStyle(), Qt::ToolButtonTextOnly);
    QCOMPARE(m_items.at(0).pButton->text(), Change::tr(m_items.at(0).strTipId, s_strPlugin));
    QVERIFY(!m_items.at(0).pButton->text().startsWith("IDS_"));
    QCOMPARE(qobject_cast<QToolButton*>(m_items.at(1).pButton)->toolButtonStyle(), Qt::ToolButtonTextOnly);
    ToolBarLogic::ChangeToolBarIconDirection(s_strPlugin, m_items, true, &m_pLabel);
    QCOMPARE(qobject_cast<QToolButton*>(m_items.at(0).pButton)->toolButtonStyle(), Qt::ToolButtonTextOnly);
}

void CoreToolBar::clicksCarryTheId()
{
    QVERIFY(create());
    QSignalSpy spy(m_pGroup, QtCompat::idClicked());
    for (const ToolItem& item : qAsConst(m_items)) {
        QTest::mouseClick(item.pButton, Qt::LeftButton);
        QCOMPARE(spy.takeLast().at(0).toInt(), item.iId);
        QVERIFY(!item.pButton->isChecked());
    }
}

void CoreToolBar::failsWithoutParentItemsOrRoom()
{
    const auto allNull = [this]() {
        return m_pGroup == nullptr && m_pLayout == nullptr && m_pSearch == nullptr && m_pLabel == nullptr;
    };
    QVERIFY(create());
    QVERIFY(!create()); // the bar has its layout already
    QVERIFY(allNull());
    m_pBar.reset(new QWidget);
    m_items.clear();
    QVERIFY(!create());
    QVERIFY(allNull());
    QVERIFY(m_pBar->children().isEmpty());
    init();
    m_pBar.reset();
    QVERIFY(!create());
    QVERIFY(allNull());
}

void CoreToolBar::enableDisable()
{
    QCOMPARE(ToolBarLogic::EnableDisableItem(s_strPlugin, m_items, 9001, false), 0); // no button yet
    QVERIFY(create());
    QCOMPARE(ToolBarLogic::EnableDisableItem(s_strPlugin, m_items, 9001, false), 1);
    QVERIFY(!m_pGroup->button(9001)->isEnabled());
    QVERIFY(m_pGroup->button(9000)->isEnabled());
    QCOMPARE(ToolBarLogic::EnableDisableItem(s_strPlugin, m_items, 9001, true), 1);
    QVERIFY(m_pGroup->button(9001)->isEnabled());
    QCOMPARE(ToolBarLogic::EnableDisableItem(s_strPlugin, m_items, 9004, true), 0);
}

void CoreToolBar::iconsTurnWithTheDirection()
{
    QVERIFY(create());
    const auto image = [this](int iId) { return m_pGroup->button(iId)->icon().pixmap(24, 24).toImage(); };
    const QImage drawn = image(9005);
    ToolBarLogic::ChangeToolBarIconDirection(s_strPlugin, m_items, true, &m_pLabel);
    QCOMPARE(image(9005).convertToFormat(QImage::Format_ARGB32),
             drawn.mirrored(true, false).convertToFormat(QImage::Format_ARGB32));
    ToolBarLogic::ChangeToolBarIconDirection(s_strPlugin, m_items, true, &m_pLabel);
    QVERIFY(image(9005) != drawn);
    ToolBarLogic::ChangeToolBarIconDirection(s_strPlugin, m_items, false, &m_pLabel);
    QCOMPARE(image(9005), drawn);
    m_items.clear();
    ToolBarLogic::ChangeToolBarIconDirection(s_strPlugin, m_items, true, nullptr);
}

void CoreToolBar::textsFollowTheLanguage()
{
    QTemporaryDir empty;
    QVERIFY(create());
    m_pHost->strLanguagesPath = empty.path();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no English texts"));
    ToolBarLogic::ChangeToolBarIconDirection(s_strPlugin, m_items, false, &m_pLabel);
    QCOMPARE(m_pGroup->button(9000)->accessibleName(), QString("IDS_PMBTN_ADD"));
    QCOMPARE(m_pSearch->placeholderText(), QString("IDS_HOST_SEARCH_HINT"));
}

void CoreToolBar::destroyFreesButtonsAndGroup()
{
    QVERIFY(create());
    QPointer<QAbstractButton> pButton = m_items.first().pButton;
    QPointer<QButtonGroup> pGroup = m_pGroup;
    ToolBarLogic::DestroyToolButtonGroup(m_items, &m_pGroup);
    QVERIFY(pButton.isNull());
    QVERIFY(pGroup.isNull());
    QVERIFY(m_pGroup == nullptr);
    for (const ToolItem& item : qAsConst(m_items))
        QVERIFY(item.pButton == nullptr);
    ToolBarLogic::DestroyToolButtonGroup(m_items, &m_pGroup);
    ToolBarLogic::DestroyToolButtonGroup(m_items, nullptr);
    // What is left is the caller's to free, in any order, and then a new bar finds room.
    delete m_pLayout;
    delete m_pSearch;
    QVERIFY(create());
}

void CoreToolBar::objectName()
{
    QCOMPARE(ToolBarLogic::GetObjectName(s_strPlugin), QString("AddrBookUIPlugin_ToolBar"));
}

void CoreToolBar::siblingIsLoadedOrNot()
{
    QObject sibling;
    m_pHost->loaded.insert("one", &sibling);
    QVERIFY(ToolBarLogic::getPlugin("one"));
    QVERIFY(!ToolBarLogic::getPlugin("two"));
    m_pHost->bHasContainer = false;
    QVERIFY(!ToolBarLogic::getPlugin("one"));
}

void CoreToolBar::iconsAreCrispAtTwiceTheSize()
{
    for (const ToolItem& item : qAsConst(m_items)) {
        const QString strFile = m_pHost->strLibraryPath + "/plugins/AddrBookUIPlugin/" + item.strText2;
        QCOMPARE(QImage(strFile).size(), QSize(24, 24));
        QString strTwice = strFile;
        strTwice.insert(strTwice.length() - 4, "@2x");
        const QImage twice(strTwice);
        QCOMPARE(twice.size(), QSize(48, 48));
        QVERIFY(twice.convertToFormat(QImage::Format_ARGB32) !=
                QImage(strFile)
                    .scaled(48, 48, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                    .convertToFormat(QImage::Format_ARGB32));
    }
    const QPixmap strip(m_pHost->strLibraryPath + "/plugins/AddrBookUIPlugin/addr_tre_images");
    QVERIFY(strip.width() >= 7 * 16);
    QCOMPARE(strip.height(), 16);
    // The three frames in use are drawn and differ.
    const QImage frames[] = {strip.copy(0, 0, 16, 16).toImage(), strip.copy(16, 0, 16, 16).toImage(),
                             strip.copy(96, 0, 16, 16).toImage()};
    QVERIFY(frames[0] != frames[1] && frames[1] != frames[2] && frames[0] != frames[2]);
}

QTEST_MAIN(CoreToolBar)
#include "core_toolbar.moc"
