#!/bin/sh
# Runs all tests of the release build: under a locale with a decimal comma, and as they are.
set -eu
cd "$(dirname "$0")/.."
scripts/install-dependencies.sh locales
locales=$PWD/build/locales
if [ ! -d "$locales/de_DE.UTF-8" ]; then
  mkdir -p "$locales"
  localedef -i de_DE -f UTF-8 "$locales/de_DE.UTF-8"
fi
echo "With a decimal comma:"
LOCPATH=$locales LC_ALL=de_DE.UTF-8 build/tests/plotsmith_tests --gtest_brief=1
ctest --preset release -j "$(nproc)"
