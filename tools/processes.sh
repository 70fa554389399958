# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# Programs that ./dev starts in the background: all of them end with it, however it ends. And locks, by which
# it waits for any other ./dev.

scratch= # a temporary folder, once make_scratch was called

make_scratch() {
    scratch=$(mktemp -d) || fail "No temporary folder can be made in ${TMPDIR:-/tmp}."
    mkdir -m 700 "$scratch/runtime"
}

running() { jobs -rp | grep -qx "$1"; }

# start PROGRAM...: out of reach of Ctrl-C, without our lock, and ended even when this script is killed.
start() { setsid setpriv --pdeathsig TERM "$@" {lock}>&- & }

# The same without a display, and with nothing of this user's settings, session or proxies. Without
# QTEST_DISABLE_STACK_DUMP Qt Test answers TERM with a stack trace by a debugger.
start_apart() {
    start env -i PATH="$PATH" HOME="$scratch" XDG_RUNTIME_DIR="$scratch/runtime" LC_ALL=C.UTF-8 TZ=Europe/Berlin \
        QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software QTEST_DISABLE_STACK_DUMP=1 "$@"
}

# await PID TEXT FILE: until the process has written the text, or has ended, or 20 s have passed.
await() {
    for _ in {1..200}; do
        ! grep -qE "$2" "$3" || return 0
        running "$1" || return 1
        sleep 0.1
    done
    return 1
}

# await_exec PID PROGRAM: until the process runs the program, or has ended.
await_exec() {
    until [[ /proc/$1/exe -ef $2 ]]; do
        running "$1" || return 0
        sleep 0.05
    done
}

# End what was started, the last first, and nothing else.
end_all() {
    local pids index pid
    mapfile -t pids < <(jobs -rp)
    for ((index = ${#pids[@]} - 1; index >= 0; --index)); do
        pid=${pids[index]}
        kill "$pid" 2>/dev/null || true
        for _ in {1..50}; do
            running "$pid" || continue 2
            sleep 0.1
        done
        kill -KILL "$pid" 2>/dev/null || true
    done
    wait
    [[ ! $scratch ]] || rm -rf -- "$scratch"
}

# await_lock DESCRIPTOR WHAT: wait until no other ./dev is at work in what the open file stands for.
await_lock() {
    flock -n "$1" && return
    say "Another ./dev is at work in $2; waiting until it has finished."
    flock "$1"
}
# take_lock FILE WHAT: the same with a file of that name.
take_lock() {
    exec {lock}>"$1"
    await_lock "$lock" "$2"
}
release_lock() { exec {lock}>&-; }
