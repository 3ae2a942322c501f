#!/usr/bin/env bash
# A large page opened by the whole program, side by side with geany:
# each is started under Xvfb and openbox with the page on its command line
# and a fresh configuration, and timed until its CPU has stayed idle for
# 1.5 s; the peak memory is the process's VmHWM at that point.
#   bash bench/run_colour_whole.sh build [runs] [FILE]
# geany (apt install geany) is only a yardstick and is skipped when absent.
set -euo pipefail
build="$(cd "${1:-build}" && pwd)"
runs="${2:-3}"
dir="${TMPDIR:-/tmp}"
file="${3:-$dir/quillery-colour-50mb.html}"
[ -f "$file" ] || "$build/bench/bench_colour_speed" generate "$file" 50

display=":$((90 + RANDOM % 400))"
Xvfb "$display" -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 &
xvfb=$!
sleep 1
DISPLAY="$display" openbox >/dev/null 2>&1 &
wm=$!
trap 'kill "$wm" "$xvfb" 2>/dev/null || true' EXIT
sleep 1
export DISPLAY="$display"
unset QT_QPA_PLATFORM

ticks() { awk '{print $14 + $15}' "/proc/$1/stat"; }

# Prints the seconds until the process has used no CPU for 1.5 s, and its peak.
measure() {
    local name="$1"; shift
    local start now pid last idle=0 t
    start=$(date +%s.%N)
    "$@" >/dev/null 2>&1 &
    pid=$!
    last=$(ticks "$pid")
    local idleSince=$start
    while kill -0 "$pid" 2>/dev/null; do
        sleep 0.1
        now=$(date +%s.%N)
        t=$(ticks "$pid" 2>/dev/null || echo "$last")
        if [ "$t" != "$last" ]; then
            last=$t
            idleSince=$now
        elif awk -v a="$now" -v b="$idleSince" 'BEGIN{exit !(a - b >= 1.5)}'; then
            break
        fi
    done
    local peak
    peak=$(awk '/VmHWM/ {print int($2 / 1024)}' "/proc/$pid/status")
    awk -v n="$name" -v s="$start" -v e="$idleSince" -v p="$peak" \
        'BEGIN{printf "%s: coloured and idle after %.2f s, peak %d MiB\n", n, e - s, p}'
    kill "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
}

for ((r = 1; r <= runs; ++r)); do
    # A configuration of its own with colouring on, and a temporary folder
    # of its own so that no other running copy is handed the page.
    conf=$(mktemp -d)
    printf '[Editing]\r\nColor HTML=Yes\r\n' > "$conf/quillery.ini"
    TMPDIR="$conf" measure quillery "$build/bin/quillery" "/ini:$conf/quillery.ini" "$file"
    rm -rf "$conf"
    if command -v geany >/dev/null; then
        conf=$(mktemp -d)
        measure geany geany -i -p -s -c "$conf" "$file"
        rm -rf "$conf"
    fi
done
