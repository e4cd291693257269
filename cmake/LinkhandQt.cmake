# One set of Qt targets for all releases: linkhand_qtcore, linkhand_qtwidgets, linkhand_qtxml, linkhand_qtdbus
# and, for tests, linkhand_qttest. Nothing outside this file names a Qt release. LINKHAND_LRELEASE compiles language files,
# LINKHAND_MOC makes the meta-objects of tests without a look at Qt's headers.

set(CMAKE_AUTOMOC ON)

add_library(linkhand_qtcore INTERFACE)
add_library(linkhand_qtwidgets INTERFACE)
add_library(linkhand_qtxml INTERFACE)
add_library(linkhand_qtdbus INTERFACE)
add_library(linkhand_qttest INTERFACE)

if(LINKHAND_QT EQUAL 5)
  find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets Xml DBus Test LinguistTools)
  target_link_libraries(linkhand_qtcore INTERFACE Qt5::Core)
  target_link_libraries(linkhand_qtwidgets INTERFACE Qt5::Widgets)
  target_link_libraries(linkhand_qtxml INTERFACE Qt5::Xml)
  target_link_libraries(linkhand_qtdbus INTERFACE Qt5::DBus)
  target_link_libraries(linkhand_qttest INTERFACE Qt5::Test)
  set(LINKHAND_LRELEASE Qt5::lrelease)
  set(LINKHAND_MOC Qt5::moc -DQT_VERSION=0x050000)
elseif(LINKHAND_QT EQUAL 6)
  # QRegExp and QTextCodec decide what is accepted and how rows sort; Core5Compat has both as they were.
  find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets Xml DBus Test Core5Compat LinguistTools)
  target_link_libraries(linkhand_qtcore INTERFACE Qt6::Core Qt6::Core5Compat)
  target_link_libraries(linkhand_qtwidgets INTERFACE Qt6::Widgets Qt6::Core5Compat)
  target_link_libraries(linkhand_qtxml INTERFACE Qt6::Xml)
  target_link_libraries(linkhand_qtdbus INTERFACE Qt6::DBus)
  target_link_libraries(linkhand_qttest INTERFACE Qt6::Test)
  # It tells each test where its own sources lie, which none asks; precompiled headers want the same of all.
  get_target_property(definitions Qt6::Test INTERFACE_COMPILE_DEFINITIONS)
  list(FILTER definitions EXCLUDE REGEX "^QT_TESTCASE_")
  set_target_properties(Qt6::Test PROPERTIES INTERFACE_COMPILE_DEFINITIONS "${definitions}")
  set(LINKHAND_LRELEASE Qt6::lrelease)
  set(LINKHAND_MOC Qt6::moc -DQT_VERSION=0x060000)
elseif(LINKHAND_QT EQUAL 4)
  find_package(Qt4 4.8 QUIET COMPONENTS QtCore QtGui QtXml QtDBus)
  if(NOT Qt4_FOUND)
    message(FATAL_ERROR "LINKHAND_QT=4 needs the development files of Qt 4.8 (QtCore, QtGui, QtXml, QtDBus, moc), which were "
      "not found. Where they are, name their qmake with -DQT_QMAKE_EXECUTABLE=...; without that option Qt 5 is used.")
  endif()
  target_link_libraries(linkhand_qtcore INTERFACE Qt4::QtCore)
  target_link_libraries(linkhand_qtwidgets INTERFACE Qt4::QtGui)
  target_link_libraries(linkhand_qtxml INTERFACE Qt4::QtXml)
  target_link_libraries(linkhand_qtdbus INTERFACE Qt4::QtDBus)
  # From Qt itself, else whatever the system calls it; the files are the same.
  if(QT_LRELEASE_EXECUTABLE)
    set(LINKHAND_LRELEASE ${QT_LRELEASE_EXECUTABLE})
  else()
    find_program(LINKHAND_LRELEASE NAMES lrelease-qt4 lrelease REQUIRED)
  endif()
else()
  message(FATAL_ERROR "LINKHAND_QT must be 4, 5 or 6, not ${LINKHAND_QT}")
endif()
