#!/bin/sh
# Installs the Debian packages that the build needs and that are missing, and the packages given as arguments.
# With PLOTSMITH_NO_QT=1 it leaves out Qt; then everything but the wizard's windows is built.
set -eu

packages="g++ cmake ninja-build pkg-config libpugixml-dev libexpat1-dev libzip-dev libisal-dev libutf8proc-dev libcli11-dev
nlohmann-json3-dev libcairo2-dev libpango1.0-dev fonts-crosextra-carlito fonts-crosextra-caladea fonts-liberation
fonts-dejavu-core libxml2-dev libgtest-dev libbenchmark-dev python3"
[ -n "${PLOTSMITH_NO_QT:-}" ] || packages="$packages qt6-base-dev"

missing=""
for package in $packages "$@"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing="$missing $package"
done
[ -z "$missing" ] && exit 0

echo "Installing:$missing"
run=""
[ "$(id -u)" -eq 0 ] || run="sudo"
$run apt-get update -qq
# shellcheck disable=SC2086  # a list of words
DEBIAN_FRONTEND=noninteractive $run apt-get install -y -qq --no-install-recommends $missing >/dev/null
