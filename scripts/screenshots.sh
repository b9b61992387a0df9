#!/usr/bin/env bash
# Screenshots of every settings page and dialog shape as a user sees them: at 1024x768 and at
# 150 % under Xvfb, into build/screens/1x and build/screens/1.5x.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/build.sh
display=:$((90 + RANDOM % 100))
Xvfb "$display" -screen 0 1024x768x24 &>/dev/null &
xvfb=$!
trap 'kill $xvfb' EXIT
sleep 1
for scale in 1 1.5; do
  DISPLAY=$display QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=$scale build/page_screens_test -silent
done
echo "Screenshots in build/screens/"
