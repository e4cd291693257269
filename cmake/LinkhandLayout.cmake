# A build tree is laid out like the installed program and runs from where it lies:
#   linkhand  pbctl  lib/libsdk.so.1  lib/libcore.so.1  plugins/lib*.so  plugins/<plug-in>/...  languages/*.qm

set(LINKHAND_PLUGIN_OUTPUT ${CMAKE_BINARY_DIR}/plugins)
set(LINKHAND_LIBRARY_OUTPUT ${CMAKE_BINARY_DIR}/lib)
set(LINKHAND_LANGUAGE_OUTPUT ${CMAKE_BINARY_DIR}/languages)
set(LINKHAND_TEST_OUTPUT ${CMAKE_BINARY_DIR}/tests)

# The installed program keeps the same shape below one folder, with links in bin.
set(LINKHAND_INSTALL_DIR ${CMAKE_INSTALL_LIBDIR}/linkhand)
# Nobody but its owner may write to it, whatever the umask of who installs.
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(LINKHAND_BENCHMARK_OUTPUT ${CMAKE_BINARY_DIR}/benchmarks)

# Everything that a user runs, without tests and benchmarks: cmake --build ... --target program
add_custom_target(program)

# linkhand_library(name sources...): a shared library lib<name>.so.1 in lib/.
function(linkhand_library name)
  add_library(${name} SHARED ${ARGN})
  set_target_properties(${name} PROPERTIES
    VERSION 1.0.0 SOVERSION 1
    LIBRARY_OUTPUT_DIRECTORY ${LINKHAND_LIBRARY_OUTPUT})
  target_link_libraries(${name} PUBLIC linkhand_include)
  # The .so link belongs to the development files; the program needs the .so.1 alone.
  install(TARGETS ${name} LIBRARY DESTINATION ${LINKHAND_INSTALL_DIR}/lib NAMELINK_SKIP)
  add_dependencies(program ${name})
endfunction()

# linkhand_plugin(name sources...): a plug-in of the host, lib<name>.so in plugins/, with its files in plugins/<name>.
function(linkhand_plugin name)
  add_library(${name} MODULE ${ARGN})
  set_target_properties(${name} PROPERTIES
    LIBRARY_OUTPUT_DIRECTORY ${LINKHAND_PLUGIN_OUTPUT}
    BUILD_RPATH "$ORIGIN/../lib" INSTALL_RPATH "$ORIGIN/../lib")
  target_link_libraries(${name} PRIVATE linkhand_include linkhand_qtwidgets core)
  # The host refuses a plug-in that others may write, whatever the builder's umask.
  add_custom_command(TARGET ${name} POST_BUILD COMMAND chmod go-w $<TARGET_FILE:${name}>)
  install(TARGETS ${name} LIBRARY DESTINATION ${LINKHAND_INSTALL_DIR}/plugins)
  add_dependencies(program ${name})
endfunction()

# linkhand_program(name sources...): a program at the root of the tree.
function(linkhand_program name)
  add_executable(${name} ${ARGN})
  set_target_properties(${name} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}
    BUILD_RPATH "$ORIGIN/lib" INSTALL_RPATH "$ORIGIN/lib")
  target_link_libraries(${name} PRIVATE linkhand_include)
  install(TARGETS ${name} RUNTIME DESTINATION ${LINKHAND_INSTALL_DIR})
  add_dependencies(program ${name})
endfunction()
