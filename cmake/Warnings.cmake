# One set of compiler options for every target of the project.
add_library(tallix_options INTERFACE)
target_compile_options(tallix_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor -Woverloaded-virtual -Werror
  # GCC 12 reports overlaps and lengths in the string library's own "text" + string that do
  # not occur. clang-tidy reads the same options and reports those it does not know.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict;-Wno-stringop-overflow;-Wno-array-bounds;-fpch-preprocess> -Wno-unknown-warning-option)

if(TALLIX_SANITIZE)
  # Under the sanitizers GCC 12 takes members of the standard library for uninitialised.
  target_compile_options(tallix_options INTERFACE -Wno-maybe-uninitialized
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(tallix_options INTERFACE -fsanitize=address,undefined)
endif()

find_program(CCACHE ccache)
if(CCACHE)
  # What ccache must overlook to keep files that use precompiled headers.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
endif()
