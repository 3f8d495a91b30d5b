#!/usr/bin/env bash
# The Timeline tab of the real binary, driven through the accessibility tree as with a screen reader:
# it lists the rows the tracker just stored for two xterms, and a manual entry typed into its sheet
# lands in the store with the values typed. Usage: timeline-test.sh path/to/larkspan
. "$(dirname "$0")/desktop-session.sh"

start_desktop accessible

first=$(open_window Notes "Timeline notes window")
second=$(open_window Shell "Timeline shell window")
launch_over "$first"
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
check "manual entry" "Reading: Clean Code|Reading: Clean Code|1|1|4|3600" \
    "SELECT app_name, window_title, is_manual, is_approved, category_id, duration_seconds FROM activities WHERE is_manual = 1"
a11y has "list item" "~^Reading: Clean Code, " || fail "the manual entry is not listed"

stop_tracker a11y tray menu "Quit Larkspan"
echo "timeline: ok"
