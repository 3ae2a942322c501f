#!/usr/bin/env bash
# Generates a 20 MB page, times the editor's LowerCaseTags and ReplaceAll on
# it, and the same replacement with sed and a tag-name lower-casing with perl.
# The editor's exact replacement is compared byte for byte with sed's.
set -euo pipefail
build="${1:-build}"
dir="${TMPDIR:-/tmp}/quillery-markup-bench"
mkdir -p "$dir"
file="$dir/page-20mb.html"
[ -f "$file" ] || "$build/bench/bench_markup_speed" generate "$file" 20
mb=$(awk -v b="$(stat -c %s "$file")" 'BEGIN { printf "%.1f", b / 1048576 }')

"$build/bench/bench_markup_speed" run "$file" the these "$dir/quillery.out"

timeit() {   # label, command...: prints wall time and MB/s of the input
    local label="$1"; shift
    local t0 t1
    t0=$(date +%s%N); "$@"; t1=$(date +%s%N)
    awk -v l="$label" -v mb="$mb" -v ns=$((t1 - t0)) \
        'BEGIN { printf "%-26s %7.1f MB %8.0f ms %8.1f MB/s\n", l, mb, ns / 1e6, mb / (ns / 1e9) }'
}
export LC_ALL=C
timeit "sed s/the/these/g" sh -c "sed 's/the/these/g' '$file' > '$dir/sed.out'"
timeit "perl lower-case tag names" \
    sh -c "perl -pe 's/(<\/?)([A-Za-z][A-Za-z0-9]*)/\$1\L\$2/g' '$file' > '$dir/perl.out'"
if cmp -s "$dir/sed.out" "$dir/quillery.out"; then
    echo "ReplaceAll exact and sed give identical output"
else
    echo "ReplaceAll exact and sed DIFFER" >&2
    exit 1
fi
