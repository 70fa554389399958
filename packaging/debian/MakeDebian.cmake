# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT

# Makes the folder debian/ of the source package in the current directory:
#   cmake [-DWZT_...=...] -P packaging/debian/MakeDebian.cmake
cmake_minimum_required(VERSION 3.25)
set(templates ${CMAKE_CURRENT_LIST_DIR})
set(debian ${CMAKE_CURRENT_BINARY_DIR}/debian)
get_cmake_property(given CACHE_VARIABLES)
include(${templates}/../../cmake/BuildConstants.cmake)
include(${templates}/../../cmake/Changelog.cmake)
get_property(constants GLOBAL PROPERTY WZT_CONSTANTS)

foreach(name IN LISTS given)
    if(name MATCHES "^WZT_" AND NOT name IN_LIST constants)
        message(FATAL_ERROR "A package has no constant ${name}; it has ${constants}")
    endif()
endforeach()

file(MAKE_DIRECTORY ${debian})
foreach(file rules copyright source/format)
    configure_file(${templates}/${file} ${debian}/${file} COPYONLY)
endforeach()
foreach(file control upstream/metadata)
    configure_file(${templates}/${file}.in ${debian}/${file} @ONLY)
endforeach()

# So that whoever builds the source package builds the same.
wzt_write_constants(${debian}/constants.cmake)

# The revision is below the first of a distribution's own.
set(entries "")
set(separator "")
foreach(version IN LISTS WZT_RELEASES)
    execute_process(COMMAND date --rfc-email --utc --date ${WZT_RELEASED_${version}}
        OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    string(APPEND entries "${separator}wzt-companion (${version}-0wzt1) unstable; urgency=medium\n\n"
        "  * Release ${version}; changelog.gz tells what it brings.\n\n -- ${WZT_MAINTAINER}  ${date}\n")
    set(separator "\n")
endforeach()
file(WRITE ${debian}/changelog "${entries}")
