// How wide the tree's column is: as the widest text of its nodes.

#include <QTreeWidgetItemIterator>

#include "linkhand/QtCompat.h"
#include "linkhand/core/CommonUtils.h"
#include "widgets/PBTreeWidget.h"
#include "window/AddrBookDlg.h"

// A text that ends in a count.
void AddrBookDlg::setNodeCaption(QTreeWidgetItem* pItem, QString strText)
{
    if (m_bRightToLeft)
        CommonUtils::ParanthesisCorrectionForHeAndAr(strText);
    if (pItem == nullptr)
        return;
    if (isUnderEdit(pItem)) {
        // What its editor's end puts back, or takes the count from.
        if (!m_strOldGroupName.isEmpty())
            m_strOldGroupName = strText;
        return;
    }
    pItem->setText(0, strText);
    setTreeColumnWidth(pItem);
}

void AddrBookDlg::setTreeColumnWidth(QTreeWidgetItem* pItem)
{
    if (pItem == nullptr || m_ptreePhonebook == nullptr)
        return;
    const QString strText = pItem->text(0);
    int iDepth = 0;
    for (const QTreeWidgetItem* pAncestor = pItem->parent(); pAncestor != nullptr; pAncestor = pAncestor->parent())
        ++iDepth;
    // The pixel a character makes room for what hinting adds.
    const int iWidth = QtCompat::textWidth(QFontMetrics(pItem->font(0)), strText) +
                       (iDepth + 2) * m_ptreePhonebook->indentation() + strText.length();
    pItem->setToolTip(0, iWidth > m_ptreePhonebook->width() ? strText : QLatin1String(""));
    if (m_ptreePhonebook->columnWidth(0) < iWidth)
        m_ptreePhonebook->setColumnWidth(0, iWidth);
}

void AddrBookDlg::setCorrectTreeWidth()
{
    if (m_ptreePhonebook == nullptr)
        return;
    const QMargins margins = m_ptreePhonebook->contentsMargins();
    m_ptreePhonebook->setColumnWidth(0, m_ptreePhonebook->width() - margins.left() - margins.right());
    for (QTreeWidgetItemIterator it(m_ptreePhonebook); *it != nullptr; ++it)
        setTreeColumnWidth(*it);
}
