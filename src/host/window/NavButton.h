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
    // From the one that takes most room to the one that takes least; a picture alone has its word in the tool tip.
    enum Form { SPACIOUS, CLOSE, PICTURE };

    NavButton(Glyphs::Glyph enGlyph, QWidget* pParent);

    void SetForm(Form enForm);
    bool IsPicture() const { return m_enForm == PICTURE; }
    QSize SizeIn(Form enForm) const;

    // Of a picture where there is no more room.
    static int LeastHeight();

    QSize sizeHint() const override { return SizeIn(m_enForm); }
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void enterEvent(QtCompat::EnterEvent* pEvent) override;
    void leaveEvent(QEvent* pEvent) override;

private:
    Glyphs::Glyph m_enGlyph;
    Form m_enForm;
};

#endif // LINKHAND_HOST_NAVBUTTON_H
