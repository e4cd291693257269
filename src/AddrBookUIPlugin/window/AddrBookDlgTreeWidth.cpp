// How wide the tree's column is: as the widest text of its nodes.

#include <QTreeWidgetItemIterator>

#include "linkhand/QtCompat.h"
#include "linkhand/core/CommonUtils.h"
#include "widgets/PBTreeWidget.h"
#include "window/AddrBookDlg.h"

// A text that ends in a count.
void AddrBookDlg::setNodeCaption(QTreeWidgetItem* pitem, QString strText)
{
    if (m_bRightToLeft)
        CommonUtils::ParanthesisCorrectionForHeAndAr(strText);
    if (pitem == nullptr)
        return;
    if (isUnderEdit(pitem)) {
        // What its editor's end puts back, or takes the count from.
        if (!m_strOldGroupName.isEmpty())
            m_strOldGroupName = strText;
        return;
    }
    pitem->setText(0, strText);
    setTreeColumnWidth(pitem);
}

void AddrBookDlg::setTreeColumnWidth(QTreeWidgetItem* pitem)
{
    if (pitem == nullptr || m_ptreePhonebook == nullptr)
        return;
    const QString strText = pitem->text(0);
    int iDepth = 0;
    for (const QTreeWidgetItem* pAncestor = pitem->parent(); pAncestor != nullptr; pAncestor = pAncestor->parent())
        ++iDepth;
    // The pixel a character makes room for what hinting adds.
    const int iWidth = QtCompat::textWidth(QFontMetrics(pitem->font(0)), strText) +
                       (iDepth + 2) * m_ptreePhonebook->indentation() + strText.length();
    pitem->setToolTip(0, iWidth > m_ptreePhonebook->width() ? strText : QLatin1String(""));
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
