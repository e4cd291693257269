#include "Closer.h"

#include <QApplication>
#include <QTableWidget>

#include <cstdio>

Closer::Closer(QObject* pParent) : QObject(pParent)
{
    startTimer(20);
}

void Closer::timerEvent(QTimerEvent* pEvent)
{
    for (QWidget* pWidget : QApplication::allWidgets()) {
        QTableWidget* pTable = qobject_cast<QTableWidget*>(pWidget);
        if (pTable != nullptr && pTable->isVisible() && pTable->columnCount() > 3) {
            killTimer(pEvent->timerId());
            std::puts("the phonebook was shown, then closed");
            std::fflush(stdout);
            QApplication::closeAllWindows();
            return;
        }
    }
}

// Begins with the program's own application object.
static void startCloser()
{
    new Closer(QCoreApplication::instance());
}
Q_COREAPP_STARTUP_FUNCTION(startCloser)
