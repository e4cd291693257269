#include <QMessageBox>
#include <QTimer>

#include "fakecore/FakeCoreState.h"

using fakecore::state;

QString Change::tr(const QString& strId, const QString&)
{
    return state().texts.value(state().language).value(strId, strId);
}

bool Change::tr(const QString& strId, const QString& strPlugin, QString& strText, QKeySequence& key)
{
    strText = tr(strId, strPlugin);
    key = state().keys.value(state().language).value(strId);
    return !key.isEmpty();
}

QWidget* CommonUtils::GetMainWindow()
{
    return state().mainWindow;
}
QString CommonUtils::GetPluginLibraryPath()
{
    return state().libraryPath;
}

QString CommonUtils::GetSettings(QString strSection, QString strKey)
{
    return state().settings.value(strSection + "/" + strKey);
}

bool CommonUtils::IsPluginAvailable(QString strId)
{
    return !state().absent.contains(strId);
}
bool CommonUtils::IsShuttingDown()
{
    return fakecore::shuttingDown();
}

bool CommonUtils::MakeCall(QString strNumber, _UI_EN_CALL_TYPE enType)
{
    state().madeCalls << FakeCore::MadeCall{strNumber, enType};
    return state().makeCallResult;
}

void CommonUtils::MoveCentre(QDialog*)
{
    state().log << "MoveCentre";
}

void CommonUtils::ParanthesisCorrectionForHeAndAr(QString& strText)
{
    state().log << QString("ParanthesisCorrectionForHeAndAr(%1)").arg(strText);
    if (state().correctParentheses)
        state().correctParentheses(strText);
}

QString CommonUtils::ParseAndCreateHyperLinks(QString strText)
{
    state().log << QString("ParseAndCreateHyperLinks(%1)").arg(strText);
    return state().hyperLinks ? state().hyperLinks(strText) : strText;
}

int CommonUtils::ShowMessage(QMessageBox::Icon enIcon, QWidget* pParent, QString strCaption, QString strText,
                             QString strButton1, QString strButton2, QString strButton3, bool bFlag,
                             QFlags<Qt::WindowType> flags, QDialog** ppDialog, QString strExtra, bool bModal)
{
    QStringList buttons = {strButton1, strButton2, strButton3};
    buttons.removeAll(QString());
    const int answer = state().answers.isEmpty() ? int(QMessageBox::Ok) : state().answers.takeFirst();
    const FakeCore::Message message{enIcon, pParent, strCaption, strText, buttons,
                                    bFlag,  flags,   strExtra,   bModal,  answer};
    state().messages << message;
    if (ppDialog != nullptr)
        *ppDialog = nullptr;
    const auto function = state().onMessage;
    if (function)
        function(message);
    return bModal ? answer : 0;
}

void CommonUtils::ThreadCountInc(QString strFile, QString strFunction)
{
    std::lock_guard<std::mutex> lock(fakecore::workers().mutex);
    ++fakecore::workers().running;
    fakecore::workers().log << "+" + strFile + "|" + strFunction;
}

void CommonUtils::ThreadCountDec(QString strFile, QString strFunction)
{
    std::lock_guard<std::mutex> lock(fakecore::workers().mutex);
    --fakecore::workers().running;
    fakecore::workers().log << "-" + strFile + "|" + strFunction;
}

void CommonUtils::WaitForThreadToStop(QThread* pThread, unsigned int uiTime)
{
    state().log << QString("WaitForThreadToStop(%1)").arg(uiTime);
    if (pThread != nullptr)
        pThread->wait(uiTime * 1000UL);
}
