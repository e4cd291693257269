#ifndef TESTS_UNIT_SIBLINGS_MENUCHOOSER_H
#define TESTS_UNIT_SIBLINGS_MENUCHOOSER_H

#include <QApplication>
#include <QMenu>
#include <QTimerEvent>
#include <QtTest>

// Chooses an entry of the next menu that opens.
class MenuChooser : public QObject
{
public:
    explicit MenuChooser(int iEntry) : m_iEntry(iEntry) { startTimer(10); }

protected:
    void timerEvent(QTimerEvent* pEvent) override
    {
        QMenu* pMenu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (pMenu != nullptr) {
            killTimer(pEvent->timerId());
            pMenu->setActiveAction(pMenu->actions().at(m_iEntry));
            QTest::keyClick(pMenu, Qt::Key_Return);
        }
    }

private:
    const int m_iEntry;
};

#endif // TESTS_UNIT_SIBLINGS_MENUCHOOSER_H
