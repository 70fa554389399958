# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# ./dev lint: formatting, static analysis, and the rules of the house.

# ours PATHS: the files whose path matches.
ours() { grep -P "$1" <<<"$files"; }

formatting() { ours '\.(h|cpp)$' | xargs -d '\n' clang-format --dry-run --Werror; }
scripts() { shellcheck --external-sources --check-sourced dev .ci/run; }
drawings() {
    local drawings
    mapfile -t drawings < <(ours '\.qml$')
    /usr/lib/qt6/bin/qmllint -I "build/$preset/qml" --unused-imports warning "${drawings[@]}"
}

descriptions() {
    desktop-file-validate "build/$preset/packaging/"*.desktop &&
        appstreamcli validate --no-net "build/$preset/packaging/"*.metainfo.xml &&
        [[ ! $(cd "build/$preset/packaging" && flatpak-builder --show-manifest ./*.yml 2>&1 >/dev/null | tee /dev/stderr) ]]
}

# clang-tidy runs as part of this build, and so for the sources that have changed since.
tidy() { build "$preset" -k 0; }

# complain MESSAGE FOUND: if anything was found.
complain() {
    [[ $2 ]] || return 0
    printf '%s:\n%s\n' "$1" "$2"
    rules_broken=1
}
# never PATHS TEXT MESSAGE: no matching file has the text.
never() { complain "$3" "$(ours "$1" | xargs -d '\n' -r grep -InHP -- "$2")"; }
# always PATHS TEXT MESSAGE: every matching file has the text.
always() { complain "$3" "$(ours "$1" | xargs -d '\n' -r grep -LP -- "$2")"; }
# wrapped HEADERS MESSAGE: one source includes them, and no header does.
wrapped() {
    local found
    found=$(ours '^(?!tests/).*\.(h|cpp)$' | xargs -d '\n' -r grep -lP "^#include <$1")
    [[ $found == *.h* || $found == *$'\n'* ]] && complain "$2 is included by one source only" "$found"
}
# knows FOLDER [FOLDER...]: the first includes files of its own and of the others only.
knows() {
    local folders
    folders=$(IFS='|' && printf '%s' "$*")
    never "^$1/.*\.(h|cpp)$" "^#include \"(?!($folders)/|\w+\.moc\")" "$1 may know no more than $folders"
}

# rooms FOLDER ROOM...: each room of the folder uses itself, the rooms before it, and in its drawings nothing
# else either. Rooms of one level stand in one word, apart by commas, and do not know each other.
rooms() {
    local folder=$1 level room below=() beyond
    shift
    for level; do
        for room in ${level//,/ }; do
            knows "$folder/$room" "${below[@]}"
            beyond=$(ours "^$folder/" | grep -vP "^($(IFS='|' && printf '%s' "$folder/$room|${below[*]}"))/" |
                sed -nE 's#.*/(\w+)\.(h|qml)$#\1#p' | sort -u | paste -sd '|')
            never "^$folder/$room/.*\.qml$" "^(?!\s*//).*\b($beyond)\b" "$folder/$room draws with too much"
        done
        for room in ${level//,/ }; do below+=("$folder/$room"); done
    done
}

rules() {
    local rules_broken=0
    local signed='\.(h|cpp|qml|cmake|in|svg)$|(^|/)CMakeLists\.txt$|^dev$|^tools/.*\.sh$|^\.ci/run$'
    always "$signed" 'SPDX-FileCopyrightText: 2026 The WZT Companion authors' 'No copyright line'
    always "$signed" 'SPDX-License-Identifier: MIT( -->)?$' 'No licence line'
    always '\.h$' '^#pragma once$' 'No #pragma once'
    never '.' '\b(TO[D]O|FIX[M]E|XX[X]|HAC[K])\b' 'Work left over'
    never '.' '(?<![\w.}])/(root|home)/' 'A path of one machine'
    never '\.qml$' '^import QtQuick\.Controls' 'Qt Quick Controls are not used'
    never '\.qml$' '\bproperty var\b' 'Properties have a type'
    never '\.(h|cpp)$' '\bsetContextProperty\b' 'QML is given properties, no context'
    local drawn='input/|\w+/(\w+(Area|Picture)|DesktopWindow|EditActions|FocusFollower|ReadingOrder|SecretTextFilter|TableKeyboard|TableList)\.'
    never "^(?!platform/uikit/($drawn)|harness/|tests/|bench/|tools/|app/).*\.(h|cpp)$" '^#include <(QtQuick|QQuick|QSG)' 'Only drawings know Qt Quick'
    never '^(?!platform/foundation/url/HTTP\w+\.cpp$|tests/).*\.(h|cpp)$' '^#include <curl/' "libcurl is included by the HTTP loader's sources only"
    never '\.(h|cpp)$' '(?<![\w<:.>])(bool|u?char|u?int|uInt|long|float|double|qreal|qu?int\d+|u?int\d+_t|(qsizetype|size_t|socklen_t))\((?!\))' 'Numbers are cast by static_cast'
    never '\.(h|cpp)$' 'template<(.*[, ])?class ' 'A parameter of a template is a typename'
    never '\.(h|cpp)$' 'operator=\(const \w+ ?&\) = delete' 'Copies are ruled out by Q_DISABLE_COPY_MOVE'
    wrapped 'gio/' 'GIO'
    wrapped 'unicode/' 'ICU'
    wrapped 'boost/beast' 'Boost.Beast'
    knows platform/files
    knows platform/foundation platform/files
    knows platform/foundation/base
    knows platform/foundation/dates
    knows platform/foundation/coding platform/foundation/{base,dates}
    knows platform/foundation/storage platform/foundation/coding platform/files
    knows platform/foundation/url platform/foundation/base
    knows platform/uikit
    rooms platform/uikit input,appearance base controls text,bars presentation tables,alerts
    knows platform/xlform platform/uikit
    knows platform/linux platform/uikit platform/files
    knows model platform/foundation
    knows service model platform/foundation
    knows views platform/uikit platform/foundation model
    knows screens views service model platform/xlform platform/uikit platform/foundation
    knows app screens views service model platform
    knows sandbox platform/files
    knows sandbox/http
    knows sandbox/storage platform/files
    knows sandbox/certificates sandbox/{http,storage}
    knows sandbox/endpoints sandbox/{http,storage}
    knows sandbox/faults sandbox/http
    return "$rules_broken"
}

verb_lint() {
    local preset=lint check checks=(formatting scripts rules tidy drawings descriptions) broken=()
    if [[ ${1-} == --quick ]]; then
        preset=sandbox checks=(formatting scripts rules drawings)
        need "${building[@]}" "${drawing[@]}" "${styling[@]}"
        build "$preset"
    else
        need "${building[@]}" "${drawing[@]}" "${styling[@]}" "${linting[@]}"
    fi
    files=$(find . \( -path ./build -o -path ./.git -o -path ./.cache \) -prune -o -type f -printf '%P\n' | sort)
    for check in "${checks[@]}"; do
        say "lint: $check"
        "$check" || broken+=("$check")
    done
    ((${#broken[@]} == 0)) || fail "lint: not clean: ${broken[*]}"
    say "lint: clean"
}
