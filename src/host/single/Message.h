#ifndef LINKHAND_HOST_SINGLE_MESSAGE_H
#define LINKHAND_HOST_SINGLE_MESSAGE_H

#include <QByteArray>
#include <QStringList>

// What one start of the program tells the one that runs: "linkhand 1", then texts in UTF-8, each behind a zero. It ends
// with the stream. The answer is one line.
namespace Message
{

const int OCTETS_LIMIT = 256 * 1024;
const int TEXTS_LIMIT = 100;

const char* const TAKEN = "taken\n";

// Empty if it were too much.
QByteArray Of(const QStringList& lstTexts);

// False for what is no message.
bool Read(const QByteArray& octets, QStringList& lstTexts);

} // namespace Message

#endif // LINKHAND_HOST_SINGLE_MESSAGE_H
