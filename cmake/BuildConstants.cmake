# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT

# The constants of the build, their shapes checked, configured into model/BuildConstants.h.
function(wzt_constant name default pattern help)
    set(${name} "${default}" CACHE STRING "${help}")
    if(NOT "${${name}}" MATCHES "^(${pattern})$")
        message(FATAL_ERROR "${name} is \"${${name}}\": ${help} (${pattern})")
    endif()
    set_property(GLOBAL APPEND PROPERTY WZT_CONSTANTS ${name})
endfunction()

# wzt_write_constants(FILE): a file that has another build made with the same constants, by cmake -C.
function(wzt_write_constants file)
    get_property(names GLOBAL PROPERTY WZT_CONSTANTS)
    set(lines "")
    foreach(name IN LISTS names)
        string(APPEND lines "set(${name} [==[${${name}}]==] CACHE STRING \"\")\n")
    endforeach()
    file(WRITE ${file} "${lines}")
endfunction()

# What the desktop calls the application.
set(WZT_DISPLAY_NAME "WZT Companion")

set(host "[a-z0-9]([a-z0-9-]*[a-z0-9])?(\\.[a-z0-9]([a-z0-9-]*[a-z0-9])?)*")
set(part "[A-Za-z][A-Za-z0-9_]*")
wzt_constant(WZT_APPLICATION_ID "example.wzt.Companion" "(${part}\\.)(${part}\\.)+${part}"
    "reverse-DNS name of the application, of three parts at least")
wzt_constant(WZT_URL_SCHEME "wztcompanion" "[a-z][a-z0-9+.-]*"
    "scheme of the URLs that open the application, in lower case")
wzt_constant(WZT_SERVICE_HOST "service.wzt.example" "${host}" "host name of the web service")
wzt_constant(WZT_VENDOR_PREFIX "example.wzt" "[a-z0-9]+(\\.[a-z0-9]+)*"
    "reverse-DNS prefix of the package identifiers, without a full stop at its end")
wzt_constant(WZT_PUBLIC_REPOSITORY_URL "https://repo.wzt.example" "https://${host}"
    "public package repository: host only, no path, no trailing slash")
wzt_constant(WZT_SUPPORTER_REPOSITORY_URL "https://supporter.wzt.example/repo/" "https://${host}/repo/"
    "supporter package repository: path /repo/ with its trailing slash")
wzt_constant(WZT_CYDIA_SHARE_ENDPOINT "https://share.wzt.example/api/share" "https://${host}/api/share"
    "share endpoint: path /api/share")
wzt_constant(WZT_CHAT_INVITATION_URL "https://chat.wzt.example/invite/wzt" "https://${host}/[A-Za-z0-9/_-]+"
    "invitation link to the chat")
wzt_constant(WZT_HOMEPAGE_URL "https://wzt.example" "https://${host}(/[A-Za-z0-9/_-]*[A-Za-z0-9_-])?"
    "home page, without a trailing slash; the screenshots of app stores lie below it")
wzt_constant(WZT_AUTHORITY_FILE "" "|/[A-Za-z0-9._/-]+"
    "bundle of the certificate authorities to trust, where /etc/ssl/certs is no folder by their hashes")
wzt_constant(WZT_MAINTAINER "The WZT Companion authors <packages@wzt.example>" "[^<>@&\"]+ <[^<>@&\" ]+@${host}>"
    "who publishes the application: name and <address>")

# Only a build that talks to the local sandbox service has these two.
option(WZT_USE_SANDBOX "talk to the local sandbox service and trust nothing else" OFF)
set(WZT_SANDBOX_PORT "8443" CACHE STRING "port of the local sandbox service")
set(WZT_SANDBOX_DIRECTORY "${CMAKE_BINARY_DIR}/sandbox-state" CACHE STRING "state of the local sandbox service")
