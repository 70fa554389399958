# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT
include(${CMAKE_CURRENT_LIST_DIR}/Warnings.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/Precompiled.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/Lint.cmake)

# What every target has in common: warnings, lint, precompiled headers, and includes written from the root of the sources.
function(wzt_common target)
    wzt_warnings(${target})
    wzt_lint()
    wzt_precompiled_headers(${target})
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/include)
endfunction()

# A folder without drawings: wzt_library(wzt_model [MOC] SOURCES ... PUBLIC libs PRIVATE libs)
# MOC: a class of it is a QObject, with signals, slots or properties of its own.
function(wzt_library target)
    cmake_parse_arguments(ARG "MOC" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
    add_library(${target} STATIC ${ARG_SOURCES})
    set_target_properties(${target} PROPERTIES AUTOMOC ${ARG_MOC})
    wzt_common(${target})
    target_link_libraries(${target} PUBLIC ${ARG_PUBLIC} PRIVATE ${ARG_PRIVATE})
endfunction()

# The drawings of a room, compiled ahead of time by Qt's tools, are to the compiler one source: what each of
# them includes costs more than its own lines.
function(wzt_join_drawings target)
    set(join ${PROJECT_SOURCE_DIR}/cmake/JoinDrawings.awk)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "/qmlcache/.*_qml\\.cpp$")
    foreach(source IN LISTS sources)
        cmake_path(GET source PARENT_PATH room)
        cmake_path(GET room FILENAME room)
        list(APPEND rooms ${room})
        list(APPEND drawings_${room} ${source})
    endforeach()
    list(REMOVE_DUPLICATES rooms)
    foreach(room IN LISTS rooms)
        set(joined ${CMAKE_CURRENT_BINARY_DIR}/drawings/${room}.cpp)
        add_custom_command(OUTPUT ${joined}
            COMMAND awk -f ${join} ${drawings_${room}} > ${joined}
            DEPENDS ${drawings_${room}} ${join}
            COMMENT "Joining the drawings of ${room}"
            VERBATIM)
        set_source_files_properties(${joined} PROPERTIES COMPILE_OPTIONS -w SKIP_AUTOGEN ON)
        target_sources(${target} PRIVATE ${joined})
    endforeach()
    # They are still made with the target, and not compiled by themselves.
    set_source_files_properties(${sources} PROPERTIES HEADER_FILE_ONLY ON)
endfunction()

# Code that the application loads when it first needs it, with the libraries that it stands on:
#   wzt_loadable(wzt-http SOURCES ... LIBS ...)
function(wzt_loadable target)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_library(${target} MODULE ${ARG_SOURCES})
    wzt_common(${target})
    set_target_properties(${target} PROPERTIES
        PREFIX ""
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        BUILD_RPATH ""
        LIBRARY_OUTPUT_DIRECTORY ${WZT_MODULES})
    target_link_libraries(${target} PRIVATE Qt6::Core ${ARG_LIBS})
    install(TARGETS ${target} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/wzt-companion)
endfunction()

# A folder that draws: one static library that is one QML module as well.
#   wzt_module(wzt_screens URI Screens SOURCES ... QML ... IMPORTS UIKit PUBLIC libs PRIVATE libs)
# QML files are found at qrc:/qt/qml/<URI>/<file name>.
function(wzt_module target)
    cmake_parse_arguments(ARG "" "URI" "SOURCES;QML;IMPORTS;PUBLIC;PRIVATE" ${ARGN})
    foreach(file IN LISTS ARG_QML)
        get_filename_component(name ${file} NAME)
        set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS ${name})
    endforeach()
    qt_add_library(${target} STATIC)
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    # Nothing that Qt's tools write is looked at, so it is not worth compiling there.
    if(WZT_LINT)
        set(without_cache NO_CACHEGEN)
    endif()
    # Without DEPENDENCIES nothing would be compiled ahead of time, silently.
    qt_add_qml_module(${target}
        URI ${ARG_URI}
        VERSION 1.0
        RESOURCE_PREFIX /qt/qml
        DEPENDENCIES QtQuick ${ARG_IMPORTS}
        IMPORTS ${ARG_IMPORTS}
        OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml/${ARG_URI}
        IMPORT_PATH ${CMAKE_BINARY_DIR}/qml
        SOURCES ${ARG_SOURCES}
        QML_FILES ${ARG_QML}
        ${without_cache})
    wzt_common(${target})
    # The generated type registration includes headers by their bare names.
    foreach(file IN LISTS ARG_SOURCES)
        get_filename_component(folder ${file} DIRECTORY)
        list(APPEND folders ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
    endforeach()
    list(REMOVE_DUPLICATES folders)
    target_include_directories(${target} PRIVATE ${folders})
    target_link_libraries(${target} PUBLIC Qt6::Core Qt6::Gui Qt6::Qml ${ARG_PUBLIC} PRIVATE ${ARG_PRIVATE})
    # What Qt's tools write is not held to this project's warnings.
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "/(qmlcache|\\.rcc)/|_qmltyperegistrations\\.cpp$")
    set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS -w)
    if(NOT WZT_LINT)
        wzt_join_drawings(${target})
    endif()
    # The last of these is a part of the target itself since Qt 6.5.
    foreach(part ${target}plugin ${target}plugin_init ${target}_qmlcache)
        if(TARGET ${part})
            set_target_properties(${part} PROPERTIES CXX_CLANG_TIDY "")
            wzt_warnings(${part})
            wzt_precompiled_headers(${part})
            target_compile_options(${part} PRIVATE -w)
        endif()
    endforeach()
endfunction()

# One test program: wzt_test(test_model [LABEL label] SOURCES ... LIBS ...), run by CTest on its own HOME.
# Labels: "window", it draws in one; "bus", it starts a session bus.
function(wzt_test name)
    cmake_parse_arguments(ARG "" "LABEL" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    if(CMAKE_CXX_FLAGS MATCHES "-fsanitize=thread")
        target_sources(${name} PRIVATE ${PROJECT_SOURCE_DIR}/harness/ThreadSanitizerClone.cpp)
    endif()
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    wzt_common(${name})
    target_link_libraries(${name} PRIVATE Qt6::Test ${ARG_LIBS})
    set(home ${CMAKE_BINARY_DIR}/home/${name})
    file(MAKE_DIRECTORY ${home}/runtime)
    file(CHMOD ${home}/runtime PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
    add_test(NAME ${name} COMMAND ${name})
    # Ends a test that hangs; a busy or an emulated machine takes its time.
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 900
        ENVIRONMENT "QTEST_FUNCTION_TIMEOUT=900000;QT_QPA_PLATFORM=offscreen;QT_QUICK_BACKEND=software;LC_ALL=C.UTF-8;TZ=Europe/Berlin;HOME=${home};XDG_RUNTIME_DIR=${home}/runtime;QT_LOGGING_RULES=;UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1;ASAN_OPTIONS=detect_stack_use_after_return=1;TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/Tsan.supp:ignore_noninstrumented_modules=1:halt_on_error=1:die_after_fork=0"
        ENVIRONMENT_MODIFICATION "DBUS_SESSION_BUS_ADDRESS=unset:;XDG_CONFIG_HOME=unset:;XDG_DATA_HOME=unset:;XDG_CACHE_HOME=unset:;DISPLAY=unset:;WAYLAND_DISPLAY=unset:;http_proxy=unset:;https_proxy=unset:;HTTP_PROXY=unset:;HTTPS_PROXY=unset:;ALL_PROXY=unset:;all_proxy=unset:")
    set_property(TEST ${name} PROPERTY LABELS ${ARG_LABEL})
endfunction()
