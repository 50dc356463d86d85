#!/usr/bin/env bash
# Measures Vantrel on a Wayland compositor with the layer shell: headless sway (pixman renderer,
# no XWayland), keys from a FIFO device folder (VANTREL_INPUT_DIR), once with the default settings
# and once with "showAllKeys". Per setting: CPU seconds and wake-ups while idle, CPU seconds and
# wake-ups of Vantrel and CPU seconds of sway while typing 15 keys a second, resident memory after
# typing. Prints a Markdown table, one column per setting. Uses the already built
# build/src/app/vantrel.
# Typing: plain letters, every fourth key Ctrl+K, each released half a key's time later.
# Usage: bench/sway-benchmark.sh [seconds of typing, default 30]
# VANTREL_BENCH_IDLE_SECONDS sets the idle phase (default 10 s).
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../scripts/common.sh"

seconds="${1:-30}"
idle_seconds="${VANTREL_BENCH_IDLE_SECONDS:-10}"
vantrel="$VANTREL_BUILD_DIR/src/app/vantrel"
[ -x "$vantrel" ] || { echo "build Vantrel first: $vantrel is missing" >&2; exit 1; }
for program in sway swaymsg setpriv wtype; do
    command -v "$program" >/dev/null || { echo "$program is not installed" >&2; exit 1; }
done

work="$(mktemp -d)"
# Apart from $work, which sway's user cannot enter.
runtime="$(mktemp -d)"
sway_pid="" keyboard_pid="" vantrel_pid=""
stop() { # stop <pid>: ends one process this script started
    [ -n "$1" ] || return 0
    kill "$1" 2>/dev/null || return 0
    for _ in $(seq 50); do kill -0 "$1" 2>/dev/null || break; sleep 0.1; done
    kill -9 "$1" 2>/dev/null || true
    wait "$1" 2>/dev/null || true
}
cleanup() {
    exec 3>&- 4>&- 2>/dev/null || true
    stop "$vantrel_pid"
    stop "$keyboard_pid"
    stop "$sway_pid"
    rm -rf "$work" "$runtime"
}
trap cleanup EXIT

# Headless sway refuses to run as root: "nobody" runs it, and owns its private runtime folder.
printf 'xwayland disable\noutput HEADLESS-1 resolution 1920x1080 position 0 0\n' >"$runtime/config"
as_user=()
if [ "$(id -u)" = 0 ]; then
    chown nobody: "$runtime"
    as_user=(setpriv --reuid "$(id -u nobody)" --regid "$(id -g nobody)" --clear-groups)
fi
env -i PATH="$PATH" HOME="$runtime" XDG_RUNTIME_DIR="$runtime" WLR_BACKENDS=headless \
    WLR_RENDERER=pixman WLR_LIBINPUT_NO_DEVICES=1 \
    "${as_user[@]}" sway -c "$runtime/config" >"$work/sway.log" 2>&1 &
sway_pid=$!

wait_for() { # wait_for <what> <command...>: up to 15 s
    local what="$1"; shift
    for _ in $(seq 150); do
        "$@" && return 0
        kill -0 "$sway_pid" 2>/dev/null || break
        sleep 0.1
    done
    echo "$what" >&2; tail -20 "$work/sway.log" >&2; exit 1
}
sockets() {
    local w s
    w=$(ls "$runtime" | grep -E '^wayland-[0-9]+$' | head -1) || return 1
    s=$(ls "$runtime" | grep -E '^sway-ipc\..*\.sock$' | head -1) || return 1
    export WAYLAND_DISPLAY="$runtime/$w" SWAYSOCK="$runtime/$s" XDG_RUNTIME_DIR="$runtime"
}
wait_for "headless sway did not open its sockets" sockets
unset DISPLAY QT_QPA_PLATFORM DBUS_SESSION_BUS_ADDRESS
wait_for "sway does not answer" swaymsg -t get_version >/dev/null

# A virtual keyboard gives the seat a keymap; sway puts its configured one on it on reload.
wtype -s 2000000 &
keyboard_pid=$!
keyboard() { swaymsg -r -t get_inputs | tr -d ' \n' | grep -q '"type":"keyboard"'; }
wait_for "the virtual keyboard did not appear in sway" keyboard
swaymsg reload >/dev/null
keymap() { swaymsg -r -t get_inputs | tr -d ' \n' | grep -q '"xkb_layout_names":\["'; }
wait_for "sway did not give the virtual keyboard its keymap" keymap
# No tray host here: the settings window opens after a while; it goes out of sight.
swaymsg 'for_window [title=".*"] move scratchpad' >/dev/null

# One 24-byte input_event as printf escapes: zero time, type, code, value.
event() {
    printf '\\x00%.0s' {1..16}
    printf '\\x%02x\\x%02x\\x%02x\\x%02x\\x%02x\\x00\\x00\\x00' \
        $(($1 & 255)) $(($1 >> 8)) $(($2 & 255)) $(($2 >> 8)) "$3"
}
syn="$(event 0 0 0)"
key() { echo "$(event 1 "$1" "$2")$syn"; } # key <code> <1 press, 0 release>
# Letters (a s d f j k l e r t u i o n) and, every fourth key, Ctrl (29) + K (37); the default
# settings show only the Ctrl+K caps.
codes=(30 31 32 33 36 37 38 18 19 20 22 23 24 49)
presses=() releases=()
for code in "${codes[@]}"; do presses+=("$(key "$code" 1)"); releases+=("$(key "$code" 0)"); done
ctrl_k_press="$(key 29 1)$(key 37 1)"
ctrl_k_release="$(key 37 0)$(key 29 0)"

