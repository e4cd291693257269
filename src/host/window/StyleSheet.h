#ifndef LINKHAND_HOST_STYLESHEET_H
#define LINKHAND_HOST_STYLESHEET_H

#include <QPalette>
#include <QString>

// The look of the host's windows, made from the palette so that it follows a light or a dark theme.
namespace StyleSheet
{

QString Build(const QPalette& palette);

} // namespace StyleSheet

#endif // LINKHAND_HOST_STYLESHEET_H
