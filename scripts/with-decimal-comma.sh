#!/bin/sh
# Runs a command in a locale with a decimal comma. Tests with LibreOffice are left out, because its results depend on the
# locale.
# Usage: scripts/with-decimal-comma.sh COMMAND [ARGUMENT...]
set -eu
"$(dirname "$0")/install-dependencies.sh" locales
locales=$(dirname "$0")/../build/locales
if [ ! -d "$locales/de_DE.UTF-8" ]; then
  mkdir -p "$locales"
  localedef -i de_DE -f UTF-8 "$locales/de_DE.UTF-8"
fi
LOCPATH=$(realpath "$locales")
export LOCPATH LC_ALL=de_DE.UTF-8 GTEST_FILTER="-*LibreOffice*"
exec "$@"
