#!/usr/bin/env bash
# Resident memory of Vantrel while a second monitor is removed and added again and again, keys
# showing all the while. Xvfb with two RandR monitors (LEFT, the primary, and RIGHT), Vantrel
# with "showAllKeys" on and both displays enabled; each cycle removes RIGHT, presses keys, adds
# RIGHT back and presses keys again. Prints the resident memory every 50 cycles, once the keys
# have gone.
# Usage: bench/hotplug-memory.sh [cycles, default 400]
# VANTREL_BENCH_DISPLAY picks the X display (default :80). VANTREL_BENCH_WRAPPER runs Vantrel
# under a tool, e.g. VANTREL_BENCH_WRAPPER="heaptrack -o /tmp/hotplug" for a heap profile; with
# VANTREL_BENCH_STOP_SIGNAL=KILL Vantrel ends without freeing anything, so heaptrack's "leaked"
# is what was alive at the end (compare a short and a long run with heaptrack_print --diff).
# VANTREL_BENCH_SMAPS=<folder> keeps Vantrel's /proc/<pid>/smaps at each figure, to tell which
# mappings grow.
source "$(dirname "${BASH_SOURCE[0]}")/../scripts/common.sh"

cycles="${1:-400}"
install_packages "${BUILD_PACKAGES[@]}" "${DISPLAY_PACKAGES[@]}"
cmake -S "$VANTREL_ROOT" -B "$VANTREL_BUILD_DIR" -G Ninja \
    -DCMAKE_BUILD_TYPE="${VANTREL_BUILD_TYPE:-RelWithDebInfo}" ${VANTREL_CMAKE_ARGS:-} >/dev/null
cmake --build "$VANTREL_BUILD_DIR" --target vantrel >/dev/null

work="$(mktemp -d)"
cleanup() {
    set +e
    [ -n "${vantrel_pid:-}" ] && kill "$vantrel_pid" 2>/dev/null
    [ -n "${launcher_pid:-}" ] && wait "$launcher_pid" 2>/dev/null
    [ -n "${tray_pid:-}" ] && kill "$tray_pid" 2>/dev/null
    [ -n "${server_pid:-}" ] && kill "$server_pid" 2>/dev/null
    rm -rf "$work"
}
trap cleanup EXIT

export DISPLAY="${VANTREL_BENCH_DISPLAY:-:80}"
unset WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS # alone: no other Vantrel's bus name in the way
xdpyinfo >/dev/null 2>&1 && { echo "$DISPLAY is taken" >&2; exit 1; }
Xvfb "$DISPLAY" -screen 0 3840x1080x24 +extension RANDR -noreset -nolisten tcp >/dev/null 2>&1 &
server_pid=$!
until xdpyinfo >/dev/null 2>&1; do
    kill -0 "$server_pid" 2>/dev/null || { echo "Xvfb did not start on $DISPLAY" >&2; exit 1; }
    sleep 0.05
done
add_right() { xrandr --setmonitor RIGHT 1920/508x1080/286+1920+0 none >/dev/null; }
xrandr --setmonitor '*LEFT' 1920/508x1080/286+0+0 screen >/dev/null
add_right
setxkbmap us
xdotool key shift # the server's XTest keyboard becomes the core keyboard before Vantrel starts
trayer >/dev/null 2>&1 & # Vantrel runs as on a desktop, with a tray for its icon
tray_pid=$!

# start_vantrel [wrapper...]: sets vantrel_pid once it shows keys.
start_vantrel() {
    : >"$work/output"
    XDG_CONFIG_HOME="$work/config" "$@" "$VANTREL_BUILD_DIR/src/app/vantrel" \
        >"$work/output" 2>&1 &
    launcher_pid=$!
    vantrel_pid=""
    until [ -n "$vantrel_pid" ] && grep -q "showing pressed keys" "$work/output"; do
        kill -0 "$launcher_pid" 2>/dev/null || { cat "$work/output" >&2; exit 1; }
        if [ $# -eq 0 ]; then
            vantrel_pid=$launcher_pid
        else
            vantrel_pid=$(pgrep -P "$launcher_pid" -x vantrel || true)
        fi
        sleep 0.05
    done
}
stop_vantrel() {
    kill -s "${1:-TERM}" "$vantrel_pid"
    wait "$launcher_pid" 2>/dev/null || true
    vantrel_pid=""
    launcher_pid=""
}

# A first run records both displays; the second is then enabled in the settings.
mkdir -p "$work/config/Vantrel"
printf '[General]\nshowAllKeys=true\n' >"$work/config/Vantrel/Vantrel.conf"
start_vantrel
stop_vantrel
sed -i 's/"isEnabled":false/"isEnabled":true/g' "$work/config/Vantrel/Vantrel.conf"

# shellcheck disable=SC2086 # the wrapper is a command line
start_vantrel ${VANTREL_BENCH_WRAPPER:-}
rss() { awk '/^VmRSS/ { printf "%.2f MB", $2 / 1024 }' "/proc/$vantrel_pid/status"; }
check_running() {
    kill -0 "$vantrel_pid" 2>/dev/null && return 0
    local status=0
    wait "$launcher_pid" || status=$?
    echo "Vantrel ended (exit status $status) at cycle $cycle:" >&2
    cat "$work/output" >&2
    vantrel_pid=""
    exit 1
}
press() { xdotool key --delay 15 a s d f j k l; }
press
sleep 2
cycle=0
check_running
echo "cycle 0: $(rss)"
for ((cycle = 1; cycle <= cycles; cycle++)); do
    xrandr --delmonitor RIGHT >/dev/null
    press
    add_right
    press
    if ((cycle % 50 == 0)); then
        sleep 2 # figures with no key on show: the caps' images and frames are gone
        check_running
        echo "cycle $cycle: $(rss)"
        if [ -n "${VANTREL_BENCH_SMAPS:-}" ]; then
            cp "/proc/$vantrel_pid/smaps" "$VANTREL_BENCH_SMAPS/$cycle"
        fi
    fi
done
stop_vantrel "${VANTREL_BENCH_STOP_SIGNAL:-TERM}"
