# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# ./dev package: a source package of what is here, and the Debian packages built from it alone.

packaging_packages=(build-essential debhelper dpkg-dev git librsvg2-bin lintian pkgconf)

# tracked_sources: the files that git tracks, as they are now, each ended by a null character.
tracked_sources() {
    LC_ALL=C comm -z -23 <(git ls-files -z) <(git ls-files -z --deleted)
}

# archive_sources FILE TOP: the same files make the same archive, whoever makes it.
archive_sources() {
    tracked_sources | tar --create --xz --file="$1" --null --verbatim-files-from --files-from=- \
        --transform="s,^,$2/," --owner=0 --group=0 --numeric-owner --mode=u=rwX,go=rX \
        --mtime="$(git log -1 --format=@%ct)"
}

# package_version: that of the changelog if its tag is here. Any other commit has a version of its own, so that
# its package replaces that of an earlier one. The hash is cut here: git's short form grows with the clone.
package_version() {
    local version changed
    version=$(sed -n 's/^## \[\([0-9.]*\)\] - .*/\1/p;T;q' CHANGELOG.md)
    changed=$(git status --porcelain --untracked-files=no)
    if [[ $changed || ! $(git tag --points-at HEAD --list "v$version") ]]; then
        version+=$(TZ=UTC0 git log -1 --date=format-local:%Y%m%d%H%M%S --format=+git%cd.%H | cut -c 1-27)
    fi
    printf '%s\n' "$version${changed:++dirty}"
}

# for_processor ARCH: what is needed to build for another one.
for_processor() {
    need dpkg-dev
    dpkg-architecture -L | grep -Fx -- "$1" >/dev/null ||
        fail "Debian knows no such processor: \"$1\"; \"dpkg-architecture -L\" lists them."
    cross=(--host-arch "$1" --build-profiles=cross)
    packages+=("crossbuild-essential-$1" "pkgconf:$1" "${libraries[@]/%/:$1}")
}

# make_packages FOLDER
make_packages() {
    local version archive
    version=$(package_version)
    archive=$1/wzt-companion_$version.orig.tar.xz
    archive_sources "$archive" "wzt-companion-$version"
    tar --extract --file="$archive" --directory="$1"
    (
        cd -- "$1/wzt-companion-$version"
        cmake "${constants[@]}" -DWZT_PACKAGE_VERSION="$version" -P packaging/debian/MakeDebian.cmake
        dpkg-buildpackage --no-sign "${cross[@]}"
    )
    # By a relative path: lintian does not find what is below a folder with umlauts.
    (cd -- "$1" && lintian --fail-on error,warning ./*.changes)
}

verb_package() {
    local arch=native made=$root/build/package constants=() cross=()
    local packages=("${packaging_packages[@]}" "${tools[@]}" "${libraries[@]}")
    while (($#)); do
        case $1 in
        --arch)
            arch=${2-}
            shift
            ;;
        -DWZT_PACKAGE_VERSION=*) fail "The version is that of the commit: $1" ;;
        -DWZT_*=*) constants+=("$1") ;;
        *) fail "Neither --arch ARCH nor -DWZT_CONSTANT=VALUE: $1" ;;
        esac
        shift || fail "For which processor? ./dev package --arch ARCH"
    done
    if [[ $arch != native && $arch != "$(dpkg --print-architecture)" ]]; then
        for_processor "$arch"
    fi
    need "${packages[@]}"
    git rev-parse --is-inside-work-tree >/dev/null || fail "A package is made of the files that git tracks."
    lock_build package
    rm -rf -- "$made"
    mkdir -p -- "$made"
    make_packages "$made"
    say "The packages:"
    printf '%s\n' "$made"/*.deb
}
