# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# A display that nobody else can see: X asks for our cookie, VNC for a password of this run, on loopback only.
start_display() {
    local cookie number password
    cookie=$(mcookie) password=$(mcookie | cut -c 1-8)
    export XAUTHORITY=$scratch/xauthority
    xauth -q -f "$XAUTHORITY" add :0 . "$cookie" 2>/dev/null
    start Xvfb -displayfd 3 -auth "$XAUTHORITY" -nolisten tcp -screen 0 1024x960x24 \
        3>"$scratch/display" 2>"$scratch/xvfb"
    await $! '^[0-9]+$' "$scratch/display" || fail "No virtual display: $(<"$scratch/xvfb")"
    number=$(<"$scratch/display")
    export DISPLAY=:$number QT_QPA_PLATFORM=xcb QT_QUICK_BACKEND=software
    export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR-$scratch/runtime}
    xauth -q -f "$XAUTHORITY" add "$DISPLAY" . "$cookie"
    # Without a window manager no window gets the keyboard, and none can be resized.
    HOME=$scratch start blackbox >"$scratch/blackbox" 2>&1
    (umask 077 && printf '%s\n' "$password" >"$scratch/password")
    start x11vnc -norc -localhost -no6 -noipv6 -autoport 5900 -passwdfile "$scratch/password" -forever -shared \
        -quiet >"$scratch/port" 2>"$scratch/x11vnc"
    await $! '^PORT=' "$scratch/port" || fail "The virtual display cannot be looked at: $(<"$scratch/x11vnc")"
    say "No display here, so the window is on a virtual one, for this machine alone: open" \
        "vnc://localhost:$(sed -n 's/^PORT=//p' "$scratch/port") with a VNC viewer, password $password"
}
