#include "widgets/PBTreeWidget.h"

#include <QColor>
#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QStringList>
#include <QTreeWidgetItemIterator>
#include <QVariant>

#include "linkhand/QtCompat.h"
#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookLogic.h"
#include "logic/ItemData.h"
#include "widgets/DragFormat.h"

namespace
{
// The identifiers that a drag carries; null if it is not one of our own.
QString draggedIds(const QMimeData* pMimeData)
{
    if (pMimeData == nullptr)
        return QString();
    QString strIds = QString::fromLatin1(pMimeData->data(dragIdsFormat()));
    const QColor colour = QVariant(pMimeData->data(dragColourFormat())).value<QColor>();
    if (!colour.isValid() || !strIds.endsWith(dragSeparator(), Qt::CaseSensitive))
        return QString();
    return strIds;
}
} // namespace

PBTreeWidget::PBTreeWidget(QWidget* pParent)
    : QTreeWidget(pParent),
      m_bCopyInLocal(false),
      m_bCreateInGroup(false),
      m_enDragMemory(PB_MEM_NONE),
      m_iDragGroupId(-1),
      m_bDropped(false),
      m_bHandleSelection(true),
      m_pitemPrevious(nullptr),
      m_iSimUsed(-1),
      m_iSimCapacity(-1),
      m_iLocalUsed(-1),
      m_iLocalCapacity(-1),
      m_iDeviceUsed(-1),
      m_iDeviceCapacity(-1),
      m_bHovering(false)
{
}

void PBTreeWidget::getGroupId(QTreeWidgetItem* pitem, _ORVA_EN_PHONEBOOK_MEMORY& enType, int& iGroupId)
{
    const TreeNodeData* pData = treeNodeData(pitem);
    if (pData == nullptr)
        return;
    enType = PB_MEM_LOCAL;
    iGroupId = 0;
    if (const AddrBookGroup* pGroup = groupOf(pData))
        iGroupId = pGroup->iGroupID;
    else
        enType = static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(pData->iMemoryOrGroup);
}

void PBTreeWidget::GetItemAtPos(QRect rect, _ORVA_EN_PHONEBOOK_MEMORY& enType, int& iGroupId, QTreeWidgetItem** ppitem)
{
    enType = PB_MEM_NONE;
    iGroupId = -1;
    for (QTreeWidgetItemIterator it(this); *it != nullptr; ++it) {
        if (!visualItemRect(*it).contains(rect, false))
            continue;
        if (ppitem != nullptr)
            *ppitem = *it;
        getGroupId(*it, enType, iGroupId);
        return;
    }
}

void PBTreeWidget::getMaxCapacity(_ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    AddrBookLogic* pLogic = AddrBookLogic::Instance();
    if (pLogic == nullptr)
        return;
    int iCapacity = 0;
    int iUsed = 0;
    pLogic->GetAddrCapacity(enMemory, iCapacity, iUsed);
    switch (enMemory) {
    case PB_MEM_SIM:
        m_iSimCapacity = iCapacity;
        m_iSimUsed = iUsed;
        break;
    case PB_MEM_ME:
        m_iDeviceCapacity = iCapacity;
        m_iDeviceUsed = iUsed;
        break;
    case PB_MEM_LOCAL:
        m_iLocalCapacity = iCapacity;
        m_iLocalUsed = iUsed;
        break;
    case PB_MEM_NONE:
        break;
    }
}

bool PBTreeWidget::isMaxContactsPresent(_ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    int iCapacity = 0;
    int iUsed = 0;
    switch (enMemory) {
    case PB_MEM_SIM:
        iCapacity = m_iSimCapacity;
        iUsed = m_iSimUsed;
        break;
    case PB_MEM_ME:
        iCapacity = m_iDeviceCapacity;
        iUsed = m_iDeviceUsed;
        break;
    case PB_MEM_LOCAL:
        iCapacity = m_iLocalCapacity;
        iUsed = m_iLocalUsed;
        break;
    case PB_MEM_NONE:
        break;
    }
    return iCapacity >= 1 && iUsed >= iCapacity;
}

bool PBTreeWidget::checkIfCreateNew(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupId)
{
    if (enMemory != PB_MEM_LOCAL)
        return false;
    return iGroupId == 0 || m_bCreateInGroup;
}

void PBTreeWidget::ItemSelectionChanged()
{
    emit itemSelectionChanged();
}

void PBTreeWidget::EndHover()
{
    if (m_bHovering)
        goBack();
}

void PBTreeWidget::goBack()
{
    if (m_pitemPrevious != nullptr)
        setCurrentItem(m_pitemPrevious);
}