mkfifo "$work/pause"
exec 4<>"$work/pause"
now_us() { echo "${EPOCHREALTIME/./}"; }
until_us() { # sleeps until the given time in microseconds, without a process
    local left=$(($1 - $(now_us)))
    ((left > 0)) || return 0
    read -r -t "$((left / 1000000)).$(printf '%06d' $((left % 1000000)))" -u 4 || true
}

# sample <pid> <file>: one line per thread: id, nanoseconds on a CPU, context switches.
sample() {
    local task run switches key value _
    : >"$2"
    for task in /proc/"$1"/task/*; do
        read -r run _ 2>/dev/null <"$task/schedstat" || continue
        switches=0
        while read -r key value _; do
            case "$key" in voluntary_ctxt_switches: | nonvoluntary_ctxt_switches:)
                switches=$((switches + value)) ;;
            esac
        done 2>/dev/null <"$task/status" || true
        echo "${task##*/} $run $switches" >>"$2"
    done
}
# difference <before> <after>: "CPU seconds wake-ups" of the threads in <after> (new ones whole).
difference() {
    awk 'NR == FNR { run[$1] = $2; sw[$1] = $3; next }
         { r += $2 - run[$1]; s += $3 - sw[$1] }
         END { printf "%.3f %d\n", r / 1e9, s }' "$1" "$2"
}

# measure <name> <settings line or empty>: writes "$work/<name>".
measure() {
    local config="$work/config-$1" devices="$work/devices-$1" output="$work/output-$1"
    mkdir -p "$config/Vantrel" "$devices"
    printf '[General]\n%s\n' "$2" >"$config/Vantrel/Vantrel.conf"
    mkfifo "$devices/keyboard"
    exec 3<>"$devices/keyboard"
    local start listening
    start=$(now_us)
    VANTREL_INPUT_DIR="$devices" XDG_CONFIG_HOME="$config" "$vantrel" >"$output" 2>&1 &
    vantrel_pid=$!
    until grep -q "is showing pressed keys" "$output" 2>/dev/null; do
        kill -0 "$vantrel_pid" 2>/dev/null || { cat "$output" >&2; exit 1; }
        sleep 0.002
    done
    listening=$(now_us)
    # Past the wait for a tray host (the settings window then opens) and start-up's own work.
    sleep "${VANTREL_BENCH_SETTLE_SECONDS:-8}"

    sample "$vantrel_pid" "$work/idle-a"
    sleep "$idle_seconds"
    sample "$vantrel_pid" "$work/idle-b"

    sample "$vantrel_pid" "$work/typing-a"
    sample "$sway_pid" "$work/sway-a"
    local interval=$((1000000 / 15)) begin next i=0 n=$((seconds * 15)) k
    begin=$(now_us)
    for ((i = 0; i < n; i++)); do
        next=$((begin + i * interval))
        until_us "$next"
        if ((i % 4 == 0)); then
            printf "$ctrl_k_press" >&3
            until_us $((next + interval / 2))
            printf "$ctrl_k_release" >&3
        else
            k=$((i % ${#codes[@]}))
            printf "${presses[k]}" >&3
            until_us $((next + interval / 2))
            printf "${releases[k]}" >&3
        fi
    done
    until_us $((begin + n * interval))
    sample "$vantrel_pid" "$work/typing-b"
    sample "$sway_pid" "$work/sway-b"
    local rss
    rss=$(awk '/^VmRSS:/ { printf "%.1f MB", $2 / 1024 }' "/proc/$vantrel_pid/status")

    local idle typing sway
    read -r -a idle <<<"$(difference "$work/idle-a" "$work/idle-b")"
    read -r -a typing <<<"$(difference "$work/typing-a" "$work/typing-b")"
    read -r -a sway <<<"$(difference "$work/sway-a" "$work/sway-b")"
    {
        printf 'start to listening\t%d ms\n' $(((listening - start) / 1000))
        printf 'idle for %d s\t%s s, %s wake-ups\n' "$idle_seconds" "${idle[0]}" "${idle[1]}"
        printf 'typing 15 keys/s for %d s\t%s s, %s wake-ups\n' "$seconds" "${typing[0]}" \
            "${typing[1]}"
        printf 'typing: sway CPU\t%s s\n' "${sway[0]}"
        printf 'resident memory after typing\t%s\n' "$rss"
    } >"$work/$1"
    exec 3>&-
    stop "$vantrel_pid"
    vantrel_pid=""
}
measure default ""
measure all "showAllKeys=true"

echo "| measure (headless sway, layer shell, $(nproc) cores) | default settings | showAllKeys |"
echo "|---|---|---|"
paste "$work/default" "$work/all" | awk -F'\t' '{ printf "| %s | %s | %s |\n", $1, $2, $4 }'
