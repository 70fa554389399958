# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT

# Development builds link some twenty programs, which these linkers do in a fraction of the time. Neither is required.
if(WZT_BUILD_TESTS AND NOT CMAKE_CROSSCOMPILING)
    foreach(linker mold lld)
        find_program(WZT_${linker} ld.${linker})
        mark_as_advanced(WZT_${linker})
        if(WZT_${linker})
            add_link_options(-fuse-ld=${linker})
            break()
        endif()
    endforeach()
endif()
