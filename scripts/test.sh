#!/usr/bin/env bash
# Every check CI makes: the format check, the build with all tests (GoogleTest for the core, Qt
# Test offscreen for widgets), then every test again under ASan and UBSan and each fuzz target for a
# minute (scripts/sanitize-and-fuzz.sh), and last the Debian package: built, checked with lintian,
# installed and run (scripts/check-package.sh).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/check-format.sh
scripts/build.sh
QT_QPA_PLATFORM=offscreen ctest --test-dir build --output-on-failure -j2
scripts/sanitize-and-fuzz.sh
scripts/check-package.sh
