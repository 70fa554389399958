# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# ./dev fuzz: mutations of each corpus, until one of them is a finding.

# The status does not tell a finding: a sanitizer may end the fuzzer by one of its own.
fail_fuzzing() {
    [[ $(find "$made/findings" -name "$target-*" -newer "$made/began") ]] ||
        fail "fuzz: $target ended with status $1 and left no finding"
    fail "fuzz: $target has a finding in $made/findings; mend it, and keep it in $corpus/$target"
}

verb_fuzz() {
    (($# <= 2)) || fail "Which reader, and for how long? ./dev fuzz [TARGET [SECONDS]]"
    whole_numbers "./dev fuzz [TARGET [SECONDS]]" "${@:2}"
    local corpus=tools/fuzz/corpus made=build/fuzz targets=("${1-}") target
    [[ ${1-} ]] || mapfile -t targets < <(ls -- "$corpus")
    for target in "${targets[@]}"; do
        [[ $target != *[./]* && -d $corpus/$target ]] || fail "No such reader: $target. There are: $(ls -x -- "$corpus")"
    done
    need "${build_packages[@]}" "${fuzz_packages[@]}"
    build fuzz wzt-fuzz
    for target in "${targets[@]}"; do
        mkdir -p "$made/corpus/$target" "$made/findings"
        say "fuzz: $target"
        touch "$made/began"
        start env LC_ALL=C.UTF-8 TZ=Europe/Berlin WZT_FUZZ_TARGET="$target" "$made/tools/fuzz/wzt-fuzz" \
            -max_total_time="${2-60}" -max_len=8192 -timeout=10 -rss_limit_mb=1024 -print_final_stats=1 \
            -artifact_prefix="$made/findings/$target-" "$made/corpus/$target" "$corpus/$target"
        wait $! || fail_fuzzing $?
    done
}
