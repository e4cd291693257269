#include <QAction>
#include <QDialog>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

#include "window/KeyboardWitness.h"

// A window that has the keyboard though Qt has not been told.
class TestHostKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aKeyMakesItsWindowActiveBeforeShortcutsAreLookedAt();
    void aKeyReachesTheFieldThatHadTheFocus();
    void aClickMakesItsWindowActive();
    void aKeyThatAProgramSendsProvesNothing();
    void aWindowBehindAModalOneStaysInactive();
    void anActiveWindowStaysSo();

private:
    QScopedPointer<KeyboardWitness> m_pWitness;
    QScopedPointer<QWidget> m_pWindow;
    QLineEdit* m_pField = nullptr;
};

void TestHostKeyboard::init()
{
    m_pWitness.reset(new KeyboardWitness);
    m_pWindow.reset(new QWidget);
    m_pField = new QLineEdit(m_pWindow.data());
    (new QVBoxLayout(m_pWindow.data()))->addWidget(m_pField);
    m_pField->setFocus();
    m_pWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(m_pWindow.data()));
    QApplication::setActiveWindow(nullptr);
    QVERIFY(QApplication::activeWindow() == nullptr);
    QVERIFY(!m_pField->hasFocus());
}

void TestHostKeyboard::cleanup()
{
    m_pWindow.reset();
    m_pWitness.reset();
}

void TestHostKeyboard::aKeyMakesItsWindowActiveBeforeShortcutsAreLookedAt()
{
    QAction action(m_pWindow.data());
    action.setShortcut(QKeySequence("Ctrl+Q"));
    m_pWindow->addAction(&action);
    QSignalSpy triggered(&action, &QAction::triggered);
    QTest::keyClick(m_pWindow->windowHandle(), Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(triggered.count(), 1);
    QCOMPARE(QApplication::activeWindow(), m_pWindow.data());
}

void TestHostKeyboard::aKeyReachesTheFieldThatHadTheFocus()
{
    QTest::keyClicks(m_pField, "Anna");
    QCOMPARE(m_pField->text(), QString("Anna"));
    QVERIFY(m_pField->hasFocus());
}

void TestHostKeyboard::aClickMakesItsWindowActive()
{
    QTest::mouseClick(m_pWindow->windowHandle(), Qt::LeftButton, Qt::NoModifier, m_pField->geometry().center());
    QCOMPARE(QApplication::activeWindow(), m_pWindow.data());
    QVERIFY(m_pField->hasFocus());
}

void TestHostKeyboard::aKeyThatAProgramSendsProvesNothing()
{
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
    QCoreApplication::sendEvent(m_pField, &key);
    QVERIFY(QApplication::activeWindow() == nullptr);
}

void TestHostKeyboard::aWindowBehindAModalOneStaysInactive()
{
    QDialog dialog(m_pWindow.data());
    dialog.setModal(true);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QApplication::setActiveWindow(nullptr);
    QTest::keyClick(m_pWindow->windowHandle(), Qt::Key_A);
    QVERIFY(QApplication::activeWindow() != m_pWindow.data());
    QTest::keyClick(dialog.windowHandle(), Qt::Key_A);
    QCOMPARE(QApplication::activeWindow(), &dialog);
}

void TestHostKeyboard::anActiveWindowStaysSo()
{
    QWidget other;
    other.show();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QTest::keyClick(m_pWindow->windowHandle(), Qt::Key_A);
    QCOMPARE(QApplication::activeWindow(), &other);
}

QTEST_MAIN(TestHostKeyboard)
#include "test_host_keyboard.moc"
