# A private desktop for running the real tracker: Xvfb, a session bus, openbox and a tray host, with
# HOME and the XDG folders in a temporary directory. Source it, call start_desktop, and the trap
# takes everything down again. The tracker under test is the script's first argument, unless the
# script named it before.
set -euo pipefail
larkspan=${larkspan:-${1:-}}

e2e_root=$(mktemp -d "${TMPDIR:-/tmp}/larkspan-e2e.XXXXXX")
e2e_dir=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
e2e_pids=()

fail() {
    echo "FAIL: $*" >&2
    for log in sway larkspan; do
        [ -s "$e2e_root/$log.log" ] && { echo "--- $log output ---" >&2; tail -n 40 "$e2e_root/$log.log" >&2; }
    done
    exit 1
}

stop_desktop() {
    local pid
    for pid in "${e2e_pids[@]}"; do
        kill "$pid" 2>/dev/null || true
    done
    wait 2>/dev/null || true
    [ -n "${KEEP_E2E:-}" ] || rm -rf "$e2e_root"
}
trap stop_desktop EXIT

# Runs a command in the background for the rest of the test.
background() {
    "$@" >>"$e2e_root/desktop.log" 2>&1 &
    e2e_pids+=("$!")
}

# wait_until SECONDS COMMAND...: polls every 0.1 s until the command succeeds.
wait_until() {
    local deadline=$((SECONDS + $1))
    shift
    until "$@" >/dev/null 2>&1; do
        [ "$SECONDS" -lt "$deadline" ] || return 1
        sleep 0.1
    done
}

# The user's folders, all in the temporary directory.
session_folders() {
    export HOME="$e2e_root/home" XDG_DATA_HOME="$e2e_root/data" XDG_CONFIG_HOME="$e2e_root/config"
    export XDG_RUNTIME_DIR="$e2e_root/runtime" XDG_CACHE_HOME="$e2e_root/cache"
    export XDG_DATA_DIRS=/usr/local/share:/usr/share
    mkdir -p "$HOME" "$XDG_DATA_HOME/applications" "$XDG_CONFIG_HOME" "$XDG_RUNTIME_DIR" "$XDG_CACHE_HOME"
    chmod 700 "$XDG_RUNTIME_DIR"
}

# start_desktop [bare|accessible]: "bare" leaves out the session bus and the tray host; "accessible"
# turns on the accessibility bus and takes a D-Bus tray host (StatusNotifierItem) in place of the
# XEmbed one, so that a11y.py can drive the tracker as a screen reader and a panel do.
start_desktop() {
    session_folders
    unset WAYLAND_DISPLAY XDG_SESSION_TYPE QT_QPA_PLATFORM QT_QUICK_BACKEND SESSION_MANAGER

    # Xvfb picks a free display number and writes it once it is ready.
    Xvfb -displayfd 5 -screen 0 1280x800x24 -nolisten tcp 5>"$e2e_root/display" >>"$e2e_root/desktop.log" 2>&1 &
    e2e_pids+=("$!")
    wait_until 10 grep -q . "$e2e_root/display" || fail "Xvfb did not start"
    export DISPLAY=":$(head -n 1 "$e2e_root/display")"

    unset DBUS_SESSION_BUS_ADDRESS
    background openbox --sm-disable
    # xprop succeeds also when the property is missing; a window manager names its check window.
    wait_until 10 sh -c "xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'" || fail "openbox did not start"
    [ "${1:-}" != bare ] || return 0

    DBUS_SESSION_BUS_ADDRESS="unix:path=$XDG_RUNTIME_DIR/bus"
    export DBUS_SESSION_BUS_ADDRESS
    background dbus-daemon --session --nofork --address="$DBUS_SESSION_BUS_ADDRESS"
    bus_pid=$!
    wait_until 10 test -S "$XDG_RUNTIME_DIR/bus" || fail "no session bus"
    if [ "${1:-}" = accessible ]; then
        export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 LARKSPAN_TRAY_ITEMS="$e2e_root/tray-items"
        : >"$LARKSPAN_TRAY_ITEMS"
        background "$e2e_dir/accessibility/tray-host.py" "$LARKSPAN_TRAY_ITEMS"
        wait_until 10 dbus-send --session --print-reply --dest=org.freedesktop.DBus / \
            org.freedesktop.DBus.GetNameOwner string:org.kde.StatusNotifierWatcher || fail "no D-Bus tray host"
    else
        start_tray_host
    fi
}

