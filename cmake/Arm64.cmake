# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT

# Cross-builds for 64-bit ARM with Debian's multiarch: the compilers of crossbuild-essential-arm64, the
# :arm64 development packages, and the build machine's own Qt tools.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)

set(triplet aarch64-linux-gnu)
set(CMAKE_C_COMPILER ${triplet}-gcc)
set(CMAKE_CXX_COMPILER ${triplet}-g++)
set(CMAKE_LIBRARY_ARCHITECTURE ${triplet})
set(PKG_CONFIG_EXECUTABLE /usr/bin/${triplet}-pkg-config CACHE FILEPATH "pkg-config of the target")

execute_process(COMMAND dpkg-architecture -q DEB_BUILD_MULTIARCH
    OUTPUT_VARIABLE host_triplet OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
set(QT_HOST_PATH /usr CACHE PATH "where Qt's tools for this machine are")
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/${host_triplet}/cmake CACHE PATH "their CMake packages")
