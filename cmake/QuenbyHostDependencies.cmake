# Finds what the portable tools (libplist) and the tests (GoogleTest, Google Benchmark) need, and
# decides what to do when something is missing. A build for the machine it runs on stops and says
# how to install it: a suite that quietly disappears from `make test` on a Mac is worse than a
# failed configure. A cross build (the app for another system, from this one) has only the target
# system's libraries, which rarely include these; it skips what it cannot build and says so, since
# the application needs none of them.
#
# Sets QUENBY_WITH_TOOLS and QUENBY_WITH_TESTS: what this configure builds.

if(QUENBY_BUILD_TESTS AND NOT QUENBY_BUILD_TOOLS)
  message(FATAL_ERROR "QUENBY_BUILD_TESTS needs QUENBY_BUILD_TOOLS: the tests run the simulation "
                      "and the tools in-process")
endif()

set(QUENBY_WITH_TOOLS ${QUENBY_BUILD_TOOLS})
set(QUENBY_WITH_TESTS ${QUENBY_BUILD_TESTS})

set(quenby_missing_for_tools)
if(QUENBY_WITH_TOOLS)
  # The build machine's .pc files describe its own libraries, which a cross build cannot link:
  # unless told otherwise, pkg-config looks only inside the target's SDK.
  set(quenby_target_root "${CMAKE_SYSROOT}")
  if(NOT quenby_target_root)
    set(quenby_target_root "${CMAKE_OSX_SYSROOT}")
  endif()
  if(CMAKE_CROSSCOMPILING AND NOT DEFINED ENV{PKG_CONFIG_LIBDIR} AND quenby_target_root)
    set(ENV{PKG_CONFIG_LIBDIR} "${quenby_target_root}/usr/lib/pkgconfig")
    set(ENV{PKG_CONFIG_SYSROOT_DIR} "${quenby_target_root}")
  endif()
  find_package(PkgConfig QUIET)
  if(PKG_CONFIG_FOUND)
    pkg_check_modules(PLIST QUIET IMPORTED_TARGET libplist-2.0)
  endif()
  if(NOT PKG_CONFIG_FOUND)
    list(APPEND quenby_missing_for_tools "pkg-config")
  elseif(NOT PLIST_FOUND)
    list(APPEND quenby_missing_for_tools "libplist (pkg-config module libplist-2.0)")
  endif()
endif()

set(quenby_missing_for_tests)
if(QUENBY_WITH_TESTS)
  find_package(GTest QUIET)
  find_package(benchmark QUIET)
  if(NOT GTest_FOUND)
    list(APPEND quenby_missing_for_tests "GoogleTest")
  endif()
  if(NOT benchmark_FOUND)
    list(APPEND quenby_missing_for_tests "Google Benchmark")
  endif()
endif()

set(quenby_missing ${quenby_missing_for_tools} ${quenby_missing_for_tests})
if(quenby_missing AND NOT CMAKE_CROSSCOMPILING)
  list(JOIN quenby_missing ", " quenby_missing_text)
  message(FATAL_ERROR
    "Not found: ${quenby_missing_text}. Run scripts/install-deps (or `make deps`), or configure "
    "with -DQUENBY_BUILD_TESTS=OFF (and -DQUENBY_BUILD_TOOLS=OFF without libplist) to build less.")
endif()

if(quenby_missing_for_tools)
  list(JOIN quenby_missing_for_tools ", " quenby_missing_text)
  message(STATUS "Cross build without ${quenby_missing_text} for ${CMAKE_SYSTEM_NAME}: skipping "
                 "the simulation, quenbyctl, the strings tool, the tests and the benchmarks")
  set(QUENBY_WITH_TOOLS OFF)
  set(QUENBY_WITH_TESTS OFF)
elseif(quenby_missing_for_tests)
  list(JOIN quenby_missing_for_tests ", " quenby_missing_text)
  message(STATUS "Cross build without ${quenby_missing_text} for ${CMAKE_SYSTEM_NAME}: skipping "
                 "the tests and the benchmarks")
  set(QUENBY_WITH_TESTS OFF)
endif()

unset(quenby_missing)
unset(quenby_missing_for_tools)
unset(quenby_missing_for_tests)
unset(quenby_missing_text)
unset(quenby_target_root)
