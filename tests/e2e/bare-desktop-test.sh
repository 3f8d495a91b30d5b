#!/usr/bin/env bash
# The tracker on a desktop with nothing but an X server and a window manager: no session bus, no
# tray host, no notification daemon, no sound server, and a settings folder it cannot write. It must
# still record, open its dashboard in place of the tray, say once what is missing, and quit cleanly on
# SIGTERM.
# Usage: bare-desktop-test.sh path/to/larkspan
set -euo pipefail
larkspan=$1
. "$(dirname "$0")/desktop-session.sh"

start_desktop bare
chmod 500 "$XDG_CONFIG_HOME"
terminal=$(open_window kitty "~: tail -f build.log")
xdotool windowactivate --sync "$terminal"

"$larkspan" >"$e2e_root/larkspan.log" 2>&1 &
tracker=$!
e2e_pids+=("$tracker")
# With no tray the dashboard stands in at launch; then the user goes back to the terminal.
wait_until 10 xdotool search --onlyvisible --name '^Larkspan$' || fail "no dashboard without a tray"
xdotool windowactivate --sync "$terminal"
stored() { [ "$(db "SELECT count(*) FROM activities WHERE app_name = 'kitty'" 2>/dev/null || echo 0)" -gt 0 ]; }
wait_until 10 stored || fail "nothing recorded without a bus or a tray"
# Several tray checks and samples go by; the missing tray is still reported once.
sleep 9

kill -TERM "$tracker"
status=0
wait "$tracker" || status=$?
[ "$status" -eq 0 ] || fail "SIGTERM ended the tracker with status $status"
[ "$(grep -c 'no system tray' "$e2e_root/larkspan.log")" -eq 1 ] || fail "the missing tray was not reported exactly once"
echo PASS
