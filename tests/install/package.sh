#!/usr/bin/env bash
# Builds the Debian package and checks it as a fresh machine would see it:
# its dependencies and file list, then installs it with dpkg into an empty
# root and starts the packaged program there with a page.
#   package.sh BUILD_DIR
set -euo pipefail
build="$(cd "$1" && pwd)"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
fail() { echo "FAIL: $*"; exit 1; }
(cd "$build" && cpack -G DEB -B "$work/out" > "$work/cpack.log") || { cat "$work/cpack.log"; fail "cpack"; }
deb="$(ls "$work"/out/quillery_*.deb)"
dpkg-deb -I "$deb" > "$work/info"
grep -q "^ Depends:.*libqt6widgets6" "$work/info" || { cat "$work/info"; fail "no Qt in the dependencies"; }
grep -q "^ Depends:.*hunspell-en-us" "$work/info" || fail "no dictionary in the dependencies"
grep -q "^ Depends:.*libqt6svg6" "$work/info" || fail "no SVG plug-in (the toolbar pictures) in the dependencies"
dpkg-deb -c "$deb" | awk '{print $6}' > "$work/files"
for f in ./usr/bin/quillery ./usr/bin/quillery-cli ./usr/share/quillery/quillery.default.ini \
         ./usr/share/applications/org.quillery.Quillery.desktop ./usr/share/man/man1/quillery.1; do
  grep -qx "$f" "$work/files" || fail "$f is not in the package"
done
# Installed by dpkg into an empty root of its own, as on a new machine.
root="$work/root"
mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates" "$root/var/lib/dpkg/triggers"
touch "$root/var/lib/dpkg/status"
force="--force-depends"
[ "$(id -u)" -ne 0 ] && force="$force,not-root"
dpkg --root="$root" --log=/dev/null $force -i "$deb" > "$work/dpkg.log" 2>&1 || { cat "$work/dpkg.log"; fail "dpkg -i"; }
dpkg --root="$root" -s quillery | grep -q "^Status: install ok installed" || fail "dpkg does not list quillery as installed"
# Every dependency names a package Debian has, installed on this machine.
deps="$(dpkg-deb -f "$deb" Depends | tr ',' '\n' | sed -e 's/(.*)//' -e 's/|.*//' -e 's/ //g')"
for dep in $deps; do
  dpkg-query -W -f='${Status}' "$dep" 2>/dev/null | grep -q "install ok installed" || fail "dependency $dep is not installed here"
done
for exe in quillery quillery-cli; do
  if ldd "$root/usr/bin/$exe" | grep -e "not found" -e "$build"; then fail "$exe lacks a library"; fi
done
"$root/usr/bin/quillery-cli" --help | grep -q "^  find" || fail "the packaged quillery-cli does not run"
mkdir "$work/run"
bash "$(dirname "$0")/start_installed.sh" "$root/usr" "$work/run" || fail "the packaged quillery did not open a page"
echo "package: $(basename "$deb"), $(du -h "$deb" | cut -f1), installed by dpkg into an empty root, started and opened a page"
