#!/usr/bin/env bash
# Builds the Debian package and checks it as a fresh machine would see it:
# its dependencies, its file list, and that the programs unpacked into an
# empty root find every library they need.
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
dpkg-deb -x "$deb" "$work/root"
for exe in quillery quillery-cli; do
  if ldd "$work/root/usr/bin/$exe" | grep -e "not found" -e "$build"; then fail "$exe lacks a library"; fi
done
"$work/root/usr/bin/quillery-cli" --help | grep -q "^  find" || fail "the packaged quillery-cli does not run"
echo "package: $(basename "$deb"), $(du -h "$deb" | cut -f1), dependencies and files as expected"
