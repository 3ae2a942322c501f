#!/usr/bin/env bash
# Installs into a temporary prefix and starts the installed program under
# Xvfb with a page: it must run from the installed tree alone, work from a
# copy of its data in the user's data folder, and write nothing into the
# installed tree.
#   install.sh BUILD_DIR
set -euo pipefail
build="$(cd "$1" && pwd)"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
prefix="$work/prefix"
fail() { echo "FAIL: $*"; exit 1; }

cmake --install "$build" --prefix "$prefix" > /dev/null
for f in bin/quillery bin/quillery-cli share/quillery/quillery.default.ini share/quillery/character.inf \
         share/quillery/Templates/Blank.tpl share/quillery/help/index.html \
         share/applications/org.quillery.Quillery.desktop share/metainfo/org.quillery.Quillery.metainfo.xml \
         share/icons/hicolor/scalable/apps/org.quillery.Quillery.svg \
         share/icons/hicolor/48x48/apps/org.quillery.Quillery.png \
         share/man/man1/quillery.1 share/man/man1/quillery-cli.1; do
  [ -e "$prefix/$f" ] || fail "$f is not installed"
done
[ -d "$prefix/share/quillery/Custom Templates" ] || fail "the Custom Templates folder is not installed"
for exe in quillery quillery-cli; do
  if ldd "$prefix/bin/$exe" | grep -e "not found" -e "$build"; then fail "$exe needs something it cannot find"; fi
done
if command -v desktop-file-validate > /dev/null; then
  desktop-file-validate "$prefix/share/applications/org.quillery.Quillery.desktop" || fail "desktop entry"
fi
if command -v appstreamcli > /dev/null; then
  appstreamcli validate --no-net "$prefix/share/metainfo/org.quillery.Quillery.metainfo.xml" > /dev/null \
    || fail "metainfo"
fi
man -l "$prefix/share/man/man1/quillery-cli.1" 2>/dev/null | grep -q "find \[-f TERMS-FILE\]" \
  || { command -v man > /dev/null && fail "the quillery-cli manual lacks its commands"; } || true

find "$prefix" -printf '%p %s\n' | sort > "$work/before"
export XDG_CONFIG_HOME="$work/config" XDG_DATA_HOME="$work/data" TMPDIR="$work/tmp"
export QTWEBENGINE_DISABLE_SANDBOX=1
mkdir -p "$TMPDIR"
printf '<HTML><BODY>installed</BODY></HTML>' > "$work/page.html"
cd "$work"
xvfb-run -a -s "-screen 0 1280x1024x24" dbus-run-session -- bash -s "$prefix" "$work" <<'INNER'
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
[ -f "$work/data/quillery/Templates/Blank.tpl" ] || fail "the data was not copied to the user's data folder"
[ -f "$work/config/quillery/quillery.ini" ] || fail "no configuration in the user's folder"
find "$prefix" -printf '%p %s\n' | sort > "$work/after"
diff "$work/before" "$work/after" || fail "the installed tree was written to"
echo "install: the installed program ran from its prefix and the user's folders"
