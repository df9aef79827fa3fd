# Off macOS no Apple SDK exists, so every .mm file is compiled for syntax only, against the
# declarations in sdk-surface/ and the core's headers. `macos_syntax_check` checks them all; each
# file is also a test, so a broken adapter fails the suite.
if(APPLE)
  return()
endif()

find_program(QUENBY_OBJCXX_CHECKER NAMES clang++ clang++-14)
quenby_glob_macos_sources(QUENBY_MACOS_SOURCES)

if(NOT QUENBY_OBJCXX_CHECKER)
  message(STATUS "clang++ not found: the macOS syntax check is unavailable")
  return()
endif()

get_target_property(QUENBY_JSON_INCLUDES nlohmann_json::nlohmann_json INTERFACE_INCLUDE_DIRECTORIES)
set(QUENBY_OBJCXX_CHECK_FLAGS
    -x objective-c++ -std=c++20 -fobjc-arc -fobjc-runtime=macosx-13.0 -fblocks -fsyntax-only
    -Wall -Wextra -Werror -Wno-four-char-constants -Wno-unused-parameter
    -DQUENBY_SDK_SURFACE=1
    -isystem ${PROJECT_SOURCE_DIR}/sdk-surface
    -I ${PROJECT_SOURCE_DIR}/src)
foreach(dir IN LISTS QUENBY_JSON_INCLUDES)
  # The compiler's own directories stay out: naming /usr/include again reorders the search path
  # and breaks the standard library's #include_next.
  if(NOT dir IN_LIST CMAKE_CXX_IMPLICIT_INCLUDE_DIRECTORIES)
    list(APPEND QUENBY_OBJCXX_CHECK_FLAGS -isystem ${dir})
  endif()
endforeach()

set(stamps)
foreach(source IN LISTS QUENBY_MACOS_SOURCES)
  file(RELATIVE_PATH relative ${PROJECT_SOURCE_DIR} ${source})
  string(MAKE_C_IDENTIFIER ${relative} stamp_name)
  set(stamp ${CMAKE_CURRENT_BINARY_DIR}/syntax-check/${stamp_name}.stamp)
  # The compiler lists the headers it read, so a change in sdk-surface/ or the core re-checks
  # exactly the files that include it.
  add_custom_command(
    OUTPUT ${stamp}
    COMMAND ${QUENBY_OBJCXX_CHECKER} ${QUENBY_OBJCXX_CHECK_FLAGS} -MD -MF ${stamp}.d -MT ${stamp}
            ${source}
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS ${source}
    DEPFILE ${stamp}.d
    COMMENT "Syntax-checking ${relative}"
    VERBATIM)
  list(APPEND stamps ${stamp})
  if(QUENBY_WITH_TESTS)
    add_test(NAME "macos-syntax/${relative}"
             COMMAND ${QUENBY_OBJCXX_CHECKER} ${QUENBY_OBJCXX_CHECK_FLAGS} ${source})
  endif()
endforeach()
add_custom_target(macos_syntax_check DEPENDS ${stamps})
list(LENGTH QUENBY_MACOS_SOURCES QUENBY_MACOS_SOURCE_COUNT)
message(STATUS "macOS syntax check: ${QUENBY_MACOS_SOURCE_COUNT} .mm files")
