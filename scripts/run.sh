#!/usr/bin/env bash
# Builds Veltrix and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/build.sh
exec build/veltrix "$@"
