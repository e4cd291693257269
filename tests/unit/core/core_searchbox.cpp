#include <QHBoxLayout>
#include <QSignalSpy>
#include <QToolButton>
#include <QtTest>

#include "FakeHost.h"
#include "linkhand/core/ToolBarLogic.h"

class CoreSearchBox : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void hiddenAtFirst();
    void ctrlNIsASignalAndNoText();
    void otherKeysAreTyping();
    void shownItHasTheFocusAndItsTextSelected();
    void clearButtonIsAnEdit();
    void nullPointersAreLetBe();

private:
    QScopedPointer<FakeHost> m_pHost;
    QScopedPointer<QWidget> m_pBar;
    QHBoxLayout* m_pLayout = nullptr;
    SearchLineEdit* m_pSearch = nullptr;
};

void CoreSearchBox::init()
{
    m_pHost.reset(new FakeHost);
    m_pBar.reset(new QWidget);
    QList<ToolItem> items;
    bool bFlag = true;
    ToolBarLogic::GetXmlData(m_pHost->strLibraryPath + "/plugins/AddrBookUIPlugin/Config.xml", items, bFlag,
                             "AddrBookUIPlugin");
    QVERIFY(ToolBarLogic::CreateToolBar("AddrBookUIPlugin", m_pBar.data(), items, nullptr, &m_pLayout, &m_pSearch,
                                        nullptr));
    m_pBar->show();
    QApplication::setActiveWindow(m_pBar.data());
    QVERIFY(QTest::qWaitForWindowActive(m_pBar.data()));
}

void CoreSearchBox::cleanup()
{
    m_pBar.reset();
    // The clear button fades in and out; what did so goes later.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_pHost.reset();
}

void CoreSearchBox::hiddenAtFirst()
{
    QVERIFY(!m_pSearch->isVisible());
    QCOMPARE(m_pSearch->placeholderText(), QString("Search contacts"));
    QCOMPARE(m_pSearch->accessibleName(), QString("Search contacts"));
}

void CoreSearchBox::ctrlNIsASignalAndNoText()
{
    ToolBarLogic::ShowHideSearchBox(m_pBar.data(), m_pLayout, m_pSearch, true);
    QSignalSpy spy(m_pSearch, SIGNAL(controlN()));
    QTest::keyClick(m_pSearch, Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(spy.count(), 1);
    QTest::keyClick(m_pSearch, Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(m_pSearch->text(), QString());
}

void CoreSearchBox::otherKeysAreTyping()
{
    ToolBarLogic::ShowHideSearchBox(m_pBar.data(), m_pLayout, m_pSearch, true);
    QSignalSpy control(m_pSearch, SIGNAL(controlN()));
    QSignalSpy edited(m_pSearch, SIGNAL(textEdited(QString)));
    QTest::keyClicks(m_pSearch, "nN");
    QCOMPARE(m_pSearch->text(), QString("nN"));
    QCOMPARE(control.count(), 0);
    QCOMPARE(edited.count(), 2);
}

void CoreSearchBox::shownItHasTheFocusAndItsTextSelected()
{
    m_pSearch->setText("old");
    ToolBarLogic::ShowHideSearchBox(m_pBar.data(), m_pLayout, m_pSearch, true);
    QVERIFY(m_pSearch->isVisible());
    QVERIFY(m_pSearch->hasFocus());
    QTest::keyClicks(m_pSearch, "x");
    QCOMPARE(m_pSearch->text(), QString("x"));
    ToolBarLogic::ShowHideSearchBox(m_pBar.data(), m_pLayout, m_pSearch, false);
    QVERIFY(!m_pSearch->isVisible());
    QCOMPARE(m_pSearch->text(), QString("x"));
}

void CoreSearchBox::clearButtonIsAnEdit()
{
    ToolBarLogic::ShowHideSearchBox(m_pBar.data(), m_pLayout, m_pSearch, true);
    QTest::keyClicks(m_pSearch, "abc");
    QSignalSpy edited(m_pSearch, SIGNAL(textEdited(QString)));
    QToolButton* pClear = m_pSearch->findChild<QToolButton*>();
    QVERIFY(pClear != nullptr);
    QTest::mouseClick(pClear, Qt::LeftButton);
    QCOMPARE(m_pSearch->text(), QString());
    QCOMPARE(edited.count(), 1);
}

void CoreSearchBox::nullPointersAreLetBe()
{
    ToolBarLogic::ShowHideSearchBox(nullptr, nullptr, nullptr, true);
    ToolBarLogic::ShowHideSearchBox(nullptr, nullptr, m_pSearch, true);
    QVERIFY(m_pSearch->isVisible());
}

QTEST_MAIN(CoreSearchBox)
#include "core_searchbox.moc"
