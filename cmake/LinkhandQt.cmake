# One set of Qt targets for all releases: linkhand_qtcore, linkhand_qtwidgets, linkhand_qtxml and, for tests,
# linkhand_qttest. Nothing outside this file names a Qt release. LINKHAND_LRELEASE compiles language files.

set(CMAKE_AUTOMOC ON)

add_library(linkhand_qtcore INTERFACE)
add_library(linkhand_qtwidgets INTERFACE)
add_library(linkhand_qtxml INTERFACE)
add_library(linkhand_qttest INTERFACE)

if(LINKHAND_QT EQUAL 5)
  find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets Xml Test LinguistTools)
  target_link_libraries(linkhand_qtcore INTERFACE Qt5::Core)
  target_link_libraries(linkhand_qtwidgets INTERFACE Qt5::Widgets)
  target_link_libraries(linkhand_qtxml INTERFACE Qt5::Xml)
  target_link_libraries(linkhand_qttest INTERFACE Qt5::Test)
  set(LINKHAND_LRELEASE Qt5::lrelease)
elseif(LINKHAND_QT EQUAL 6)
  # QRegExp and QTextCodec decide what is accepted and how rows sort; Core5Compat has both as they were.
  find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets Xml Core5Compat LinguistTools)
  target_link_libraries(linkhand_qtcore INTERFACE Qt6::Core Qt6::Core5Compat)
  target_link_libraries(linkhand_qtwidgets INTERFACE Qt6::Widgets Qt6::Core5Compat)
  target_link_libraries(linkhand_qtxml INTERFACE Qt6::Xml)
  set(LINKHAND_LRELEASE Qt6::lrelease)
elseif(LINKHAND_QT EQUAL 4)
  find_package(Qt4 4.8 QUIET COMPONENTS QtCore QtGui QtXml)
  if(NOT Qt4_FOUND)
    message(FATAL_ERROR "LINKHAND_QT=4 needs the development files of Qt 4.8 (QtCore, QtGui, QtXml and moc), which were "
      "not found. Where they are, name their qmake with -DQT_QMAKE_EXECUTABLE=...; without that option Qt 5 is used.")
  endif()
  target_link_libraries(linkhand_qtcore INTERFACE Qt4::QtCore)
  target_link_libraries(linkhand_qtwidgets INTERFACE Qt4::QtGui)
  target_link_libraries(linkhand_qtxml INTERFACE Qt4::QtXml)
  # From Qt itself, else whatever the system calls it; the files are the same.
  if(QT_LRELEASE_EXECUTABLE)
    set(LINKHAND_LRELEASE ${QT_LRELEASE_EXECUTABLE})
  else()
    find_program(LINKHAND_LRELEASE NAMES lrelease-qt4 lrelease REQUIRED)
  endif()
else()
  message(FATAL_ERROR "LINKHAND_QT must be 4, 5 or 6, not ${LINKHAND_QT}")
endif()
