# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT

# Development builds link some twenty programs. These linkers take a fraction of the time; neither is required.
if(WZT_BUILD_TESTS AND NOT CMAKE_CROSSCOMPILING)
    foreach(linker mold lld)
        find_program(found ld.${linker} NO_CACHE)
        if(found)
            add_link_options(-fuse-ld=${linker})
            break()
        endif()
    endforeach()
endif()
