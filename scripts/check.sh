#!/bin/sh
# Runs all tests of the release build.
set -eu
cd "$(dirname "$0")/.."
ctest --preset release -j "$(nproc)"
