#!/usr/bin/env bash
# Generates a 20 MB page and opens it with word wrap off and on, coloured
# as documents are; prints one line a mode.
set -euo pipefail
build="${1:-build}"
file="${TMPDIR:-/tmp}/quillery-bench-20mb.html"
[ -f "$file" ] || "$build/bench/bench_open_large" generate "$file" 20
export QT_QPA_PLATFORM=offscreen
"$build/bench/bench_open_wrapped" off "$file" colour
"$build/bench/bench_open_wrapped" on "$file" colour
"$build/bench/bench_open_wrapped" later "$file" colour
