#!/usr/bin/env bash
# Joins eight 320x240 GIF frames into one animated GIF, with Quillery's block
# writer and with gifsicle, on the same files; prints the times.
#   bash bench/run_gif_join.sh BUILD_DIR
set -euo pipefail
build="${1:?usage: run_gif_join.sh BUILD_DIR}"
bin="$build/bench/bench_gif_join"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=offscreen
"$bin" make "$work" 2>/dev/null
frames=("$work"/f{1..8}.gif)
echo "frames: $(du -cb "${frames[@]}" | tail -1 | cut -f1) bytes"
"$bin" time "$work/ours.gif" "${frames[@]}"

runs=30
ms() { echo "scale=2; ($2 - $1) / 1000000 / $runs" | bc; }
t0=$(date +%s%N)
for _ in $(seq $runs); do "$bin" join "$work/ours.gif" "${frames[@]}"; done
t1=$(date +%s%N)
echo "quillery, whole process: $(ms "$t0" "$t1") ms a run"
if command -v gifsicle >/dev/null; then
  t0=$(date +%s%N)
  for _ in $(seq $runs); do gifsicle --loopcount=forever --delay=10 "${frames[@]}" -o "$work/gifsicle.gif" 2>/dev/null; done
  t1=$(date +%s%N)
  echo "gifsicle, whole process: $(ms "$t0" "$t1") ms a run"
  gifsicle --info "$work/ours.gif" 2>&1 | grep -E "images|loop|unknown" || true
fi
ls -l "$work"/ours.gif "$work"/gifsicle.gif 2>/dev/null | awk '{print $5, $9}'
