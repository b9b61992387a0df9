#!/usr/bin/env bash
# Builds and checks the Debian package (scripts/package.sh), installs it on this machine with apt
# and runs what it installed: the command-line tool, and the program offscreen for a few seconds.
set -euo pipefail
cd "$(dirname "$0")/.."
deb=$(scripts/package.sh | tail -n 1)
sudo=""
if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
# --reinstall: a machine that has this version already gets the files just built.
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --reinstall "./$deb" >/dev/null
desktop-file-validate /usr/share/applications/org.veltrix.Veltrix.desktop
appstreamcli validate --no-net /usr/share/metainfo/org.veltrix.Veltrix.metainfo.xml >/dev/null
for page in veltrix veltrix-cli veltrix-demo-host veltrix-terminal-sim; do
  test -s "/usr/share/man/man1/$page.1.gz"
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
/usr/bin/veltrix-cli --version
/usr/bin/veltrix-cli new --product 1 --out "$work/site.QVL"
test "$(stat -c %s "$work/site.QVL")" -eq 580984
/usr/bin/veltrix --version
# The installed program starts, opens the file and keeps running until it is stopped.
status=0
XDG_RUNTIME_DIR="$work" QT_QPA_PLATFORM=offscreen timeout 5 /usr/bin/veltrix "$work/site.QVL" || status=$?
if [ "$status" -ne 124 ]; then
  echo "the installed veltrix ended by itself (status $status)"
  exit 1
fi
echo "package: $deb installed, its programs run"
