#ifndef ADDRBOOKUIPLUGIN_TREENODES_H
#define ADDRBOOKUIPLUGIN_TREENODES_H

#include <QHash>
#include <QIcon>
#include <QList>
#include <QString>

#include "logic/AddrBookTypes.h"

class QTreeWidget;
class QTreeWidgetItem;

// The nodes of the window's tree: a memory or a group, with a TreeNodeData behind it that Qt knows nothing of.
namespace TreeNodes
{

// The frames of the strip of pictures that are used. The one behind the memory's is its selected picture.
enum Frame { FRAME_MEMORY = 0, FRAME_MEMORY_SELECTED = 1, FRAME_GROUP = 6 };

// The strip's place below the folder of plug-ins.
QString pictures();

// Adds the pictures of a frame to an icon. In a right-to-left layout the selected picture of a memory turns.
void addPictures(const QString& strFile, int iFrame, bool bRightToLeft, QIcon& icon);

// The picture and the size of a node.
void setLook(QTreeWidgetItem* pitem, Frame enFrame, bool bRightToLeft);

// "(n)" or "(n/m)"; a count that is not known shows as 0.
QString countText(int iCount);
QString countText(int iUsed, int iTotal);

// Frees all groups but one of each identifier, and those that have none: then no group can be its own ancestor, and
// none becomes two nodes.
QList<AddrBookGroup*> distinct(const QList<AddrBookGroup*>& lstGroups);

// Frees the groups that became no node of the tree, such as those below a parent that is not there.
void freeLeftOver(QTreeWidget* ptree, const QList<AddrBookGroup*>& lstGroups);

// Brings the groups below a node up to date with those there are now, by identifier: nodes of groups that went or that
// lie elsewhere now go, the others take their group's name. Gives those that have a node, and the node itself under 0.
QHash<int, QTreeWidgetItem*> dropGone(QTreeWidgetItem* pitem, const QHash<int, AddrBookGroup*>& hashGroups);

// Frees what is behind a node, and what is below it.
void freeData(const QTreeWidgetItem* pitem);
void freeBelow(QTreeWidgetItem* pitem);

} // namespace TreeNodes

#endif // ADDRBOOKUIPLUGIN_TREENODES_H