void PBTreeWidget::dragEnterEvent(QDragEnterEvent* pEvent)
{
    if (pEvent == nullptr || draggedIds(pEvent->mimeData()).isEmpty())
        return;
    pEvent->acceptProposedAction();
    pEvent->accept();
    m_bHovering = true;
    // Asked for once a drag, so that the hover itself stays free of SDK calls.
    getMaxCapacity(PB_MEM_LOCAL);
    getMaxCapacity(PB_MEM_SIM);
    getMaxCapacity(PB_MEM_ME);
    setMouseTracking(true);
}

void PBTreeWidget::dragMoveEvent(QDragMoveEvent* pEvent)
{
    if (pEvent == nullptr)
        return;
    if (!indexAt(QtCompat::dropPosition(*pEvent)).isValid()) {
        pEvent->ignore();
        goBack();
        return;
    }
    QTreeWidgetItem* pitem = nullptr;
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_NONE;
    int iGroupId = -1;
    GetItemAtPos(pEvent->answerRect(), enMemory, iGroupId, &pitem);
    const bool bIsSource = enMemory == m_enDragMemory && iGroupId == m_iDragGroupId;
    if (bIsSource || isMaxContactsPresent(enMemory)) {
        pEvent->ignore();
        goBack();
    } else {
        pEvent->accept();
        if (pitem != nullptr) {
            m_bHandleSelection = false;
            setCurrentItem(pitem);
        }
    }
    if (pitem != nullptr)
        setMouseTracking(true);
}

void PBTreeWidget::dragLeaveEvent(QDragLeaveEvent* pEvent)
{
    m_bHovering = false;
    QTreeWidget::dragLeaveEvent(pEvent);
}

void PBTreeWidget::dropEvent(QDropEvent* pEvent)
{
    if (pEvent == nullptr)
        return;
    m_bHovering = false;
    pEvent->accept();
    const QString strIds = draggedIds(pEvent->mimeData());
    if (!indexAt(QtCompat::dropPosition(*pEvent)).isValid() || strIds.isEmpty()) {
        setMouseTracking(false);
        return;
    }
    const QTreeWidgetItem* pitem = itemAt(QtCompat::dropPosition(*pEvent));
    if (pitem == nullptr)
        return;
    // Only roots are tested again: a group of a full memory is refused by the hover alone.
    const TreeNodeData* pData = treeNodeData(pitem);
    if (pData != nullptr && !isGroupValue(pData->iMemoryOrGroup) &&
        isMaxContactsPresent(static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(pData->iMemoryOrGroup))) {
        setCurrentItem(m_pitemPrevious);
        return;
    }
    takeDroppedIds(strIds);
    m_bCopyInLocal = (QtCompat::dropModifiers(*pEvent) & Qt::ControlModifier) != 0;
    // The current node is the one that was lit last, whatever lies below the mouse now.
    emit itemEntered(currentItem(), 0);
}

void PBTreeWidget::takeDroppedIds(const QString& strIds)
{
    m_bDropped = true;
    m_enDragMemory = PB_MEM_NONE;
    m_iDragGroupId = -1;
    m_listDragData.clear();
    const QStringList lstPieces = strIds.split(dragSeparator());
    for (const QString& strPiece : lstPieces) {
        if (!strPiece.isEmpty())
            m_listDragData.append(strPiece);
    }
}

void PBTreeWidget::keyPressEvent(QKeyEvent* pEvent)
{
    if (pEvent != nullptr && !CommonUtils::IsShuttingDown())
        QTreeView::keyPressEvent(pEvent);
}

void PBTreeWidget::currentGroup(_ORVA_EN_PHONEBOOK_MEMORY& enMemory, int& iGroupId)
{
    enMemory = PB_MEM_NONE;
    iGroupId = -1;
    getGroupId(currentItem(), enMemory, iGroupId);
}

void PBTreeWidget::OnShortKeyRenameGroup()
{
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_NONE;
    int iGroupId = -1;
    currentGroup(enMemory, iGroupId);
    if (enMemory == PB_MEM_LOCAL && iGroupId >= 1)
        emit renameGroup();
}

void PBTreeWidget::OnShortKeyNewGroup()
{
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_NONE;
    int iGroupId = -1;
    currentGroup(enMemory, iGroupId);
    if (checkIfCreateNew(enMemory, iGroupId))
        emit newGroup();
}

void PBTreeWidget::OnShortKeyDelGroup()
{
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_NONE;
    int iGroupId = -1;
    currentGroup(enMemory, iGroupId);
    if (iGroupId > 0)
        emit deleteGroup();
}

void PBTreeWidget::OnSendMMS()
{
    if (hasFocus())
        emit sendMmsMessage();
}

void PBTreeWidget::OnSendSMS()
{
    if (hasFocus())
        emit sendMessage();
}
