#!/usr/bin/env bash
# The Calendar tab through the accessibility tree, as with a screen reader: after a little tracking,
# today's cell names the time tracked today, and pressing a day opens the Timeline tab on that day —
# the calendar shows the dashboard's selected day as selected when the person comes back to it.
# Usage: calendar-test.sh path/to/larkspan
. "$(dirname "$0")/desktop-session.sh"

start_desktop accessible
first=$(open_window Notes "calendar: first")
second=$(open_window Sketch "calendar: second")
launch_over "$first"
for window in "$second" "$first" "$second"; do
    switch_to "$window" 4
done
tracked() { [ "$(db "SELECT COALESCE(SUM(duration_seconds), 0) FROM activities")" -gt 0 ]; }
# A heartbeat (30 s after launch) writes the open row's duration at the latest.
wait_until 35 tracked || fail "nothing tracked: $(db "SELECT app_name, duration_seconds FROM activities" | tr "\n" " ")"

open_dashboard
a11y press "page tab" Calendar
a11y has heading Calendar

today=$(LC_ALL=C date "+%A %-d %B")
cell() { "$e2e_dir/accessibility/a11y.py" text "push button" "~^$1: "; }
# The month loads off the main thread: its figures follow the grid.
"$e2e_dir/accessibility/a11y.py" has "push button" "~^$today: [0-9]+[hms]" ||
    fail "today's cell shows no tracked time: $(cell "$today")"
figures=$(cell "$today")

# Another day of this month first, when there is one, so that today's selection is the press's doing.
if [ "$(date +%-d)" != 1 ]; then
    first_day=$(LC_ALL=C date -d "$(date +%Y-%m-01)" "+%A %-d %B")
    a11y press "push button" "~^$first_day: "
    a11y has "page tab" Timeline selected
    a11y press "page tab" Calendar
    a11y has "push button" "~^$first_day: " selected
fi
a11y press "push button" "~^$today: "
a11y has "page tab" Timeline selected
a11y press "page tab" Calendar
a11y has "push button" "~^$today: " selected
echo "calendar: today's cell read '$figures' and opened the timeline on today"
