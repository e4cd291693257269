#ifndef LINKHAND_QTCOMPAT_H
#define LINKHAND_QTCOMPAT_H

// Every difference between the Qt releases this code builds with (4.8, 5.15 and 6.4) stands here and nowhere else.

#include <QtGlobal>

#include <QAccessible>
#include <QByteArray>
#include <QCoreApplication>
#if QT_VERSION >= 0x060000
#include <QEnterEvent>
#include <QRegExp>
#include <QValidator>
#include <QWidget>
#else
#include <QApplication>
#include <QDesktopWidget>
#include <QEvent>
#include <QRegExpValidator>
#endif
#if QT_VERSION >= 0x050000
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QScreen>
#include <QStandardPaths>
#include <QWindow>
#else
#include <QDesktopServices>
#include <QTextDocument>
#include <cstdio>
#include <cstdlib>
#endif
#include <QDrag>
#include <QDropEvent>
#include <QFont>
#include <QFontMetrics>
#include <QKeySequence>
#include <QLibraryInfo>
#include <QMouseEvent>
#include <QObject>
#include <QSettings>
#include <QString>
#include <QStringList>
#include <QThread>
#include <QtPlugin>

#if QT_VERSION >= 0x050000
// Inside the class, Qt 5: metadata and the entry point come from moc.
#define LINKHAND_PLUGIN_METADATA(iid) Q_PLUGIN_METADATA(IID iid)
// At file scope, Qt 4: Q_EXPORT_PLUGIN2 writes the entry points.
#define LINKHAND_EXPORT_PLUGIN(name, Class)
// The verification text that a plug-in exports is ours from Qt 5 on; Qt 4 has a key and a text of its own.
#define LINKHAND_QT_BUILD_KEY(ours) ours
#define LINKHAND_QT_VERIFICATION(...) __VA_ARGS__
#else
#define LINKHAND_PLUGIN_METADATA(iid)
#define LINKHAND_EXPORT_PLUGIN(name, Class) Q_EXPORT_PLUGIN2(name, Class)
#define LINKHAND_QT_BUILD_KEY(ours) QT_BUILD_KEY
#define LINKHAND_QT_VERIFICATION(...)
#endif

#if QT_VERSION >= 0x060000
// The validator of a QRegExp, which Qt 6 has no longer: a text is accepted if the whole of it matches, and may become
// acceptable if it matches as far as it goes.
class QRegExpValidator : public QValidator
{
public:
    QRegExpValidator(const QRegExp& regExp, QObject* pParent) : QValidator(pParent), m_regExp(regExp) {}

    State validate(QString& strText, int& iPosition) const override
    {
        QRegExp regExp(m_regExp);
        if (regExp.exactMatch(strText))
            return Acceptable;
        if (regExp.matchedLength() == strText.size())
            return Intermediate;
        iPosition = int(strText.size());
        return Invalid;
    }

    const QRegExp& regExp() const { return m_regExp; }

private:
    QRegExp m_regExp;
};
#endif

namespace QtCompat
{

// What a widget's enterEvent gets.
#if QT_VERSION >= 0x060000
typedef QEnterEvent EnterEvent;
#else
typedef QEvent EnterEvent;
#endif

// Where a drag hovers or drops, in the widget's own pixels, and the keys held then.
inline QPoint dropPosition(const QDropEvent& event)
{
#if QT_VERSION >= 0x060000
    return event.position().toPoint();
#else
    return event.pos();
#endif
}

inline Qt::KeyboardModifiers dropModifiers(const QDropEvent& event)
{
#if QT_VERSION >= 0x060000
    return event.modifiers();
#else
    return event.keyboardModifiers();
#endif
}

// Whether the mouse has moved. Where a view scrolls by itself, as at the end of a selection or a drag, Qt 6 makes up a
// movement with the button down.
inline bool isMouseMoved(const QMouseEvent& event)
{
#if QT_VERSION >= 0x060000
    return event.spontaneous() || event.source() != Qt::MouseEventSynthesizedByQt;
#else
    Q_UNUSED(event)
    return true;
#endif
}

// The signal of a button group that tells the identifier of the button clicked.
inline const char* idClicked()
{
#if QT_VERSION >= 0x060000
    return SIGNAL(idClicked(int));
#else
    return SIGNAL(buttonClicked(int));
#endif
}

// UTF-16 as the SDK hands it out, to its zero or of a length.
inline QString fromUtf16(const unsigned short* pusText, int iLength = -1)
{
#if QT_VERSION >= 0x060000
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(pusText), iLength);
#else
    return QString::fromUtf16(pusText, iLength);
#endif
}

