#include "Director.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QTemporaryDir>

#include "Scenes.h"
#include "TextFit.h"
#include "Texts.h"
#include "app/HostApplication.h"
#include "linkhand/QtCompat.h"
#include "single/SingleInstance.h"
#include "window/MainWindow.h"

namespace
{

const int TICK_MS = 15;
const int CALM_TICKS = 4;
const int MOST_TICKS = 2000;

QPalette darkPalette()
{
    QPalette palette(QColor(0x35, 0x35, 0x35), QColor(0x2a, 0x2a, 0x2a));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x26, 0x26));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x7b, 0xc8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(0x3a, 0x3a, 0x3a));
    palette.setColor(QPalette::ToolTipText, Qt::white);
    return palette;
}

// The window manager makes a window the active one a moment after it is there; between the end of one and the start of
// the next it may have none to choose.
QString nameOf(const QWidget* pWidget)
{
    return pWidget != nullptr ? pWidget->metaObject()->className() + (" " + pWidget->objectName()) : "none";
}

// Who stands in the way of a window that does not come.
QString onTop()
{
    return "active: " + nameOf(QApplication::activeWindow()) + ", modal: " + nameOf(QApplication::activeModalWidget());
}

// A window manager may leave the keyboard where it was when a window comes; the window then asks for it.
bool hasKeys(QWidget* pWidget)
{
    if (pWidget->isActiveWindow() || pWidget->windowType() == Qt::Popup) {
        return true;
    }
    if (QApplication::activeWindow() == nullptr || QApplication::activeModalWidget() == pWidget->window()) {
        pWidget->activateWindow();
    }
    return false;
}

} // namespace

Director::Director(const QList<Pass>& listPasses, bool bPictures)
    : m_listPasses(listPasses),
      m_listScenes(Scenes::All()),
      m_bPictures(bPictures),
      m_enState(BEGIN_PASS),
      m_iPass(0),
      m_iScene(0),
      m_iTicks(0),
      m_iCalm(0),
      m_sizeWindow(1240, 760),
      m_iFontPoints(0)
{
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(OnTick()));
}

void Director::Start()
{
    m_timer.start(TICK_MS);
}

bool Director::Run(int& argc, char** argv)
{
    const QTemporaryDir folder;
    const QString strData = folder.filePath("data");
    qputenv("LINKHAND_DATA_DIR", QFile::encodeName(strData));
    QtCompat::setDebugEnabled(false);
    if (!QDir().mkpath(strData) || !Scenes::Fill(strData)) {
        qWarning("cannot fill the phonebook");
        return false;
    }
    QtCompat::prepareApplication();
    QApplication application(argc, argv);
    QApplication::setApplicationName("linkhand");
    QApplication::setApplicationVersion(LINKHAND_VERSION);
    QApplication::setQuitOnLastWindowClosed(false);
    if (m_iFontPoints > 0) {
        QFont font = QApplication::font();
        font.setPointSize(m_iFontPoints);
        QApplication::setFont(font);
    }
    SingleInstance instance(strData);
    HostApplication host(CommandLine(), instance);
    QTimer::singleShot(0, this, [this] {
        if (m_sizeWindow.isValid()) {
            Scenes::Main()->resize(m_sizeWindow);
        }
        Start();
    });
    host.Run();
    return true;
}

