#!/bin/sh
# Runs the tests of the release build twice: in a locale with a decimal comma and in the default locale. LibreOffice opens
# workbooks only in the second run, because the first run writes the same workbooks.
set -eu
cd "$(dirname "$0")/.."
scripts/install-dependencies.sh locales
locales=$PWD/build/locales
if [ ! -d "$locales/de_DE.UTF-8" ]; then
  mkdir -p "$locales"
  localedef -i de_DE -f UTF-8 "$locales/de_DE.UTF-8"
fi
programs=build/tests/plotsmith_tests
if [ -x build/tests/qt/plotsmith_qt_tests ]; then
  programs="$programs build/tests/qt/plotsmith_qt_tests"
else
  echo "The tests of the wizard's windows are left out, because Qt 6 Widgets isn't installed."
fi
run() {
  # shellcheck disable=SC2086  # a list of words
  scripts/run-tests.sh $programs
}
echo "With a decimal comma:"
(
  export GTEST_FILTER="-*LibreOffice*" LOCPATH="$locales" LC_ALL=de_DE.UTF-8
  run
)
echo "With a decimal point:"
run
