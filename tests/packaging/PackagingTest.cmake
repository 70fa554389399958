# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT

# What is made of CHANGELOG.md, and of the constants of a package.
cmake_minimum_required(VERSION 3.25)
set(root ${CMAKE_CURRENT_LIST_DIR}/../..)
set(WZT_CHANGELOG ${CMAKE_CURRENT_BINARY_DIR}/CHANGELOG.md)

# expect(SUCCEEDS OUTPUT COMMAND...): whether a command succeeds, and what it prints among other words.
function(expect succeeds output)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE said ERROR_VARIABLE said)
    string(REGEX REPLACE "[ \n]+" " " words "${said}")
    string(FIND "${words}" "${output}" found)
    if((status EQUAL 0 AND NOT succeeds) OR (NOT status EQUAL 0 AND succeeds) OR found EQUAL -1)
        message(SEND_ERROR "${ARGN}: ${status}, without \"${output}\":\n${said}")
    endif()
endfunction()

# Changelogs that are not read, below one heading.
set(title "# Changelog\n\n## [Unreleased]\n\n### Added\n\n- [ Not yet.\n\n")
foreach(text
        "" "## 1.0.0 - 2026-01-31\n" "## [1.0.0]\n" "## [1.0] - 2026-01-31\n" "## [1.0.0] - 31.1.2026\n"
        "## [1.0.0] - 2026-01-31\n\n- Below no kind\n" "## [1.0.0] - 2026-01-31\n\n### Added\n\nno item\n")
    file(WRITE ${WZT_CHANGELOG} "${title}${text}")
    expect(FALSE "CHANGELOG.md" ${CMAKE_COMMAND} -DWZT_CHANGELOG=${WZT_CHANGELOG} -P ${root}/cmake/Changelog.cmake)
endforeach()

file(WRITE ${WZT_CHANGELOG} "${title}" [==[
## [2.0.0] - 2026-12-01

### Removed

- The old `export`; <all> of it & C:\x, with ${CMAKE_VERSION} and one [ bracket
  over two lines

### Fixed

- A [link](https://example.org)

## [1.0.0] - 2026-01-31

### Added

- First

[1.0.0]: https://example.org/1.0.0]==])
include(${root}/cmake/Changelog.cmake)
string(CONCAT changes "<p>Removed:</p><ul><li>The old <code>export</code>; &lt;all> of it &amp; C:\\x, "
    "with \${CMAKE_VERSION} and one [ bracket over two lines</li></ul><p>Fixed:</p><ul><li>A link</li></ul>")
if(NOT "${WZT_RELEASES}" STREQUAL "2.0.0;1.0.0" OR NOT WZT_VERSION STREQUAL "2.0.0"
        OR NOT WZT_RELEASED_1.0.0 STREQUAL "2026-01-31" OR NOT WZT_CHANGES_2.0.0 STREQUAL changes
        OR NOT WZT_CHANGES_1.0.0 STREQUAL "<p>Added:</p><ul><li>First</li></ul>")
    message(SEND_ERROR "Read wrongly: ${WZT_RELEASES}: ${WZT_CHANGES_2.0.0}, ${WZT_CHANGES_1.0.0}")
endif()

# Arguments of a package: the ones that are refused, by what they say.
unset(WZT_CHANGELOG)
include(${root}/cmake/Changelog.cmake)
foreach(refused
        WZT_HOST=service.example.org WZT_APPLICATION_ID=example.Companion WZT_URL_SCHEME=Upper
        WZT_SERVICE_HOST=https://service.example.org WZT_PUBLIC_REPOSITORY_URL=https://repo.example.org/
        WZT_SUPPORTER_REPOSITORY_URL=https://repo.example.org/repo WZT_HOMEPAGE_URL=http://example.org
        WZT_MAINTAINER=jo@example.org WZT_PACKAGE_VERSION=9.9.9 WZT_PACKAGE_VERSION=${WZT_VERSION}+git1.abc)
    string(REGEX REPLACE "=.*" "" name ${refused})
    expect(FALSE ${name} ${CMAKE_COMMAND} -D${refused} -P ${root}/packaging/debian/MakeDebian.cmake)
endforeach()
set(snapshot ${WZT_VERSION}+git20260131235959.abc1234)
expect(TRUE "" ${CMAKE_COMMAND} -DWZT_PACKAGE_VERSION=${snapshot} "-DWZT_MAINTAINER=Jo Example <jo@example.org>"
    -P ${root}/packaging/debian/MakeDebian.cmake)
file(READ debian/changelog changelog)
if(NOT changelog MATCHES "^wzt-companion \\(${WZT_VERSION}\\+git20260131235959\\.abc1234-0wzt1\\) unstable; .*
 -- Jo Example <jo@example\\.org>  Sat, 31 Jan 2026 23:59:59 \\+0000

wzt-companion \\(${WZT_VERSION}-0wzt1\\) unstable; ")
    message(SEND_ERROR "The package's changelog: ${changelog}")
endif()
