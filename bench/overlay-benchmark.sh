#!/usr/bin/env bash
# Measures Vantrel end to end on a virtual display: start-up time, key-press-to-drawing latency,
# CPU while idle and while typing, resident memory. Prints a Markdown table.
# Usage: bench/overlay-benchmark.sh [seconds per phase, default 30] [--compositor]
source "$(dirname "${BASH_SOURCE[0]}")/../scripts/common.sh"
source "$VANTREL_ROOT/scripts/virtual-display.sh"

seconds="${1:-30}"
install_packages "${BUILD_PACKAGES[@]}" "${DISPLAY_PACKAGES[@]}"
build_vantrel >/dev/null

config="$(mktemp -d)"
trap 'kill "${vantrel_pid:-}" 2>/dev/null; stop_virtual_display; rm -rf "$config"' EXIT
mkdir -p "$config/Vantrel"
printf '[General]\nshowAllKeys=true\n' >"$config/Vantrel/Vantrel.conf"

start_virtual_display
[ "${2:-}" = --compositor ] && start_compositor
output="$config/output"
start=$(date +%s.%N)
XDG_CONFIG_HOME="$config" "$VANTREL_BUILD_DIR/src/app/vantrel" >"$output" 2>&1 &
vantrel_pid=$!
until grep -q "showing pressed keys" "$output" 2>/dev/null; do
    kill -0 "$vantrel_pid" 2>/dev/null || { cat "$output"; exit 1; }
    sleep 0.002
done
listening=$(date +%s.%N)
sleep 0.5

echo "| measure (Xvfb, $(nproc) cores${COMPOSITOR_PID:+, xcompmgr}) | result |"
echo "|---|---|"
awk -v a="$start" -v b="$listening" 'BEGIN { printf "| start to listening | %.0f ms |\n", (b - a) * 1000 }'
"$VANTREL_BUILD_DIR/bench/overlay_probe" "$vantrel_pid" "$seconds"
