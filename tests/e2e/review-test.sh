#!/usr/bin/env bash
# The review tab on a private desktop, through the accessibility tree as with a screen reader: an
# application no rule knows waits for a category; answered on the review tab it is approved with the
# chosen category, the answer is learned, and the tray's count and the sidebar's review button go.
# Usage: review-test.sh path/to/larkspan
. "$(dirname "$0")/desktop-session.sh"

start_desktop accessible
# The tray icon's tooltip: the status line with the pending count.
tray_tooltip() { "$e2e_dir/accessibility/a11y.py" tray tooltip; }

terminal=$(open_window kitty "~/src")
mystery=$(open_window Mystery "what is this")
xdotool windowactivate --sync "$mystery"
launch
# A heartbeat 30 s after launch writes the open row's end; leaving after that closes it at over 30 s,
# long enough to wait for an answer.
sleep 34
xdotool windowactivate --sync "$terminal"
pending() { [ "$(db "SELECT count(*) FROM activities WHERE app_name='Mystery' AND needs_approval=1 AND is_approved=0")" = 1 ]; }
wait_until 10 pending || fail "the unknown application is not waiting for a category"
tray_counts() { tray_tooltip | grep -q "$1"; }
tray_counts_none() { ! tray_tooltip | grep -q '●'; }
wait_until 10 tray_counts '1 ●' ||
    fail "the tray does not count the pending activity: $(tray_tooltip)"

a11y tray menu "Review 1 Pending…"
a11y press "page tab" "~^Review Activities, 1 need"
a11y has heading "Review Activities"
a11y press "push button" "Research"

check "the stored answer" "1|0|11" "SELECT is_approved, needs_approval, category_id FROM activities WHERE app_name='Mystery'"
check "the learned answer" 11 "SELECT category_id FROM learned_rules WHERE rule_type='app_name' AND rule_key='Mystery'"
a11y gone "page tab" "~^Review Activities, "
a11y has heading "All caught up!"
wait_until 10 tray_counts_none ||
    fail "the tray still counts a pending activity: $(tray_tooltip)"
echo "review: ok"
