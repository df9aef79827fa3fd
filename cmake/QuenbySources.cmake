# Source discovery shared by the targets: a file's folder decides where it goes, so adding a
# feature never means editing the build.

set(QUENBY_CORE_SUBSYSTEMS base app shortcuts hud data ui)

# Portable sources: every .cpp of the core subsystems outside their macos/ folders and the
# libplist room (the property-list decoder for hosts without CoreFoundation).
function(quenby_glob_core_sources out)
  set(sources)
  foreach(subsystem IN LISTS QUENBY_CORE_SUBSYSTEMS)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${subsystem}/*.cpp)
    list(FILTER found EXCLUDE REGEX "/(macos|libplist)/")
    list(APPEND sources ${found})
  endforeach()
  set(${out} ${sources} PARENT_SCOPE)
endfunction()

# The macOS layer: every .mm file anywhere under src/.
function(quenby_glob_macos_sources out)
  file(GLOB_RECURSE found CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/*.mm)
  set(${out} ${found} PARENT_SCOPE)
endfunction()
