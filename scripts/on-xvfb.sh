#!/usr/bin/env bash
# Runs a program under Xvfb (1280x1024) with a window manager, as the
# picture tools need: on-xvfb.sh PROGRAM [ARG...]
set -euo pipefail
export QTWEBENGINE_DISABLE_SANDBOX=1
xvfb-run -a -s "-screen 0 1280x1024x24" bash -c '
  openbox > /dev/null 2>&1 & wm=$!
  sleep 1
  "$0" "$@"; status=$?
  kill $wm
  exit $status' "$@"
