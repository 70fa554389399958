# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT

# What CHANGELOG.md tells of the releases:
#   WZT_VERSION             the newest version
#   WZT_RELEASES            all versions, the newest first
#   WZT_RELEASED_<version>  the day of a release, YYYY-MM-DD
#   WZT_CHANGES_<version>   what came with it, as the list items of AppStream's XML
set(file ${CMAKE_CURRENT_LIST_DIR}/../CHANGELOG.md)
file(STRINGS ${file} lines ENCODING UTF-8)
unset(WZT_RELEASES)
foreach(line IN LISTS lines)
    string(REPLACE "&" "&amp;" line "${line}")
    string(REPLACE "<" "&lt;" line "${line}")
    if(line MATCHES "^## \\[([0-9]+\\.[0-9]+\\.[0-9]+)\\] - ([0-9][0-9][0-9][0-9]-[0-9][0-9]-[0-9][0-9])$")
        set(version ${CMAKE_MATCH_1})
        list(APPEND WZT_RELEASES ${version})
        set(WZT_RELEASED_${version} ${CMAKE_MATCH_2})
        set(WZT_CHANGES_${version} "")
    elseif(line MATCHES "^## \\[Unreleased\\]$")
        unset(version)
    elseif(line MATCHES "^## ")
        message(FATAL_ERROR "CHANGELOG.md: a release is \"## [1.2.3] - 2026-01-31\", not \"${line}\"")
    elseif(DEFINED version AND line MATCHES "^- (.+)$")
        string(APPEND WZT_CHANGES_${version} "<li>${CMAKE_MATCH_1}</li>")
    elseif(DEFINED version AND line MATCHES "^  (.+)$")
        string(REGEX REPLACE "</li>$" " ${CMAKE_MATCH_1}</li>" WZT_CHANGES_${version} "${WZT_CHANGES_${version}}")
    endif()
endforeach()
if(NOT WZT_RELEASES)
    message(FATAL_ERROR "CHANGELOG.md has no release")
endif()
list(GET WZT_RELEASES 0 WZT_VERSION)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
unset(file)
unset(lines)
unset(version)
