# Sourced by scripts that need a private X server: Xvfb with two RandR monitors side by side,
# LEFT (the primary) and RIGHT, 1920x1080 each. Sets DISPLAY; stop_virtual_display ends it.

start_virtual_display() {
    local fifo
    fifo="$(mktemp -u)"
    mkfifo "$fifo"
    Xvfb -displayfd 3 -screen 0 3840x1080x24 +extension RANDR -noreset -nolisten tcp \
        3>"$fifo" >/dev/null 2>&1 &
    VIRTUAL_DISPLAY_PID=$!
    local number
    read -r number <"$fifo"
    rm -f "$fifo"
    export DISPLAY=":$number"
    unset WAYLAND_DISPLAY
    xrandr --setmonitor '*LEFT' 1920/508x1080/286+0+0 screen >/dev/null
    xrandr --setmonitor RIGHT 1920/508x1080/286+1920+0 none >/dev/null
    setxkbmap us
}

start_compositor() {
    xcompmgr >/dev/null 2>&1 &
    COMPOSITOR_PID=$!
    sleep 0.3
}

stop_virtual_display() {
    [ -n "${COMPOSITOR_PID:-}" ] && kill "$COMPOSITOR_PID" 2>/dev/null || true
    [ -n "${VIRTUAL_DISPLAY_PID:-}" ] && kill "$VIRTUAL_DISPLAY_PID" 2>/dev/null || true
    wait 2>/dev/null || true
}
