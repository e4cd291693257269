#include "dialogs/AddrBookWaitingDlg.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <new>

#include "linkhand/core/CommonUtils.h"
#include "logic/Log.h"
#include "logic/Texts.h"
#include "widgets/FormFont.h"

namespace
{
const int DIALOG_WIDTH = 410;
const int DIALOG_HEIGHT = 160;
const int COUNT_HEIGHT = 20;
const int BOTTOM_MARGIN = 10;
const int STATUS_MARGIN = 12; // keeps a long text off the frame
} // namespace

ABWaitingDlg::ABWaitingDlg(QWidget* pParent) : QDialog(pParent), m_bBlockClose(false), m_pframeOuter(nullptr) {}

void ABWaitingDlg::CreateOuterFrame()
{
    m_pframeOuter = new (std::nothrow) QFrame(this);
    if (m_pframeOuter == nullptr)
        return;
    m_pframeOuter->setObjectName(QLatin1String("AddrBook_WaitingDialogFrame"));
    m_pframeOuter->setGeometry(0, 0, width(), height());
    // The window has no border of its own.
    m_pframeOuter->setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Plain));
    QPalette palette = m_pframeOuter->palette();
    palette.setColor(QPalette::WindowText, palette.color(QPalette::Dark));
    m_pframeOuter->setPalette(palette);
    m_pframeOuter->lower();
}

void ABWaitingDlg::closeEvent(QCloseEvent* pEvent)
{
    if (pEvent == nullptr)
        return;
    if (m_bBlockClose)
        pEvent->ignore();
    else
        pEvent->accept();
}

void ABWaitingDlg::reject() {}

AddrBookWaitingDlg* AddrBookWaitingDlg::m_pInst = nullptr;

AddrBookWaitingDlg* AddrBookWaitingDlg::GetWaitingDlgInstance(QWidget* pParent)
{
    if (m_pInst == nullptr) {
        m_pInst = new (std::nothrow) AddrBookWaitingDlg;
        if (m_pInst != nullptr)
            m_pInst->initDialog(pParent);
    }
    return m_pInst;
}

void AddrBookWaitingDlg::Destroy()
{
    AddrBookWaitingDlg* pInstance = m_pInst;
    m_pInst = nullptr;
    delete pInstance;
}

AddrBookWaitingDlg::AddrBookWaitingDlg() : QWidget(nullptr), m_iProgressValue(0), m_iProgressMax(0), m_bCancelled(false)
{
}

AddrBookWaitingDlg::~AddrBookWaitingDlg()
{
    delete m_plabelStatus.data();
    delete m_plabelCount.data();
    delete m_pprogressBar.data();
    delete m_pbuttonCancel.data();
    delete m_pdialog.data();
}

void AddrBookWaitingDlg::initDialog(QWidget* pParent)
{
    ADDRBOOK_LOG_ENTER();
    m_pdialog = new (std::nothrow) ABWaitingDlg(pParent);
    if (m_pdialog == nullptr)
        return;
    m_pdialog->setWindowFlags(Qt::CustomizeWindowHint | Qt::Dialog | Qt::FramelessWindowHint);
    m_pdialog->setMinimumSize(DIALOG_WIDTH, DIALOG_HEIGHT);
    m_pdialog->setMaximumSize(DIALOG_WIDTH, DIALOG_HEIGHT);
    m_pdialog->resize(DIALOG_WIDTH, DIALOG_HEIGHT);
    m_pdialog->CreateOuterFrame();
    if (createParts()) {
        layOutParts();
        fitFontToForm(m_pdialog);
        m_pbuttonCancel->setFixedHeight(m_pbuttonCancel->sizeHint().height());
    }
    ADDRBOOK_LOG_EXIT();
}

bool AddrBookWaitingDlg::createParts()
{
    m_plabelStatus = new (std::nothrow) QLabel(m_pdialog);
    m_plabelCount = new (std::nothrow) QLabel(m_pdialog);
    m_pprogressBar = new (std::nothrow) QProgressBar(m_pdialog);
    m_pbuttonCancel = new (std::nothrow) QPushButton(m_pdialog);
    if (m_plabelStatus == nullptr || m_plabelCount == nullptr || m_pprogressBar == nullptr ||
        m_pbuttonCancel == nullptr)
        return false;

    m_plabelStatus->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    m_plabelStatus->setWordWrap(true);
    m_plabelStatus->setMargin(STATUS_MARGIN);
    // A text of any length gets the width that is there.
    m_plabelStatus->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    m_plabelCount->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    m_plabelCount->setFixedSize(220, COUNT_HEIGHT);

    m_pprogressBar->setFixedSize(340, 23);
    m_pprogressBar->setAlignment(Qt::AlignLeft);
    m_pprogressBar->setMinimum(0);
    m_pprogressBar->setValue(0);
    m_pprogressBar->setTextVisible(false);

    m_pbuttonCancel->setText(addrBookTr(QLatin1String("IDS_BUTTON_CANCEL")));
    connect(m_pbuttonCancel, SIGNAL(clicked()), this, SLOT(OnCancelClicked()));
    return true;
}

