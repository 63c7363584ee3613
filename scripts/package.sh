#!/bin/sh
# Makes the Debian packages in build/packages: the command, and the wizard's window, which depends on the command.
set -eu
cd "$(dirname "$0")/.."
scripts/install-dependencies.sh qt6-base-dev dpkg-dev
cmake --preset release >/dev/null
cmake --build build --target plotsmith plotsmith-wizard manual
rm -rf build/packages
cpack --config build/CPackConfig.cmake -B build/packages >build/cpack.log 2>&1 || { cat build/cpack.log >&2; exit 1; }
ls build/packages/*.deb
