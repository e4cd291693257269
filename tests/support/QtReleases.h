#ifndef LINKHAND_TESTS_QTRELEASES_H
#define LINKHAND_TESTS_QTRELEASES_H

#include <QtGlobal>

// Where the Qt releases differ in what a test can see, and how. What the product does about their differences stands in
// include/linkhand/QtCompat.h.
namespace QtReleases
{

// Whether a dialog that is closed as it is rejected lets filters and its closeEvent see that. Qt 6 closes each dialog
// as it ends and keeps the event to itself; one that is deleted on close goes with either.
constexpr bool closeOfARejectedDialogIsSeen = QT_VERSION < 0x060000;

// Whether a list scrolls by itself after a drag that began beside its edge. Qt 6 tells that as movements of the mouse.
constexpr bool listScrollsAfterADrag = QT_VERSION >= 0x060000;

} // namespace QtReleases

#endif // LINKHAND_TESTS_QTRELEASES_H