void AddrBookWaitingDlg::layOutParts()
{
    QVBoxLayout* playoutMain = new (std::nothrow) QVBoxLayout(m_pdialog);
    if (playoutMain == nullptr)
        return;
    playoutMain->setContentsMargins(0, 0, 0, BOTTOM_MARGIN);
    QWidget* const rows[] = {m_plabelStatus, m_plabelCount, m_pprogressBar, m_pbuttonCancel};
    for (QWidget* pwidgetPart : rows) {
        QHBoxLayout* playoutRow = new (std::nothrow) QHBoxLayout;
        if (playoutRow == nullptr)
            return;
        playoutRow->addWidget(pwidgetPart);
        if (pwidgetPart != m_plabelStatus)
            playoutRow->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
        playoutMain->addLayout(playoutRow);
    }
}

void AddrBookWaitingDlg::ShowAnimation(QString strText, int iSteps)
{
    if (m_pprogressBar == nullptr || m_plabelStatus == nullptr || m_pdialog == nullptr)
        return;
    m_pdialog->m_bBlockClose = true;
    if (m_pbuttonCancel != nullptr)
        m_pbuttonCancel->setEnabled(true);
    m_bCancelled = false;
    if (m_pdialog->isHidden())
        CommonUtils::MoveCentre(m_pdialog);
    m_iProgressValue = 0;
    m_iProgressMax = iSteps;
    m_pprogressBar->setValue(0);
    m_pprogressBar->setMinimum(0);
    m_pprogressBar->setMaximum(iSteps);
    UpDateLabel(0, iSteps);
    m_plabelStatus->setText(strText);
    m_pprogressBar->setAccessibleName(strText);
    m_pdialog->setWindowModality(Qt::WindowModal);
    m_pdialog->show();
    if (m_pbuttonCancel != nullptr)
        m_pbuttonCancel->setFocus();
}

void AddrBookWaitingDlg::UpDateLabel(int iCurrent, int iTotal)
{
    if (m_plabelCount == nullptr || m_pdialog == nullptr)
        return;
    if (iTotal != 0)
        m_plabelCount->setText(QString::number(iCurrent) + QLatin1Char('/') + QString::number(iTotal));
    else
        m_plabelCount->setText(QLatin1String(""));
    // Shown now, also while the results of a batch keep the event loop busy.
    m_pdialog->repaint();
}

void AddrBookWaitingDlg::UpDateProgress(int iCurrent, int iTotal)
{
    const bool bLast = iCurrent == iTotal;
    // A cancel at the last step has no meaning any more.
    if (bLast && m_pbuttonCancel != nullptr)
        m_pbuttonCancel->setEnabled(false);
    if (bLast)
        m_iProgressValue = m_iProgressMax;
    // The bar paints itself whenever its value changes; kept from that, it is painted once, with the counter.
    if (m_pprogressBar != nullptr) {
        m_pprogressBar->setUpdatesEnabled(false);
        m_pprogressBar->setValue(m_iProgressValue);
        m_pprogressBar->setUpdatesEnabled(true);
    }
    UpDateLabel(iCurrent, iTotal);
    UpdateProgressBar();
}

void AddrBookWaitingDlg::UpdateProgressBar()
{
    if (m_pprogressBar != nullptr)
        m_pprogressBar->setValue(m_iProgressValue);
    if (m_iProgressValue >= m_iProgressMax && m_plabelStatus != nullptr) {
        m_plabelStatus->setText(QLatin1String(""));
        CloseWaitingDialog();
    }
    ++m_iProgressValue;
}

void AddrBookWaitingDlg::CloseWaitingDialog()
{
    m_iProgressValue = 0;
    m_iProgressMax = 0;
    if (m_pdialog == nullptr)
        return;
    m_pdialog->m_bBlockClose = false;
    m_pdialog->close();
}

// The operation goes on until its next result slot asks.
void AddrBookWaitingDlg::OnCancelClicked()
{
    ADDRBOOK_LOG_CALLED();
    m_bCancelled = true;
    CloseWaitingDialog();
}

bool AddrBookWaitingDlg::GetProgressDlgCancelStatus()
{
    const bool bCancelled = m_bCancelled;
    if (bCancelled)
        Destroy(); // this object is gone from here on
    return bCancelled;
}

void AddrBookWaitingDlg::SetLanguage() {}
