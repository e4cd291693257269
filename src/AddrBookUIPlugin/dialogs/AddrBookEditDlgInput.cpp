#include "dialogs/AddrBookEditDlg.h"

#include <QTextCursor>
#include <climits>

#include "linkhand/core/CommonUtils.h"
#include "logic/Log.h"
#include "logic/SdkCall.h"
#include "orva/orva_sdk.h"

namespace
{
// Takes the last character off, both halves of one outside the basic plane.
void chopCharacter(QString& strText)
{
    const bool bPair = strText.size() > 1 && strText.at(strText.size() - 1).isLowSurrogate() &&
                       strText.at(strText.size() - 2).isHighSurrogate();
    strText.chop(bPair ? 2 : 1);
}
} // namespace

void AddrBookEditDlg::OnTextChangedInAnyField(QString)
{
    if (m_pOkButton)
        SetOKButtonTrue();
}

void AddrBookEditDlg::SetOKButtonTrue()
{
    if (!m_pOkButton) {
        qDebug("Arg is NULL: %s: %s: %s %d", AddrBookLog::now().constData(), ADDRBOOK_FILE, __func__, __LINE__);
        return;
    }
    m_pOkButton->setEnabled(
        !(isFieldEmpty(m_pNameEdit) && isFieldEmpty(m_pMobileEdit) && isConfigFieldEmpty() && isRemarksEmpty()));
}

bool AddrBookEditDlg::isFieldEmpty(QLineEdit* pEdit)
{
    return pEdit == nullptr || pEdit->text().trimmed().isEmpty();
}

bool AddrBookEditDlg::isConfigFieldEmpty()
{
    for (int i = 0; i < m_lstFieldItems.size(); ++i) {
        if (!isFieldEmpty(m_lstFieldItems.at(i).pLineEdit))
            return false;
    }
    return true;
}

bool AddrBookEditDlg::isRemarksEmpty()
{
    return !m_pRemarksEdit || m_pRemarksEdit->toPlainText().trimmed().isEmpty();
}

// Read anew on each call, so that a change of the setting counts at once. The product type plays no part here.
int AddrBookEditDlg::IsContextOverLong(QString strText)
{
    const int iLimit = m_pNameEdit ? m_pNameEdit->maxLength() : 0;
    const bool bAll = CommonUtils::GetSettings(QLatin1String("customize"), QLatin1String("pbnamecode")).trimmed() ==
                      QLatin1String("all");

    const short sCount = static_cast<short>(qMin(strText.length(), SHRT_MAX));
    short sLength = sCount;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_PBContentCodingJudge, (strText.utf16(), sCount, true, bAll, &sLength));
    if (lResult != 0)
        sLength = sCount;
    return sLength > iLimit ? 1 : 0;
}

bool AddrBookEditDlg::OnNameTextChanged(QString strText)
{
    if (!m_pNameEdit)
        return false;

    if (IsContextOverLong(strText) == 0) {
        if (m_strPrevName.isEmpty())
            ResetCurPos(strText, strText);
        m_strPrevName = strText;
    } else if (m_strPrevName.isEmpty()) {
        // A text that is over long even when empty (the coding call answers nonsense) must not keep the loop going.
        QString strShort = strText;
        while (!strShort.isEmpty() && IsContextOverLong(strShort) != 0)
            chopCharacter(strShort);
        m_pNameEdit->setText(strShort);
        ResetCurPos(strShort, strShort);
    } else {
        m_pNameEdit->setText(m_strPrevName);
        ResetCurPos(strText, m_strPrevName);
    }
    return false;
}

// Finds where two texts part, and leaves the caret where it is: users are used to finding it at the end.
void AddrBookEditDlg::ResetCurPos(QString strFirst, QString strSecond)
{
    const int iShorter = qMin(strFirst.size(), strSecond.size());
    int iPosition = 0;
    while (iPosition < iShorter && strFirst.at(iPosition) == strSecond.at(iPosition))
        ++iPosition;
    Q_UNUSED(iPosition);
}

void AddrBookEditDlg::OnTextChanged()
{
    if (!m_pRemarksEdit)
        return;

    QString strText = m_pRemarksEdit->toPlainText();
    OnTextChangedInAnyField(strText);
    // The second test ends the recursion should even the text before be too long for the limit.
    if (strText.length() > m_iRemarksMaxLength && strText != m_strPrevRemarks) {
        strText = m_strPrevRemarks;
        m_pRemarksEdit->setPlainText(strText);
        m_pRemarksEdit->moveCursor(QTextCursor::End, QTextCursor::MoveAnchor);
    }
    m_strPrevRemarks = strText;
}
