# linkhand_test(name LABELS l... SOURCES s... LIBRARIES l... [TIMEOUT seconds]): a test program, run by ctest in its own
# empty home folder, offscreen, in the C.UTF-8 locale. The label "threads" puts it into the thread sanitizer's run.
function(linkhand_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "LABELS;SOURCES;LIBRARIES" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 240)
  endif()
  add_executable(${name} ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${LINKHAND_TEST_OUTPUT}
    BUILD_RPATH "${LINKHAND_LIBRARY_OUTPUT}")
  target_link_libraries(${name} PRIVATE linkhand_include ${ARG_LIBRARIES})
  linkhand_own_moc(${name})
  # Whatever uses Qt's tests, directly or through a fixture.
  if("linkhand_qttest" IN_LIST ARG_LIBRARIES OR "linkhand_qtwidgets" IN_LIST ARG_LIBRARIES OR "gui" IN_LIST ARG_LABELS
      OR "host" IN_LIST ARG_LABELS)
    linkhand_precompiled(${name})
  endif()
  linkhand_linked_quickly(${name})
  linkhand_add_test(${name} COMMAND $<TARGET_FILE:${name}> LABELS ${ARG_LABELS} TIMEOUT ${ARG_TIMEOUT})
endfunction()

# linkhand_linked_quickly(name): hundreds of programs that nobody ships take the quick linker, if it is there.
function(linkhand_linked_quickly name)
  if(LINKHAND_LLD AND NOT LINKHAND_FUZZ)
    target_link_options(${name} PRIVATE -fuse-ld=lld)
  endif()
endfunction()

# linkhand_own_moc(target...): calls moc for the sources that end with their own .moc, and for headers with Q_OBJECT that
# are listed or stand beside a source. CMake's automatic way looks at all files of each target, compiles a further file for
# each, mostly an empty one, and has moc read all of Qt's headers, where the interfaces in our own are all it needs.
function(linkhand_own_moc)
  foreach(target IN LISTS ARGN)
    get_target_property(sources ${target} SOURCES)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${target}_moc)
    set_target_properties(${target} PROPERTIES AUTOMOC OFF)
    target_include_directories(${target} PRIVATE ${folder})
    set(headers)
    foreach(source IN LISTS sources)
      get_filename_component(source ${source} ABSOLUTE)
      string(REGEX REPLACE "\\.cpp$" ".h" header ${source})
      list(APPEND headers ${header})
      get_filename_component(class ${source} NAME_WE)
      if(NOT header STREQUAL source)
        linkhand_moc_if(${target} ${source} "^#include \"${class}\\.moc\"" ${folder}/${class}.moc)
      endif()
    endforeach()
    list(REMOVE_DUPLICATES headers)
    foreach(header IN LISTS headers)
      get_filename_component(class ${header} NAME_WE)
      linkhand_moc_if(${target} ${header} "Q_OBJECT" ${folder}/moc_${class}.cpp)
    endforeach()
  endforeach()
endfunction()

# Has moc write output, a source of the target, if the file is there and holds the expression.
function(linkhand_moc_if target file expression output)
  set(lines)
  if(EXISTS ${file})
    file(STRINGS ${file} lines REGEX "${expression}")
  endif()
  if(lines)
    get_filename_component(folder ${output} DIRECTORY)
    file(MAKE_DIRECTORY ${folder})
    set(own "$<FILTER:$<TARGET_PROPERTY:${target},INCLUDE_DIRECTORIES>,INCLUDE,^${CMAKE_SOURCE_DIR}/>")
    add_custom_command(OUTPUT ${output} COMMAND ${LINKHAND_MOC} "-I$<JOIN:${own},;-I>" -o ${output} ${file}
      DEPENDS ${file} COMMAND_EXPAND_LISTS VERBATIM)
    target_sources(${target} PRIVATE ${output})
  endif()
endfunction()

# linkhand_fixture(name SOURCES s... LIBRARIES l...): what several tests begin with, compiled once for all of them.
function(linkhand_fixture name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_library(${name} OBJECT ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC linkhand_include ${ARG_LIBRARIES})
  linkhand_own_moc(${name})
  linkhand_precompiled(${name})
endfunction()

# What the tests of the thread sanitizer's run need, and what those need that do without a display. The endurance test
# needs the whole program; its long form builds that by itself.
add_custom_target(threads_tests)
add_custom_target(offscreen_tests)

# linkhand_add_test(name COMMAND c... [LABELS l...] [TIMEOUT seconds]): the same for a command that is built elsewhere.
# A test on a display has the label "desktop".
function(linkhand_add_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "COMMAND;LABELS" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 240)
  endif()
  string(REGEX MATCHALL "TARGET_FILE:[^>]+" programs "${ARG_COMMAND}")
  list(TRANSFORM programs REPLACE "^TARGET_FILE:" "")
  if(programs AND "threads" IN_LIST ARG_LABELS AND NOT "endurance" IN_LIST ARG_LABELS)
    add_dependencies(threads_tests ${programs})
  endif()
  if(programs AND NOT "desktop" IN_LIST ARG_LABELS)
    add_dependencies(offscreen_tests ${programs})
  endif()
  if(LINKHAND_SANITIZER)
    math(EXPR ARG_TIMEOUT "${ARG_TIMEOUT} * 5")
  endif()
  set(home ${CMAKE_BINARY_DIR}/homes/${name})
  add_test(NAME ${name} COMMAND ${CMAKE_SOURCE_DIR}/tests/in-home.sh ${home} ${ARG_COMMAND})
  # On an X display its keyboard library copies a part of a text that does not end there, and the platform plug-in leaves
  # memory behind when it is unloaded. Leaks are looked for offscreen.
  set(address "detect_leaks=1:strict_string_checks=1")
  if("${ARG_COMMAND}" MATCHES "with-display")
    set(address "detect_leaks=0:strict_string_checks=0")
  endif()
  # The thread sanitizer guesses how large a library's thread-local block is from what lies before it, which in a block of
  # freed memory is anything; it goes down with terabytes then.
  set(environment
    "LANG=C.UTF-8" "LC_ALL=C.UTF-8" "QT_QPA_PLATFORM=offscreen"
    "LINKHAND_SOURCE_DIR=${CMAKE_SOURCE_DIR}" "LINKHAND_BUILD_DIR=${CMAKE_BINARY_DIR}"
    "ASAN_OPTIONS=${address}:detect_stack_use_after_return=1"
    "UBSAN_OPTIONS=print_stacktrace=1"
    "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0"
    "TSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/support/tsan.supp:second_deadlock_stack=1:intercept_tls_get_addr=0")
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "${environment}" LABELS "${ARG_LABELS}" TIMEOUT ${ARG_TIMEOUT})
  # Those on a display come one after the other: the first run of a build folder, too, begins with them.
  if("desktop" IN_LIST ARG_LABELS)
    set_tests_properties(${name} PROPERTIES COST 1000)
  endif()
endfunction()
