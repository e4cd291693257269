# Language level, warnings and sanitizers of every target.

set(CMAKE_C_STANDARD 99)
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

find_package(Threads REQUIRED)

add_compile_options(-Wall -Wextra -Wshadow -Werror)
# A signal and a function of the same name, or a parameter named as a method, is the norm with Qt; gcc's plain
# -Wshadow leaves both alone. _FORTIFY_SOURCE and friends are the packager's choice.

# Log lines name source files, and those names are short ones wherever the trees lie.
add_compile_options(-ffile-prefix-map=${CMAKE_SOURCE_DIR}/= -ffile-prefix-map=${CMAKE_BINARY_DIR}/=)

find_program(LINKHAND_LLD ld.lld)
if(LINKHAND_SANITIZER)
  add_compile_options(-fsanitize=${LINKHAND_SANITIZER} -fno-omit-frame-pointer -g1 -O1)
  add_link_options(-fsanitize=${LINKHAND_SANITIZER})
  # Hundreds of test programs, each with a sanitizer in it: a quick linker saves minutes. What is shipped has the usual
  # one. (mold would make names that are only looked for ones that are needed.)
  if(LINKHAND_LLD)
    add_link_options(-fuse-ld=lld)
  endif()
  if(LINKHAND_SANITIZER MATCHES "undefined")
    add_compile_options(-fno-sanitize-recover=undefined)
    # Interfaces are hidden in each library, so that their type information differs from one to the next: vptr
    # checks across libraries would be false alarms.
    add_compile_options(-fno-sanitize=vptr)
  endif()
endif()

# Fuzz targets see into the libraries they link.
if(LINKHAND_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined -g -O1)
  add_link_options(-fsanitize=address,undefined)
endif()

add_library(linkhand_include INTERFACE)
target_include_directories(linkhand_include INTERFACE ${CMAKE_SOURCE_DIR}/include)
