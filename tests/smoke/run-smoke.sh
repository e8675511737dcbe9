#!/usr/bin/env bash
# Runs the real application on a virtual X display with a status area and a notification server,
# as a user would meet it: the status item appears, the first start's welcome is skipped, a click
# drops the panel under it, a second click puts it away, a second start of the application shows
# the panel of the first and ends, and "Quit Mopwell" in the item's menu ends the application. A
# picture of the screen with the panel open is saved as smoke.png.
#
# Usage: run-smoke.sh MOPWELL_EXECUTABLE SCREENSHOT_FOLDER
# Exits 77 (skipped) when a tool it needs isn't installed; scripts/bootstrap installs them all.
set -euo pipefail

if [ "${1:-}" != "--in-session" ]; then
    for tool in Xvfb trayer xdotool xwininfo xwd convert dbus-run-session; do
        command -v "$tool" >/dev/null || { echo "SKIPPED: $tool is not installed (scripts/bootstrap installs it)"; exit 77; }
    done
    # A private session bus for the application and the notification server, gone when we are.
    exec dbus-run-session -- bash "$0" --in-session "$@"
fi
shift
app=$1
shots=$2
mkdir -p "$shots"

fail() {
    echo "FAILED: $*"
    for log in "$work"/*.log; do echo "--- $(basename "$log")"; tail -20 "$log"; done
    echo "--- windows"
    xwininfo -root -tree 2>&1 | grep -v '^$' | head -40
    exit 1
}
. "$(dirname "$0")/../Support/desktop-session.sh"

start_app mopwell
app_pid=$!
pids+=($app_pid)

item_shown() { [ -n "$(status_item)" ]; }
# A sanitized build starts slowly on a busy machine.
wait_for 30 item_shown || fail "the status item didn't appear"
read -r item_w item_h item_x item_y <<<"$(status_item)"
echo "status item: ${item_w}x${item_h} at ${item_x},${item_y}"
click_x=$((item_x + item_w / 2))
click_y=$((item_y + item_h / 2))

# A first start welcomes the user over the screen but leaves the status area free; Escape is
# "Skip for now", after which a bubble points at the icon without covering it.
# Our top-level windows: the id of the first whose line has the text $1 and matches $2.
top_level() { xwininfo -root -children | grep -F '("mopwell" ' | grep -F -- "$1" | grep -E -- "${2:-.}" | awk '{ print $1; exit }'; }
viewable() { [ -n "$1" ] && xwininfo -id "$1" 2>/dev/null | grep -q 'Map State: IsViewable'; }
welcome() { top_level '"Welcome to Mopwell":'; }
welcome_shown() { viewable "$(welcome)"; }
coach_mark_shown() { viewable "$(top_level '' ' 1280x200[+]')"; }
wait_for 20 welcome_shown || fail "a first start didn't show the welcome"
# The bar reserves no room, and the welcome came up before the icon was embedded in it.
welcome_clear_of_item() {
    local top
    top=$(xwininfo -id "$(welcome)" | awk '/Absolute upper-left Y/ { print $NF }')
    [ -n "$top" ] && [ "$top" -ge $((item_y + item_h)) ]
}
wait_for 5 welcome_clear_of_item || fail "the welcome covers the status item"
xdotool windowfocus --sync "$(welcome)" key Escape
welcome_hidden() { ! welcome_shown; }
wait_for 5 welcome_hidden || fail "Escape didn't skip the welcome"
wait_for 5 coach_mark_shown || fail "no bubble pointed at the status item after the welcome"

xdotool mousemove "$click_x" "$click_y" click 1
wait_for 10 panel_shown || fail "a click on the status item didn't show the panel"
# The user has found the icon: the bubble goes.
coach_mark_hidden() { ! coach_mark_shown; }
wait_for 5 coach_mark_hidden || fail "the bubble stayed after a click on the status item"
read -r _ panel_x panel_y _ <<<"$(panel)"
echo "panel at ${panel_x},${panel_y}"
# Dropped just under the item, and reaching across it.
[ "$panel_y" -ge $((item_y + item_h - 2)) ] && [ "$panel_y" -le $((item_y + item_h + 4)) ] ||
    fail "the panel is at y=$panel_y, not under the status item"
[ "$panel_x" -le "$click_x" ] && [ $((panel_x + 380)) -ge "$click_x" ] ||
    fail "the panel at x=$panel_x doesn't reach across the status item"

sleep 1  # let the first scan's figures settle for the picture
xwd -root -silent | convert xwd:- "$shots/smoke.png"
echo "screenshot: $shots/smoke.png"
# The item drew a picture, not an empty square.
spread=$(convert "$shots/smoke.png" -crop "${item_w}x${item_h}+${item_x}+${item_y}" -format '%[fx:standard_deviation]' info:)
awk -v s="$spread" 'BEGIN { exit !(s > 0.01) }' || fail "the status item's image is blank"

xdotool mousemove "$click_x" "$click_y" click 1
wait_for 5 panel_hidden || fail "a second click didn't put the panel away"

# A second start (an autostart entry plus a start by hand) hands over to the running copy, which
# shows its panel, and ends at once.
start_app second
second_pid=$!
second_ended() { ! kill -0 "$second_pid" 2>/dev/null; }
wait_for 10 second_ended || fail "a second start of the application didn't end"
wait "$second_pid" || fail "a second start exited with status $?"
wait_for 10 panel_shown || fail "a second start didn't bring up the running copy's panel"
# At once: this click may come so soon after the last one that the desktop counts the two as a
# double click, and the panel the second start brought up must go all the same.
xdotool mousemove "$click_x" "$click_y" click 1
wait_for 5 panel_hidden || fail "a click didn't put the panel away after the second start"

# "Quit Mopwell" is the only entry of the item's menu.
xdotool mousemove "$click_x" "$click_y" click 3
sleep 0.5
xdotool key Down Return
app_ended() { ! kill -0 "$app_pid" 2>/dev/null; }
wait_for 10 app_ended || fail "\"Quit Mopwell\" didn't end the application"
wait "$app_pid" || fail "the application exited with status $?"
echo "PASSED"
