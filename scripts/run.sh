#!/usr/bin/env bash
# Installs what is missing, builds Vantrel and runs it. On a machine without a display it runs
# Vantrel inside a virtual one, presses a few shortcuts and saves a screenshot of what it shows.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

if [ -n "${DISPLAY:-}" ]; then
    install_packages "${BUILD_PACKAGES[@]}"
    build_vantrel
    exec "$VANTREL_BUILD_DIR/src/app/vantrel" "$@"
fi

echo "No display here: showing Vantrel on a virtual one (two monitors and a compositor)."
install_packages "${BUILD_PACKAGES[@]}" "${DISPLAY_PACKAGES[@]}" "${DEMO_PACKAGES[@]}"
build_vantrel
source "$VANTREL_ROOT/scripts/virtual-display.sh"

config="$(mktemp -d)"
export XDG_RUNTIME_DIR="$config/runtime"
mkdir -m 700 "$XDG_RUNTIME_DIR"
trap 'kill "${vantrel_pid:-}" 2>/dev/null; stop_virtual_display; rm -rf "$config"' EXIT
start_virtual_display
start_compositor
xsetroot -solid '#3b4a5a'

XDG_CONFIG_HOME="$config" "$VANTREL_BUILD_DIR/src/app/vantrel" "$@" &
vantrel_pid=$!
for _ in $(seq 100); do
    [ -f "$config/Vantrel/Vantrel.conf" ] && break
    sleep 0.05
done
sleep 1
xdotool key ctrl+shift+p
sleep 0.3
xdotool key F5
sleep 0.5

screenshot="$VANTREL_BUILD_DIR/vantrel-demo.png"
import -window root -crop 1920x1080+0+0 +repage "$screenshot"
echo "Pressed Ctrl+Shift+P and F5 on the virtual display."
echo "Screenshot of the primary monitor: $screenshot"
