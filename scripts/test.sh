#!/usr/bin/env bash
# Builds everything and runs every test (GoogleTest for the core, Qt Test offscreen for widgets).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/build.sh
export QT_QPA_PLATFORM=offscreen
ctest --test-dir build --output-on-failure -j2
