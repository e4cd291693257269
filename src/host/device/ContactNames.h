#ifndef LINKHAND_HOST_CONTACTNAMES_H
#define LINKHAND_HOST_CONTACTNAMES_H

#include <QHash>
#include <QString>
#include <QStringList>

// Who it is that calls or writes.
namespace ContactNames
{

// The name of the first contact with this number, of the PC, the card or the device; empty if there is none. A number
// with its country's code is the same as one without. Reads the whole phonebook: for single events. Any thread.
QString Of(const QString& strNumber);

// The same for many numbers in one walk; those without a contact are left out.
QHash<QString, QString> Of(const QStringList& lstNumbers);

// The name with the number behind it, or the number alone.
QString WithNumber(const QString& strNumber);

} // namespace ContactNames

#endif // LINKHAND_HOST_CONTACTNAMES_H
