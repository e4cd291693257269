#ifndef TESTS_ENDURANCE_ACTOR_H
#define TESTS_ENDURANCE_ACTOR_H

#include <QPointer>
#include <QRandomGenerator>
#include <QString>
#include <Qt>

#include "Effects.h"

class QAbstractItemView;
class QPoint;
class QWidget;

// Hands and chance of a user: what can be done to any widget, and a seeded stream that says what.
class Actor
{
public:
    explicit Actor(quint32 seed) : m_random(seed) {}

    int below(int limit) { return int(m_random.bounded(limit)); }
    bool chance(int percent) { return below(100) < percent; }

    // What was done last, for the log; empty for nothing.
    void say(const QString& text) { m_said = text; }
    const QString& said() const { return m_said; }

    Effects& effects() { return m_effects; }

    void typeInto(QWidget* widget);

    // One of the buttons that show and can be used.
    void clickButtonOf(QWidget* window);

    // Now and then twice.
    void clickInto(QAbstractItemView* view, const QPoint& at, Qt::MouseButton button, Qt::KeyboardModifiers keys);

    static QString nameOf(const QWidget* widget);

private:
    QRandomGenerator m_random;
    QString m_said;
    Effects m_effects;
};

#endif // TESTS_ENDURANCE_ACTOR_H
