#include "device/HardwareChoice.h"

#include "linkhand/SdkText.h"
#include "orva/orva_modem.h"
#include "orva/orva_sim.h"

// Null where the SDK in use does not have them.
#pragma weak ORVA_Modem_GetHardware
#pragma weak ORVA_Modem_IsChosen
#pragma weak ORVA_Modem_SetHardware
#pragma weak ORVA_Sim_Reset

QString HardwareChoice::Current()
{
    SdkText choice;
    const bool bKnown = &ORVA_Modem_GetHardware != nullptr && ORVA_Modem_GetHardware(choice.out()) == ORVA_OK;
    const QString strChoice = bKnown ? choice.toString() : QString();
    return strChoice.isEmpty() ? QString(QLatin1String("simulated")) : strChoice;
}

bool HardwareChoice::IsReal()
{
    return Current() != QLatin1String("simulated");
}

QString HardwareChoice::Port()
{
    const QString strChoice = Current();
    return strChoice.startsWith(QLatin1Char('/')) ? strChoice : QString();
}

bool HardwareChoice::IsFixed()
{
    return !qgetenv("LINKHAND_MODEM").isEmpty();
}

bool HardwareChoice::IsChosen()
{
    int iChosen = 1;
    return &ORVA_Modem_IsChosen == nullptr || ORVA_Modem_IsChosen(&iChosen) != ORVA_OK || iChosen != 0;
}

bool HardwareChoice::IsKnown(const QString& strChoice)
{
    return strChoice == QLatin1String("simulated") || strChoice == QLatin1String("auto") ||
           (strChoice.startsWith(QLatin1Char('/')) && strChoice.length() > 1);
}

bool HardwareChoice::Keep(const QString& strChoice)
{
    return &ORVA_Modem_SetHardware != nullptr &&
           ORVA_Modem_SetHardware(reinterpret_cast<const unsigned short*>(strChoice.utf16())) == ORVA_OK;
}

// The SDK settles its hardware with its first call, which keeping a choice is.
bool HardwareChoice::Begin(const QString& strChoice)
{
    return Keep(strChoice) && (&ORVA_Sim_Reset == nullptr || ORVA_Sim_Reset(nullptr) == ORVA_OK);
}
