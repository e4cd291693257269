#ifndef LINKHAND_TESTS_STEPS_H
#define LINKHAND_TESTS_STEPS_H

#include <QList>
#include <QString>

// What a document tells its reader to do by the keyboard: `Ctrl+N` is pressed, "Ada" is typed, *New contact* is what
// shows then, and `Tab` to *Mobile* is pressed until that has the keyboard. The words between are for the reader.
struct Step {
    enum Kind { PRESS, PRESS_UNTIL, TYPE, SEE };
    Kind enKind;
    QString strKey; // in xdotool's names
    QString strText;

    QString Told() const;
};

struct Task {
    QString strTitle;
    QList<Step> listSteps;
};

namespace Steps
{

// The tasks of a chapter, each with a heading of its own below the chapter's.
QList<Task> Read(const QString& strFile, const QString& strChapter);

} // namespace Steps

#endif // LINKHAND_TESTS_STEPS_H
