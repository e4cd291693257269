#!/usr/bin/env bash
# Usage: qt4-names.sh SOURCES  Looks for what Qt 4.8 does not have in the sources that are built with it too: the plug-in,
# the host library, the host and the siblings. Only QtCompat.h, where the differences between the releases live, may
# name such things. No compiler here can tell, since there is no Qt 4 to compile with.
set -euo pipefail
cd "$1"

# look WHAT PATTERN [FILES...]: fails if a line that is not a comment matches.
status=0
look()
{
    local what=$1 pattern=$2
    shift 2
    local found
    found=$(grep -rnHE --include='*.cpp' --include='*.h' --include=CMakeLists.txt -- "$pattern" "$@" |
        grep -vE '^[^:]+:[0-9]+:[[:space:]]*(//|#  *[A-Z])' | grep -vE '^include/linkhand/QtCompat\.h:|QtCompat::toAscii' || true)
    if [ -n "$found" ]; then
        printf '%s:\n%s\n' "$what" "$found"
        status=1
    fi
}

rooms=(src/AddrBookUIPlugin src/core src/host src/shared src/siblings include/linkhand)
for room in "${rooms[@]}"; do
    [ -n "$(find "$room" -name '*.h' | head -1)" ] || { echo "no sources in $room"; exit 1; }
done

names='QStandardPaths|QStringLiteral|QByteArrayLiteral|QRegularExpression\w*|QCommandLine\w+|QJson\w+|QStringView'
names+='|QSaveFile|QLockFile|QTemporaryDir|QStorageInfo|QMimeDatabase|QUrlQuery|QTimeZone|QCollator\w*|QVersionNumber'
names+='|QGuiApplication|QScreen|QWindow|QSignalBlocker|QScopeGuard|QRandomGenerator|QLoggingCategory|QMetaEnum::fromType'
names+='|QKeySequenceEdit|QDeadlineTimer|QOverload|QMessageLogger|QAccessibleInterface|QAbstractNativeEventFilter'
names+='|qInstallMessageHandler|qAsConst|qOverload|qInfo|qCDebug|qCWarning|qCInfo|qUtf8Printable|qEnvironmentVariable\w*'
names+='|qScopeGuard|Q_ENUM|Q_FLAG|Q_NAMESPACE|Q_GADGET_EXPORT|Q_FALLTHROUGH|Q_LIKELY_BRANCH|Q_PLUGIN_METADATA'
names+='|Q_EXPORT_PLUGIN2?|Q_DECL_NOTHROW|Q_NULLPTR|Q_LOGGING_CATEGORY'
look "names that Qt 4 does not know" "\\b($names)\\b" "${rooms[@]}"

members='setSectionResizeMode|setResizeMode|setSectionsMovable|setMovable|setSectionsClickable|setClickable'
members+='|setClearButtonEnabled|horizontalAdvance|devicePixelRatio\w*|setDevicePixelRatio|setDesktopFileName'
members+='|setApplicationDisplayName|setSizeAdjustPolicy\(Q[^C]\w+::\w+|setCurrentText|setWindowFlag|toHtmlEscaped|splitRef|chopped'
members+='|toSecsSinceEpoch|fromSecsSinceEpoch|currentSecsSinceEpoch|fromStdString16|toStdU16String|setShortcutVisibleInContextMenu'
members+='|setToolTipsVisible|requestInterruption|isInterruptionRequested|setEventDispatcher|readLineInto|setTabBarAutoHide'
members+='|globalPosition|angleDelta|pixelDelta|localPos|windowPos|screenPos|toAscii|fromAscii|currentTextChanged'
members+='|windowHandle|QStyle::PM_TitleBarButton\w+|PlaceholderText|FindDirectChildrenOnly|FindChildrenRecursively'
members+='|isSurrogate|isNonCharacter|constFirst|constLast|asprintf|vasprintf|fromSignal|removeRecursively|swapItemsAt|removeIf'
members+='|keyValueBegin|constKeyValueBegin|asKeyValueRange|sliced|truncated|resetDefaultSectionSize|setFirstSectionMovable'
members+='|isPersistentEditorOpen|currentData|currentDataChanged|setFilterRegularExpression|grab|errorOccurred|nullDevice'
members+='|remainingTime|setTimerType|setTimeZone|offsetFromUtc|setOffsetFromUtc|toOffsetFromUtc|birthTime|fileTime'
members+='|setFileTime|moveToTrash|writableLocation|standardLocations|primaryScreen|screenAdded|topLevelWindows'
members+='|setQuitLockEnabled|applicationStateChanged|fontChanged|paletteChanged|startTransaction|commitTransaction'
members+='|loadAcquire|storeRelease|loadRelaxed|storeRelaxed|SkipEmptyParts|AA_EnableHighDpiScaling|AA_UseHighDpiPixmaps'
look "members that only one of the releases has" "(\\.|->|::|SIGNAL\\()($members)\\b" "${rooms[@]}"

look "connections to functions and lambdas" 'connect\([^;"]*(, *\[|, *&[A-Za-z_]+::)' "${rooms[@]}"
look "timers that call lambdas" 'singleShot\([^;]*, *\[' "${rooms[@]}"
look "headers by module" '#include *<(Qt(Core|Gui|Widgets|Xml|Network|Test|PrintSupport|Concurrent)(/.*)?)>' "${rooms[@]}"
look "lists in braces" '\bQ(List|Vector|Set|Hash|Map|MultiMap|MultiHash|Queue|StringList)(<[^;(){}]*>)?( \w+)?( = )?\{[^}]' "${rooms[@]}"
look "digit separators, which its moc cannot read" "[0-9]'[0-9]" "${rooms[@]}"
look "targets of one release" 'Qt[456]::|Qt[56]_|QT_QT' src languages plugins packaging tests benchmarks

[ "$status" = 0 ] && echo "nothing that Qt 4 does not have"
exit $status
