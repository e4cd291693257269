#include "MessageBox.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLayout>
#include <QPushButton>

#include "MessageIcon.h"

#include "linkhand/QtCompat.h"
#include "linkhand/core/Change.h"

namespace
{

const char s_szAnswer[] = "linkhandAnswer";

// The frame, the title, and what stands beside the text.
const int s_iBorder = 6;
const int s_iTitle = 30;
const int s_iBeside = 120;
const int s_iMargins = 30;

const qreal s_dLeastLetters = 9; // points

int answerOf(int iPlace, const QString& strId)
{
    if (strId == QLatin1String("IDS_CANCEL"))
        return QMessageBox::Cancel;
    switch (iPlace) {
    case 0:
        return QMessageBox::Ok;
    case 1:
        return QMessageBox::No;
    default:
        return QMessageBox::Ignore;
    }
}

} // namespace

MessageBox::MessageBox(QMessageBox::Icon enIcon, QWidget* pParent, const QString& strCaption, const QString& strText)
    : QMessageBox(enIcon, strCaption, strText, QMessageBox::NoButton, pParent), m_ppHolder(nullptr)
{
    // Names of contacts and files reach these texts; mark-up in them is text.
    setTextFormat(Qt::PlainText);
    setObjectName(QLatin1String("linkhand_MessageBox"));
    if (layout() != nullptr)
        layout()->setContentsMargins(16, 16, 16, 12);
    // The label's name is Qt's; without it the box keeps the style's picture.
    QLabel* pPicture = findChild<QLabel*>(QLatin1String("qt_msgboxex_icon_label"));
    if (pPicture != nullptr && !MessageIcon::isInTheme(enIcon))
        pPicture->setPicture(MessageIcon::draw(enIcon));
}

MessageBox::~MessageBox()
{
    if (m_ppHolder != nullptr && *m_ppHolder == this)
        *m_ppHolder = nullptr;
}

void MessageBox::setHolder(QDialog** ppDialog)
{
    m_ppHolder = ppDialog;
    if (m_ppHolder != nullptr)
        *m_ppHolder = this;
}

void MessageBox::setButtons(const QStringList& lstIds, bool bFirstIsDefault)
{
    QPushButton* pFirst = nullptr;
    QPushButton* pLast = nullptr;
    for (int i = 0; i < lstIds.size(); ++i) {
        if (lstIds.at(i).isEmpty())
            continue;
        const int iAnswer = answerOf(i, lstIds.at(i));
        const ButtonRole enRole = iAnswer == Ok ? AcceptRole : iAnswer == Cancel ? RejectRole : NoRole;
        pLast = addButton(Change::tr(lstIds.at(i), QLatin1String("linkhand")), enRole);
        pLast->setProperty(s_szAnswer, iAnswer);
        if (pFirst == nullptr)
            pFirst = pLast;
    }
    if (pFirst == nullptr) {
        pFirst = pLast = addButton(QMessageBox::Ok);
        pFirst->setProperty(s_szAnswer, int(Ok));
    }
    setDefaultButton(bFirstIsDefault ? pFirst : pLast);
}

int MessageBox::answer() const
{
    const QAbstractButton* pButton = clickedButton();
    return pButton != nullptr ? pButton->property(s_szAnswer).toInt() : int(Cancel);
}

int MessageBox::harmlessAnswer(QMessageBox::Icon enIcon, const QStringList& lstIds)
{
    QStringList lstShown = lstIds;
    lstShown.removeAll(QString());
    const bool bOneWay = lstShown.size() <= 1 && enIcon != QMessageBox::Question;
    return bOneWay && !lstShown.contains(QLatin1String("IDS_CANCEL")) ? int(Ok) : int(Cancel);
}

void MessageBox::closeEvent(QCloseEvent* event)
{
    // Past the base class, which would take the close for a click on the only button.
    QDialog::closeEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

void MessageBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        reject();
    else
        QMessageBox::keyPressEvent(event);
}

// Qt breaks the lines at half the screen, or at 500 pixels; with large letters the box is higher than a small screen
// then. Longer lines come first, smaller letters where those are not enough.
void MessageBox::showEvent(QShowEvent* event)
{
    QMessageBox::showEvent(event);
    const QSize room = QtCompat::availableGeometry(this).size() - QSize(2 * s_iBorder, s_iBorder + s_iTitle);
    QLabel* pText = findChild<QLabel*>(QLatin1String("qt_msgbox_label"));
    QDialogButtonBox* pButtons = findChild<QDialogButtonBox*>();
    if (pText == nullptr || pButtons == nullptr)
        return;
    const bool bWide = pButtons->sizeHint().width() > room.width() - s_iMargins;
    if (bWide)
        pButtons->setOrientation(Qt::Vertical);
    if (!bWide && height() <= room.height())
        return;
    pText->setMinimumWidth(qMax(pText->minimumWidth(), room.width() - s_iBeside));
    QEvent layoutRequest(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(this, &layoutRequest);
    QFont letters = pText->font();
    while (height() > room.height() && letters.pointSizeF() > s_dLeastLetters) {
        letters.setPointSizeF(qMax(s_dLeastLetters, letters.pointSizeF() - 1));
        pText->setFont(letters);
        QCoreApplication::sendEvent(this, &layoutRequest);
    }
}
