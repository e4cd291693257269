#ifndef LINKHAND_PLUGIN_PLUGINVERIFICATION_H
#define LINKHAND_PLUGIN_PLUGINVERIFICATION_H

#include "linkhand/QtCompat.h"

// The verification text by which the host tells, before it runs any code of a plug-in, whether both were built for
// the same Qt by compilers that fit. Four lines: the pattern, the version of Qt, whether Qt itself is a debug build,
// and the build key (architecture, system, C++ ABI).
//
// A plug-in writes, once, at file scope:   LINKHAND_EXPORT_VERIFICATION()
// Qt 4 exports such a text with its own plug-in macro, and the one here is then empty.

#if defined(__x86_64__)
#define LINKHAND_BUILD_ARCHITECTURE "x86_64"
#elif defined(__i386__)
#define LINKHAND_BUILD_ARCHITECTURE "i386"
#elif defined(__aarch64__)
#define LINKHAND_BUILD_ARCHITECTURE "arm64"
#elif defined(__arm__)
#define LINKHAND_BUILD_ARCHITECTURE "arm"
#elif defined(__riscv)
#define LINKHAND_BUILD_ARCHITECTURE "riscv"
#elif defined(__powerpc64__)
#define LINKHAND_BUILD_ARCHITECTURE "power64"
#else
#define LINKHAND_BUILD_ARCHITECTURE "other"
#endif

// Compilers of the Itanium C++ ABI can be mixed; their standard libraries cannot.
#if defined(_LIBCPP_VERSION)
#define LINKHAND_BUILD_ABI "libc++"
#elif defined(_GLIBCXX_USE_CXX11_ABI) && _GLIBCXX_USE_CXX11_ABI
#define LINKHAND_BUILD_ABI "libstdc++-cxx11"
#else
#define LINKHAND_BUILD_ABI "libstdc++-cxx98"
#endif

#define LINKHAND_BUILD_KEY LINKHAND_QT_BUILD_KEY(LINKHAND_BUILD_ARCHITECTURE " linux " LINKHAND_BUILD_ABI)

#define LINKHAND_VERIFICATION_TEXT                                                                                     \
    "pattern=QT_PLUGIN_VERIFICATION_DATA\n"                                                                            \
    "version=" QT_VERSION_STR "\n"                                                                                     \
    "debug=false\n"                                                                                                    \
    "buildkey=" LINKHAND_BUILD_KEY

#define LINKHAND_EXPORT_VERIFICATION()                                                                                 \
    LINKHAND_QT_VERIFICATION(extern "C" Q_DECL_EXPORT const char* qt_plugin_query_verification_data();                 \
                             extern "C" Q_DECL_EXPORT const char* qt_plugin_query_verification_data() {                \
                                 return LINKHAND_VERIFICATION_TEXT;                                                    \
                             })

#endif // LINKHAND_PLUGIN_PLUGINVERIFICATION_H
