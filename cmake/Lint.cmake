# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT

# Has clang-tidy look at each source before it is compiled. What is compiled again, because a source, a header or
# a flag has changed, is looked at again; the configuration's hash is one of the flags. Nearly all of the time
# goes into the headers of Qt and of the standard library; that several sources are compiled as one helps here
# most of all.
if(WZT_LINT)
    file(SHA256 ${PROJECT_SOURCE_DIR}/.clang-tidy hash)
    set(CMAKE_CXX_CLANG_TIDY clang-tidy --quiet --extra-arg=-Wno-unknown-warning-option --extra-arg=-DWZT_LINT_${hash})
    # Sources that Qt's tools write are not judged; but clang-tidy wants one check at least.
    file(WRITE ${PROJECT_BINARY_DIR}/.clang-tidy "Checks: '-*,bugprone-terminating-continue'\n")
endif()

# The sources that stand for several of ours are below this folder.
function(wzt_lint)
    if(WZT_LINT)
        configure_file(${PROJECT_SOURCE_DIR}/.clang-tidy ${CMAKE_CURRENT_BINARY_DIR}/CMakeFiles/.clang-tidy COPYONLY)
    endif()
endfunction()
