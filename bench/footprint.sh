#!/usr/bin/env bash
# The tracker's footprint on a private desktop with a tray host, the same steps every run:
#   1. launch, and the time until the first activity is stored;
#   2. 60 s of tracking while two known applications take turns in front, no window of ours opened:
#      CPU time per minute, then resident and private memory, and whether a graphics driver is mapped;
#   3. the popover (tray click), one approval card (an unknown application kept in front for 32 s)
#      and the dashboard (a second launch) with each of its tabs, each opened and closed; after 10 s
#      the memory once more.
# Private memory is Private_Dirty of /proc/<pid>/smaps_rollup: what only this process holds. The
# memory is also noted while each window is shown. QT_QUICK_BACKEND, when set, is passed on.
# Usage: footprint.sh path/to/larkspan [seconds of tracking, default 60]
set -euo pipefail
larkspan=$1
duration=${2:-60}
. "$(dirname "$0")/../tests/e2e/desktop-session.sh"

backend=${QT_QUICK_BACKEND:-}
start_desktop
[ -z "$backend" ] || export QT_QUICK_BACKEND=$backend
# Two applications whose rules are certain, so that tracking alone never raises a card.
for app in Code:code kitty:kitty; do
    printf '[Desktop Entry]\nType=Application\nName=%s\nExec=%s\nStartupWMClass=%s\n' \
        "${app%%:*}" "${app##*:}" "${app%%:*}" >"$XDG_DATA_HOME/applications/${app##*:}.desktop"
done
first=$(open_window Code "main.cpp — larkspan")
second=$(open_window kitty "~/src: make bench")
mystery=$(open_window Mystery "what is this")
xdotool windowactivate --sync "$first"

stored() { [ "$(db 'SELECT count(*) FROM activities' 2>/dev/null || echo 0)" -gt 0 ]; }
launched=$(date +%s.%N)
"$larkspan" >>"$e2e_root/larkspan.log" 2>&1 &
tracker=$!
e2e_pids+=("$tracker")
until stored; do
    [ -d "/proc/$tracker" ] || fail "the tracker ended at launch"
    (($(date +%s) - ${launched%.*} < 10)) || fail "no activity stored 10 s after launch"
    sleep 0.01
done
first_row=$(date +%s.%N)

# CPU time in clock ticks, user plus system, from /proc/<pid>/stat.
cpu_ticks() { awk '{ print $14 + $15 }' "/proc/$tracker/stat"; }
# "resident private" in kB.
memory() {
    awk '/^Rss:/ { rss = $2 } /^Private_Dirty:/ { private = $2 } END { print rss, private }' \
        "/proc/$tracker/smaps_rollup"
}
# Appends "<window> <resident kB> <private kB>" to the figures of shown windows.
shown_memory=""
note_memory() { shown_memory+="$1 $(memory)"$'\n'; }
graphics_drivers() {
    { grep -oE '[^/]*(LLVM|_dri|GLX_mesa|EGL_mesa|vulkan_)[^/]*\.so[^ ]*' "/proc/$tracker/maps" || true; } |
        sort -u | paste -sd ' '
}

start_ticks=$(cpu_ticks)
end=$((SECONDS + duration))
turn=0
while [ "$SECONDS" -lt "$end" ]; do
    if [ $((turn++ % 2)) -eq 0 ]; then window=$second; else window=$first; fi
    xdotool windowactivate "$window"
    sleep 10
done
end_ticks=$(cpu_ticks)
read -r tracking_rss tracking_private < <(memory)
tracking_drivers=$(graphics_drivers)

# The popover: a click on the tray icon opens it, activating another window closes it.
wait_until 10 tray_icon_window "$tracker" || fail "no tray icon"
xdotool mousemove --window "$(tray_icon_window "$tracker")" 8 8 click 1
shown() { xdotool search --onlyvisible --name "$1"; }
gone() { ! xdotool search --onlyvisible --name "$1"; }
wait_until 10 shown '^Quick Summary$' || fail "no popover after a tray click"
sleep 1
note_memory popover
xdotool windowactivate --sync "$first"
wait_until 10 gone '^Quick Summary$' || fail "the popover stayed open"

# An approval card: the unknown application's activity is pending once it is over 30 s long and
# closed by the next switch; its first category button answers it.
xdotool windowactivate --sync "$mystery"
sleep 32
xdotool windowactivate --sync "$first"
wait_until 10 shown 'Quick check-in$' || fail "no approval card"
sleep 1
note_memory approval-card
xdotool mousemove --window "$(shown 'Quick check-in$' | head -n 1)" 60 100 click 1
wait_until 10 gone 'Quick check-in$' || fail "the approval card stayed after an answer"

# The dashboard: a second launch asks the running tracker for it. Each tab row once (the rows sit
# 34 px apart below the live session card), then Alt+F4 closes it.
"$larkspan" >>"$e2e_root/larkspan.log" 2>&1
wait_until 10 shown '^Larkspan$' || fail "no dashboard after a second launch"
dashboard=$(shown '^Larkspan$' | head -n 1)
sleep 1
for row in 4 3 2 1 0; do
    xdotool mousemove --window "$dashboard" 80 $((136 + 34 * row)) click 1
    sleep 1
done
note_memory dashboard
xdotool windowactivate --sync "$dashboard" key alt+F4
wait_until 10 gone '^Larkspan$' || fail "the dashboard did not close"
sleep 10
read -r windows_rss windows_private < <(memory)

# Reads "<label, dashes for spaces> <resident kB> <private kB>" lines.
mb() { awk '{ gsub("-", " ", $1); printf "%-35s resident %.1f MB, private %.1f MB\n", $1 ":", $2 / 1024, $3 / 1024 }'; }
echo "Qt Quick backend:                   ${backend:-unset, as the tracker chooses}"
awk -v launched="$launched" -v first="$first_row" -v ticks=$((end_ticks - start_ticks)) \
    -v hz="$(getconf CLK_TCK)" -v seconds="$duration" 'BEGIN {
        printf "launch to first stored row:         %.2f s\n", first - launched
        printf "CPU time per minute of tracking:    %.3f s (%.2f %% of one core)\n", ticks / hz * 60 / seconds, ticks / hz / seconds * 100
    }'
echo "tracking,-no-window-opened $tracking_rss $tracking_private" | mb
echo "graphics drivers mapped by then:    ${tracking_drivers:-none}"
printf '%s' "$shown_memory" | sed 's/^/shown:-/' | mb
echo "every-window-opened-and-closed $windows_rss $windows_private" | mb
