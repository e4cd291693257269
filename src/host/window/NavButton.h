#ifndef LINKHAND_HOST_NAVBUTTON_H
#define LINKHAND_HOST_NAVBUTTON_H

#include <QAbstractButton>

#include "linkhand/QtCompat.h"
#include "window/Glyphs.h"

// A button of the side bar: a picture over a word. Paints itself from the palette.
class NavButton : public QAbstractButton
{
    Q_OBJECT

public:
    NavButton(Glyphs::Glyph enGlyph, QWidget* pParent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void enterEvent(QtCompat::EnterEvent* pEvent) override;
    void leaveEvent(QEvent* pEvent) override;

private:
    Glyphs::Glyph m_enGlyph;
};

#endif // LINKHAND_HOST_NAVBUTTON_H