# a11y ARGS...: the accessibility driver (see accessibility/a11y.py); fails the test when it fails.
a11y() {
    "$e2e_dir/accessibility/a11y.py" "$@" || fail "a11y $*"
}

start_tray_host() {
    background trayer --edge top --align right --widthtype request --height 24 --SetDockType true
    wait_until 10 xdotool search --class trayer || fail "no tray host"
}

# tray_icon_window PID: the process's tray icon, the only one of its windows the size of a tray slot.
tray_icon_window() {
    local id
    for id in $(xdotool search --onlyvisible --pid "$1" 2>/dev/null); do
        xdotool getwindowgeometry "$id" | grep -q 'Geometry: 2[0-9]x2[0-9]' && { echo "$id"; return 0; }
    done
    return 1
}

# open_window CLASS TITLE: an xterm that keeps its title, printed as a window id once mapped.
open_window() {
    background xterm -name "$1" -class "$1" -T "$2" -xrm 'XTerm*allowTitleOps: false' -e sleep 3600
    wait_until 10 xdotool search --onlyvisible --class "$1" || fail "window $1 did not map"
    xdotool search --onlyvisible --class "$1" | head -n 1
}

db() {
    sqlite3 -batch -noheader "$XDG_DATA_HOME/Larkspan/tracker.db" "$@"
}

# hostile_title PREFIX CHARS: PREFIX padded with x's to CHARS characters.
hostile_title() {
    local pad
    printf -v pad '%*s' $(($2 - $(printf '%s' "$1" | wc -m))) ''
    printf '%s%s' "$1" "${pad// /x}"
}

# launch [COMMAND...]: starts $larkspan in the background, through COMMAND when given.
launch() {
    "$@" "$larkspan" >>"$e2e_root/larkspan.log" 2>&1 &
    tracker=$!
    e2e_pids+=("$tracker")
}
# launch_over WINDOW: the tracker started with the window in front, once it has stored a row.
launch_over() {
    xdotool windowactivate --sync "$1"
    launch
    wait_until 10 has_rows_above 0 || fail "no activity stored 10 s after launch"
}
rows() { db "SELECT count(*) FROM activities" 2>/dev/null || echo 0; }
has_rows_above() { [ "$(rows)" -gt "$1" ]; }
# switch_to WINDOW SECONDS: the window in front for that long.
switch_to() {
    xdotool windowactivate --sync "$1"
    sleep "$2"
}
# The tracker has exited (or is a zombie waiting to be reaped).
tracker_ended() { ! kill -0 "$tracker" 2>/dev/null || grep -q '^State:.*Z' "/proc/$tracker/status"; }
# stop_tracker COMMAND...: the command ends the tracker within 10 s, with status 0.
stop_tracker() {
    "$@"
    wait_until 10 tracker_ended || fail "$* did not end the tracker"
    local status=0
    wait "$tracker" || status=$?
    [ "$status" -eq 0 ] || fail "$* ended the tracker with status $status"
}

# check WHAT EXPECTED QUERY: the query's result is EXPECTED.
check() {
    local actual
    actual=$(db "$3")
    [ "$actual" = "$2" ] || fail "$1: expected '$2', got '$actual'"
}

# desktop_entry CLASS NAME: an application entry in the user's folder, found by its window class.
desktop_entry() {
    printf '[Desktop Entry]\nType=Application\nName=%s\nExec=%s\nStartupWMClass=%s\n' "$2" "${1,,}" "$1" \
        >"$XDG_DATA_HOME/applications/${1,,}.desktop"
}

# The popover from the tray, then the dashboard from its button.
open_dashboard() {
    a11y tray activate
    a11y has frame "Quick Summary"
    a11y press "push button" "Open Dashboard"
    a11y has frame Larkspan
}
