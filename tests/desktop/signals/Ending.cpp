#include "Ending.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

#include <csignal>
#include <cstdio>
#include <unistd.h>

#include "Scenes.h"
#include "app/HostApplication.h"
#include "linkhand/QtCompat.h"
#include "single/SingleInstance.h"
#include "window/MainWindow.h"

namespace
{

const int TICK_MS = 15;
const int CALM_TICKS = 4;
const int MOST_TICKS = 2000;
const int NOT_COME = 99;

void phonebook(const char* pszSlot)
{
    foreach (QWidget* pWidget, QApplication::allWidgets()) {
        if (pWidget->inherits("AddrBookDlg")) {
            QMetaObject::invokeMethod(pWidget, pszSlot);
            return;
        }
    }
}

QLineEdit* groupEditor()
{
    QTreeWidget* pTree = ::Scenes::Child<QTreeWidget>("AddrBookUIPlugin_TreeWidget");
    return pTree != nullptr ? pTree->viewport()->findChild<QLineEdit*>() : nullptr;
}

void openGroupEditor(const char* pszText)
{
    phonebook("OnNewGroupClicked");
    if (QLineEdit* pEditor = groupEditor()) {
        pEditor->setText(QString::fromLatin1(pszText));
    }
}

QWidget* editing(const char* pszText)
{
    const QLineEdit* pEditor = groupEditor();
    return pEditor != nullptr && pEditor->text() == QLatin1String(pszText) ? ::Scenes::Main() : nullptr;
}

QWidget* modal(const char* pszClass)
{
    QWidget* pWidget = QApplication::activeModalWidget();
    return pWidget != nullptr && pWidget->inherits(pszClass) ? pWidget : nullptr;
}

Scene scene(const char* pszName, const std::function<void()>& open, const std::function<QWidget*()>& find)
{
    return Scene{QString::fromLatin1(pszName), open, find, [] {}};
}

} // namespace

QList<Scene> Ending::Scenes()
{
    QList<Scene> listScenes = ::Scenes::All();
    listScenes << scene(
        "group-editor-empty", [] { openGroupEditor(""); }, [] { return editing(""); });
    listScenes << scene(
        "group-editor-taken", [] { openGroupEditor("Friends"); }, [] { return editing("Friends"); });
    listScenes << scene(
        "group-editor-new", [] { openGroupEditor("Family"); }, [] { return editing("Family"); });
    listScenes << scene(
        "group-question",
        [] {
            openGroupEditor("Friends");
            QTest::keyClick(groupEditor(), Qt::Key_Return);
        },
        [] { return modal("QMessageBox"); });
    listScenes << scene(
        "box-over-form",
        [] {
            QTimer::singleShot(500, qApp, [] {
                if (QWidget* pForm = ::Scenes::Child<QWidget>("AddrBookUIPlugin_New_Edit_Dlg")) {
                    const QList<QLineEdit*> listInputs = pForm->findChildren<QLineEdit*>();
                    listInputs.value(0)->setText("Dora");
                    listInputs.value(1)->setText("0171");
                    listInputs.value(4)->setText("nobody");
                    QTest::keyClick(listInputs.value(4), Qt::Key_Return);
                }
            });
            phonebook("OnButtonClickedNewContact");
        },
        [] { return modal("QMessageBox"); });
    listScenes << scene(
        "save-file", [] { phonebook("OnClickExportAllContacts"); }, [] { return modal("QFileDialog"); });
    listScenes << scene(
        "combo-box",
        [] {
            ::Scenes::Main()->SetDevicePanelShown(true);
            ::Scenes::Child<QComboBox>("linkhand_DevicePanel_speed")->showPopup();
        },
        [] { return QApplication::activePopupWidget(); });
    return listScenes;
}

void Ending::Prepare(const QString& strScene)
{
    if (strScene == "video-call") {
        ::Scenes::Child<QLineEdit>("VoiceCallPlugin_lineeditNumber")->setText("+4930231258");
    }
}

int Ending::Run(int& argc, char** argv, const Scene& scene, int iSignal, int iTimes)
{
    const QTemporaryDir folder;
    const QString strData = folder.filePath("data");
    qputenv("LINKHAND_DATA_DIR", QFile::encodeName(strData));
    QtCompat::setDebugEnabled(false);
    if (!QDir().mkpath(strData) || !::Scenes::Fill(strData)) {
        return NOT_COME;
    }
    QtCompat::prepareApplication();
    QApplication application(argc, argv);
    QApplication::setApplicationName("linkhand");
    QApplication::setQuitOnLastWindowClosed(false);
    Ending ending(scene, iSignal, iTimes);
    int iCode = 0;
    {
        SingleInstance instance(strData);
        HostApplication host(CommandLine(), instance);
        iCode = host.Run();
    }
    return ending.m_enState == SIGNALLED ? iCode : NOT_COME;
}

Ending::Ending(const Scene& scene, int iSignal, int iTimes)
    : m_scene(scene), m_iSignal(iSignal), m_iTimes(iTimes), m_enState(COME_UP), m_iTicks(0), m_iCalm(0)
{
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(OnTick()));
    m_timer.start(TICK_MS);
}

void Ending::OnTick()
{
    if (m_enState != SIGNALLED && ++m_iTicks > MOST_TICKS) {
        qWarning("%s did not come", qPrintable(m_scene.strName));
        _exit(NOT_COME);
    }
    if (m_enState == COME_UP && ::Scenes::Main() != nullptr && ::Scenes::Rows() > 0) {
        m_enState = WAIT;
        Prepare(m_scene.strName);
        QTimer::singleShot(0, this, m_scene.open);
    } else if (m_enState == WAIT) {
        QWidget* pWidget = m_scene.find();
        if (pWidget != nullptr && !pWidget->isActiveWindow() && pWidget->windowType() != Qt::Popup &&
            QApplication::activePopupWidget() == nullptr) {
            pWidget->activateWindow(); // a scene may wait for the keyboard
        }
        m_iCalm = pWidget != nullptr && pWidget->size() == m_sizeLast ? m_iCalm + 1 : 0;
        m_sizeLast = pWidget != nullptr ? pWidget->size() : QSize();
        if (m_iCalm >= CALM_TICKS) {
            m_enState = SIGNALLED;
            std::puts("signalled");
            std::fflush(stdout);
        }
    }
    if (m_enState == SIGNALLED && m_iTimes > 0) {
        --m_iTimes;
        kill(getpid(), m_iSignal);
    }
}
