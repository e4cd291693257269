#ifndef LINKHAND_HOST_READERQUERIES_H
#define LINKHAND_HOST_READERQUERIES_H

#include <QStringList>

// What somebody reads who uses the keyboard alone: in the window in front, its open menu included.
namespace ReaderQueries
{

// By what names the place that has the keyboard goes: its own text, that of its label, the row or entry that is
// current.
QStringList Place();

// All texts that show.
QStringList Texts();

} // namespace ReaderQueries

#endif // LINKHAND_HOST_READERQUERIES_H
