#!/usr/bin/env bash
# The automation service of the real program on a session bus of the test's
# own (dbus-daemon), under Xvfb with a window manager. Every method is called
# with `quillery-cli app`, as a script would call it; dialogs the calls bring
# up are answered with the keyboard.
#   automation.sh QUILLERY QUILLERY-CLI
set -euo pipefail
exe="$1"
cli="$2"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
export XDG_CONFIG_HOME="$work/config" XDG_DATA_HOME="$work/data" TMPDIR="$work/tmp"
export QTWEBENGINE_DISABLE_SANDBOX=1
mkdir -p "$TMPDIR"
ini="$work/settings.ini"
printf '[General]\r\nOpen New Document=No\r\n' > "$ini"
for n in 1 2 3; do printf '<HTML><BODY>page %s</BODY></HTML>' "$n" > "$work/page$n.html"; done

xvfb-run -a -s "-screen 0 1280x1024x24" dbus-run-session -- bash -s "$exe" "$cli" "$ini" "$work" <<'INNER'
set -u
exe="$1"; cli="$2"; ini="$3"; work="$4"
failures=0
check() {   # what, expected, actual
  [ -n "${AUTOMATION_VERBOSE:-}" ] && echo "check $1: [$3]"
  if [ "$2" != "$3" ]; then
    echo "FAIL: $1: expected [$2], got [$3]"
    failures=$((failures + 1))
  fi
}
app() { "$cli" --ini "$ini" app "$@"; }
# Runs a call that brings up a dialog: waits for a new window whose title
# matches $1, presses the keys $2, and prints the call's answer.
answered() {
  local title="$1" keys="$2"; shift 2
  local before
  before="$(wmctrl -l 2>/dev/null | awk '{print $1}')"
  app "$@" > "$work/answer" 2>/dev/null &
  local call=$! seen=""
  for _ in $(seq 1 150); do
    seen="$(wmctrl -l 2>/dev/null | grep -v -F -f <(echo "$before") | grep -E "$title" || true)"
    [ -n "$seen" ] && break
    sleep 0.1
  done
  if [ -z "$seen" ]; then
    # The answer then tells the check what went wrong.
    kill "$call" 2>/dev/null
    echo "no window \"$title\" came up"
    return
  fi
  sleep 0.5
  xdotool key $keys
  wait "$call"
  cat "$work/answer"
}

openbox >/dev/null 2>&1 &
wm=$!
sleep 1
"$exe" "/ini:$ini" "$work/page1.html" &
pid=$!
for _ in $(seq 1 300); do
  [ "$(app TEPIGetNumDocuments 2>/dev/null)" = "1" ] && break
  sleep 0.1
done

check "AppPath" "$(dirname "$exe")" "$(app AppPath)"
check "current file" "$work/page1.html" "$(app TEPICurrentDocFilePath)"
check "open page 2" "true" "$(app TEPIOpenDoc "$work/page2.html")"
check "open page 3" "true" "$(app TEPIOpenDoc "$work/page3.html")"
check "the opened file is active" "$work/page3.html" "$(app TEPICurrentDocFilePath)"
check "three documents give 1" "1" "$(app TEPIGetNumDocuments)"
check "a current document" "1" "$(app TEPIGetCurrentDocument)"
check "an open file is made active again" "true" "$(app TEPIOpenDoc "$work/page1.html")"
check "page 1 active" "$work/page1.html" "$(app TEPICurrentDocFilePath)"
check "a missing file shows the error box" "false" \
  "$(answered "Quillery 4.01 - Error$" Return TEPIOpenDoc "$work/missing.html")"
check "and activates nothing" "$work/page1.html" "$(app TEPICurrentDocFilePath)"
check "an empty name shows the Open dialog" "true" "$(answered "Open File$" Escape TEPIOpenDoc "")"
check "which opened nothing when cancelled" "$work/page1.html" "$(app TEPICurrentDocFilePath)"

app TEPISetText '<HTML><HEAD><TITLE>t</TITLE></HEAD><BODY BGCOLOR="white"><P>x</P></BODY></HTML>'
app TEPIAddHead '<META NAME="a">'
app TEPIAddEndHead '<STYLE></STYLE>'
app TEPIAddBody '<H1>top</H1>'
app TEPIAddEndBody '<HR>'
check "the four Add methods" \
  '<HTML><HEAD><META NAME="a"><TITLE>t</TITLE><STYLE></STYLE></HEAD><BODY BGCOLOR="white"><H1>top</H1><P>x</P><HR></BODY></HTML>' \
  "$(app TEPIGetText)"
app TEPIReplaceText '<!--caret-->'
check "ReplaceText inserts at the caret" 1 "$(app TEPIGetText | grep -c '<HR><!--caret--></BODY>')"

check "SaveAllDocs saves without asking" "true" "$(app TEPISaveAllDocs)"
check "page 1 on disk" '<HTML><HEAD><META NAME="a"><TITLE>t</TITLE><STYLE></STYLE></HEAD><BODY BGCOLOR="white"><H1>top</H1><P>x</P><HR><!--caret--></BODY></HTML>' \
  "$(cat "$work/page1.html")"
check "NewDoc" "true" "$(app TEPINewDoc)"
check "an untitled document has no file" "" "$(app TEPICurrentDocFilePath)"
app TEPISetText 'untitled text'
check "an untitled document goes to Save As" "false" "$(answered "Save File As$" Escape TEPISaveAllDocs)"
check "Close All asks about the untitled document" "true" "$(answered "Quillery 4.01$" alt+n CloseAllDocs)"
check "no document after Close All" "0" "$(app TEPIGetNumDocuments)"
check "no text without a document" "" "$(app TEPIGetText)"
app TEPIAddBody 'nothing' && check "Add without a document" "0" "$(app TEPIGetCurrentDocument)"
check "an unknown method is an error" "1" "$(app NoSuchMethod > /dev/null 2>&1; echo $?)"
# The documentation strings travel with the introspection data.
gdbus introspect --session --dest org.quillery.Quillery --object-path /QuilleryApp > "$work/introspect" 2>&1
grep -q "Returns the directory where the Quince executable lives" "$work/introspect" \
  || { echo "FAIL: introspection lacks the documentation"; failures=$((failures + 1)); }

kill -TERM "$pid"
for _ in $(seq 1 200); do kill -0 "$pid" 2>/dev/null || break; sleep 0.1; done
kill "$wm" 2>/dev/null
[ "$failures" -eq 0 ] || exit 1
exit 0
INNER
echo "automation: every method answered over the session bus"
