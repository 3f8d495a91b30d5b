#!/usr/bin/env bash
# What the tracker keeps when things go wrong around it: a frozen session bus at launch, a quit by
# signal or by the tray, another program holding the database locked, a read-only database that
# becomes writable again; and what it exposes: its folders and files are the user's alone.
# Usage: robust-test.sh path/to/larkspan
. "$(dirname "$0")/desktop-session.sh"

start_desktop
# A settings file left readable by everyone is tightened at launch.
mkdir -p "$XDG_CONFIG_HOME/Larkspan" && touch "$XDG_CONFIG_HOME/Larkspan/Larkspan.conf"
chmod 755 "$XDG_CONFIG_HOME/Larkspan" && chmod 644 "$XDG_CONFIG_HOME/Larkspan/Larkspan.conf"
hostile=$(hostile_title "\"quoted\" 'single' 🚀 " 10000)
editor=$(open_window Hostile "$hostile")
terminal=$(open_window Shell "~: make")
other=$(open_window Ledger "budget")
# Each launch finds the editor in front.
start_tracker() {
    xdotool windowactivate --sync "$editor"
    launch "$@"
}
last_row() { db "SELECT app_name, ifnull(end_time, 0) FROM activities ORDER BY id DESC LIMIT 1"; }
ended_near() { awk -v e="${1#*|}" -v q="$2" 'BEGIN { exit !(e - q < 1 && q - e < 1) }'; }
rows_of() { db "SELECT count(*) FROM activities WHERE app_name = '$1'"; }

# A frozen bus holds nothing up: the first row is stored within 2 s of launch.
kill -STOP "$bus_pid"
start_tracker
wait_until 2 has_rows_above 0 || { kill -CONT "$bus_pid"; fail "no row 2 s after launch with a frozen bus"; }
kill -CONT "$bus_pid"
[ "$(db 'SELECT window_title FROM activities LIMIT 1')" = "$hostile" ] || fail "the hostile title changed"
modes=$(cd "$e2e_root" && stat -c '%a %n' data/Larkspan config/Larkspan data/Larkspan/tracker.db* config/Larkspan/*)
[ "$modes" = "$(printf '700 %s\n' data/Larkspan config/Larkspan; printf '600 %s\n' data/Larkspan/tracker.db{,-shm,-wal} config/Larkspan/Larkspan.conf)" ] ||
    fail "modes after launch: $modes"

# 20 s in one window, then the tray's Quit: the row ends at the quit.
sleep 18
wait_until 10 tray_icon_window "$tracker" || fail "no tray icon"
xdotool mousemove --window "$(tray_icon_window "$tracker")" 8 8 click 3
sleep 0.5
quit_at=$(date +%s.%N)
xdotool key Up Return
wait_until 10 tracker_ended || fail "Quit Larkspan did not end the tracker"
ended_near "$(last_row)" "$quit_at" || fail "row not ended at the tray quit: $(last_row) vs $quit_at"

# 2 s in another window, then SIGTERM: that row is gone.
start_tracker
second_row() { [ "$(rows_of Hostile)" -gt 1 ]; }
wait_until 5 second_row || fail "no row after the relaunch"
switch_to "$terminal" 2
stop_tracker kill -TERM "$tracker"
[ "$(rows_of Shell)" = 0 ] || fail "a 2 s session stayed after SIGTERM"
[ "$(last_row | cut -d'|' -f1)" = Hostile ] || fail "the row before it did not end: $(last_row)"

# A lock held 5 s by another program while windows switch: every switch of 5 s or more is kept.
start_tracker
sleep 2
(echo "BEGIN EXCLUSIVE; INSERT INTO daily_pomo_counts VALUES ('lock', 0);"; sleep 5; echo "COMMIT;") |
    db >/dev/null &
switch_to "$terminal" 6
switch_to "$other" 6
switch_to "$editor" 1
[ "$(rows_of Shell)$(rows_of Ledger)" = 11 ] || fail "switches lost to a lock: $(db 'SELECT app_name FROM activities')"

# A database that cannot be written: said once, and tracking goes on.
stop_tracker kill -TERM "$tracker"
chmod 444 "$XDG_DATA_HOME/Larkspan/tracker.db"
# Even as root: without the capability to override file modes.
start_tracker setpriv --bounding-set=-dac_override,-dac_read_search
for window in "$terminal" "$other" "$editor"; do
    switch_to "$window" 2
done
kill -0 "$tracker" || fail "the tracker stopped over a read-only database"
# Writable again: the next closed session is stored without a restart, and nothing more is said.
chmod 600 "$XDG_DATA_HOME/Larkspan/tracker.db"
switch_to "$terminal" 6
xdotool windowactivate --sync "$other"
recovered() { [ "$(db 'SELECT count(*) FROM activities WHERE app_name = '"'Shell'"' AND duration_seconds >= 5')" -gt 1 ]; }
wait_until 5 recovered || fail "no row stored once the database took writes again: $(db 'SELECT app_name, duration_seconds FROM activities')"
[ "$(grep -c 'Larkspan cannot save your activity: ' "$e2e_root/larkspan.log")" = 1 ] ||
    fail "the write failure was not reported exactly once"
echo PASS
