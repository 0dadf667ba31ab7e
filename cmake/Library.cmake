# A folder is a library. tallix_library(NAME) makes the target tallix_NAME of the folder that
# calls it, and lets others include its headers as "NAME/header.h":
#
#   tallix_library(costing
#     SOURCES tariff.cpp tariff.h
#     USES database session        # other folders whose headers it may include
#     LINKS PkgConfig::CURL        # libraries from outside
#     AUTOMOC)                     # for folders that use Qt
#
# Each library has an include root of its own, which holds nothing but a link to its folder.
# A folder that is not named by USES, here or in a folder named there, cannot be included.
function(tallix_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "AUTOMOC" "" "SOURCES;USES;LINKS")
  string(REPLACE "/" "_" id ${name})
  set(target tallix_${id})

  set(root ${PROJECT_BINARY_DIR}/include/${id})
  cmake_path(GET name PARENT_PATH parent)
  file(MAKE_DIRECTORY ${root}/${parent})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/${name} SYMBOLIC)

  list(TRANSFORM arg_USES REPLACE "/" "_")
  list(TRANSFORM arg_USES PREPEND tallix_)
  if(arg_SOURCES MATCHES "\\.cpp")
    set(scope PUBLIC)
    add_library(${target} STATIC ${arg_SOURCES})
    set_target_properties(${target} PROPERTIES AUTOMOC ${arg_AUTOMOC})
    if(arg_AUTOMOC)
      tallix_precompile(${target} windows)
    else()
      tallix_precompile(${target} engine)
    endif()
  else()
    set(scope INTERFACE)
    add_library(${target} INTERFACE)
  endif()
  target_include_directories(${target} ${scope} ${root})
  target_link_libraries(${target} ${scope} tallix_options fmt::fmt ${arg_USES} ${arg_LINKS})
endfunction()
