# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# ./dev lint: formatting, static analysis, and the rules of the house.

# matching PATHS: the files whose path matches.
matching() { printf '%s\n' "$files" | grep -P "$1"; }

formatting() { matching '\.(h|cpp)$' | xargs -d '\n' clang-format --dry-run --Werror; }
scripts() { shellcheck --external-sources --check-sourced dev .ci/run packaging/debian/tests/start; }
drawings() {
    local drawings
    mapfile -t drawings < <(matching '\.qml$')
    /usr/lib/qt6/bin/qmllint -I "build/$preset/qml" --unused-imports warning "${drawings[@]}"
}

descriptions() {
    local warnings
    desktop-file-validate "build/$preset/packaging/"*.desktop &&
        appstreamcli validate --no-net "build/$preset/packaging/"*.metainfo.xml &&
        warnings=$(cd "build/$preset/packaging" && flatpak-builder --show-manifest ./*.yml 2>&1 >/dev/null) &&
        [[ ! $warnings ]] && return
    say "${warnings-}"
    return 1
}

# clang-tidy runs as part of this build, and so for the sources that have changed since.
tidy() { build "$preset" -k 0; }

# report MESSAGE FOUND: if anything was found.
report() {
    [[ $2 ]] || return 0
    printf '%s:\n%s\n' "$1" "$2"
    rules_broken=1
}
# forbid PATHS TEXT MESSAGE: no matching file has the text.
forbid() { report "$3" "$(matching "$1" | xargs -d '\n' -r grep -InHP -- "$2")"; }
# require PATHS TEXT MESSAGE: every matching file has the text.
require() { report "$3" "$(matching "$1" | xargs -d '\n' -r grep -LP -- "$2")"; }
# included_once HEADERS MESSAGE: one source includes them, and no header does.
included_once() {
    local found
    found=$(matching '^(?!tests/).*\.(h|cpp)$' | xargs -d '\n' -r grep -lP "^#include <$1")
    [[ $found == *.h* || $found == *$'\n'* ]] && report "$2 is included by one source only" "$found"
}
# may_include FOLDER [FOLDER...]: the first includes files of its own and of the others only.
may_include() {
    local folders
    folders=$(IFS='|' && printf '%s' "$*")
    forbid "^$1/.*\.(h|cpp)$" "^#include \"(?!($folders)/|\w+\.moc\")" "$1 may know no more than $folders"
}

# rooms FOLDER ROOM...: each room of the folder uses itself, the rooms before it, and in its drawings nothing
# else either. Rooms of one level stand in one word, apart by commas, and do not know each other.
rooms() {
    local folder=$1 level room below=() beyond
    shift
    for level; do
        for room in ${level//,/ }; do
            may_include "$folder/$room" "${below[@]}"
            beyond=$(matching "^$folder/" | grep -vP "^($(IFS='|' && printf '%s' "$folder/$room|${below[*]}"))/" |
                sed -nE 's#.*/(\w+)\.(h|qml)$#\1#p' | sort -u | paste -sd '|')
            forbid "^$folder/$room/.*\.qml$" "^(?!\s*//).*\b($beyond)\b" "$folder/$room draws with too much"
        done
        for room in ${level//,/ }; do below+=("$folder/$room"); done
    done
}

rules() {
    local rules_broken=0
    local signed='\.(h|cpp|qml|cmake|in|svg)$|(^|/)CMakeLists\.txt$|^dev$|^tools/.*\.sh$|^\.ci/run$'
    require "$signed" 'SPDX-FileCopyrightText: 2026 The WZT Companion authors' 'No copyright line'
    require "$signed" 'SPDX-License-Identifier: MIT( -->)?$' 'No licence line'
    require '\.h$' '^#pragma once$' 'No #pragma once'
    forbid '.' '\b(TO[D]O|FIX[M]E|XX[X]|HAC[K])\b' 'Work left over'
    forbid '.' '(?<![\w.}])/(root|home)/' 'A path of one machine'
    forbid '\.qml$' '^import QtQuick\.Controls' 'Qt Quick Controls are not used'
    forbid '\.qml$' '\bproperty var\b' 'Properties have a type'
    forbid '\.(h|cpp)$' '\bsetContextProperty\b' 'QML is given properties, no context'
    local drawn='input/|\w+/(\w+(Area|Picture)|DesktopWindow|EditActions|FocusFollower|ReadingOrder|SecretTextFilter|Separator|TableKeyboard|TableList)\.'
    forbid "^(?!platform/uikit/($drawn)|harness/|tests/|bench/|tools/|app/).*\.(h|cpp)$" '^#include <(QtQuick|QQuick|QSG)' 'Only drawings know Qt Quick'
    forbid '^(?!platform/foundation/http/\w+\.cpp$|tests/).*\.(h|cpp)$' '^#include <curl/' "libcurl is included by the HTTP client's sources only"
    forbid '\.(h|cpp)$' '(?<![\w<:.>])(bool|u?char|u?int|uInt|long|float|double|qreal|qu?int\d+|u?int\d+_t|(qsizetype|s?size_t|time_t|socklen_t))\((?!\))' 'Numbers are cast by static_cast'
    forbid '\.(h|cpp)$' 'template ?<(.*[, ])?class ' 'A parameter of a template is a typename'
    forbid '\.(h|cpp)$' 'operator=\(const \w+ ?&\) = delete' 'Copies are ruled out by Q_DISABLE_COPY_MOVE'
    report 'Longer than 300 lines' "$(matching '\.(h|cpp|qml|sh|cmake)$|^dev$' | xargs -d '\n' awk 'FNR == 301 { print FILENAME }')"
    included_once 'gio/' 'GIO'
    included_once 'unicode/' 'ICU'
    included_once 'boost/beast' 'Boost.Beast'
    may_include platform/files
    may_include platform/foundation platform/files
    may_include platform/foundation/base
    may_include platform/foundation/dates
    may_include platform/foundation/coding platform/foundation/{base,dates}
    may_include platform/foundation/storage platform/foundation/coding platform/files
    may_include platform/foundation/url platform/foundation/base platform/files
    may_include platform/foundation/http platform/foundation/{base,url}
    may_include platform/uikit
    rooms platform/uikit input,appearance base controls text,bars presentation tables,alerts
    may_include platform/xlform platform/uikit
    may_include platform/linux platform/uikit platform/files
    may_include model platform/foundation
    may_include service model platform/foundation
    may_include views platform/uikit platform/foundation model
    local below=(views service model platform/xlform platform/uikit platform/foundation)
    may_include screens/common "${below[@]}"
    may_include screens/issues screens/common "${below[@]}"
    may_include screens/home screens/{common,issues} "${below[@]}"
    may_include screens/login screens/common "${below[@]}"
    may_include screens/account screens/common "${below[@]}"
    may_include app screens views service model platform
    may_include sandbox platform/files
    may_include sandbox/http
    may_include sandbox/storage platform/files
    may_include sandbox/certificates sandbox/{http,storage}
    may_include sandbox/endpoints sandbox/{http,storage}
    may_include sandbox/faults sandbox/http
    return "$rules_broken"
}

verb_lint() {
    [[ $# == 0 || $* == --quick ]] || fail "Lint looks at everything: ./dev lint [--quick]"
    local -x LC_ALL=C.UTF-8
    local preset=lint check checks=(formatting scripts rules tidy drawings descriptions) broken=()
    if [[ ${1-} == --quick ]]; then
        preset=sandbox checks=(formatting scripts rules drawings)
        need "${build_packages[@]}" "${drawing_packages[@]}" "${style_packages[@]}"
        build "$preset"
    else
        need "${build_packages[@]}" "${drawing_packages[@]}" "${style_packages[@]}" "${lint_packages[@]}"
    fi
    files=$(find . \( -path ./build -o -path ./.git -o -path ./.cache \) -prune -o -type f -printf '%P\n' | sort)
    for check in "${checks[@]}"; do
        say "lint: $check"
        "$check" || broken+=("$check")
    done
    ((${#broken[@]} == 0)) || fail "lint: not clean: ${broken[*]}"
    say "lint: clean"
}
