#ifndef ADDRBOOKUIPLUGIN_BATCHTEXTS_H
#define ADDRBOOKUIPLUGIN_BATCHTEXTS_H

#include <QString>

#include "logic/AddrBookTypes.h"

// What the user is told of a batch, in the language of the moment. Empty where he is told nothing.
namespace BatchTexts
{

// The identifier of the text beside the moving bar.
const char* progress(_ADDRBOOK_OPERATION_TYPE enOperation);

// The memory became full after so many records.
QString full(_ADDRBOOK_OPERATION_TYPE enOperation, int iSuccess);

// The end. Between two groups of one memory nobody waited, and nothing is told of a copy.
QString importEnd(int iTotal, int iSuccess);
QString copyEnd(_ADDRBOOK_OPERATION_TYPE enOperation, _ORVA_EN_PHONEBOOK_MEMORY enSource,
                _ORVA_EN_PHONEBOOK_MEMORY enTarget, int iTotal, int iSuccess);

} // namespace BatchTexts

#endif // ADDRBOOKUIPLUGIN_BATCHTEXTS_H
