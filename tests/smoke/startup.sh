#!/usr/bin/env bash
# Starts the real program under Xvfb with /ini: and a file, checks that the
# main window appears with its caption, then sends SIGTERM and checks that
# the ordinary exit wrote the window state and the open file's session entry.
# QUILLERY_SMOKE_SHOT=FILE.png keeps a screenshot.
set -euo pipefail
exe="$1"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
export XDG_CONFIG_HOME="$work/config" XDG_DATA_HOME="$work/data" TMPDIR="$work/tmp"
export QTWEBENGINE_DISABLE_SANDBOX=1 QUILLERY_SMOKE_SHOT="${QUILLERY_SMOKE_SHOT:-}"
mkdir -p "$TMPDIR"
ini="$work/settings.ini"
page="$work/page one.html"
printf '[General]\r\nOpen New Document=No\r\n' > "$ini"
printf '<HTML>\r\n<BODY>Smoke \xe9t\xe9</BODY>\r\n</HTML>\r\n' > "$page"
cp "$page" "$work/original.html"

xvfb-run -a -s "-screen 0 1280x1024x24" bash -s "$exe" "$ini" "$page" <<'INNER'
set -u
exe="$1"; ini="$2"; page="$3"
"$exe" "/ini:$ini" "$page" &
pid=$!
found=""
for _ in $(seq 1 120); do
  if xwininfo -root -tree 2>/dev/null | grep -q '"Quillery 4.01"'; then found=1; break; fi
  sleep 0.25
done
if [ -z "$found" ]; then
  echo "FAIL: no window captioned \"Quillery 4.01\""
  kill -9 "$pid" 2>/dev/null
  exit 1
fi
sleep 1
# A second copy ends at once, silently, and drops its file.
second="$(dirname "$page")/second.html"
printf 'x' > "$second"
timeout 20 "$exe" "$second"
rc=$?
if [ "$rc" -ne 0 ]; then
  echo "FAIL: the second copy did not end by itself (status $rc)"
  kill -9 "$pid"
  exit 1
fi
if [ -n "$QUILLERY_SMOKE_SHOT" ] && command -v import >/dev/null; then
  import -window root "$QUILLERY_SMOKE_SHOT" || true
fi
kill -TERM "$pid"
for _ in $(seq 1 80); do kill -0 "$pid" 2>/dev/null || break; sleep 0.25; done
if kill -0 "$pid" 2>/dev/null; then
  echo "FAIL: still running after SIGTERM"
  kill -9 "$pid"
  exit 1
fi
wait "$pid"
INNER

fail=0
grep -q '^Window State=' "$ini" || { echo "FAIL: no [Display] Window State in $ini"; fail=1; }
grep -q "^1=$page," "$ini" || { echo "FAIL: the open file is not in [Last Session]"; fail=1; }
grep -q "second.html" "$ini" && { echo "FAIL: the second copy's file was opened"; fail=1; }
cmp -s "$page" "$work/original.html" || { echo "FAIL: the page was changed"; fail=1; }
if [ "$fail" -ne 0 ]; then
  echo "--- $ini"; cat "$ini"
  exit 1
fi
echo "smoke: window shown, settings written at SIGTERM"
