#ifndef LINKHAND_CORE_HYPERLINKS_H
#define LINKHAND_CORE_HYPERLINKS_H

#include <QString>

namespace HyperLinks
{

// Turns web addresses (http, https, ftp, www.), mail addresses and phone numbers of a rich text whose "<" and ">" are
// escaped into links. What is visible stays letter by letter what it was. Linear in the length of the text.
QString create(const QString& strText);

} // namespace HyperLinks

#endif // LINKHAND_CORE_HYPERLINKS_H
