#!/usr/bin/env bash
# Lists the misspelt words of a generated 1 MB page with the editor's spell
# session and with `hunspell -l -H` (the same en_US dictionary), times both
# and checks that the two lists are the same.
#   bash bench/run_spell_speed.sh [BUILD_DIR] [MB]
set -euo pipefail
build="${1:-build}"
mb="${2:-1}"
dir="${TMPDIR:-/tmp}/quillery-spell-bench"
mkdir -p "$dir"
page="$dir/page-${mb}mb.html"
[ -f "$page" ] || "$build/bench/bench_spell_speed" generate "$page" "$mb"
"$build/bench/bench_spell_speed" run "$page" "$dir/quillery.txt"
if ! command -v hunspell > /dev/null; then
    echo "hunspell (the program) is not installed: no comparison"
    exit 0
fi
t0=$(date +%s%N)
hunspell -i utf-8 -d en_US -l -H "$page" > "$dir/hunspell.txt"
t1=$(date +%s%N)
printf '%-26s %6s MB %8d ms, %d unknown words\n' "hunspell -l -H" "$mb" $(( (t1 - t0) / 1000000 )) "$(wc -l < "$dir/hunspell.txt")"
if cmp -s "$dir/quillery.txt" "$dir/hunspell.txt"; then echo "same list of words"; else echo "LISTS DIFFER"; fi
