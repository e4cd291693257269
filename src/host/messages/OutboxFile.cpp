#include "messages/OutboxFile.h"

#include <QXmlStreamReader>

namespace
{

// Reads one message, whose start element is current. False if it is not whole.
bool readEntry(QXmlStreamReader& reader, OutboxFile::Entry& entry)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    bool bKind = false;
    entry.time = QDateTime::fromString(attributes.value(QLatin1String("time")).toString(), Qt::ISODate);
    entry.message.iKind = attributes.value(QLatin1String("kind")).toString().toInt(&bKind);
    while (reader.readNextStartElement()) {
        const QString strElement = reader.name().toString();
        const QString strValue = reader.readElementText();
        if (strElement == QLatin1String("to")) {
            entry.message.lstNumbers.append(strValue);
        } else if (strElement == QLatin1String("subject")) {
            entry.message.strSubject = strValue;
        } else if (strElement == QLatin1String("text")) {
            entry.message.strText = strValue;
        }
    }
    return bKind && entry.time.isValid() && !reader.hasError();
}

bool readWhole(const QByteArray& content, QList<OutboxFile::Entry>& listEntries)
{
    QXmlStreamReader reader(content);
    if (!reader.readNextStartElement() || reader.name() != QLatin1String("outbox")) {
        return false;
    }
    while (reader.readNextStartElement()) {
        OutboxFile::Entry entry;
        if (reader.name() != QLatin1String("message") || !readEntry(reader, entry)) {
            return false;
        }
        listEntries.append(entry);
    }
    return !reader.hasError();
}

bool hasContent(const OutgoingMessage& message)
{
    return !message.lstNumbers.isEmpty() || !message.strSubject.isEmpty() || !message.strText.isEmpty();
}

// Each message by itself, so that what is broken takes nothing along but itself.
QList<OutboxFile::Entry> readParts(const QByteArray& content)
{
    const QByteArray begin = "<message";
    const QByteArray end = "</message>";
    QList<OutboxFile::Entry> listEntries;
    int iBegin = content.indexOf(begin);
    while (iBegin >= 0) {
        const int iNext = content.indexOf(begin, iBegin + begin.size());
        const int iEnd = content.indexOf(end, iBegin);
        if (iEnd >= 0 && (iNext < 0 || iEnd < iNext)) {
            QXmlStreamReader reader(content.mid(iBegin, iEnd + end.size() - iBegin));
            OutboxFile::Entry entry;
            // One without a time or a kind is still a message.
            if (reader.readNextStartElement() && (readEntry(reader, entry) || !reader.hasError()) &&
                hasContent(entry.message)) {
                listEntries.append(entry);
            }
        }
        iBegin = iNext;
    }
    return listEntries;
}

} // namespace

OutboxFile OutboxFile::Read(const QByteArray& content)
{
    OutboxFile file;
    if (!readWhole(content, file.listEntries)) {
        file.bDamaged = true;
        file.listEntries = readParts(content);
    }
    return file;
}
