#include "window/UsageFile.h"

#include <QDate>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QTextStream>
#include <QTime>
#include <QXmlStreamWriter>

#include "logic/Log.h"

namespace
{

const char* const PHONEBOOK_ITEM = "PB01";

// The permission that the file's reader expects, and no other: whoever may not override it cannot open it again.
void setUsagePermissions(QFile& file)
{
    file.setPermissions(QFile::WriteOther);
}

bool createUsageFile(const QString& strFile, const QString& strTime)
{
    QFile file(strFile);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Text)) {
        ADDRBOOK_LOG("Error open file: ");
        return false;
    }
    setUsagePermissions(file);
    QXmlStreamWriter writer(&file);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QLatin1String("Client"));
    writer.writeAttribute(QLatin1String("version"), QLatin1String("1.0"));
    writer.writeAttribute(QLatin1String("entity"), QLatin1String("agent"));
    writer.writeStartElement(QLatin1String("Item"));
    writer.writeAttribute(QLatin1String("itemname"), QLatin1String(PHONEBOOK_ITEM));
    writer.writeTextElement(QLatin1String("LogStartTime"), strTime);
    writer.writeTextElement(QLatin1String("ReportType"), QLatin1String("2"));
    writer.writeTextElement(QLatin1String("PBisUsing"), QLatin1String("1"));
    writer.writeEndElement();
    writer.writeEndElement();
    writer.writeEndDocument();
    file.close();
    ADDRBOOK_LOG("The file is not exist,init write success!");
    return true;
}

QDomElement textElement(QDomDocument& document, const QString& strTag, const QString& strText)
{
    QDomElement element = document.createElement(strTag);
    element.appendChild(document.createTextNode(strText));
    return element;
}

QDomElement findItem(const QDomElement& root, const QString& strItem)
{
    for (QDomNode node = root.firstChild(); !node.isNull(); node = node.nextSibling()) {
        const QDomElement element = node.toElement();
        if (!element.isNull() && element.attribute(QLatin1String("itemname")) == strItem)
            return element;
    }
    return QDomElement();
}

void appendItem(QDomDocument& document, const QString& strItem, const QString& strName, const QString& strValue,
                const QString& strTime)
{
    ADDRBOOK_LOG("The add item not exist,add a new item to the file!");
    QDomElement item = document.createElement(QLatin1String("Item"));
    item.setAttribute(QLatin1String("itemname"), strItem);
    if (strItem == QLatin1String(PHONEBOOK_ITEM)) {
        item.appendChild(textElement(document, QLatin1String("LogStartTime"), strTime));
        item.appendChild(textElement(document, QLatin1String("ReportType"), QLatin1String("2")));
        item.appendChild(textElement(document, QLatin1String("PBisUsing"), QLatin1String("1")));
    } else {
        item.appendChild(textElement(document, strName, strValue));
    }
    document.documentElement().appendChild(item);
}

void updateItem(QDomDocument& document, QDomElement item, const QString& strName, const QString& strValue)
{
    const QDomElement replacement = textElement(document, strName, strValue);
    const QDomElement present = item.firstChildElement(strName);
    if (present.isNull())
        item.appendChild(replacement);
    else
        item.replaceChild(replacement, present);
}

} // namespace

UsageFile::Paths UsageFile::pathsBeside(const QString& strLogFolder)
{
    Paths paths;
    if (strLogFolder.isNull())
        return paths;
    // The log folder ends in a separator: off with it, then off with the folder's own name.
    QString strPath = strLogFolder.left(strLogFolder.lastIndexOf(QLatin1Char('/')));
    strPath = strPath.left(strPath.lastIndexOf(QLatin1Char('/')) + 1);
    paths.strFolder = strPath + QLatin1String("OnlineUpdate/UpdateInfo");
    paths.strFile = strPath + QLatin1String("OnlineUpdate/UpdateInfo/kpi-pb.dat");
    return paths;
}

// The content with the item's element in it. False if it is no XML.
bool UsageFile::rewrite(const QByteArray& baBefore, const QStringList& lstArguments, const QString& strTime,
                        QByteArray& baAfter)
{
    if (m_baBefore == baBefore && m_lstArguments == lstArguments) {
        baAfter = m_baAfter;
        return true;
    }
    QDomDocument document;
    if (!document.setContent(baBefore))
        return false;
    const QDomElement item = findItem(document.documentElement(), lstArguments.at(0));
    if (item.isNull())
        appendItem(document, lstArguments.at(0), lstArguments.at(1), lstArguments.at(2), strTime);
    else
        updateItem(document, item, lstArguments.at(1), lstArguments.at(2));
    QTextStream stream(&baAfter, QIODevice::WriteOnly);
    document.save(stream, 4);
    stream.flush();
    // A new item holds the time and is made but once.
    if (!item.isNull()) {
        m_lstArguments = lstArguments;
        m_baBefore = baBefore;
        m_baAfter = baAfter;
    }
    return true;
}

bool UsageFile::note(const QString& strLogFolder, const QString& strItem, const QString& strName,
                     const QString& strValue)
{
    ADDRBOOK_LOG_ENTER();
    const QString strTime =
        QDate::currentDate().toString(Qt::ISODate) + QLatin1Char(' ') + QTime::currentTime().toString(Qt::TextDate);
    const Paths paths = pathsBeside(strLogFolder);
    // Makes the last level only; the folder above is the host's.
    if (!QDir(paths.strFolder).exists())
        QDir().mkdir(paths.strFolder);
    if (!QFile::exists(paths.strFile) && !createUsageFile(paths.strFile, strTime))
        return false;

    QFile file(paths.strFile);
    if (!file.open(QIODevice::ReadWrite)) {
        ADDRBOOK_LOG("Error open file: ");
        return false;
    }
    setUsagePermissions(file);
    QByteArray baAfter;
    const bool bParsed = rewrite(file.readAll(), QStringList() << strItem << strName << strValue, strTime, baAfter);
    file.close();
    if (!bParsed) {
        ADDRBOOK_LOG("Error set file: ");
        return false;
    }

    // Written over and cut at the end, not emptied first: a file system that guards against lost rewrites flushes an
    // emptied file to the disk at once, which for each contact of a drop costs more than everything else together.
    QFile output(paths.strFile);
    if (!output.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return false;
    setUsagePermissions(file);
    output.write(baAfter);
    output.resize(baAfter.size());
    output.close();
    ADDRBOOK_LOG_EXIT();
    return true;
}
