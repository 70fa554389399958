# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT

# A build that only looks: clang-tidy reads each source, which is then preprocessed to know its headers, and
# neither compiled nor linked: its object is the list of its macros. A source is looked at again when it, a
# header or a flag has changed; the configuration's hash is one of the flags. Nearly all of the time goes into
# the headers of Qt and of the standard library; that several sources are looked at as one helps here most of
# all.
if(WZT_LINT)
    file(SHA256 ${PROJECT_SOURCE_DIR}/.clang-tidy hash)
    # It looks for the flags of a source that is only preprocessed in the list of all compile commands.
    set(CMAKE_CXX_CLANG_TIDY clang-tidy --quiet -p=${PROJECT_BINARY_DIR} --extra-arg=-Wno-unknown-warning-option
        --extra-arg=-Wno-unused-command-line-argument --extra-arg=-DWZT_LINT_${hash})
    set(CMAKE_CXX_COMPILE_OBJECT "<CMAKE_CXX_COMPILER> <DEFINES> <INCLUDES> <FLAGS> -E -dM <SOURCE> -o <OBJECT>")
    foreach(rule CREATE_STATIC_LIBRARY CREATE_SHARED_MODULE LINK_EXECUTABLE)
        set(CMAKE_CXX_${rule} "<CMAKE_COMMAND> -E touch <TARGET>")
    endforeach()
    # Sources that Qt's tools write are not judged; but clang-tidy wants one check at least.
    file(WRITE ${PROJECT_BINARY_DIR}/.clang-tidy "Checks: '-*,bugprone-terminating-continue'\n")
endif()

# The sources that stand for several of ours are below this folder.
function(wzt_lint)
    if(WZT_LINT)
        configure_file(${PROJECT_SOURCE_DIR}/.clang-tidy ${CMAKE_CURRENT_BINARY_DIR}/CMakeFiles/.clang-tidy COPYONLY)
    endif()
endfunction()
