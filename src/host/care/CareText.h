#ifndef LINKHAND_HOST_CARE_CARETEXT_H
#define LINKHAND_HOST_CARE_CARETEXT_H

#include <QString>
#include <QStringList>

// Words of the care page, and texts as the SDK gives them.
namespace CareText
{

// What a code of the SDK means to the user.
QString Explain(long nCode);

// What was done, and what ended it where the code is not 0.
QString Outcome(const QString& strDone, long nCode);

// A moment, in seconds since the beginning of 1970, as the language writes it.
QString Time(qint64 iSeconds);

// The keys of the PC's fields, in their order, and what they are called.
QStringList FieldKeys();
QString FieldTitle(const QString& strKey);

// The values of a record by those keys. Empty texts where there are none.
QStringList ValuesOf(void* pRecord);

// A number or an address as it stands in a text of the language: where that runs from right to left its plus sign, or
// the number of its house, would go behind it.
QString Number(const QString& strNumber);

// True for the fields that hold one.
bool IsNumber(const QString& strKey);

// What stands for a contact in a list: its name, else the first of its other values.
QString NameOf(const QStringList& lstValues);

} // namespace CareText

#endif // LINKHAND_HOST_CARE_CARETEXT_H
