#ifndef LINKHAND_CORE_MESSAGEICON_H
#define LINKHAND_CORE_MESSAGEICON_H

#include <QMessageBox>
#include <QPicture>

// The pictures of message boxes for a desktop without an icon theme, in the colours of the tool bar's icons.
namespace MessageIcon
{

// True if the desktop brings a picture of its own for this kind of box.
bool isInTheme(QMessageBox::Icon enIcon);

// A drawing of 40 by 40 pixels, crisp on any screen; empty for a kind without a picture.
QPicture draw(QMessageBox::Icon enIcon);

} // namespace MessageIcon

#endif // LINKHAND_CORE_MESSAGEICON_H
