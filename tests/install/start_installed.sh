#!/usr/bin/env bash
# Starts an installed quillery under Xvfb with a page and checks through the
# automation interface that it opened the page and works from the user's
# data folder.
#   start_installed.sh PREFIX WORK    (WORK: an empty scratch directory)
set -uo pipefail
prefix="$1"; work="$2"
export XDG_CONFIG_HOME="$work/config" XDG_DATA_HOME="$work/data" TMPDIR="$work/tmp"
export QTWEBENGINE_DISABLE_SANDBOX=1
mkdir -p "$TMPDIR"
printf '<HTML><BODY>installed</BODY></HTML>' > "$work/page.html"
cd "$work"
exec xvfb-run -a -s "-screen 0 1280x1024x24" dbus-run-session -- bash -s "$prefix" "$work" <<'INNER'
set -u
prefix="$1"; work="$2"
app() { "$prefix/bin/quillery-cli" app "$@" 2>/dev/null; }
"$prefix/bin/quillery" "$work/page.html" &
pid=$!
for _ in $(seq 1 300); do
  [ "$(app TEPIGetNumDocuments)" = "1" ] && break
  sleep 0.1
done
status=0
[ -n "${INSTALL_VERBOSE:-}" ] && echo "AppPath $(app AppPath); file $(app TEPICurrentDocFilePath)"
[ "$(app AppPath)" = "$work/data/quillery" ] || { echo "FAIL: works from $(app AppPath)"; status=1; }
[ "$(app TEPICurrentDocFilePath)" = "$work/page.html" ] || { echo "FAIL: the page did not open"; status=1; }
[ "$(app TEPIGetText)" = "<HTML><BODY>installed</BODY></HTML>" ] || { echo "FAIL: the page's text"; status=1; }
kill -TERM "$pid"
for _ in $(seq 1 200); do kill -0 "$pid" 2>/dev/null || break; sleep 0.1; done
exit $status
INNER
