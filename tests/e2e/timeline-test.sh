#!/usr/bin/env bash
# The Timeline tab of the real binary, driven through the accessibility tree as with a screen reader:
# it lists the rows the tracker just stored for two xterms, and a manual entry typed into its sheet
# lands in the store with the values typed. Usage: timeline-test.sh path/to/larkspan
set -euo pipefail
larkspan=$1
. "$(dirname "$0")/desktop-session.sh"

start_desktop accessible

first=$(open_window Notes "Timeline notes window")
second=$(open_window Shell "Timeline shell window")
xdotool windowactivate --sync "$first"
launch
wait_until 10 has_rows_above 0 || fail "no activity stored 10 s after launch"
sleep 7
switch_to "$second" 7
switch_to "$first" 2

open_dashboard
a11y press "page tab" "Timeline"
a11y has "push button" "Add manual activity"
a11y press "push button" "List view"
for title in "Timeline notes window" "Timeline shell window"; do
    a11y has "list item" "~^$title, "
done

a11y press "push button" "Add manual activity"
a11y has heading "Add Activity"
# The title field has the keyboard when the sheet opens.
xdotool type --delay 20 "Reading: Clean Code"
a11y press "push button" "Add Activity"
a11y gone heading "Add Activity"
stored=$(db "SELECT app_name, window_title, is_manual, is_approved, category_id, duration_seconds
             FROM activities WHERE is_manual = 1")
[ "$stored" = "Reading: Clean Code|Reading: Clean Code|1|1|4|3600" ] ||
    fail "manual entry stored as '$stored'"
a11y has "list item" "~^Reading: Clean Code, " || fail "the manual entry is not listed"

a11y tray menu "Quit Larkspan"
wait_until 10 tracker_ended || fail "Quit Larkspan did not end the tracker"
echo "timeline: ok"
