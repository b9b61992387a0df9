#!/usr/bin/env bash
# Configures and builds Veltrix into build/ (Release with debug info).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_COMPILE_WARNING_AS_ERROR=ON "$@" >/dev/null
cmake --build build
