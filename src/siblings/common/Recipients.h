#ifndef LINKHAND_SIBLINGS_RECIPIENTS_H
#define LINKHAND_SIBLINGS_RECIPIENTS_H

#include <QString>
#include <QStringList>

// Recipients as one line of text, separated by ";".
namespace Recipients
{

// The numbers of a line, without blanks at their ends and without empty ones; a comma separates as well.
QStringList Split(const QString& strLine);

QString Join(const QStringList& lstNumbers);

// A number with its contact's name before it, for reading; the number alone without a name. Each keeps its own
// direction.
QString WithName(const QString& strNumber, const QString& strName);

// True for digits with "+" before them, "*" and "#" among them, and what people write between digits.
bool IsNumber(const QString& strNumber);

} // namespace Recipients

#endif // LINKHAND_SIBLINGS_RECIPIENTS_H
