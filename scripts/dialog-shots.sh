#!/usr/bin/env bash
# Takes pictures of the generator dialogs of forms, scripts, channels, text
# effects and objects under Xvfb with a window manager, at the given scale,
# and lists the text they cut off.
#   bash scripts/dialog-shots.sh OUT_DIR [SCALE] [BUILD_DIR] [NAME...]
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
out="${1:?usage: dialog-shots.sh OUT_DIR [SCALE] [BUILD_DIR] [NAME...]}"
export QT_SCALE_FACTOR="${2:-1}"
build="$(cd "${3:-$here/build}" && pwd)"
[ $# -gt 3 ] && shift 3 || shift $#
cmake --build "$build" --target dialog_shots quillery_data > /dev/null
export QT_QPA_PLATFORM=xcb
bash "$here/scripts/on-xvfb.sh" "$build/tests/dialog_shots" "$out" "$@"
