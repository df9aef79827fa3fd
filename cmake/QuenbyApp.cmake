# The application bundle. Included by the top level on Apple hosts only; everywhere else the
# .mm files are syntax-checked instead (MacOSSyntaxCheck.cmake). The bundle links the portable
# core and system frameworks, nothing else.

enable_language(OBJCXX)

quenby_glob_macos_sources(QUENBY_APP_SOURCES)

# Everything under resources/ but the Info.plist template goes into Contents/Resources at the same
# relative path: the strings, and the icons' SVG sources beside what is rendered from them.
file(GLOB_RECURSE QUENBY_APP_RESOURCES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/*)
list(REMOVE_ITEM QUENBY_APP_RESOURCES ${PROJECT_SOURCE_DIR}/resources/Info.plist.in)
list(FILTER QUENBY_APP_RESOURCES EXCLUDE REGEX "/\\.[^/]*$")
foreach(resource IN LISTS QUENBY_APP_RESOURCES)
  file(RELATIVE_PATH relative ${PROJECT_SOURCE_DIR}/resources ${resource})
  get_filename_component(folder ${relative} DIRECTORY)
  set_source_files_properties(${resource} PROPERTIES MACOSX_PACKAGE_LOCATION Resources/${folder})
endforeach()

# The icons are drawn once, as SVG, and rendered at build time: the application icon (named by
# CFBundleIconFile) and the status item's two template images, which the status item loads by
# name. Nothing rendered is kept in git.
set(QUENBY_ICONS ${PROJECT_SOURCE_DIR}/resources/icons)
add_custom_command(
  OUTPUT ${CMAKE_BINARY_DIR}/AppIcon.icns
  COMMAND ${PROJECT_SOURCE_DIR}/scripts/make-app-icon ${QUENBY_ICONS}/AppIcon.svg
          ${CMAKE_BINARY_DIR}/AppIcon.icns
  DEPENDS ${QUENBY_ICONS}/AppIcon.svg ${PROJECT_SOURCE_DIR}/scripts/make-app-icon
  COMMENT "Rendering AppIcon.icns"
  VERBATIM)
set(QUENBY_RENDERED_ICONS ${CMAKE_BINARY_DIR}/AppIcon.icns)
foreach(name StatusItemTemplate StatusItemAttentionTemplate)
  add_custom_command(
    OUTPUT ${CMAKE_BINARY_DIR}/${name}.pdf
    COMMAND ${PROJECT_SOURCE_DIR}/scripts/make-template-icon ${QUENBY_ICONS}/${name}.svg
            ${CMAKE_BINARY_DIR}/${name}.pdf
    DEPENDS ${QUENBY_ICONS}/${name}.svg ${PROJECT_SOURCE_DIR}/scripts/make-template-icon
    COMMENT "Rendering ${name}.pdf"
    VERBATIM)
  list(APPEND QUENBY_RENDERED_ICONS ${CMAKE_BINARY_DIR}/${name}.pdf)
endforeach()
set_source_files_properties(${QUENBY_RENDERED_ICONS} PROPERTIES
  GENERATED TRUE
  MACOSX_PACKAGE_LOCATION Resources)
list(APPEND QUENBY_APP_RESOURCES ${QUENBY_RENDERED_ICONS})

# CFBundleVersion: a build number that only grows, the count of commits up to HEAD, so one commit
# always yields the same bundle. Releases built outside a clone set QUENBY_BUILD_NUMBER.
set(QUENBY_BUILD_NUMBER "" CACHE STRING "CFBundleVersion of Quenby.app (empty: the commit count)")
set(QUENBY_BUNDLE_VERSION "${QUENBY_BUILD_NUMBER}")
if(QUENBY_BUNDLE_VERSION STREQUAL "")
  find_package(Git QUIET)
  if(GIT_FOUND)
    execute_process(
      COMMAND ${GIT_EXECUTABLE} rev-list --count HEAD
      WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
      OUTPUT_VARIABLE QUENBY_BUNDLE_VERSION
      OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    execute_process(
      COMMAND ${GIT_EXECUTABLE} rev-parse --absolute-git-dir
      WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
      OUTPUT_VARIABLE quenby_git_dir
      OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    execute_process(
      COMMAND ${GIT_EXECUTABLE} rev-parse --is-shallow-repository
      WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
      OUTPUT_VARIABLE quenby_git_shallow
      OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    if(quenby_git_shallow STREQUAL "true")
      message(WARNING "A shallow clone: CFBundleVersion counts only the commits fetched")
    endif()
    # A commit or a checkout moves HEAD's log: configure again, so the number follows.
    if(EXISTS ${quenby_git_dir}/logs/HEAD)
      set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${quenby_git_dir}/logs/HEAD)
    endif()
  endif()
  if(NOT QUENBY_BUNDLE_VERSION MATCHES "^[0-9]+$")
    message(WARNING "Not a git clone and QUENBY_BUILD_NUMBER is unset: CFBundleVersion is 0")
    set(QUENBY_BUNDLE_VERSION 0)
  endif()
endif()
message(STATUS "Quenby.app ${PROJECT_VERSION} (build ${QUENBY_BUNDLE_VERSION})")

add_executable(Quenby MACOSX_BUNDLE ${QUENBY_APP_SOURCES} ${QUENBY_APP_RESOURCES})
set_target_properties(Quenby PROPERTIES
  OUTPUT_NAME Quenby
  MACOSX_BUNDLE_INFO_PLIST ${PROJECT_SOURCE_DIR}/resources/Info.plist.in
  OBJCXX_STANDARD 20
  OBJCXX_STANDARD_REQUIRED ON
  OBJCXX_EXTENSIONS OFF)
# The same warnings as the syntax check that guards these files off macOS.
target_compile_options(Quenby PRIVATE
  $<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-arc -Wall -Wextra -Werror -Wno-four-char-constants
                               -Wno-unused-parameter>)
target_link_libraries(Quenby PRIVATE
  quenby_core
  "-framework AppKit"
  "-framework ApplicationServices"
  "-framework Carbon"
  "-framework CoreGraphics"
  "-framework CoreServices"
  "-framework Foundation"
  "-framework QuartzCore"
  "-framework Security"
  "-framework ServiceManagement")

# The linker signs only the executable, under the executable's name. codesign seals the whole
# bundle (Info.plist and resources included) under the bundle identifier, which is what the
# Accessibility and Input Monitoring lists show and check. An ad-hoc signature ("-") still pins the
# code hash, so a grant lasts until the next rebuild; a certificate identity (an Apple Development
# one is enough) pins identifier and certificate instead, and grants then survive rebuilds.
set(QUENBY_CODESIGN_IDENTITY "-" CACHE STRING "codesign identity for Quenby.app (\"-\": ad hoc)")
set(QUENBY_BUNDLE_IDENTIFIER com.brimfold.Quenby)
find_program(QUENBY_CODESIGN codesign)
# A Developer ID build is for notarisation, which requires the hardened runtime and a secure time
# stamp; the time stamp needs Apple's server, so day-to-day identities go without both.
set(QUENBY_CODESIGN_OPTIONS)
if(QUENBY_CODESIGN_IDENTITY MATCHES "^Developer ID Application")
  set(QUENBY_CODESIGN_OPTIONS --options runtime --timestamp)
endif()
if(QUENBY_CODESIGN)
  add_custom_command(TARGET Quenby POST_BUILD
    COMMAND ${QUENBY_CODESIGN} --force --sign ${QUENBY_CODESIGN_IDENTITY} ${QUENBY_CODESIGN_OPTIONS}
            --identifier ${QUENBY_BUNDLE_IDENTIFIER} $<TARGET_BUNDLE_DIR:Quenby>
    COMMENT "Signing Quenby.app (identity ${QUENBY_CODESIGN_IDENTITY})"
    VERBATIM)
else()
  message(STATUS "codesign not found: Quenby.app is not signed after linking (it keeps the "
                 "linker's signature)")
endif()
