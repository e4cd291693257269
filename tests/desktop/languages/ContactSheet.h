#ifndef LINKHAND_TESTS_CONTACTSHEET_H
#define LINKHAND_TESTS_CONTACTSHEET_H

#include <QImage>
#include <QList>

#include "Director.h"

// Joins pictures to one, each under its name.
namespace ContactSheet
{

// Large windows are drawn at half their size.
QImage Join(const QList<Shot>& listShots);

} // namespace ContactSheet

#endif // LINKHAND_TESTS_CONTACTSHEET_H