void Director::OnTick()
{
    const State enBefore = m_enState;
    const Scene scene = m_listScenes.value(m_iScene);
    QWidget* pWidget = m_enState == WAIT || m_enState == GONE ? scene.find() : nullptr;
    switch (m_enState) {
    case BEGIN_PASS:
        if (m_iPass == m_listPasses.size()) {
            m_enState = DONE;
        } else if (Scenes::Main() != nullptr && Scenes::Rows() > 0) {
            beginPass();
            m_enState = SETTLE;
        } else if (m_iTicks > MOST_TICKS) {
            fail(QString("the program did not come up; rows: %1; ").arg(Scenes::Rows()) + onTop());
            m_enState = DONE;
        }
        break;
    case SETTLE:
        // A switch of language builds some things anew from the event loop.
        m_enState = m_iTicks > CALM_TICKS ? OPEN : SETTLE;
        break;
    case OPEN:
        m_enState = WAIT;
        m_iCalm = 0;
        // From the event loop: this slot must come back before the next tick.
        QTimer::singleShot(0, this, scene.open);
        break;
    case WAIT:
        m_iCalm = pWidget != nullptr && pWidget->size() == m_sizeLast && hasKeys(pWidget) ? m_iCalm + 1 : 0;
        m_sizeLast = pWidget != nullptr ? pWidget->size() : QSize();
        if (m_iCalm >= CALM_TICKS) {
            look(pWidget);
            m_enState = CLOSE;
        } else if (m_iTicks > MOST_TICKS) {
            fail(scene.strName + " did not come; " + onTop());
            Scenes::DropSteps();
            m_enState = CLOSE;
        }
        break;
    case CLOSE:
        m_enState = GONE;
        QTimer::singleShot(0, this, scene.close);
        break;
    case GONE:
        if ((pWidget == nullptr || pWidget == Scenes::Main()) && m_iTicks > 1 && !Scenes::StepsLeft()) {
            m_enState = ++m_iScene < m_listScenes.size() ? OPEN : BEGIN_PASS;
            m_iPass += m_enState == BEGIN_PASS ? 1 : 0;
        } else if (m_iTicks > MOST_TICKS) {
            fail(scene.strName + " did not go");
            m_enState = DONE;
        }
        break;
    case DONE:
        m_timer.stop();
        qApp->closeAllWindows();
        qApp->quit();
        break;
    }
    m_iTicks = m_enState == enBefore ? m_iTicks + 1 : 0;
}

void Director::beginPass()
{
    const Pass& pass = m_listPasses.at(m_iPass);
    m_iScene = 0;
    m_strBefore = m_iPass > 0 ? m_listPasses.at(m_iPass - 1).strLanguage : QString();
    static const QPalette s_light = QApplication::palette();
    QApplication::setPalette(pass.bDark ? darkPalette() : s_light);
    QMenu* pMenu = Scenes::Child<QMenu>("linkhand_NavBar_languageMenu");
    bool bChosen = false;
    foreach (QAction* pAction, pMenu != nullptr ? pMenu->actions() : QList<QAction*>()) {
        if (pAction->data().toString() == pass.strLanguage) {
            bChosen = true;
            pAction->trigger();
            break;
        }
    }
    if (!bChosen) {
        fail("no language " + pass.strLanguage);
    }
}

void Director::look(QWidget* pWidget)
{
    const Pass& pass = m_listPasses.at(m_iPass);
    // What has just been told is laid out first.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    Shot shot;
    shot.strScene = m_listScenes.at(m_iScene).strName;
    shot.strLanguage = pass.strLanguage;
    shot.strTheme = QLatin1String(pass.bDark ? "dark" : "light");
    shot.lstCut = TextFit::Cut(pWidget);
    if (!m_strBefore.isEmpty() && m_strBefore != pass.strLanguage) {
        shot.lstForeign = Texts::Foreign(pWidget, m_strBefore, pass.strLanguage);
    }
    if (m_inspect) {
        m_timer.stop(); // it may wait for the display
        shot.lstFaults = m_inspect(pWidget);
        m_timer.start(TICK_MS);
    }
    if (m_bPictures) {
        shot.image = pWidget->grab().toImage();
    }
    m_listShots.append(shot);
}

void Director::fail(const QString& strWhat)
{
    m_lstFailures.append((m_iPass < m_listPasses.size() ? m_listPasses.at(m_iPass).strLanguage + ": " : QString()) +
                         strWhat);
    qWarning("director: %s", qPrintable(m_lstFailures.last()));
}
