# SPDX-License-Identifier: BSD-3-Clause

# ccache keeps objects that were built with a precompiled header only when it is told not to mind
# time stamps and macros of the header.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env
        "CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime"
        "${CCACHE_PROGRAM}")
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
if(CORVANE_WARNINGS_AS_ERRORS)
    add_compile_options(-Werror)
endif()
if(CORVANE_SANITIZE)
    add_compile_options(-fsanitize=${CORVANE_SANITIZE} -fno-omit-frame-pointer
                        -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${CORVANE_SANITIZE})
endif()
if(CORVANE_SANITIZE MATCHES "address")
    add_library(corvane_end_of_threads OBJECT "${CMAKE_CURRENT_LIST_DIR}/EndOfThreads.cpp")
    set_target_properties(corvane_end_of_threads PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
    # Into programs alone: in a library it would run when the library goes.
    link_libraries("$<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:$<TARGET_OBJECTS:corvane_end_of_threads>>")
endif()

# Applies Qt's strict macros to a target.
function(corvane_strict_qt target)
    target_compile_definitions(${target} PRIVATE
        QT_NO_FOREACH QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
        QT_NO_URL_CAST_FROM_STRING QT_DISABLE_DEPRECATED_BEFORE=0x060400)
endfunction()

# Gives GCC what ccache needs to share objects that were built with a precompiled header.
function(corvane_share_pch_objects target)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
        target_compile_options(${target} PRIVATE -fpch-preprocess)
    endif()
endfunction()

# Compiles the Qt headers that nearly every source includes once for the target.
function(corvane_qt_pch target)
    target_precompile_headers(${target} PRIVATE <QtWidgets> ${ARGN})
    corvane_share_pch_objects(${target})
endfunction()
