# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT

# Makes the folder debian/ of the source package in the current directory:
#   cmake [-DWZT_PACKAGE_VERSION=...] [-DWZT_...=...] -P packaging/debian/MakeDebian.cmake
# The package's version is that of the newest release, or "1.2.3+git20260131235959.COMMIT" of a commit
# since, with the time of the commit in UTC.
cmake_minimum_required(VERSION 3.25)
set(templates ${CMAKE_CURRENT_LIST_DIR})
set(debian ${CMAKE_CURRENT_BINARY_DIR}/debian)
get_cmake_property(given CACHE_VARIABLES)
include(${templates}/../../cmake/BuildConstants.cmake)
include(${templates}/../../cmake/Changelog.cmake)
get_property(constants GLOBAL PROPERTY WZT_CONSTANTS)

foreach(name IN LISTS given)
    if(name MATCHES "^WZT_" AND NOT name IN_LIST constants AND NOT name STREQUAL "WZT_PACKAGE_VERSION")
        message(FATAL_ERROR "A package has no constant ${name}; it has ${constants}")
    endif()
endforeach()

file(MAKE_DIRECTORY ${debian})
foreach(file rules copyright source/format tests/control tests/start)
    configure_file(${templates}/${file} ${debian}/${file} COPYONLY)
endforeach()
foreach(file control watch upstream/metadata)
    configure_file(${templates}/${file}.in ${debian}/${file} @ONLY)
endforeach()

# So that whoever builds the source package builds the same.
wzt_write_constants(${debian}/constants.cmake)

# add_entry(VERSION TIME TEXT): below those of the changelog that are there. The revision is below the first
# of a distribution's own.
set(entries "")
function(add_entry version time text)
    execute_process(COMMAND date --rfc-email --utc --date ${time}
        OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    if(entries)
        string(APPEND entries "\n")
    endif()
    string(APPEND entries "wzt-companion (${version}-0wzt1) unstable; urgency=medium\n\n"
        "  * ${text}\n\n -- ${WZT_MAINTAINER}  ${date}\n")
    set(entries "${entries}" PARENT_SCOPE)
endfunction()

if(WZT_PACKAGE_VERSION MATCHES "^${WZT_VERSION}\\+git(....)(..)(..)(..)(..)(..)\\.[0-9a-z+]+$")
    add_entry(${WZT_PACKAGE_VERSION}
        "${CMAKE_MATCH_1}-${CMAKE_MATCH_2}-${CMAKE_MATCH_3}T${CMAKE_MATCH_4}:${CMAKE_MATCH_5}:${CMAKE_MATCH_6}Z"
        "Made between two releases.")
elseif(NOT "${WZT_PACKAGE_VERSION}" MATCHES "^(${WZT_VERSION})?$")
    message(FATAL_ERROR "WZT_PACKAGE_VERSION is neither ${WZT_VERSION} nor a commit since: ${WZT_PACKAGE_VERSION}")
endif()
foreach(version IN LISTS WZT_RELEASES)
    add_entry(${version} ${WZT_RELEASED_${version}} "Release ${version}; changelog.gz tells what it brings.")
endforeach()
file(WRITE ${debian}/changelog "${entries}")
