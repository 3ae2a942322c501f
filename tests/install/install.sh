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
bash "$(dirname "$0")/start_installed.sh" "$prefix" "$work" || fail "the installed program"
[ -f "$work/data/quillery/Templates/Blank.tpl" ] || fail "the data was not copied to the user's data folder"
[ -f "$work/config/quillery/quillery.ini" ] || fail "no configuration in the user's folder"
find "$prefix" -printf '%p %s\n' | sort > "$work/after"
diff "$work/before" "$work/after" || fail "the installed tree was written to"
echo "install: the installed program ran from its prefix and the user's folders"
