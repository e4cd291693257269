#ifndef LINKHAND_HOST_GLYPHS_H
#define LINKHAND_HOST_GLYPHS_H

#include <QColor>
#include <QIcon>
#include <QPainter>
#include <QRectF>

// The host's own pictures, drawn as lines in any colour and size, so that they are crisp on every screen and readable
// on a light and a dark background.
namespace Glyphs
{

enum Glyph { PHONEBOOK, MESSAGES, CALLS, CARE, PREFERENCES, DEVICE, LANGUAGE, WARNING, OTHER };

// Draws the glyph into rect, keeping it square.
void Draw(QPainter& painter, const QRectF& rect, Glyph enGlyph, const QColor& color);

// The same as an icon, at 16 to 128 pixels.
QIcon Icon(Glyph enGlyph, const QColor& color);

} // namespace Glyphs

#endif // LINKHAND_HOST_GLYPHS_H
