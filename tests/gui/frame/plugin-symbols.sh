#!/bin/sh
# plugin-symbols.sh PLUGIN: fails unless the plug-in exports its three entry points alone, and needs nothing but Qt,
# the C and C++ run time, the SDK's C functions and the host library's documented classes.
set -eu
plugin=$1
status=0

# Qt 6 finds its metadata in a note of the file, and the library that has what it dropped names no version.
entries='qt_plugin_instance
qt_plugin_query_metadata
qt_plugin_query_verification_data'
dropped='^$'
if readelf -d "$plugin" | grep -q 'NEEDED.*libQt6'; then
    entries='qt_plugin_instance
qt_plugin_query_verification_data'
    dropped='^(QRegExp|QTextCodec)::'
fi
exported=$(nm -D --defined-only "$plugin" | awk '{print $3}' | sed 's/@.*//' | sort)
if [ "$exported" != "$entries" ]; then
    echo "exported symbols:"
    echo "$exported"
    status=1
fi

# Host library: CommonUtils, Change, ToolBarLogic, Startup, ExtendDialog, SearchLineEdit, MENU::QBuildMenu.
core='CommonUtils|Change|ToolBarLogic|Startup|ExtendDialog|SearchLineEdit|MENU::QBuildMenu'
# A sanitized build asks for its run time as well, which stands in for functions of the C and C++ run time.
sanitizer='^$'
if readelf -d "$plugin" | grep -q 'NEEDED.*lib[atu]*san'; then
    sanitizer='^operator (new|delete)|^(mem|str|pthread_)[a-z_]+$|^__cxa_atexit$'
fi
strange=$(nm -DC --undefined-only "$plugin" | sed -E 's/^ +[UwvW] //; s/^(typeinfo|vtable|non-virtual thunk|virtual thunk)( name)? (for|to) //' |
    grep -vE '@(GLIBC|GLIBCXX|CXXABI|GCC)_[0-9A-Z.]*' |
    grep -vE '@Qt_[56]' |
    grep -vE '^ORVA_(PBSrv_|DevSrv_|NetSrv_|GetLogDirectory)' |
    grep -vE "^($core)::|^($core)\$" |
    grep -vE "$sanitizer" |
    grep -vE "$dropped" |
    grep -vE '^(_ITM_|__gmon_start__|__cxa_finalize|__(asan|ubsan|tsan|lsan|sanitizer)_)' || true)
if [ -n "$strange" ]; then
    echo "undefined symbols of nobody:"
    echo "$strange"
    status=1
fi

needed=$(readelf -d "$plugin" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' |
    grep -vE '^(libQt(5(Core|Gui|Widgets|Xml)\.so\.5|6(Core|Gui|Widgets|Xml|Core5Compat)\.so\.6)|libsdk\.so\.1|libcore\.so\.1|lib(stdc\+\+|gcc_s|c|m)\.so\.[0-9]+|lib(asan|ubsan|tsan)\.so\.[0-9]+|ld-linux.*)$' || true)
if [ -n "$needed" ]; then
    echo "needs libraries of nobody:"
    echo "$needed"
    status=1
fi
exit $status
