#include "test/ShownMark.h"

#include <QEvent>
#include <QFile>
#include <QWidget>

ShownMark::ShownMark(QWidget* pWindow)
{
    if (!qgetenv("LINKHAND_TEST_SHOWN").isEmpty()) {
        pWindow->installEventFilter(this);
    }
}

bool ShownMark::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::Paint) {
        pObject->removeEventFilter(this);
        QFile file(QFile::decodeName(qgetenv("LINKHAND_TEST_SHOWN")));
        if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write("shown\n") < 0) {
            qWarning("cannot write to %s", qgetenv("LINKHAND_TEST_SHOWN").constData());
        }
    }
    return false;
}
