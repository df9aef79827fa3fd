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
  "-framework ServiceManagement"
  "-framework UniformTypeIdentifiers")

# The linker signs only the executable, under the executable's name. codesign seals the whole
# bundle (Info.plist and resources included) under the bundle identifier, which is what the
# Accessibility and Input Monitoring lists show and check. An ad-hoc signature ("-") still pins the
# code hash, so a grant lasts until the next rebuild; a certificate identity (an Apple Development
# one is enough) pins identifier and certificate instead, and grants then survive rebuilds.
set(QUENBY_CODESIGN_IDENTITY "-" CACHE STRING "codesign identity for Quenby.app (\"-\": ad hoc)")
set(QUENBY_BUNDLE_IDENTIFIER com.brimfold.Quenby)
find_program(QUENBY_CODESIGN codesign)
if(QUENBY_CODESIGN)
  add_custom_command(TARGET Quenby POST_BUILD
    COMMAND ${QUENBY_CODESIGN} --force --sign ${QUENBY_CODESIGN_IDENTITY}
            --identifier ${QUENBY_BUNDLE_IDENTIFIER} $<TARGET_BUNDLE_DIR:Quenby>
    COMMENT "Signing Quenby.app (identity ${QUENBY_CODESIGN_IDENTITY})"
    VERBATIM)
else()
  message(STATUS "codesign not found: Quenby.app is not signed after linking (it keeps the "
                 "linker's signature)")
endif()
