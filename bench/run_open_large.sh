#!/usr/bin/env bash
# Generates a 50 MB page and opens it both ways; prints one line a way.
set -euo pipefail
build="${1:-build}"
file="${TMPDIR:-/tmp}/quillery-bench-50mb.html"
[ -f "$file" ] || "$build/bench/bench_open_large" generate "$file" 50
export QT_QPA_PLATFORM=offscreen
"$build/bench/bench_open_large" quillery "$file"
"$build/bench/bench_open_large" plain "$file"
