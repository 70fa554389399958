# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT

# Flags that every target of this project is compiled with. The development presets make warnings errors.
function(wzt_warnings target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
        -Woverloaded-virtual -Wold-style-cast -Wcast-qual -Wformat=2 -Wimplicit-fallthrough
        -Wswitch-enum
        # Where sources are compiled as one, each looks like a header to g++, and clang minds that a variable is
        # named like a constant of another.
        $<$<AND:$<CXX_COMPILER_ID:GNU>,$<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>>:-Wno-subobject-linkage>
        $<$<AND:$<CXX_COMPILER_ID:Clang>,$<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>>:-Wno-shadow>)
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
        QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS QT_STRICT_ITERATORS QT_USE_QSTRINGBUILDER
        QT_NO_FOREACH QT_NO_JAVA_STYLE_ITERATORS)
endfunction()