// The part of the widget's screen that no panel covers.
inline QRect availableGeometry(const QWidget* pWidget)
{
#if QT_VERSION >= 0x060000
    return pWidget->screen()->availableGeometry();
#else
    return QApplication::desktop()->availableGeometry(pWidget);
#endif
}

// The same of the screen at a point, which for a point outside them all is one of those there are.
inline QRect availableGeometry(const QPoint& point)
{
#if QT_VERSION >= 0x050a00
    const QScreen* pScreen = QGuiApplication::screenAt(point);
    return (pScreen != nullptr ? pScreen : QGuiApplication::primaryScreen())->availableGeometry();
#else
    return QApplication::desktop()->availableGeometry(point);
#endif
}

// Whether the display shows the widget's window: it is where the window manager wants it.
inline bool isExposed(const QWidget* pWidget)
{
#if QT_VERSION >= 0x050000
    const QWindow* const pWindow = pWidget->window()->windowHandle();
    return pWindow != nullptr && pWindow->isExposed();
#else
    return pWidget->window()->isVisible();
#endif
}

// Calls the slot when a screen has gone, before the windows have moved. Qt 4 has no such signal, and moves nothing.
inline void connectScreenGone(QObject* pReceiver, const char* pszSlot)
{
#if QT_VERSION >= 0x050400
    QObject::connect(qApp, SIGNAL(screenRemoved(QScreen*)), pReceiver, pszSlot);
#else
    Q_UNUSED(pReceiver);
    Q_UNUSED(pszSlot);
#endif
}

// Families for a font to look for a character in, the first one first. Qt 6 takes a name with commas for one family.
inline void setFamilies(QFont& font, const QStringList& lstFamilies)
{
#if QT_VERSION >= 0x060000
    font.setFamilies(lstFamilies);
#else
    font.setFamily(lstFamilies.join(QLatin1String(",")));
#endif
}

// Ini files in UTF-8, as Qt 6 always has them.
inline void useUtf8(QSettings& settings)
{
#if QT_VERSION >= 0x060000
    Q_UNUSED(settings)
#else
    settings.setIniCodec("UTF-8");
#endif
}

// The folder of Qt's own translations.
inline QString translationsFolder()
{
#if QT_VERSION >= 0x060000
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}

// The first key of a sequence with its modifiers, as one number.
inline int firstKey(const QKeySequence& sequence)
{
#if QT_VERSION >= 0x060000
    return sequence[0].toCombined();
#else
    return int(sequence[0]);
#endif
}

// QString::toAscii of Qt 4; Qt 5 dropped the name.
inline QByteArray toAscii(const QString& strText)
{
#if QT_VERSION >= 0x050000
    return strText.toLatin1();
#else
    return strText.toAscii();
#endif
}

// A plain text as rich text shows it: what would be a mark there is written out.
inline QString htmlEscaped(const QString& strText)
{
#if QT_VERSION >= 0x050000
    return strText.toHtmlEscaped();
#else
    return Qt::escape(strText);
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
#if QT_VERSION >= 0x050600 && QT_VERSION < 0x060000
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

// Tells a screen reader that the check mark of a view's accessible child has changed.
inline void tellMark(QWidget* pView, int iChild)
{
#if QT_VERSION >= 0x050000
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(pView, changed);
    event.setChild(iChild);
    QAccessible::updateAccessibility(&event);
#else
    QAccessible::updateAccessibility(pView, iChild + 1, QAccessible::StateChanged);
#endif
}

// Calls off the drag that runs, so that its exec() returns. With Qt 4 it goes on until the button is let go.
inline void cancelDrag()
{
#if QT_VERSION >= 0x050700
    QDrag::cancel();
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
