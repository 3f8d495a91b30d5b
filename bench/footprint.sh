#!/usr/bin/env bash
# The tracker's footprint on a private desktop: time from launch to the first stored row, resident
# memory, and CPU time per minute of tracking while two windows take turns in front.
# Usage: footprint.sh path/to/larkspan [seconds of tracking, default 60]
set -euo pipefail
larkspan=$1
duration=${2:-60}
. "$(dirname "$0")/../tests/e2e/desktop-session.sh"

start_desktop
first=$(open_window XTerm "first window")
second=$(open_window UXTerm "second window")
xdotool windowactivate --sync "$first"

stored() { [ "$(db 'SELECT count(*) FROM activities' 2>/dev/null || echo 0)" -gt 0 ]; }
launched=$(date +%s.%N)
"$larkspan" >>"$e2e_root/larkspan.log" 2>&1 &
tracker=$!
e2e_pids+=("$tracker")
wait_until 10 stored || fail "no activity stored 10 s after launch"
first_row=$(date +%s.%N)

# CPU time in clock ticks, user plus system, from /proc/<pid>/stat.
cpu_ticks() { awk '{ print $14 + $15 }' "/proc/$tracker/stat"; }
ticks_per_second=$(getconf CLK_TCK)
start_ticks=$(cpu_ticks)
end=$((SECONDS + duration))
turn=0
while [ "$SECONDS" -lt "$end" ]; do
    if [ $((turn++ % 2)) -eq 0 ]; then window=$second; else window=$first; fi
    xdotool windowactivate "$window"
    sleep 10
done
end_ticks=$(cpu_ticks)
rss_kb=$(awk '/^VmRSS:/ { print $2 }' "/proc/$tracker/status")

awk -v launched="$launched" -v first="$first_row" -v ticks=$((end_ticks - start_ticks)) -v hz="$ticks_per_second" \
    -v seconds="$duration" -v rss="$rss_kb" 'BEGIN {
        printf "launch to first stored row: %.2f s\n", first - launched
        printf "resident memory:            %.1f MB\n", rss / 1024
        printf "CPU time per minute:        %.2f s (%.2f %% of one core)\n", ticks / hz * 60 / seconds, ticks / hz / seconds * 100
    }'
