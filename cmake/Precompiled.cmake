# The standard headers that nearly every file includes, read once for all targets with the same flags. With a compiler cache
# in front of the compiler they are left alone: the cache gains more when it is shared by several build folders. clang-tidy
# reads every file without them, and finds the one that forgot an include.
option(KOV_PCH "Precompile the headers that nearly every file includes" ON)
if(CMAKE_CXX_COMPILER_LAUNCHER)
  set(KOV_PCH OFF)
endif()

if(KOV_PCH AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # The library's own false alarms, silent in a system header, are heard when that header comes precompiled.
  add_compile_options(-Wno-array-bounds -Wno-restrict -Wno-stringop-overflow -Wno-stringop-overread)
endif()

set(kov_common_headers
    <algorithm> <array> <cmath> <cstddef> <cstdint> <filesystem> <functional> <map> <memory> <optional> <span> <stdexcept>
    <string> <string_view> <utility> <variant> <vector>)

# kov_precompiled(NAME HEADERS HEADER... LINKS LIBRARY... OPTIONS OPTION...): a set of precompiled headers for all targets that
# are compiled alike.
function(kov_precompiled name)
  cmake_parse_arguments(own "" "" "HEADERS;LINKS;OPTIONS" ${ARGN})
  if(KOV_PCH)
    set(nothing ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    file(GENERATE OUTPUT ${nothing} CONTENT "")
    add_library(${name} OBJECT ${nothing})
    target_link_libraries(${name} PRIVATE ${own_LINKS})
    target_compile_options(${name} PRIVATE ${own_OPTIONS})
    target_precompile_headers(${name} PRIVATE ${kov_common_headers} ${own_HEADERS})
  endif()
endfunction()

# kov_use_precompiled(NAME TARGET...): these targets read the set NAME.
function(kov_use_precompiled name)
  if(KOV_PCH)
    foreach(target IN LISTS ARGN)
      target_precompile_headers(${target} REUSE_FROM ${name})
    endforeach()
  endif()
endfunction()
