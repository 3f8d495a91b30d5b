#!/usr/bin/env bash
# The real tracker on a headless sway: two foot windows with their own app ids and titles, focus
# switched with swaymsg; the store must hold the applications' names, ids, titles and categories,
# and no closed row under 5 seconds. Then nobody touches anything (the headless seat has no input
# devices) and the compositor's idle notice must turn into an away row after the 120-second
# threshold. Then sway restarts under the tracker, which must neither crash nor spin while it is
# gone, and must record again once it is back. sway refuses to run as root, so as root the test runs itself again as an unprivileged
# user. Usage: sway-test.sh path/to/larkspan
set -euo pipefail
larkspan=$(realpath "$1")
user=larkspan-test

if [ "$(id -u)" -eq 0 ]; then
    id "$user" >/dev/null 2>&1 || useradd --system --no-create-home --shell /usr/sbin/nologin "$user"
    exec runuser -u "$user" -- env -i PATH="$PATH" TMPDIR=/tmp KEEP_E2E="${KEEP_E2E:-}" bash "$0" "$larkspan"
fi

. "$(dirname "$0")/desktop-session.sh"
session_folders

printf 'output HEADLESS-1 resolution 1280x800\n' >"$e2e_root/sway.conf"
socket() { ls "$XDG_RUNTIME_DIR" | grep -E '^wayland-[0-9]+$' | head -n 1 | grep .; }
start_sway() {
    WLR_BACKENDS=headless WLR_RENDERER=pixman WLR_LIBINPUT_NO_DEVICES=1 sway -c "$e2e_root/sway.conf" >>"$e2e_root/sway.log" 2>&1 &
    sway=$!
    e2e_pids+=("$sway")
    wait_until 15 socket || fail "sway did not start"
    export WAYLAND_DISPLAY=$(socket) XDG_SESSION_TYPE=wayland
    wait_until 5 ls "$XDG_RUNTIME_DIR"/sway-ipc.*.sock || fail "no sway IPC socket"
    SWAYSOCK=$(ls "$XDG_RUNTIME_DIR"/sway-ipc.*.sock | head -n 1)
    export SWAYSOCK
}
start_sway

# The same desktop entries as on X11: the Wayland app id finds them by desktop id.
desktop_entry Code "Visual Studio Code"
desktop_entry kitty kitty

editor_title="main.cpp — \"Larkspan\" 'tracker' 🚀"
open_foot() {
    foot --app-id="$1" --title="$2" sleep 3600 >>"$e2e_root/sway.log" 2>&1 &
    e2e_pids+=("$!")
    mapped() { swaymsg -t get_tree | grep -q "\"app_id\": \"$1\""; }
    wait_until 10 mapped "$1" || fail "window $1 did not map"
}
open_foot code "$editor_title"
open_foot kitty "~/src: make test"
focus() {
    swaymsg "[app_id=\"$1\"] focus" >/dev/null
    sleep "$2"
}
focus code 0

launch env QT_QPA_PLATFORM=offscreen
launched=$SECONDS
wait_until 10 has_rows_above 0 || fail "no activity stored 10 s after launch"

focus code 8
focus kitty 8
focus code 2    # too short to keep
focus kitty 6

check "editor row (the 2-second visit left none)" "Visual Studio Code|com.microsoft.VSCode|1|$editor_title" \
    "SELECT app_name, bundle_id, category_id, window_title FROM activities WHERE bundle_id = 'com.microsoft.VSCode'"
check "terminal rows" "2|kitty|net.kovidgoyal.kitty|2|~/src: make test" \
    "SELECT count(*), app_name, bundle_id, category_id, window_title FROM activities
     WHERE bundle_id = 'net.kovidgoyal.kitty' GROUP BY bundle_id"
check "closed rows under 5 seconds" 0 \
    "SELECT count(*) FROM activities WHERE end_time IS NOT NULL AND duration_seconds < 5"

# No input since the tracker connected: past the 120-second threshold the next capture is away.
away() { [ "$(db "SELECT count(*) FROM activities WHERE app_name = 'Away' AND window_title = 'Away / Break'")" = 1 ]; }
wait_until $((140 - (SECONDS - launched))) away || fail "no away row 140 s after launch"
check "the terminal row ended at the silence" 1 \
    "SELECT count(*) FROM activities WHERE bundle_id = 'net.kovidgoyal.kitty' AND end_time IS NOT NULL
     AND duration_seconds >= 5 AND id = (SELECT max(id) FROM activities WHERE app_name <> 'Away')"
# The compositor goes away for a few seconds: the tracker waits without burning the CPU.
cpu_ticks() { awk '{ print $14 + $15 }' "/proc/$tracker/stat"; }
kill "$sway"
wait "$sway" 2>/dev/null || true
rm -f "$XDG_RUNTIME_DIR"/sway-ipc.*.sock "$XDG_RUNTIME_DIR"/wayland-*
before=$(cpu_ticks)
sleep 5
[ -d "/proc/$tracker" ] || fail "the tracker ended with the compositor"
spent=$(($(cpu_ticks) - before))
[ "$spent" -le 50 ] || fail "the tracker spun while the compositor was gone: $spent ticks in 5 s"
start_sway
open_foot code "$editor_title"
focus code 0
back() { [ "$(db "SELECT count(*) FROM activities WHERE bundle_id = 'com.microsoft.VSCode'")" = 2 ]; }
wait_until 15 back || fail "no new row after the compositor came back"
stop_tracker kill "$tracker"
check "integrity" ok "PRAGMA integrity_check"
echo "PASS"
