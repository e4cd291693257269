#include "window/TreeNodes.h"

#include <QPixmap>
#include <QSet>
#include <QTreeWidgetItemIterator>

#include "linkhand/core/CommonUtils.h"
#include "logic/ItemData.h"

namespace
{
const int FRAME_SIZE = 16;

QPixmap frameOf(const QPixmap& strip, int iFrame)
{
    return strip.copy(iFrame * FRAME_SIZE, 0, FRAME_SIZE, FRAME_SIZE);
}
} // namespace

QString TreeNodes::pictures()
{
    return QLatin1String("/plugins/AddrBookUIPlugin/addr_tre_images");
}

void TreeNodes::addPictures(const QString& strFile, int iFrame, bool bRightToLeft, QIcon& icon)
{
    const QPixmap strip(strFile);
    // The normal picture stays as it is drawn.
    icon.addPixmap(frameOf(strip, iFrame), QIcon::Normal, QIcon::Off);
    if (iFrame != FRAME_MEMORY) {
        icon.addPixmap(frameOf(strip, iFrame), QIcon::Selected, QIcon::Off);
        return;
    }
    QPixmap selected = frameOf(strip, FRAME_MEMORY_SELECTED);
    if (bRightToLeft)
        selected = QPixmap::fromImage(selected.toImage().mirrored(true, false));
    icon.addPixmap(selected, QIcon::Selected, QIcon::Off);
}

void TreeNodes::setLook(QTreeWidgetItem* pitem, Frame enFrame, bool bRightToLeft)
{
    QIcon icon;
    addPictures(CommonUtils::GetPluginLibraryPath() + pictures(), enFrame, bRightToLeft, icon);
    pitem->setIcon(0, icon);
    pitem->setSizeHint(0, QSize(25, 20));
}

QString TreeNodes::countText(int iCount)
{
    return QString::fromLatin1("(%1)").arg(qMax(iCount, 0));
}

QString TreeNodes::countText(int iUsed, int iTotal)
{
    return QString::fromLatin1("(%1/%2)").arg(qMax(iUsed, 0)).arg(iTotal);
}

QList<AddrBookGroup*> TreeNodes::distinct(const QList<AddrBookGroup*>& lstGroups)
{
    QList<AddrBookGroup*> lstDistinct;
    QSet<int> setIds;
    foreach (AddrBookGroup* pGroup, lstGroups) {
        if (pGroup == nullptr || pGroup->iGroupID == 0 || setIds.contains(pGroup->iGroupID)) {
            delete pGroup;
            continue;
        }
        setIds.insert(pGroup->iGroupID);
        lstDistinct.append(pGroup);
    }
    return lstDistinct;
}

void TreeNodes::freeLeftOver(QTreeWidget* ptree, const QList<AddrBookGroup*>& lstGroups)
{
    QSet<AddrBookGroup*> setTaken;
    for (QTreeWidgetItemIterator it(ptree); *it != nullptr; ++it)
        setTaken.insert(groupOf(treeNodeData(*it)));
    foreach (AddrBookGroup* pGroup, lstGroups) {
        if (!setTaken.contains(pGroup))
            delete pGroup;
    }
}

QHash<int, QTreeWidgetItem*> TreeNodes::dropGone(QTreeWidgetItem* pitem, const QHash<int, AddrBookGroup*>& hashGroups)
{
    const AddrBookGroup* pGroup = groupOf(treeNodeData(pitem));
    const int iId = pGroup != nullptr ? pGroup->iGroupID : 0;
    QHash<int, QTreeWidgetItem*> hashNodes;
    hashNodes.insert(iId, pitem);
    for (int i = pitem->childCount() - 1; i >= 0; --i) {
        AddrBookGroup* pShown = groupOf(treeNodeData(pitem->child(i)));
        const AddrBookGroup* pNow = pShown != nullptr ? hashGroups.value(pShown->iGroupID) : nullptr;
        if (pNow == nullptr || pNow->iParentID != iId) {
            QTreeWidgetItem* pitemGone = pitem->takeChild(i);
            freeBelow(pitemGone);
            freeData(pitemGone);
            delete pitemGone;
            continue;
        }
        pShown->strName = pNow->strName;
        const QHash<int, QTreeWidgetItem*> hashBelow = dropGone(pitem->child(i), hashGroups);
        for (QHash<int, QTreeWidgetItem*>::const_iterator it = hashBelow.constBegin(); it != hashBelow.constEnd(); ++it)
            hashNodes.insert(it.key(), it.value());
    }
    return hashNodes;
}

void TreeNodes::freeData(const QTreeWidgetItem* pitem)
{
    const TreeNodeData* pData = treeNodeData(pitem);
    delete groupOf(pData);
    delete pData;
}

void TreeNodes::freeBelow(QTreeWidgetItem* pitem)
{
    for (int i = pitem->childCount() - 1; i >= 0; --i) {
        QTreeWidgetItem* pitemChild = pitem->takeChild(i);
        freeBelow(pitemChild);
        freeData(pitemChild);
        delete pitemChild;
    }
}
