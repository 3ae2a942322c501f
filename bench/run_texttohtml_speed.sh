#!/usr/bin/env bash
# Generates a 10 MB text file and converts it to HTML with the editor's
# ConvertTextFile (paragraphs, lists, headings, breaks all on) and with
# txt2html's default rules, each file to file.
set -euo pipefail
build="${1:-build}"
dir="${TMPDIR:-/tmp}/quillery-texttohtml-bench"
mkdir -p "$dir"
file="$dir/text-10mb.txt"
[ -f "$file" ] || "$build/bench/bench_texttohtml_speed" generate "$file" 10
mb=$(awk -v b="$(stat -c %s "$file")" 'BEGIN { printf "%.1f", b / 1048576 }')

"$build/bench/bench_texttohtml_speed" run "$file" "$dir/quillery.html"

if ! command -v txt2html >/dev/null; then
    echo "txt2html not installed: no comparison"
    exit 0
fi
t0=$(date +%s%N)
txt2html --infile "$file" --outfile "$dir/txt2html.html"
t1=$(date +%s%N)
awk -v l="txt2html (defaults)" -v mb="$mb" -v ns=$((t1 - t0)) \
    'BEGIN { printf "%-26s %7.1f MB %8.0f ms %8.1f MB/s\n", l, mb, ns / 1e6, mb / (ns / 1e9) }'
