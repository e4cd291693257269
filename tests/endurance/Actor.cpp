#include "Actor.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QtTest>

namespace
{
// The user's own timer is none of a test's business.
bool isForbidden(const QAbstractButton* button)
{
    return button->objectName() == "linkhand_Care_sync_timer";
}
} // namespace

QString Actor::nameOf(const QWidget* widget)
{
    return QString::fromLatin1(widget->metaObject()->className()) + " " + widget->objectName();
}

void Actor::typeInto(QWidget* widget)
{
    static const char* const s_texts[] = {"a", "An", "170", "+49 30", "x,y;\"z\"", "\xD0\x9E", "\xF0\x9F\x98\x80",
                                          "*#"};
    const QString text = QString::fromUtf8(s_texts[below(8)]);
    say("type " + text + " into " + nameOf(widget));
    const QPointer<QWidget> still(widget);
    for (const QChar letter : text) {
        if (still.isNull() || !still->isVisible())
            return;
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
        QApplication::sendEvent(still, &press);
        if (still.isNull())
            return;
        QKeyEvent release(QEvent::KeyRelease, 0, Qt::NoModifier, QString(letter));
        QApplication::sendEvent(still, &release);
    }
}

void Actor::clickButtonOf(QWidget* window)
{
    QList<QAbstractButton*> usable;
    for (QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
        if (button->isVisible() && button->isEnabled() && button->window() == window->window() && !isForbidden(button))
            usable << button;
    }
    if (usable.isEmpty())
        return;
    QAbstractButton* button = usable.at(below(usable.size()));
    say("button " + button->text() + " " + nameOf(button) + " in " + nameOf(window));
    QTest::mouseClick(button, Qt::LeftButton);
}

void Actor::clickInto(QAbstractItemView* view, const QPoint& at, Qt::MouseButton button, Qt::KeyboardModifiers keys)
{
    const QPointer<QWidget> viewport(view->viewport());
    if (chance(10)) {
        QTest::mouseClick(viewport, Qt::LeftButton, keys, at);
        if (!viewport.isNull())
            QTest::mouseDClick(viewport, Qt::LeftButton, keys, at);
        return;
    }
    QTest::mouseClick(viewport, button, keys, at);
}
