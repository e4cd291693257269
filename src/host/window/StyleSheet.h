#ifndef LINKHAND_HOST_STYLESHEET_H
#define LINKHAND_HOST_STYLESHEET_H

#include <QPalette>
#include <QString>

// The look of the host's windows, made from the palette so that it follows a light or a dark theme.
namespace StyleSheet
{

QString Build(const QPalette& palette);

// The palette with a link colour that can be read on its background; some dark themes leave Qt's dark blue.
QPalette WithLegibleLinks(QPalette palette);

} // namespace StyleSheet

#endif // LINKHAND_HOST_STYLESHEET_H
