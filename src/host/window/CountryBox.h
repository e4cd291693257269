#ifndef LINKHAND_HOST_COUNTRYBOX_H
#define LINKHAND_HOST_COUNTRYBOX_H

#include "window/LateBox.h"

// The country by which numbers without one are compared, for all programs with the same data folder from their next
// start on. Every country by its own name, no country, and whichever the system says. User-interface thread only.
class CountryBox : public LateBox
{
    Q_OBJECT

public:
    explicit CountryBox(QWidget* pParent);

    // True if the SDK in use knows of countries.
    static bool IsPossible();

    void Retranslate();

private slots:
    void OnChosen(int iIndex);
};

#endif // LINKHAND_HOST_COUNTRYBOX_H
