#ifndef TESTS_ENDURANCE_PAGECHECK_H
#define TESTS_ENDURANCE_PAGECHECK_H

#include <QString>

class MainWindow;

// Whether the pages beside the phonebook show what the stores hold. Only for a program at rest, as ScreenCheck.
namespace PageCheck
{
// Turns to each page, looks through whole lists, and ends where it began. Empty if all agree, else what does not.
QString run(MainWindow& window);
} // namespace PageCheck

#endif // TESTS_ENDURANCE_PAGECHECK_H
