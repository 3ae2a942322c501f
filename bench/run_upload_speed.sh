#!/usr/bin/env bash
# Uploads 500 generated pages (about 4 MB) to a pyftpdlib server on
# 127.0.0.1, first with curl (one process, one connection, one upload per
# line of a -K file), then with quillery-cli upload; prints both times.
# Usage: bash bench/run_upload_speed.sh BUILD_DIR
set -eu
build="${1:?usage: run_upload_speed.sh BUILD_DIR}"
here="$(cd "$(dirname "$0")/.." && pwd)"
work="$(mktemp -d)"
trap 'kill $server 2>/dev/null || true; rm -rf "$work"' EXIT
mkdir -p "$work/pages" "$work/root/curl" "$work/root/qly"
for i in $(seq 1 500); do
    { echo "<html><head><title>Page $i</title></head><body>"
      for j in $(seq 1 80); do echo "<p>Line $j of page $i: the quick brown fox jumps over the lazy dog.</p>"; done
      echo "</body></html>"; } > "$work/pages/page$i.html"
done
du -sh "$work/pages"
/usr/bin/python3 "$here/tests/support/ftpserver.py" "$work/root" > "$work/port" 2>/dev/null &
server=$!
sleep 1
port=$(awk '{print $2}' "$work/port")
: > "$work/curl.cfg"
for f in "$work"/pages/*.html; do
    printf 'upload-file = "%s"\nurl = "ftp://127.0.0.1:%s/curl/%s"\n' "$f" "$port" "$(basename "$f")" >> "$work/curl.cfg"
done
t0=$(date +%s.%N)
curl -s -B -u tester:secret -K "$work/curl.cfg"
t1=$(date +%s.%N)
"$build/bin/quillery-cli" upload --host "127.0.0.1:$port" --user tester --password secret --dir qly ${PARALLEL:+--parallel $PARALLEL} "$work/pages/"* 2>/dev/null
t2=$(date +%s.%N)
echo "curl -K (one connection): $(echo "$t1 - $t0" | bc) s, $(ls "$work/root/curl" | wc -l) files"
echo "quillery-cli upload:      $(echo "$t2 - $t1" | bc) s, $(ls "$work/root/qly" | wc -l) files"
