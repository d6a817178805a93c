# SPDX-License-Identifier: BSD-3-Clause

# What the author of a plug-in, or of a program with the inspector in it, needs: the libraries, their
# headers and a CMake package. The plug-in and the program have their rules beside their targets.
include(CMakePackageConfigHelpers)

set(libraries ubn_kestrix_base ubn_kestrix ubn_kestrix_gl ubn_corvane_extender corvane_inspector
    corvane_objects)
set_target_properties(${libraries} PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
# What describes their binary interface, for scripts/check_abi.sh; in the release build, since others
# have the compiler's settings from their preset.
if(CMAKE_BUILD_TYPE STREQUAL "Release")
    foreach(library ubn_kestrix_base ubn_kestrix ubn_kestrix_gl ubn_corvane_extender corvane_objects)
        target_compile_options(${library} PRIVATE -g)
    endforeach()
    # Nothing else of the inspector can be seen. Without what was precompiled without -g.
    set_source_files_properties("${PROJECT_SOURCE_DIR}/inspector/CrvInspector.cpp"
        TARGET_DIRECTORY corvane_inspector_objects
        PROPERTIES COMPILE_OPTIONS -g SKIP_PRECOMPILE_HEADERS ON)
endif()
install(TARGETS ${libraries} EXPORT corvaneTargets
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(EXPORT corvaneTargets NAMESPACE corvane::
        DESTINATION "${CMAKE_INSTALL_LIBDIR}/cmake/corvane")

# All headers but those of the host's inner classes, which no plug-in needs.
install(DIRECTORY platform/kestrix_base platform/kestrix platform/kestrix_gl platform/extender
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/corvane"
        FILES_MATCHING PATTERN "*.h"
        PATTERN CrvBuiltInProfiles.h EXCLUDE
        PATTERN CrvInputFile.h EXCLUDE
        PATTERN "CrvJson*.h" EXCLUDE
        PATTERN CrvPluginLibrary.h EXCLUDE
        PATTERN CrvProfileActivation.h EXCLUDE
        PATTERN CrvProfileReader.h EXCLUDE
        PATTERN CrvProfileResolution.h EXCLUDE)
install(FILES inspector/CrvInspector.h
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/corvane/inspector")

install(FILES bridge/CrvObjects.h bridge/CrvObjectDetails.h
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/corvane/bridge")

write_basic_package_version_file("${CMAKE_BINARY_DIR}/corvaneConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES cmake/corvaneConfig.cmake "${CMAKE_BINARY_DIR}/corvaneConfigVersion.cmake"
        DESTINATION "${CMAKE_INSTALL_LIBDIR}/cmake/corvane")

install(DIRECTORY scenes DESTINATION "${CMAKE_INSTALL_DATADIR}/corvane"
        FILES_MATCHING PATTERN "*.json")
install(FILES README.md LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}")
install(DIRECTORY docs DESTINATION "${CMAKE_INSTALL_DOCDIR}")
