#!/usr/bin/env bash
# Sets up a Debian 12 machine for Quillery, builds it, and then either starts
# the editor (run) or runs the whole test suite headless (test).
#
#   bash scripts/quickstart.sh run [ARGS...]   build and start the editor
#   bash scripts/quickstart.sh test            build and run every test
#   bash scripts/quickstart.sh build           only install and build
set -euo pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${QUILLERY_BUILD_DIR:-$here/build}"
what="${1:-run}"
[ $# -gt 0 ] && shift

packages=(
  cmake ninja-build g++ pkg-config
  qt6-base-dev qt6-svg-dev qt6-webengine-dev libgl-dev
  libcurl4-openssl-dev libhunspell-dev hunspell-en-us hunspell libgif-dev qtkeychain-qt6-dev
  qt6-image-formats-plugins
  xvfb xauth x11-utils openbox xdotool wmctrl python3-pyftpdlib python3-openssl openssl fonts-dejavu-core ccache
  dbus-daemon libglib2.0-bin desktop-file-utils appstream dpkg-dev fakeroot
  gifsicle imagemagick
)

install_missing() {
  local missing=()
  for p in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
      missing+=("$p")
    fi
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}"
  local sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

build_all() {
  cmake -S "$here" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
  cmake --build "$build" -j "$(nproc)"
}

install_missing
build_all

case "$what" in
  run)
    exec "$build/bin/quillery" "$@"
    ;;
  test)
    cd "$build"
    exec ctest --output-on-failure -j "$(nproc)" --timeout 300
    ;;
  build)
    ;;
  *)
    echo "usage: $0 run|test|build" >&2
    exit 2
    ;;
esac
