#include "messages/Outbox.h"

#include <QFile>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

// XML 1.0 has no place for most control characters, lone surrogates and the two non-characters.
QString storable(const QString& strText)
{
    QString strResult;
    strResult.reserve(strText.length());
    for (int i = 0; i < strText.length(); ++i) {
        const QChar c = strText.at(i);
        if (c.isHighSurrogate() && i + 1 < strText.length() && strText.at(i + 1).isLowSurrogate()) {
            strResult += c;
            strResult += strText.at(++i);
        } else if (c == QLatin1Char('\n') || c == QLatin1Char('\t') ||
                   (c.unicode() >= 0x20 && c.unicode() < 0xfffe && !c.isHighSurrogate() && !c.isLowSurrogate())) {
            strResult += c;
        }
    }
    return strResult;
}

} // namespace

Outbox::Outbox(const QString& strFile, QObject* pParent)
    : QObject(pParent), m_strFile(strFile), m_iNextId(1), m_bDamaged(false)
{
    if (QFile::exists(m_strFile) && !load()) {
        m_bDamaged = true;
        m_listEntries.clear();
        m_iNextId = 1;
        const QString strAside = m_strFile + QLatin1String(".damaged");
        QFile::remove(strAside);
        QFile::rename(m_strFile, strAside);
    }
}

bool Outbox::Add(const OutgoingMessage& message)
{
    OutboxEntry entry;
    entry.iId = m_iNextId;
    entry.time = QDateTime::currentDateTime();
    entry.message = message;
    entry.message.strSubject = storable(message.strSubject);
    entry.message.strText = storable(message.strText);
    for (int i = 0; i < entry.message.lstNumbers.size(); ++i) {
        entry.message.lstNumbers[i] = storable(entry.message.lstNumbers.at(i));
    }
    m_listEntries.append(entry);
    if (!save()) {
        m_listEntries.removeLast();
        return false;
    }
    ++m_iNextId;
    emit changed();
    return true;
}

bool Outbox::Remove(int iId)
{
    for (int i = 0; i < m_listEntries.size(); ++i) {
        if (m_listEntries.at(i).iId == iId) {
            const OutboxEntry entry = m_listEntries.takeAt(i);
            if (!save()) {
                m_listEntries.insert(i, entry);
                return false;
            }
            emit changed();
            return true;
        }
    }
    return false;
}

bool Outbox::load()
{
    QFile file(m_strFile);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    QXmlStreamReader reader(&file);
    if (!reader.readNextStartElement() || reader.name() != QLatin1String("outbox")) {
        return false;
    }
    while (reader.readNextStartElement()) {
        if (reader.name() != QLatin1String("message") || !readEntry(reader)) {
            return false;
        }
    }
    return !reader.hasError();
}

bool Outbox::readEntry(QXmlStreamReader& reader)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    OutboxEntry entry;
    bool bKind = false;
    entry.iId = m_iNextId++;
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
    m_listEntries.append(entry);
    return bKind && entry.time.isValid() && !reader.hasError();
}

// Writes a new file and puts it in the place of the old one, so that a crash leaves the one or the other.
bool Outbox::save() const
{
    const QString strNew = m_strFile + QLatin1String(".new");
    QFile file(strNew);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        return false;
    }
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    QXmlStreamWriter writer(&file);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QLatin1String("outbox"));
    foreach (const OutboxEntry& entry, m_listEntries) {
        writer.writeStartElement(QLatin1String("message"));
        writer.writeAttribute(QLatin1String("kind"), QString::number(entry.message.iKind));
        writer.writeAttribute(QLatin1String("time"), entry.time.toString(Qt::ISODate));
        foreach (const QString& strNumber, entry.message.lstNumbers) {
            writer.writeTextElement(QLatin1String("to"), strNumber);
        }
        writer.writeTextElement(QLatin1String("subject"), entry.message.strSubject);
        writer.writeTextElement(QLatin1String("text"), entry.message.strText);
        writer.writeEndElement();
    }
    writer.writeEndDocument();
    const bool bWritten = file.flush() && file.error() == QFile::NoError && fsync(file.handle()) == 0;
    file.close();
    return bWritten &&
           std::rename(QFile::encodeName(strNew).constData(), QFile::encodeName(m_strFile).constData()) == 0;
}
