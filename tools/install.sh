# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# The Debian packages that a verb needs, and how they are installed.

# Of these there must be those of the processor that is built for; the other packages are this machine's.
libraries=(qt6-base-dev qt6-declarative-dev qt6-svg-dev libcurl4-openssl-dev libicu-dev
    libglib2.0-dev libssl-dev zlib1g-dev)
service_libraries=(libboost-dev libsqlite3-dev libsodium-dev)
qml_modules=(qml6-module-qtqml qml6-module-qtqml-workerscript qml6-module-qtquick)
tools=(g++ cmake ninja-build pkg-config qt6-declarative-dev-tools)
build_packages=("${tools[@]}" "${libraries[@]}" "${service_libraries[@]}")
fonts=(fonts-inter fonts-noto-color-emoji)
drawing_packages=("${qml_modules[@]}" "${fonts[@]}")
test_packages=(at-spi2-core dbus-daemon xvfb)
style_packages=(clang-format shellcheck)
lint_packages=(clang clang-tidy desktop-file-utils appstream flatpak-builder)
bench_packages=(valgrind)
fuzz_packages=(clang libclang-rt-dev)
wayland_packages=(qt6-wayland)
display_packages=(xvfb xauth blackbox x11vnc)
emulator_packages=(crossbuild-essential-arm64 dpkg-dev qemu-user-static)

# Services that a package starts must not inherit our lock.
as_root() { "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive "$@" {apt}<&- </dev/null; }

# install_packages PACKAGES ARCHITECTURE: dpkg is told of the architecture first, if one is named.
install_packages() {
    # No two ./dev at once: apt-get waits for dpkg's lock, but not for that of the package lists.
    exec {apt}</var/lib/dpkg
    await_lock "$apt" "the packages of this system"
    say "Installing what is missing: $1"
    [[ ! $2 ]] || as_root dpkg --add-architecture "$2"
    # A configuration file that somebody has changed stays, without a question.
    local get=(apt-get -q -o DPkg::Lock::Timeout=300 -o DPkg::Options::=--force-confdef -o DPkg::Options::=--force-confold)
    as_root "${get[@]}" update || say "The package lists could not be brought up to date; trying all the same."
    # shellcheck disable=SC2086 # one word a package
    as_root "${get[@]}" install -y --no-install-recommends --no-remove $1 ||
        fail "apt-get could not install what is missing (see above): $1"
    exec {apt}<&-
}

# Install those of the named packages that are not there yet; NAME:ARCHITECTURE for one other processor's.
need() {
    local -x LC_ALL=C
    local missing foreign apt sudo=()
    missing=$(comm -13 <(dpkg-query -W -f '${db:Status-Status} ${Package}\n${db:Status-Status} ${Package}:${Architecture}\n' \
        "$@" 2>/dev/null | sed -n 's/^installed //p' | sort -u) <(printf '%s\n' "$@" | sort -u))
    [[ $missing ]] || return 0
    foreign=$(printf '%s\n' "$missing" | sed -n 's/.*://p' | sort -u)
    missing=${missing//$'\n'/ }
    command -v apt-get >/dev/null || fail "No apt-get here. These Debian packages are needed: $missing"
    if ((EUID != 0)); then
        command -v sudo >/dev/null || fail "Neither root nor sudo; as root:" \
            "${foreign:+dpkg --add-architecture $foreign && apt-get update && }apt-get install $missing"
        sudo=(sudo)
    fi
    install_packages "$missing" "$foreign"
}

# Where no systemd does it, tell the kernel that QEMU runs the programs of arm64.
need_emulator() {
    local formats=/proc/sys/fs/binfmt_misc
    [[ -e $formats/register ]] || ((EUID != 0)) || mount -t binfmt_misc binfmt_misc "$formats"
    [[ ! -e $formats/qemu-aarch64 ]] || return 0
    ((EUID == 0)) || fail "The kernel does not know QEMU for arm64; as root: systemctl restart systemd-binfmt"
    cat /usr/lib/binfmt.d/qemu-aarch64.conf >"$formats/register" || fail "The kernel does not take QEMU for arm64."
}
