# One set of Qt targets for both releases: linkhand_qtcore, linkhand_qtwidgets and linkhand_qtxml.

set(CMAKE_AUTOMOC ON)

add_library(linkhand_qtcore INTERFACE)
add_library(linkhand_qtwidgets INTERFACE)
add_library(linkhand_qtxml INTERFACE)

if(LINKHAND_QT EQUAL 5)
  find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets Xml Test LinguistTools)
  target_link_libraries(linkhand_qtcore INTERFACE Qt5::Core)
  target_link_libraries(linkhand_qtwidgets INTERFACE Qt5::Widgets)
  target_link_libraries(linkhand_qtxml INTERFACE Qt5::Xml)
elseif(LINKHAND_QT EQUAL 4)
  find_package(Qt4 4.6 REQUIRED COMPONENTS QtCore QtGui QtXml)
  target_link_libraries(linkhand_qtcore INTERFACE Qt4::QtCore)
  target_link_libraries(linkhand_qtwidgets INTERFACE Qt4::QtGui)
  target_link_libraries(linkhand_qtxml INTERFACE Qt4::QtXml)
else()
  message(FATAL_ERROR "LINKHAND_QT must be 5 or 4, not ${LINKHAND_QT}")
endif()
