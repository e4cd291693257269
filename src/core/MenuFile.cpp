#include "MenuFile.h"

#include <QFile>
#include <QSet>
#include <QXmlStreamReader>
#include <QtDebug>

namespace
{

const int s_iMaxFileSize = 1024 * 1024;
// An entry stands three deep. The reader of Qt 6 takes the square of the depth in time.
const int s_iMaxDepth = 100;

QString attribute(const QXmlStreamReader& reader, const char* szName)
{
    return reader.attributes().value(QLatin1String(szName)).toString();
}

bool isSet(const QXmlStreamReader& reader, const char* szName)
{
    return attribute(reader, szName) == QLatin1String("true");
}

void readTool(const QXmlStreamReader& reader, MenuFile& file)
{
    bool bIsNumber = false;
    MenuFile::Tool tool;
    tool.iId = attribute(reader, "id").toInt(&bIsNumber);
    tool.strTip = attribute(reader, "tip");
    tool.strIcon = attribute(reader, "icon");
    tool.bSearch = isSet(reader, "search");
    if (bIsNumber)
        file.lstTools.append(tool);
}

void readMenu(const QXmlStreamReader& reader, MenuFile& file)
{
    MenuFile::Menu menu;
    menu.strName = attribute(reader, "name");
    // A menu of another type takes its entries along, so that they do not end up in the menu above it.
    if (attribute(reader, "type") == QLatin1String("POPUP"))
        menu.strParent = attribute(reader, "parent");
    file.lstMenus.append(menu);
}

void readItem(const QXmlStreamReader& reader, int iPlace, MenuFile& file)
{
    const QString strType = attribute(reader, "type");
    MenuFile::Item item;
    item.iPlace = iPlace;
    item.strId = attribute(reader, "id");
    item.bOpensSubmenu = strType == QLatin1String("POPUP");
    item.strSubmenu = item.bOpensSubmenu ? attribute(reader, "name") : QString();
    item.bSeparatorAbove = isSet(reader, "separator");
    if (item.strId.isEmpty() || (!item.bOpensSubmenu && strType != QLatin1String("ITEM")))
        return;
    if (!file.lstMenus.isEmpty())
        file.lstMenus.last().lstItems.append(item);
}

} // namespace

bool MenuFile::read(const QString& strFile)
{
    QFile file(strFile);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("menu file \"%s\": %s", qPrintable(strFile), qPrintable(file.errorString()));
        return false;
    }
    QXmlStreamReader reader(file.read(s_iMaxFileSize));
    int iPlace = 0;
    int iDepth = 0;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType enToken = reader.readNext();
        // Entities of a document type could grow without bounds.
        if (enToken == QXmlStreamReader::DTD)
            reader.raiseError(QLatin1String("a document type is not allowed"));
        if (enToken == QXmlStreamReader::EndElement)
            --iDepth;
        if (enToken != QXmlStreamReader::StartElement)
            continue;
        if (++iDepth > s_iMaxDepth)
            reader.raiseError(QLatin1String("nested too deep"));
        if (reader.name() == QLatin1String("toolbar"))
            bSubGroups = isSet(reader, "subgroups");
        else if (reader.name() == QLatin1String("toolitem"))
            readTool(reader, *this);
        else if (reader.name() == QLatin1String("menu"))
            readMenu(reader, *this);
        else if (reader.name() == QLatin1String("item"))
            readItem(reader, iPlace++, *this);
    }
    if (reader.hasError()) {
        qWarning("menu file \"%s\", line %lld: %s", qPrintable(strFile), reader.lineNumber(),
                 qPrintable(reader.errorString()));
    }
    return true;
}

int MenuFile::topMenu(const QString& strParent) const
{
    QSet<QString> named;
    for (const Menu& menu : lstMenus) {
        if (menu.strParent != strParent)
            continue;
        for (const Item& item : menu.lstItems) {
            if (item.bOpensSubmenu)
                named.insert(item.strSubmenu);
        }
    }
    for (int i = 0; i < lstMenus.size(); ++i) {
        const Menu& menu = lstMenus.at(i);
        if (menu.strParent == strParent && (menu.strName.isEmpty() || !named.contains(menu.strName)))
            return strParent.isEmpty() ? -1 : i;
    }
    return -1;
}

int MenuFile::submenu(int iMenu, const QString& strName) const
{
    for (int i = iMenu + 1; i < lstMenus.size(); ++i) {
        if (lstMenus.at(i).strName == strName && lstMenus.at(i).strParent == lstMenus.at(iMenu).strParent)
            return i;
    }
    return -1;
}
