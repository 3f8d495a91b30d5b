#!/usr/bin/env bash
# The focus tab as a screen reader user drives it: a task added there is today's task in the store,
# verbatim, and the timer started there is the one the popover shows. Usage: focus-test.sh path/to/larkspan
. "$(dirname "$0")/desktop-session.sh"

start_desktop accessible
terminal=$(open_window kitty "~/src")
launch_over "$terminal"

a11y tray menu "Open Dashboard"
a11y has frame Larkspan
a11y press "page tab" "Focus"
a11y has heading "Tasks"
a11y press "push button" "Add task"
# Quotes and SQL; emoji and right-to-left titles are covered below the screen, xdotool cannot type them.
title="Oat milk \"2%\" 'x'); DROP TABLE todo_items; --"
a11y has text "What are you working on?" focused
# Typed on the keyboard: Qt Quick's fields offer no editable text to assistive tools.
xdotool windowactivate --sync "$(xdotool search --onlyvisible --name '^Larkspan$' | head -n 1)"
xdotool type --delay 15 "  $title "
a11y press "push button" "Add"
a11y gone text "What are you working on?"
today=$(date +%F)
check_task() { [ "$(db "SELECT title, created_date, is_completed FROM todo_items")" = "$title|$today|0" ]; }
wait_until 5 check_task || fail "the task is not today's in the store: $(db 'SELECT * FROM todo_items')"

# Started on the tab, running in the popover; the active task shows above the clock.
a11y press "push button" "Start"
a11y has "push button" "Pause"
a11y has label "$title"
a11y tray activate
a11y has frame "Quick Summary"
a11y has "push button" "Pause focus"
