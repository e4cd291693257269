#ifndef LINKHAND_HOST_COPYOFFER_H
#define LINKHAND_HOST_COPYOFFER_H

class QWidget;

namespace CopyOffer
{

// Before a modem takes the place of the simulated card and device: asks whether what they hold is to be copied to the
// PC, and does so. Nothing is asked if the PC has all of it. False if the user would rather leave the hardware as it
// is, or the copy failed, of which the user has been told.
bool Settle(QWidget* pParent);

} // namespace CopyOffer

#endif // LINKHAND_HOST_COPYOFFER_H
