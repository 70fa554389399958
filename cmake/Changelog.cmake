# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT

# What WZT_CHANGELOG (CHANGELOG.md), in the form of Keep a Changelog, tells of the releases:
#   WZT_VERSION             the newest version
#   WZT_RELEASES            all versions, the newest first
#   WZT_RELEASED_<version>  the day of a release, YYYY-MM-DD
#   WZT_CHANGES_<version>   what came with it: for each kind a paragraph and a list, in AppStream's XML
if(NOT WZT_CHANGELOG)
    set(WZT_CHANGELOG ${CMAKE_CURRENT_LIST_DIR}/../CHANGELOG.md)
endif()

# wzt_read_release(VERSION TEXT): what came with a release, from the lines below its heading.
function(wzt_read_release version text)
    string(REPLACE "&" "&amp;" text "${text}")
    string(REPLACE "<" "&lt;" text "${text}")
    string(REGEX REPLACE "\\[([^]\n]+)\\]\\([^)\n]+\\)" "\\1" text "${text}")
    string(REGEX REPLACE "`([^`\n]+)`" "<code>\\1</code>" text "${text}")
    string(REGEX REPLACE "\n  +" " " text "${text}")
    set(changes "")
    set(end "")
    # Not as a list: a bracket in a line would join it to the following.
    while(text MATCHES "^([^\n]*)\n(.*)$")
        set(line "${CMAKE_MATCH_1}")
        set(text "${CMAKE_MATCH_2}")
        if(line MATCHES "^### (.+)$")
            string(APPEND changes "${end}<p>${CMAKE_MATCH_1}:</p><ul>")
            set(end "</ul>")
        elseif(line MATCHES "^- (.+)$" AND end)
            string(APPEND changes "<li>${CMAKE_MATCH_1}</li>")
        elseif(NOT line MATCHES "^(\\[.*)?$")
            message(FATAL_ERROR "${WZT_CHANGELOG}: neither \"### Kind\" nor, below it, \"- change\": \"${line}\"")
        endif()
    endwhile()
    set(WZT_CHANGES_${version} "${changes}${end}" PARENT_SCOPE)
endfunction()

file(READ ${WZT_CHANGELOG} rest)
string(APPEND rest "\n")
unset(WZT_RELEASES)
while(rest MATCHES "\n## ([^\n]*)\n(.*)$")
    set(title "${CMAKE_MATCH_1}")
    set(rest "\n${CMAKE_MATCH_2}")
    string(FIND "${rest}" "\n## " length)
    string(SUBSTRING "${rest}" 0 ${length} text)
    if(title MATCHES "^\\[([0-9]+\\.[0-9]+\\.[0-9]+)\\] - ([0-9][0-9][0-9][0-9]-[0-9][0-9]-[0-9][0-9])$")
        set(version ${CMAKE_MATCH_1})
        list(APPEND WZT_RELEASES ${version})
        set(WZT_RELEASED_${version} ${CMAKE_MATCH_2})
        wzt_read_release(${version} "${text}\n")
    elseif(NOT title STREQUAL "[Unreleased]")
        message(FATAL_ERROR "${WZT_CHANGELOG}: a release is \"## [1.2.3] - 2026-01-31\", not \"## ${title}\"")
    endif()
endwhile()
if(NOT WZT_RELEASES)
    message(FATAL_ERROR "${WZT_CHANGELOG} has no release")
endif()
list(GET WZT_RELEASES 0 WZT_VERSION)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${WZT_CHANGELOG})
unset(rest)
unset(title)
unset(text)
unset(length)
unset(version)
