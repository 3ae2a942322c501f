#!/usr/bin/env bash
# The real program under Xvfb with a window manager (openbox), used as a
# person uses it:
#  1. started with /ini: and a file, the window comes up and the keyboard is
#     in the page: typed keys and Ctrl+S save it, byte for byte;
#  2. a second copy started with another file hands it to the first and ends;
#  3. SIGTERM takes the ordinary way out: settings and the session are written;
#  4. closed while a large page is still loading, the program ends within
#     seconds, and the next start shows its window again.
# QUILLERY_SMOKE_SHOT=FILE.png keeps a screenshot of the first window.
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
printf 'Typed<HTML>\r\n<BODY>Smoke \xe9t\xe9</BODY>\r\n</HTML>\r\n' > "$work/expected.html"
# A page of about 50 MB for the close during start-up.
python3 - "$work/large.html" <<'PY'
import sys
row = b'<TR><TD CLASS="c">cell \xc3\xa9t\xc3\xa9</TD><TD><A HREF="page.htm">link</A></TD></TR>\r\n'
with open(sys.argv[1], 'wb') as f:
    f.write(b'<HTML><BODY><TABLE>\r\n' + row * (50_000_000 // len(row)) + b'</TABLE></BODY></HTML>\r\n')
PY
printf '[General]\r\nOpen New Document=No\r\n' > "$work/large.ini"

xvfb-run -a -s "-screen 0 1280x1024x24" bash -s "$exe" "$ini" "$page" "$work" <<'INNER'
set -u
exe="$1"; ini="$2"; page="$3"; work="$4"
fail() { echo "FAIL: $*"; pkill -9 -f "$exe" 2>/dev/null; kill "$wm" 2>/dev/null; exit 1; }
wait_window() {   # title, tenths of a second
  for _ in $(seq 1 "$2"); do
    wmctrl -l 2>/dev/null | grep -q " $1\$" && return 0
    sleep 0.1
  done
  return 1
}
wait_gone() {     # pid, tenths of a second
  for _ in $(seq 1 "$2"); do kill -0 "$1" 2>/dev/null || return 0; sleep 0.1; done
  return 1
}
openbox >/dev/null 2>&1 &
wm=$!
sleep 1

# 1. Typing goes into the page opened from the command line, with no click.
"$exe" "/ini:$ini" "$page" &
pid=$!
wait_window "Quillery 4.01" 300 || fail "no window captioned \"Quillery 4.01\""
sleep 1.5
xdotool type --delay 60 "Typed"
sleep 0.5
xdotool key ctrl+s
sleep 1
cmp -s "$page" "$work/expected.html" || { od -c "$page" | head; fail "typing and Ctrl+S did not save the typed page"; }
if [ -n "$QUILLERY_SMOKE_SHOT" ] && command -v import >/dev/null; then
  import -window root "$QUILLERY_SMOKE_SHOT" || true
fi

# 2. A second copy hands its file over and ends by itself.
second="$work/second.html"
printf 'second' > "$second"
timeout 20 "$exe" "$second" || fail "the second copy did not end by itself"
sleep 1.5

# 3. SIGTERM closes the ordinary way.
kill -TERM "$pid"
wait_gone "$pid" 200 || fail "still running after SIGTERM"
wait "$pid"

# 4. A close while a large page loads ends the program; the next start works.
"$exe" "/ini:$work/large.ini" "$work/large.html" &
pid=$!
wait_window "Quillery 4.01" 300 || fail "no window for the large page"
wmctrl -c "Quillery 4.01"
wait_gone "$pid" 300 || fail "closed during start-up, the program did not end"
wait "$pid"
"$exe" "/ini:$work/large.ini" &
pid=$!
wait_window "Quillery 4.01" 300 || fail "the start after a close during start-up showed no window"
kill -TERM "$pid"
wait_gone "$pid" 200 || fail "the last start did not end at SIGTERM"
kill "$wm" 2>/dev/null
exit 0
INNER

fail=0
grep -q '^Window State=' "$ini" || { echo "FAIL: no [Display] Window State in $ini"; fail=1; }
grep -q "page one.html," "$ini" || { echo "FAIL: the open file is not in [Last Session]"; fail=1; }
grep -q "second.html," "$ini" || { echo "FAIL: the second copy's file was not opened in the first"; fail=1; }
cmp -s "$work/second.html" <(printf 'second') || { echo "FAIL: the handed-over page was changed"; fail=1; }
if [ "$fail" -ne 0 ]; then
  echo "--- $ini"; cat "$ini"
  exit 1
fi
echo "smoke: typed and saved, file handed over, SIGTERM and a close during start-up end the program"
