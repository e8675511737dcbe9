#!/usr/bin/env bash
# The application as it stays resident: its memory and its processor use while idle, on a virtual
# X display with a status area and a notification server (as tests/smoke/run-smoke.sh starts
# them), in a temporary home, as a user who has been through the welcome meets it.
#   1. resident memory (ps) once the status item is up; after the panel has been shown once and
#      put away (and its first scan has finished); after each tool window has been opened from
#      the panel and closed again;
#   2. processor time over IDLE seconds (default 60) with the default 5-second refresh, the panel
#      put away and no window open.
# Goals: at most 100 MB after the panel was shown once and closed; idle under 0.5 % of one core.
#
#   bench/resident.sh [IDLE]
#   BUILD=build-other bench/resident.sh
#   QT_QUICK_BACKEND=rhi bench/resident.sh     the windows drawn through OpenGL, for comparison
# Run it holding the build lock, so no build or test shares the machine:
#   flock /tmp/mopwell-build.lock bench/resident.sh
set -euo pipefail
cd "$(dirname "$0")/.."

if [ "${1:-}" != "--in-session" ]; then
  . bench/peers.sh
  install_peers Xvfb trayer dunst xdotool xwininfo dbus-run-session
  build=${BUILD:-build}
  cmake -S . -B "$build" -G Ninja >/dev/null
  cmake --build "$build" --target mopwell close-window >/dev/null
  # A private session bus for the application and the notification server, gone when we are.
  exec dbus-run-session -- bash "$0" --in-session "$build" "${1:-60}" 2> >(grep -v 'Failed to set fd limit' >&2)
fi
build=$2 idle=$3
app="$build/src/mopwell"

fail() { echo "FAILED: $*" >&2; tail -5 "$work/mopwell.log" >&2; exit 1; }
. tests/Support/desktop-session.sh

# A returning user: the welcome is behind them, everything else as it comes.
mkdir -p "$work/config/mopwell"
cat >"$work/config/mopwell/defaults.plist" <<'EOF'
<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0"><dict><key>hasCompletedOnboarding</key><true/></dict></plist>
EOF
start_app mopwell
app_pid=$!
pids+=($app_pid)

rss_mb() { ps -o rss= -p "$app_pid" | awk '{ printf "%.1f", $1 / 1024 }'; }
cpu_ticks() { awk '{ print $14 + $15 }' "/proc/$app_pid/stat"; }
# Waits until the resident set has stopped growing for two seconds (a scan settling, a window
# being torn down after its close).
settle() {
  local last now steady=0
  last=$(rss_mb)
  for _ in $(seq 60); do
    sleep 0.5
    now=$(rss_mb)
    if [ "$now" = "$last" ]; then steady=$((steady + 1)); else steady=0; fi
    [ $steady -ge 4 ] && return 0
    last=$now
  done
}

window_named() { xdotool search --name "^$1\$" 2>/dev/null | head -1; }

wait_for 30 bash -c "xwininfo -root -tree | grep -q '(\"mopwell\" '" || fail "the status item didn't appear"
settle
read -r item_w item_h item_x item_y <<<"$(status_item)"
[ -n "$item_x" ] || fail "the status item isn't in the status area"
item_x=$((item_x + item_w / 2)) item_y=$((item_y + item_h / 2))  # its centre
echo "status item up:                         $(rss_mb) MB"

xdotool mousemove "$item_x" "$item_y" click 1
wait_for 10 panel_shown || fail "a click on the status item didn't show the panel"
settle
echo "panel shown:                            $(rss_mb) MB"
xdotool mousemove "$item_x" "$item_y" click 1
wait_for 5 panel_hidden || fail "a second click didn't put the panel away"
settle
after_panel=$(rss_mb)
echo "panel shown once and closed:            $after_panel MB"

# Each tool window from its place in the panel's footer: x from the panel's left edge, y up from
# its bottom (the tools row, then the Settings / About row).
tools=("Disk Map:51:75" "Large & Duplicate Files:120:75" "Uninstall an App:259:75" "About Mopwell:200:25"
  "Mopwell Settings:55:25")
for tool in "${tools[@]}"; do
  IFS=: read -r title dx dy <<<"$tool"
  xdotool mousemove "$item_x" "$item_y" click 1
  wait_for 10 panel_shown || fail "the panel didn't show"
  read -r _ panel_x panel_y panel_h <<<"$(panel)"
  xdotool mousemove $((panel_x + dx)) $((panel_y + panel_h - dy)) click 1
  wait_for 10 bash -c "xdotool search --name '^$title\$' >/dev/null" || fail "\"$title\" didn't open"
  settle
  open=$(rss_mb)
  "$build/bench/close-window" "$(window_named "$title")"
  wait_for 10 bash -c "! xdotool search --name '^$title\$' >/dev/null" || fail "\"$title\" didn't close"
  panel_shown && { xdotool mousemove "$item_x" "$item_y" click 1; wait_for 5 panel_hidden; }
  settle
  printf '  %-24s open %6s MB, closed %6s MB\n' "$title" "$open" "$(rss_mb)"
done
echo "after every window was opened and closed: $(rss_mb) MB"

xdotool mousemove 10 790
sleep 2
before=$(cpu_ticks)
sleep "$idle"
after=$(cpu_ticks)
hz=$(getconf CLK_TCK)
echo "idle for ${idle} s: $((after - before)) ticks of 1/$hz s," \
  "$(awk -v t=$((after - before)) -v hz="$hz" -v s="$idle" 'BEGIN { printf "%.3f", 100 * t / hz / s }') % of one core"
echo "goals: ≤ 100 MB after the panel was shown once and closed ($after_panel MB); idle < 0.5 % of one core"
