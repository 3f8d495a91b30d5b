#!/usr/bin/env bash
# The tracker on a desktop with nothing but an X server and a window manager: no session bus, no
# tray host, no notification daemon, no sound server, and a settings folder it cannot write. It must
# still record, open its dashboard in place of the tray (closing it keeps tracking), say once what is
# missing, show its icon when a tray host arrives late, and quit cleanly on SIGTERM.
# Usage: bare-desktop-test.sh path/to/larkspan
. "$(dirname "$0")/desktop-session.sh"

start_desktop bare
chmod 500 "$XDG_CONFIG_HOME"
terminal=$(open_window kitty "~: tail -f build.log")
xdotool windowactivate --sync "$terminal"

launch
# With no tray the dashboard stands in at launch; then the user goes back to the terminal.
wait_until 10 xdotool search --onlyvisible --name '^Larkspan$' || fail "no dashboard without a tray"
xdotool windowactivate --sync "$terminal"
stored() { [ "$(db "SELECT count(*) FROM activities WHERE app_name = '$1'" 2>/dev/null || echo 0)" -gt 0 ]; }
wait_until 10 stored kitty || fail "nothing recorded without a bus or a tray"
# Closing the dashboard hides it; tracking goes on.
xdotool windowactivate --sync "$(xdotool search --onlyvisible --name '^Larkspan$' | head -n 1)"
xdotool key alt+F4
dashboard_gone() { ! xdotool search --onlyvisible --name '^Larkspan$'; }
wait_until 10 dashboard_gone || fail "the dashboard did not close"
ledger=$(open_window Ledger "March budget")
xdotool windowactivate --sync "$ledger"
wait_until 10 stored Ledger || fail "closing the dashboard stopped tracking"

# A tray host that arrives late gets the icon; the missing tray was still reported only once.
sleep 3
start_tray_host
wait_until 10 tray_icon_window "$tracker" || fail "no tray icon once a host appeared"

stop_tracker kill -TERM "$tracker"
[ "$(grep -c 'no system tray' "$e2e_root/larkspan.log")" -eq 1 ] || fail "the missing tray was not reported exactly once"
echo PASS
