#!/usr/bin/env bash
# Takes the pictures of the dialogs that the help pages show, under Xvfb with
# a window manager, at 100 % scale, into data/help/images/.
#   bash scripts/help-shots.sh [BUILD_DIR] [TOPIC...]
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="$(cd "${1:-$here/build}" && pwd)"
[ $# -gt 0 ] && shift
cmake --build "$build" --target help_shots quillery_data > /dev/null
bash "$here/scripts/on-xvfb.sh" "$build/tests/help_shots" "$here/data/help" "$@"
