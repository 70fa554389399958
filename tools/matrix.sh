# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# ./dev matrix: the same verb on every supported release of Debian, each in a minimal root of its own.

releases=(bookworm trixie)

# make_root RELEASE: what debootstrap leaves, kept for the next time.
make_root() {
    local made=$roots/$1
    [[ ! -d $made ]] || return 0
    say "Making a minimal root of $1 in $made"
    rm -rf -- "$made.partial"
    debootstrap --variant=minbase "$1" "$made.partial" >"$made.log" 2>&1 ||
        fail "debootstrap could not make a root of $1; see $made.log"
    # A machine may reach Debian's packages by settings of its own.
    cp -a /etc/apt/apt.conf.d/. "$made.partial/etc/apt/apt.conf.d/"
    mv -- "$made.partial" "$made"
}

# in_root ROOT COMMAND...: in a namespace of mounts and processes of its own, so that nothing outlives it.
in_root() {
    local top=$1
    cp -L /etc/resolv.conf /etc/hosts "$top/etc/"
    # shellcheck disable=SC2016 # expanded by the inner shell
    unshare --mount --pid --fork --kill-child sh -ec '
        mount -t proc proc "$0/proc"
        mount -t tmpfs tmpfs "$0/dev/shm"
        mount -t tmpfs tmpfs "$0/tmp"
        exec chroot "$0" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/srv/home LC_ALL=C.UTF-8 "$@"
    ' "$top" "${@:2}"
}

# try_release RELEASE VERB...: in a fresh clone, with a new HOME; prints one line of outcome.
try_release() {
    local release=$1 top=$roots/$1 outcome=failed began=$SECONDS
    mkdir -p -- "$roots"
    take_lock "$top.lock" "$top"
    make_root "$release"
    rm -rf -- "$top/srv/clone" "$top/srv/home"
    mkdir -p -- "$top/srv/home"
    git clone --quiet --no-hardlinks -- "$root" "$top/srv/clone"
    say "./dev ${*:2} on $release, in $top/srv/clone"
    # shellcheck disable=SC2016 # expanded by the inner shell
    ! in_root "$top" sh -c 'cd /srv/clone && exec ./dev "$@"' dev "${@:2}" </dev/null || outcome=passed
    release_lock
    printf '%-10s ./dev %s: %s after %d min\n' "$release" "${*:2}" "$outcome" $(((SECONDS - began + 30) / 60))
    [[ $outcome == passed ]]
}

# choose [RELEASE...] [-- VERB...]: what verb_matrix was asked for.
choose() {
    while (($#)); do
        case $1 in
        --)
            declare -F "verb_${2-}" >/dev/null || fail "Which verb? ./dev matrix [RELEASE...] [-- VERB...]"
            verb=("${@:2}")
            break
            ;;
        *)
            [[ " ${releases[*]} " == *" $1 "* ]] || fail "No supported release: $1. There are: ${releases[*]}"
            chosen+=("$1")
            ;;
        esac
        shift
    done
}

verb_matrix() {
    local chosen=() verb=(test) broken=()
    choose "$@"
    [[ ${XDG_CACHE_HOME-}${HOME-} ]] || fail "Neither XDG_CACHE_HOME nor HOME says where the roots are kept."
    local roots=${XDG_CACHE_HOME:-${HOME-}/.cache}/wzt-companion/roots
    ((EUID == 0)) || fail "A root is entered as root only: sudo ./dev matrix"
    need debootstrap git
    # The tree may be another user's. What reads it for a clone sees no -c, only such a file.
    make_scratch
    local -x GIT_CONFIG_GLOBAL=$scratch/gitconfig
    git config --global safe.directory '*'
    [[ ! $(git status --porcelain) ]] ||
        say "What is not committed is not in the fresh clones."
    local release
    for release in "${chosen[@]:-${releases[@]}}"; do
        try_release "$release" "${verb[@]}" || broken+=("$release")
    done
    ((${#broken[@]} == 0)) || fail "matrix: failed on ${broken[*]}"
    say "matrix: passed on ${chosen[*]:-${releases[*]}}"
}
