#!/usr/bin/env bash
# Installs the Debian packages Veltrix needs to build, run and test, and only those that are
# missing (a second run takes a fraction of a second).
set -euo pipefail
packages=(
  cmake ninja-build g++ pkg-config
  qt6-base-dev qt6-serialport-dev libxkbcommon-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  fontconfig fonts-dejavu-core fonts-wqy-microhei
  # Faces that used to take over the fixed-pitch texts: the tests run with them installed.
  fonts-noto-mono fonts-urw-base35 fonts-droid-fallback
  xvfb xauth socat srecord
  # TLS to the host: certificates for the tests, and a real TLS terminator in front of the demo host.
  openssl stunnel4
  # Packaging: manual pages, the .deb and its checks.
  help2man file dpkg-dev lintian desktop-file-utils appstream
  clang-14 libclang-rt-14-dev clang-format-14
)
missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done
if ((${#missing[@]})); then
  echo "Installing: ${missing[*]}"
  sudo=""
  if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
  export DEBIAN_FRONTEND=noninteractive
  $sudo apt-get update -qq
  $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
