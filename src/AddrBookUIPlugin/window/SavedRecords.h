#ifndef ADDRBOOKUIPLUGIN_SAVEDRECORDS_H
#define ADDRBOOKUIPLUGIN_SAVEDRECORDS_H

#include <QHash>

#include "logic/AddrBookTypes.h"

// The contacts that the user saved while a reader of the table runs: their rows may be on their way as the contacts
// were before. User-interface thread only.
class SavedRecords
{
public:
    // A reader starts; what was saved before it is in the store for it to read.
    void Start();

    // Its last row has come.
    void End();

    // A contact has been saved, under its identifier.
    void Add(_ORVA_EN_PHONEBOOK_MEMORY enMemory, const AddrBookRecord& record);

    // Gives a record that the reader took the values that were saved since. False if none were.
    bool BringUpToDate(_ORVA_EN_PHONEBOOK_MEMORY enMemory, AddrBookRecord& record) const;

private:
    bool m_bReading = false;
    QHash<int, QHash<int, AddrBookRecord>> m_hashRecords; // by memory and identifier
};

#endif // ADDRBOOKUIPLUGIN_SAVEDRECORDS_H
