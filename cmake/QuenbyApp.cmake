# The application bundle. Included by the top level on Apple hosts only; everywhere else the
# .mm files are syntax-checked instead (MacOSSyntaxCheck.cmake). The bundle links the portable
# core and system frameworks, nothing else.

enable_language(OBJCXX)

quenby_glob_macos_sources(QUENBY_APP_SOURCES)

set(QUENBY_APP_RESOURCES)
set(QUENBY_STRINGS ${PROJECT_SOURCE_DIR}/resources/en.lproj/Localizable.strings)
if(EXISTS ${QUENBY_STRINGS})
  list(APPEND QUENBY_APP_RESOURCES ${QUENBY_STRINGS})
  set_source_files_properties(${QUENBY_STRINGS} PROPERTIES
    MACOSX_PACKAGE_LOCATION Resources/en.lproj)
endif()

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
  "-framework ServiceManagement")
