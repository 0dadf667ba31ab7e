# Headers that nearly every file reads are compiled once for each kind of target, which cuts
# the time for a file of the windows to a third. Sources still include what they use; the tidy
# preset compiles without.
set(TALLIX_STANDARD_HEADERS
  <algorithm> <array> <charconv> <chrono> <cstdint> <filesystem> <fstream> <functional> <map> <memory> <optional>
  <regex> <set> <span> <sstream> <stdexcept> <string> <string_view> <unordered_map> <utility> <variant> <vector>
  <fmt/format.h>)

# tallix_precompile(TARGET KIND): the first target of a kind compiles the headers, the others
# reuse them. Kinds: engine, windows, tests, window_tests.
function(tallix_precompile target kind)
  get_property(first GLOBAL PROPERTY tallix_precompiled_${kind})
  if(first)
    target_precompile_headers(${target} REUSE_FROM ${first})
    return()
  endif()
  set_property(GLOBAL PROPERTY tallix_precompiled_${kind} ${target})
  set(headers ${TALLIX_STANDARD_HEADERS})
  if(kind MATCHES "tests")
    list(APPEND headers <gmock/gmock.h> <gtest/gtest.h>)
  endif()
  if(kind MATCHES "window")
    list(APPEND headers <QtWidgets>)
  endif()
  target_precompile_headers(${target} PRIVATE ${headers})
endfunction()
