#ifndef ADDRBOOKUIPLUGIN_NOTICES_H
#define ADDRBOOKUIPLUGIN_NOTICES_H

#include <QList>
#include <QString>

#include "logic/AddrBookTypes.h"

class QObject;

// What the phonebook tells its siblings through the notification service, in the codes of linkhand/plugin/Codes.h.
// Without the service nobody is told. User-interface thread.
namespace Notices
{

// pPlugin is what the container has for the service; null is nobody.
void broadcast(QObject* pPlugin, unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2);

void push(unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2);

// The numbers of records that are worth a notice: a record for each, with its phone fields that hold something.
QList<AddrBookRecord> numbersOf(const QList<AddrBookRecord>& lstRecords, const QList<AddrBookField>& lstFields);

// Tells of each number of the records that wait under this identifier, and takes them off the list.
void announce(QList<AddrBookRecord>& lstNumbers, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iRecordId, unsigned int uiMsg);

// A number as a notice carries it: 0 for one that does not fit or begins with a plus sign.
int numberIn(const QString& strValue);

} // namespace Notices

#endif // ADDRBOOKUIPLUGIN_NOTICES_H
