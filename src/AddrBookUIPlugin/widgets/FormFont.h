#ifndef ADDRBOOKUIPLUGIN_FORMFONT_H
#define ADDRBOOKUIPLUGIN_FORMFONT_H

class QHeaderView;
class QWidget;

// Both make a font small enough, so that a desktop with large fonts does not cut texts off. A font that fits stays.
// User-interface thread only.

// For the size of the form's window, which is fixed, and for the sizes that labels, buttons and columns in it were
// given.
void fitFontToForm(QWidget* pform);

// For columns of fixed widths: no title is shortened.
void fitFontToColumns(QHeaderView* pheader);

#endif // ADDRBOOKUIPLUGIN_FORMFONT_H
