# A desktop for the real application, shared by the smoke test and the resident benchmark: a
# virtual X display with a status area in a bar along the top and a notification server, and a
# throwaway home, all gone when the caller exits. Source it inside a private session bus
# (dbus-run-session) after defining `fail MESSAGE` and setting `app` to the executable. It sets
# `work` (a fresh folder), `pids` and DISPLAY, and gives:
#   wait_for SECONDS COMMAND...   polls COMMAND every 0.1 s for up to SECONDS
#   start_app NAME                starts $app in the throwaway home, its output in $work/NAME.log
#   status_item                   the item embedded in the status area: width, height, x and y
#   panel                         the 380-wide panel: its window id, x, y and height
#   panel_shown, panel_hidden

work=$(mktemp -d "${TMPDIR:-/tmp}/mopwell-session.XXXXXX")
pids=()
stop_desktop_session() {
    for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap stop_desktop_session EXIT

wait_for() {
    local seconds=$1
    shift
    for _ in $(seq $((seconds * 10))); do
        "$@" && return 0
        sleep 0.1
    done
    return 1
}

# The X server picks a free display number and tells us on descriptor 3.
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$work/display" 2>"$work/xvfb.log" &
pids+=($!)
wait_for 10 test -s "$work/display" || fail "the X server didn't start"
export DISPLAY=":$(head -n1 "$work/display")"

trayer --edge top --align right --widthtype request --height 26 --SetDockType true \
    --transparent true --alpha 0 --tint 0xdcdcdc >"$work/trayer.log" 2>&1 &
pids+=($!)
has_status_area() { xwininfo -root -children | grep -q '("panel" "trayer")'; }
wait_for 10 has_status_area || fail "the status area didn't appear"

if command -v dunst >/dev/null; then
    dunst >"$work/dunst.log" 2>&1 &
    pids+=($!)
fi

mkdir -p "$work"/{home,config,data,cache,runtime}
chmod 700 "$work/runtime"
start_app() {
    HOME="$work/home" XDG_CONFIG_HOME="$work/config" XDG_DATA_HOME="$work/data" XDG_CACHE_HOME="$work/cache" \
        XDG_RUNTIME_DIR="$work/runtime" QT_QPA_PLATFORM=xcb "$app" >"$work/$1.log" 2>&1 &
}

status_item() {
    xwininfo -root -tree | awk '
        /\("panel" "trayer"\)/ { inside = 1; next }
        inside && /\("mopwell" / {
            split($(NF-1), size, /[x+]/); split($NF, at, /\+/)
            print size[1], size[2], at[2], at[3]; exit
        }'
}

panel() {
    xwininfo -root -children | awk '/\("mopwell" / && $(NF-1) ~ /^380x/ {
        split($(NF-1), size, /[x+]/); split($NF, at, /\+/); print $1, at[2], at[3], size[2]; exit }'
}
panel_shown() {
    local id
    id=$(panel | cut -d' ' -f1)
    [ -n "$id" ] && xwininfo -id "$id" | grep -q 'Map State: IsViewable'
}
panel_hidden() { ! panel_shown; }
