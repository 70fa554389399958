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
    /usr/lib/qt6/bin/qmllint -I build/sandbox/qml --unused-imports warning "${drawings[@]}"
}

descriptions() {
    desktop-file-validate build/sandbox/packaging/*.desktop &&
        appstreamcli validate --no-net build/sandbox/packaging/*.metainfo.xml &&
        [[ ! $(cd build/sandbox/packaging && flatpak-builder --show-manifest ./*.yml 2>&1 >/dev/null | tee /dev/stderr) ]]
}

# tidy_one BASIS SOURCE: what was clean on the same basis is not looked at again.
tidy_one() {
    local mark=build/lint/${2//\//+} said
    [[ ! -f $mark || $(<"$mark") != "$1" ]] || return 0
    printf '%s\n' "$2"
    if said=$(clang-tidy --quiet -p build/lint --extra-arg=-Wno-unknown-warning-option "$2" 2>&1); then
        printf '%s\n' "$1" >"$mark"
    else
        printf '%s\n' "$said"
        return 1
    fi
}

# A verdict rests on clang-tidy, its configuration, the build's flags, the source and all it includes of ours.
tidy() {
    local basis
    mkdir -p build/lint
    # Only the compiler that made a precompiled header can read it.
    sed -E 's/-Winvalid-pch -include [^ ]+//' build/sandbox/compile_commands.json >build/lint/compile_commands.json
    basis=$(cat .clang-tidy cmake/*.cmake CMakePresets.json <(clang-tidy --version) | sha256sum | cut -c 1-64)
    export -f tidy_one
    awk -v root="$root/" -v basis="$basis" '
        FILENAME != "-" { sum[root substr($0, 67)] = $1; next }
        /^[^ ]/ { source = ""; next }
        { file = substr($0, 5); sub(/^\.\.\/\.\.\//, root, file); if (source == "") source = file }
        file in sum { rests[source] = rests[source] sum[file] }
        END { for (source in rests) if (source in sum) print basis rests[source] "\n" substr(source, length(root) + 1) }
    ' <(tr '\n' '\0' <<<"$files" | xargs -0 sha256sum) - < <(ninja -C build/sandbox -t deps) |
        xargs -d '\n' -r -n 2 -P 2 bash -c 'tidy_one "$@"' tidy_one
}

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
    never "^(?!platform/uikit/($drawn)|tests/|bench/|app/).*\.(h|cpp)$" '^#include <(QtQuick|QQuick|QSG)' 'Only drawings know Qt Quick'
    never '^(?!platform/foundation/url/HTTP\w+\.cpp$|tests/).*\.(h|cpp)$' '^#include <curl/' "libcurl is included by the HTTP loader's sources only"
    never '\.(h|cpp)$' '(?<![\w<:.>])(bool|u?char|u?int|uInt|long|float|double|qreal|qu?int\d+|u?int\d+_t|(qsizetype|size_t|socklen_t))\((?!\))' 'Numbers are cast by static_cast'
    never '\.(h|cpp)$' 'template<(.*[, ])?class ' 'A parameter of a template is a typename'
    never '\.(h|cpp)$' 'operator=\(const \w+ ?&\) = delete' 'Copies are ruled out by Q_DISABLE_COPY_MOVE'
    wrapped 'gio/' 'GIO'
    wrapped 'unicode/' 'ICU'
    wrapped 'boost/beast' 'Boost.Beast'
    knows platform/foundation
    knows platform/uikit
    rooms platform/uikit input,appearance base controls text,bars presentation tables,alerts
    knows platform/xlform platform/uikit
    knows platform/linux platform/uikit
    knows model platform/foundation
    knows service model platform/foundation
    knows views platform/uikit platform/foundation model
    knows screens views service model platform/xlform platform/uikit platform/foundation
    knows app screens views service model platform
    knows sandbox
    return "$rules_broken"
}

verb_lint() {
    need "${building[@]}" "${drawing[@]}" "${linting[@]}"
    build sandbox
    files=$(find . \( -path ./build -o -path ./.git -o -path ./.cache \) -prune -o -type f -printf '%P\n' | sort)
    local check broken=()
    for check in formatting scripts rules drawings descriptions tidy; do
        say "lint: $check"
        "$check" || broken+=("$check")
    done
    ((${#broken[@]} == 0)) || fail "lint: not clean: ${broken[*]}"
    say "lint: clean"
}
