#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Runs a command on an X server of its own with a window manager, without which no window is ever
# activated. Usage: xvfb-run.sh COMMAND [ARGUMENTS...]
set -u

work=$(mktemp -d)
server=
manager=
cleanup() {
    [ -n "$manager" ] && kill "$manager" 2>/dev/null
    [ -n "$server" ] && kill "$server" 2>/dev/null
    wait 2>/dev/null
    rm -rf "$work"
}
trap cleanup EXIT
trap 'exit 143' TERM INT HUP

# Waits up to 30 s until a file has contents.
await() {
    for ((i = 0; i < 600; ++i)); do
        [ -s "$1" ] && return 0
        sleep 0.05
    done
    echo "xvfb-run: $2 did not start" >&2
    cat "$work"/*.log >&2
    exit 1
}

# The server picks a free display by itself and writes its number when it is ready.
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$work/display" >"$work/server.log" 2>&1 &
server=$!
await "$work/display" Xvfb
DISPLAY=:$(<"$work/display")
export DISPLAY
unset XAUTHORITY WAYLAND_DISPLAY
# No message bus: what the toolkit has under way there when a test ends would count as its leak.
export DBUS_SESSION_BUS_ADDRESS=disabled:

XDG_CONFIG_HOME=$work XDG_CACHE_HOME=$work openbox --sm-disable \
    --startup "sh -c 'echo up >$work/manager'" >"$work/manager.log" 2>&1 3>&- &
manager=$!
await "$work/manager" openbox

# In the background, so that a signal to this script ends the server, too.
QT_QPA_PLATFORM=xcb "$@" &
command=$!
wait "$command"
exit $?
