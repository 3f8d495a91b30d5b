#!/usr/bin/env bash
# Crash safety of the store under kill -9: the tracker is killed at random moments while windows
# switch at random, and started again each time. Each run lasts 6 to 12 s and windows stay in front
# 4 to 8 s, so runs close sessions long enough to keep (5 s or more) and the closed rows grow.
# Reports whether the database stayed intact, whether the count of closed rows ever went down, how
# many runs added closed rows, and the most tracked time a kill lost (from the kill back to the last
# instant the store knew of). Takes about 20 minutes.
# Usage: crash-safety.sh path/to/larkspan [kills, default 100]
set -euo pipefail
larkspan=$1
kills=${2:-100}
. "$(dirname "$0")/../tests/e2e/desktop-session.sh"

start_desktop
windows=($(open_window Alpha "alpha") $(open_window Beta "beta \"b\" 🚀") $(open_window Gamma "gamma"))
switcher() {
    while true; do
        xdotool windowactivate "${windows[RANDOM % 3]}" 2>/dev/null || true
        # Window switches are no input: a moving pointer keeps the tracker from counting the user away.
        xdotool mousemove $((100 + RANDOM % 100)) 100
        sleep "$((4 + RANDOM % 4)).$((RANDOM % 10))"
    done
}
switcher &
e2e_pids+=("$!")

closed_rows() { db "SELECT count(*) FROM activities WHERE end_time IS NOT NULL"; }
known_until() { db "SELECT max(max(start_time, ifnull(end_time, 0))) FROM activities"; }
bad=0 decreased=0 grew=0 worst=0 previous=0
for ((i = 1; i <= kills; i++)); do
    launch
    sleep "$((6 + RANDOM % 6)).$((RANDOM % 10))"
    kill -9 "$tracker"
    killed_at=$(date +%s.%N)
    wait "$tracker" 2>/dev/null || true
    [ "$(db 'PRAGMA integrity_check')" = ok ] || bad=$((bad + 1))
    closed=$(closed_rows)
    [ "$closed" -ge "$previous" ] || decreased=$((decreased + 1))
    [ "$closed" -le "$previous" ] || grew=$((grew + 1))
    previous=$closed
    worst=$(awk -v k="$killed_at" -v u="$(known_until)" -v w="$worst" 'BEGIN { l = k - u; print (l > w ? l : w) }')
done
echo "kills:                         $kills"
echo "integrity failures:            $bad"
echo "closed-row count decreases:    $decreased"
echo "runs that added closed rows:   $grew"
echo "rows stored:                   $(db 'SELECT count(*) FROM activities') ($previous closed)"
printf 'worst loss at a kill:          %.1f s\n' "$worst"
