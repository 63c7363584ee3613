#!/bin/sh
# Runs the tests of the release build.
set -eu
cd "$(dirname "$0")/.."
programs=build/tests/plotsmith_tests
if [ -x build/tests/qt/plotsmith_qt_tests ]; then
  programs="$programs build/tests/qt/plotsmith_qt_tests"
else
  echo "The tests of the wizard's windows are left out, because Qt 6 Widgets isn't installed."
fi
# shellcheck disable=SC2086  # a list of words
exec scripts/run-tests.sh $programs
