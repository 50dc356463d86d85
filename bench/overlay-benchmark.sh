#!/usr/bin/env bash
# Measures Vantrel end to end on a virtual display, once with the default settings and once with
# "showAllKeys": start-up time, key-press-to-drawing latency, CPU and wake-ups while idle and
# while typing (Vantrel's, the X server's and the compositor's), frames drawn, resident memory. Prints a Markdown table, one column per setting.
# Vantrel runs as on a desktop, with a tray host (trayer) for its icon.
# Usage: bench/overlay-benchmark.sh [seconds per phase, default 30] [--compositor]
# VANTREL_BENCH_IDLE_SECONDS sets the idle phase apart from the typing phase (for a long memory
# run: VANTREL_BENCH_IDLE_SECONDS=5 bench/overlay-benchmark.sh 600).
source "$(dirname "${BASH_SOURCE[0]}")/../scripts/common.sh"
source "$VANTREL_ROOT/scripts/virtual-display.sh"

seconds="${1:-30}"
install_packages "${BUILD_PACKAGES[@]}" "${DISPLAY_PACKAGES[@]}"
# Only what the benchmark runs: the rest of the tree may be mid-change.
cmake -S "$VANTREL_ROOT" -B "$VANTREL_BUILD_DIR" -G Ninja \
    -DCMAKE_BUILD_TYPE="${VANTREL_BUILD_TYPE:-RelWithDebInfo}" ${VANTREL_CMAKE_ARGS:-} >/dev/null
cmake --build "$VANTREL_BUILD_DIR" --target vantrel overlay_probe --parallel "$(nproc)" >/dev/null

work="$(mktemp -d)"
trap 'kill "${vantrel_pid:-}" "${tray_pid:-}" 2>/dev/null; stop_virtual_display; rm -rf "$work"' EXIT
start_virtual_display
[ "${2:-}" = --compositor ] && start_compositor
trayer >/dev/null 2>&1 &
tray_pid=$!
# The keys come from the server's XTest keyboard. Its first key makes the server switch the core
# keyboard to it, which every X client then reacts to (Qt reloads its devices and keymap); a
# real keyboard typing before Vantrel starts has done that already, so do it here too.
xdotool key shift

# measure <name> <settings line or empty> [probe option]: writes "$work/<name>".
measure() {
    local config="$work/config-$1"
    mkdir -p "$config/Vantrel"
    printf '[General]\n%s\n' "$2" >"$config/Vantrel/Vantrel.conf"
    local output="$work/output-$1"
    local start listening
    start=$(date +%s.%N)
    XDG_CONFIG_HOME="$config" "$VANTREL_BUILD_DIR/src/app/vantrel" >"$output" 2>&1 &
    vantrel_pid=$!
    until grep -q "showing pressed keys" "$output" 2>/dev/null; do
        kill -0 "$vantrel_pid" 2>/dev/null || { cat "$output"; exit 1; }
        sleep 0.002
    done
    listening=$(date +%s.%N)
    sleep 0.5
    awk -v a="$start" -v b="$listening" \
        'BEGIN { printf "start to listening\t%.0f ms\n", (b - a) * 1000 }' >"$work/$1"
    "$VANTREL_BUILD_DIR/bench/overlay_probe" "$vantrel_pid" "$seconds" ${3:-} \
        --idle-seconds "${VANTREL_BENCH_IDLE_SECONDS:-$seconds}" \
        --server-pid "$VIRTUAL_DISPLAY_PID" ${COMPOSITOR_PID:+--compositor-pid "$COMPOSITOR_PID"} \
        >>"$work/$1"
    kill "$vantrel_pid"
    wait "$vantrel_pid" 2>/dev/null || true
}
measure default ""
measure all "showAllKeys=true" --all-keys

echo "| measure (Xvfb, $(nproc) cores, trayer${COMPOSITOR_PID:+, xcompmgr}) | default settings | showAllKeys |"
echo "|---|---|---|"
paste "$work/default" "$work/all" | awk -F'\t' '{ printf "| %s | %s | %s |\n", $1, $2, $4 }'
