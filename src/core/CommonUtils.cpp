#include "linkhand/core/CommonUtils.h"

#include <climits>

#include <QApplication>
#include <QPointer>

#include "Host.h"
#include "HyperLinks.h"
#include "MessageBox.h"
#include "Parentheses.h"
#include "Settings.h"
#include "linkhand/QtCompat.h"

QWidget* CommonUtils::GetMainWindow()
{
    HostServices* pServices = Host::services();
    return pServices != nullptr ? pServices->MainWindow() : nullptr;
}

QString CommonUtils::GetPluginLibraryPath()
{
    return Host::libraryPath();
}

QString CommonUtils::GetSettings(QString strSection, QString strKey)
{
    return Settings::value(strSection, strKey);
}

bool CommonUtils::IsPluginAvailable(QString strId)
{
    HostServices* pServices = Host::services();
    return pServices != nullptr && pServices->IsPluginAvailable(strId);
}

bool CommonUtils::IsShuttingDown()
{
    HostServices* pServices = Host::servicesFromAnyThread();
    return pServices != nullptr && pServices->IsShuttingDown();
}

bool CommonUtils::MakeCall(QString strNumber, _UI_EN_CALL_TYPE enType)
{
    HostServices* pServices = Host::services();
    return pServices != nullptr && pServices->MakeCall(strNumber, int(enType));
}

void CommonUtils::MoveCentre(QDialog* pDialog)
{
    if (pDialog == nullptr)
        return;
    // A dialog that was never shown has the size Qt gives to any widget until its layout is asked.
    pDialog->ensurePolished();
    if (!pDialog->isVisible() && !pDialog->testAttribute(Qt::WA_Resized))
        pDialog->adjustSize();
    QWidget* pMain = GetMainWindow();
    if (pMain != nullptr)
        pMain = pMain->window();
    const bool bOnWindow = pMain != nullptr && pMain->isVisible() && !pMain->isMinimized();
    const QRect screen = QtCompat::availableGeometry(bOnWindow ? pMain : pDialog);
    QRect frame = pDialog->frameGeometry();
    frame.moveCenter(bOnWindow ? pMain->frameGeometry().center() : screen.center());
    // The title bar stays reachable also where the window hangs over the edge of the screen.
    frame.moveLeft(qMax(screen.left(), qMin(frame.left(), screen.right() + 1 - frame.width())));
    frame.moveTop(qMax(screen.top(), qMin(frame.top(), screen.bottom() + 1 - frame.height())));
    pDialog->move(frame.topLeft());
}

void CommonUtils::ParanthesisCorrectionForHeAndAr(QString& strText)
{
    if (QApplication::isRightToLeft())
        Parentheses::correct(strText);
}

QString CommonUtils::ParseAndCreateHyperLinks(QString strText)
{
    const QString strLinks = HyperLinks::create(strText);
    // Among letters that run from right to left the plus sign of a number would stand behind it.
    const bool bTurns = QApplication::isRightToLeft() && strText.startsWith(QLatin1Char('+'));
    return bTurns ? QChar(0x200e) + strLinks : strLinks;
}

int CommonUtils::ShowMessage(QMessageBox::Icon enIcon, QWidget* pParent, QString strCaption, QString strText,
                             QString strButton1, QString strButton2, QString strButton3, bool bFlag,
                             QFlags<Qt::WindowType> flags, QDialog** ppDialog, QString strExtra, bool bModal)
{
    const QStringList lstButtons = QStringList() << strButton1 << strButton2 << strButton3;
    if (HostServices* pServices = Host::services()) {
        const int iAnswer = pServices->MessageAnswer(enIcon, strCaption, strText);
        if (iAnswer == QMessageBox::NoButton)
            return bModal ? MessageBox::harmlessAnswer(enIcon, lstButtons) : 0;
        if (iAnswer > 0)
            return iAnswer;
    }
    // A parent that goes while the box is open takes the box with it.
    QPointer<MessageBox> pBox =
        new MessageBox(enIcon, pParent != nullptr ? pParent : GetMainWindow(), strCaption, strText);
    pBox->setWindowFlags(pBox->windowFlags() | flags);
    pBox->setButtons(lstButtons, bFlag);
    if (!strExtra.isEmpty())
        pBox->setInformativeText(strExtra);
    pBox->setHolder(ppDialog);
    if (!bModal) {
        pBox->setAttribute(Qt::WA_DeleteOnClose);
        pBox->setModal(false);
        pBox->show();
        return 0;
    }
    pBox->exec();
    const int iAnswer = pBox.isNull() ? int(QMessageBox::Cancel) : pBox->answer();
    delete pBox;
    return iAnswer;
}

void CommonUtils::ThreadCountInc(QString strFile, QString strFunction)
{
    if (HostServices* pServices = Host::servicesFromAnyThread())
        pServices->ThreadCountInc(strFile, strFunction);
}

void CommonUtils::ThreadCountDec(QString strFile, QString strFunction)
{
    if (HostServices* pServices = Host::servicesFromAnyThread())
        pServices->ThreadCountDec(strFile, strFunction);
}

void CommonUtils::WaitForThreadToStop(QThread* pThread, unsigned int uiTime)
{
    if (pThread == nullptr || pThread == QThread::currentThread())
        return;
    const unsigned long ulMilliseconds = uiTime > ULONG_MAX / 1000 - 1 ? ULONG_MAX : 1000ul * uiTime;
    pThread->wait(ulMilliseconds);
}
