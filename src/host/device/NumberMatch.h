#ifndef LINKHAND_HOST_NUMBERMATCH_H
#define LINKHAND_HOST_NUMBERMATCH_H

#include <QString>

// When two numbers are those of one telephone. Any thread.
namespace NumberMatch
{

// Its digits without what stands for a trunk or a way abroad before them.
QString Digits(const QString& strNumber);

// What its telephone's numbers have in common, by the SDK; empty where that does not know.
QString Key(const QString& strNumber);

// What the digits of numbers of one telephone end with.
QString End(const QString& strDigits);

// True if two numbers, given by digits and key, are those of one telephone.
bool IsSame(const QString& strDigits, const QString& strKey, const QString& strOtherDigits, const QString& strOtherKey);

} // namespace NumberMatch

#endif // LINKHAND_HOST_NUMBERMATCH_H
