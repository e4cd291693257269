#ifndef LINKHAND_HOST_STYLESHEET_H
#define LINKHAND_HOST_STYLESHEET_H

#include <QFont>
#include <QPalette>
#include <QString>

// The look of the windows, the phonebook's among them, by their object names; made from the desktop's palette and font,
// so that it follows a light or a dark theme and the size of letters.
namespace StyleSheet
{

QString Build(const QPalette& palette, const QFont& font);

// The palette with a link colour that can be read on its background; some dark themes leave Qt's dark blue.
QPalette WithLegibleLinks(QPalette palette);

// The palette without the light shade that some styles put behind disabled texts; on a dark ground it blurs them.
QPalette WithPlainDisabledTexts(QPalette palette);

} // namespace StyleSheet

#endif // LINKHAND_HOST_STYLESHEET_H
