#ifndef LINKHAND_QTCOMPAT_H
#define LINKHAND_QTCOMPAT_H

// Every difference between the Qt releases this code builds with (4.8 and 5.15) stands here and nowhere else.

#include <QtGlobal>

#include <QByteArray>
#include <QCoreApplication>
#if QT_VERSION >= 0x050000
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QStandardPaths>
#else
#include <QDesktopServices>
#include <cstdio>
#include <cstdlib>
#endif
#include <QDrag>
#include <QFontMetrics>
#include <QObject>
#include <QString>
#include <QThread>
#include <QtPlugin>

// Symbols of this project are hidden unless they carry one of these.
#define LINKHAND_EXPORT Q_DECL_EXPORT
#define LINKHAND_IMPORT Q_DECL_IMPORT

#if QT_VERSION >= 0x050000
// Inside the class, Qt 5: metadata and the entry point come from moc.
#define LINKHAND_PLUGIN_METADATA(iid) Q_PLUGIN_METADATA(IID iid)
// At file scope, Qt 4: Q_EXPORT_PLUGIN2 writes the entry points.
#define LINKHAND_EXPORT_PLUGIN(name, Class)
#else
#define LINKHAND_PLUGIN_METADATA(iid)
#define LINKHAND_EXPORT_PLUGIN(name, Class) Q_EXPORT_PLUGIN2(name, Class)
#ifndef Q_DECL_OVERRIDE
#define Q_DECL_OVERRIDE override
#endif
#endif

namespace QtCompat
{

// QString::toAscii of Qt 4; Qt 5 dropped the name.
inline QByteArray toAscii(const QString& strText)
{
#if QT_VERSION >= 0x050000
    return strText.toLatin1();
#else
    return strText.toAscii();
#endif
}

#if QT_VERSION < 0x050000
// A message handler that lets all but debug output through.
inline void dropDebugMessage(QtMsgType enType, const char* pszText)
{
    if (enType != QtDebugMsg) {
        fprintf(stderr, "%s\n", pszText);
    }
    if (enType == QtFatalMsg) {
        abort();
    }
}
#endif

// False while debug output goes nowhere.
inline bool debugEnabled()
{
#if QT_VERSION >= 0x050000
    return QLoggingCategory::defaultCategory()->isDebugEnabled();
#else
    return true;
#endif
}

// Lets debug output through, or drops it before it is formatted where Qt can. Warnings always come through.
inline void setDebugEnabled(bool bEnabled)
{
#if QT_VERSION >= 0x050000
    QLoggingCategory::setFilterRules(QLatin1String(bEnabled ? "default.debug=true" : "default.debug=false"));
#else
    qInstallMsgHandler(bEnabled ? nullptr : &dropDebugMessage);
#endif
}

// Called before the application object is made: pixels scale with the screen where Qt can do that.
inline void prepareApplication()
{
#if QT_VERSION >= 0x050600
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
#if QT_VERSION >= 0x050600 && QT_VERSION < 0x060000
    // At a log-out Qt would close the windows one by one and call it off where one stays; the program ends by itself.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
#endif
}

// How QString::split keeps empty parts.
#if QT_VERSION >= 0x050e00
const Qt::SplitBehavior KeepEmptyParts(Qt::KeepEmptyParts);
#else
const QString::SplitBehavior KeepEmptyParts = QString::KeepEmptyParts;
#endif

// The user's desktop folder.
inline QString desktopFolder()
{
#if QT_VERSION >= 0x050000
    return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
#else
    return QDesktopServices::storageLocation(QDesktopServices::DesktopLocation);
#endif
}

// Advance width of a text in pixels.
inline int textWidth(const QFontMetrics& metrics, const QString& strText)
{
#if QT_VERSION >= 0x050b00
    return metrics.horizontalAdvance(strText);
#else
    return metrics.width(strText);
#endif
}

// Joins a drag's targetChanged to a receiver. Its argument is a QWidget in Qt 4 and a QObject from Qt 5 on, so that
// there are two slots, of which one is used.
inline bool connectTargetChanged(const QDrag* pDrag, const QObject* pReceiver, const char* pszWidgetSlot,
                                 const char* pszObjectSlot)
{
#if QT_VERSION >= 0x050000
    Q_UNUSED(pszWidgetSlot)
    return QObject::connect(pDrag, SIGNAL(targetChanged(QObject*)), pReceiver, pszObjectSlot);
#else
    Q_UNUSED(pszObjectSlot)
    return QObject::connect(pDrag, SIGNAL(targetChanged(QWidget*)), pReceiver, pszWidgetSlot);
#endif
}

// A button in a QLineEdit that empties it; Qt 4 has none.
template <typename LineEdit>
inline void showClearButton(LineEdit* pEdit)
{
#if QT_VERSION >= 0x050200
    pEdit->setClearButtonEnabled(true);
#else
    Q_UNUSED(pEdit);
#endif
}

// Whether the caller may stand inside an event handler of some object, which must then be deleted later and not at
// once. Where no event loop runs there is also nothing that would come back to delete it later.
inline bool insideEventLoop()
{
#if QT_VERSION >= 0x050500
    return QThread::currentThread()->loopLevel() > 0;
#else
    return true;
#endif
}

} // namespace QtCompat

#endif // LINKHAND_QTCOMPAT_H
