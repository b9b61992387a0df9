#!/usr/bin/env bash
# Builds the Debian package into build-package/ (a Release build without the tests), checks it
# with lintian and prints its path. CI installs it afterwards (scripts/check-package.sh).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake -S . -B build-package -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF \
  -DCMAKE_INSTALL_PREFIX=/usr -DCMAKE_COMPILE_WARNING_AS_ERROR=ON >/dev/null
cmake --build build-package
(cd build-package && cpack -G DEB >/dev/null)
deb=$(ls build-package/veltrix_*.deb)
# Errors fail the package; warnings are shown.
lintian --fail-on error "$deb"
echo "$deb"
