#!/usr/bin/env bash
# Colouring speed: a 50 MB page opened and coloured to its end, then keys
# typed at its end, and keys typed in the middle of a 5 MB page of one line.
# Runs offscreen: bash bench/run_colour_speed.sh build
set -euo pipefail
build="${1:-build}"
dir="${TMPDIR:-/tmp}"
b="$build/bench/bench_colour_speed"
[ -f "$dir/quillery-colour-50mb.html" ] || "$b" generate "$dir/quillery-colour-50mb.html" 50
[ -f "$dir/quillery-colour-1line.html" ] || "$b" generate "$dir/quillery-colour-1line.html" 5 oneline
export QT_QPA_PLATFORM=offscreen
"$b" open "$dir/quillery-colour-50mb.html"
"$b" type "$dir/quillery-colour-50mb.html" end 200
"$b" type "$dir/quillery-colour-1line.html" middle 50
# The same page with colouring off: the line is one run of one style.
echo "colouring off:"
QLY_BENCH_PLAIN=1 "$b" type "$dir/quillery-colour-1line.html" middle 50
