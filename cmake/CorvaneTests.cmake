# SPDX-License-Identifier: BSD-3-Clause
find_package(Qt6 6.4 REQUIRED COMPONENTS Test)

# What every test's environment holds: the offscreen platform, settings of its own, and the
# sanitizers' options, which are read only where a sanitizer is built in.
set(CORVANE_TEST_ENVIRONMENT
    "LSAN_OPTIONS=suppressions=${CMAKE_CURRENT_LIST_DIR}/lsan.supp:print_suppressions=0"
    # Without strict_string_checks: libxkbcommon gives strndup pieces of a buffer that has no end.
    "ASAN_OPTIONS=detect_leaks=1:detect_stack_use_after_return=1"
    "UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1"
    "TSAN_OPTIONS=halt_on_error=1:second_deadlock_stack=1")
set(CORVANE_GERMAN "LC_ALL=de_DE.UTF-8" "LANGUAGE=de" "LOCPATH=${CMAKE_BINARY_DIR}/locale")
set(CORVANE_XVFB_RUN "${CMAKE_SOURCE_DIR}/tests/xvfb-run.sh")

# The German locale is made in the build tree, so that the system need not have it.
find_program(LOCALEDEF_PROGRAM localedef)
set(CORVANE_GERMAN_RUNS OFF)
if(LOCALEDEF_PROGRAM AND EXISTS "/usr/share/i18n/locales/de_DE" AND NOT CORVANE_SANITIZE)
    set(CORVANE_GERMAN_RUNS ON)
    set(locale_dir "${CMAKE_BINARY_DIR}/locale")
    add_custom_command(OUTPUT "${locale_dir}/de_DE.UTF-8/LC_NUMERIC"
        COMMAND ${CMAKE_COMMAND} -E make_directory "${locale_dir}"
        COMMAND ${LOCALEDEF_PROGRAM} --no-archive -i de_DE -f UTF-8 "${locale_dir}/de_DE.UTF-8"
        COMMENT "Making the German locale" VERBATIM)
    add_custom_target(corvane_german_locale ALL DEPENDS "${locale_dir}/de_DE.UTF-8/LC_NUMERIC")
endif()

# All tests that use Qt share one precompiled header.
set(pch_source "${CMAKE_CURRENT_BINARY_DIR}/test_pch.cpp")
file(CONFIGURE OUTPUT "${pch_source}" CONTENT "int main() { return 0; }\n" @ONLY)
add_executable(corvane_test_pch "${pch_source}")
set_target_properties(corvane_test_pch PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
target_link_libraries(corvane_test_pch PRIVATE Qt6::Widgets Qt6::Test)
corvane_strict_qt(corvane_test_pch)
corvane_qt_pch(corvane_test_pch <QtTest>)
# Qt defines these differently in each folder, so that no two folders could share the header.
target_compile_options(corvane_test_pch PRIVATE -UQT_TESTCASE_BUILDDIR -UQT_TESTCASE_SOURCEDIR)

# Built instead of everything where only the tests without Qt can run.
add_custom_target(corvane_tsan_tests)

# corvane_register_run(NAME [XVFB] [GERMAN] COMMAND command... [LABELS labels...]): one CTest entry
# with a settings folder of its own.
function(corvane_register_run name)
    cmake_parse_arguments(arg "XVFB;GERMAN" "" "COMMAND;LABELS" ${ARGN})
    set(home "${CMAKE_BINARY_DIR}/test_home/${name}")
    file(MAKE_DIRECTORY "${home}/runtime")
    file(CHMOD "${home}/runtime" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
    set(environment ${CORVANE_TEST_ENVIRONMENT} "XDG_RUNTIME_DIR=${home}/runtime"
        "XDG_CONFIG_HOME=${home}/config" "XDG_DATA_HOME=${home}/data")
    if(arg_GERMAN)
        list(APPEND environment ${CORVANE_GERMAN})
    else()
        list(APPEND environment "LC_ALL=C.UTF-8")
    endif()
    if(arg_XVFB)
        list(PREPEND arg_COMMAND "${CORVANE_XVFB_RUN}")
        list(APPEND environment "QT_QPA_PLATFORM=xcb")
    else()
        list(APPEND environment "QT_QPA_PLATFORM=offscreen")
    endif()
    add_test(NAME ${name} COMMAND ${arg_COMMAND})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "${environment}" LABELS "${arg_LABELS}" TIMEOUT 300)
endfunction()

# corvane_add_test(NAME [XVFB] [TSAN] SOURCES... LIBS libraries...): one Qt Test executable. CTest
# runs it offscreen, and without sanitizers once more under a German locale (name_de).
# XVFB adds a run on a real X server with a window manager (name_xvfb).
# TSAN is for a program with a main of its own and without Qt; the thread sanitizer's preset builds
# and runs these alone.
function(corvane_add_test name)
    cmake_parse_arguments(arg "XVFB;TSAN" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_LIBS})
    if(arg_TSAN)
        set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
        add_dependencies(corvane_tsan_tests ${name})
        corvane_register_run(${name} COMMAND $<TARGET_FILE:${name}> LABELS tsan)
        return()
    endif()
    target_link_libraries(${name} PRIVATE Qt6::Widgets Qt6::Test)
    corvane_strict_qt(${name})
    target_precompile_headers(${name} REUSE_FROM corvane_test_pch)
    corvane_share_pch_objects(${name})
    target_compile_options(${name} PRIVATE -UQT_TESTCASE_BUILDDIR -UQT_TESTCASE_SOURCEDIR)
    corvane_register_run(${name} COMMAND $<TARGET_FILE:${name}>)
    if(CORVANE_GERMAN_RUNS)
        corvane_register_run(${name}_de GERMAN COMMAND $<TARGET_FILE:${name}> LABELS german)
    endif()
    if(arg_XVFB)
        corvane_register_run(${name}_xvfb XVFB COMMAND $<TARGET_FILE:${name}> LABELS xvfb)
    endif()
endfunction()
