#!/usr/bin/env bash
# Memory of the tracker over many window switches: three windows of different categories (one of
# them asks for a category, so the tray badge changes too) take turns in front, and the resident
# memory is read after a warm-up, every 1,000 switches (a line each, so a run cut short still tells)
# and at the end. Takes about half an hour for 10,000 switches.
# Usage: switch-memory.sh path/to/larkspan [switches, default 10000]
set -euo pipefail
larkspan=$1
switches=${2:-10000}
warmup=500
. "$(dirname "$0")/../tests/e2e/desktop-session.sh"

start_desktop
printf '[Desktop Entry]\nType=Application\nName=kitty\nExec=kitty\nStartupWMClass=kitty\n' \
    >"$XDG_DATA_HOME/applications/kitty.desktop"
windows=($(open_window kitty "~: make") $(open_window Firefox "News") $(open_window Mystery "what is this"))
launch
sleep 3

rss_kb() { awk '/^VmRSS:/ { print $2 }' "/proc/$tracker/status"; }
for ((i = 1; i <= switches; i++)); do
    xdotool windowactivate --sync "${windows[i % 3]}"
    # Window switches are no input: a moving pointer keeps the tracker from counting the user away.
    [ $((i % 50)) -ne 0 ] || xdotool mousemove $((100 + i % 100)) 100
    [ "$i" -ne "$warmup" ] || { sleep 2; after_warmup=$(rss_kb); }
    [ $((i % 1000)) -ne 0 ] || echo "after $i switches ($SECONDS s): resident $(($(rss_kb) / 1024)) MiB"
done
sleep 5
final=$(rss_kb)
kill -0 "$tracker" || fail "the tracker died during the switches"
echo "switches:                       $switches"
echo "resident after $warmup switches:     $((after_warmup / 1024)) MiB"
echo "resident after $switches switches:   $((final / 1024)) MiB"
awk -v a="$after_warmup" -v b="$final" -v n=$((switches - warmup)) \
    'BEGIN { printf "growth per switch after warm-up: %.0f bytes\n", (b - a) * 1024 / n }'
