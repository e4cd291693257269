# linkhand_precompiled(target...): spares tests and their fixtures the reading of Qt's headers.
function(linkhand_precompiled)
  linkhand_share_precompiled(test_headers "linkhand_qtwidgets;linkhand_qttest" "<QtTest>;<QtWidgets>" "${ARGN}")
endfunction()

# linkhand_precompiled_core(target...): the same for those that have no widgets.
function(linkhand_precompiled_core)
  linkhand_share_precompiled(core_test_headers "linkhand_qtcore;linkhand_qttest" "<QtTest>;<QtCore>" "${ARGN}")
endfunction()

# linkhand_precompiled_under_sanitizer(target...): the same for what is shipped, under a sanitizer only: elsewhere each of
# its files shows that it includes what it uses.
function(linkhand_precompiled_under_sanitizer)
  if(LINKHAND_SANITIZER)
    linkhand_share_precompiled(source_headers "linkhand_qtwidgets" "<QtWidgets>" "${ARGN}")
  endif()
endfunction()

# linkhand_together_under_sanitizer(target...): compiles several files at a time, which reads their headers once; under a
# sanitizer only, for the same reason. No two files of such a target may give one name to different things.
function(linkhand_together_under_sanitizer)
  if(LINKHAND_SANITIZER AND LINKHAND_PRECOMPILED)
    set_target_properties(${ARGN} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 6)
  endif()
endfunction()

# One file of headers for all targets that give its name; it is made when the first asks for it.
function(linkhand_share_precompiled name libraries headers targets)
  if(NOT LINKHAND_PRECOMPILED)
    return()
  endif()
  if(NOT TARGET ${name})
    file(WRITE ${CMAKE_BINARY_DIR}/${name}.cpp "")
    add_library(${name} OBJECT ${CMAKE_BINARY_DIR}/${name}.cpp)
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
    target_link_libraries(${name} PRIVATE ${libraries})
    target_precompile_headers(${name} PRIVATE ${headers})
  endif()
  foreach(target IN LISTS targets)
    target_precompile_headers(${target} REUSE_FROM ${name})
  endforeach()
endfunction()
