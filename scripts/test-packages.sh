#!/bin/sh
# Tests the packages of build/packages on a clean Debian: apt installs them, both programs run, and after the removal
# every file is gone.
# With --ci, the script skips the test with a message if the machine can't make a clean root; without --ci that is a
# failure.
# The root is kept in build/clean-root.tar, because making it takes a minute.
set -eu
cd "$(dirname "$0")/.."
mode=${1:-}

# Ends the test if the machine can't run it: REASON.
skip() {
  echo "SKIPPED: the packages were not tested on a clean root: $1" >&2
  [ "$mode" = --ci ] && exit 0
  exit 1
}

# Prints the address of the Debian mirror in apt's configuration.
mirror() {
  suite=$1
  { cat /etc/apt/sources.list /etc/apt/sources.list.d/*.list 2>/dev/null || true; } |
    sed -n "s/^deb \(\[[^]]*\] \)\{0,1\}\([^ ]*\) $suite .*main.*/\2/p"
  for list in /etc/apt/sources.list.d/*.sources; do
    [ -f "$list" ] || continue
    awk -v suite="$suite" 'BEGIN { RS = ""; FS = "\n" } {
      address = ""; found = 0
      for (i = 1; i <= NF; i++) {
        if ($i ~ /^URIs:/) { split($i, words, " "); address = words[2] }
        if ($i ~ /^Suites:/) { n = split($i, words, " "); for (j = 2; j <= n; j++) if (words[j] == suite) found = 1 }
      }
      if (found) print address
    }' "$list"
  done
}

packages=$(ls "$PWD"/build/packages/*.deb 2>/dev/null) || { echo "test-packages.sh: there are no packages; run make package first" >&2; exit 1; }

# These checks need no separate root.
scripts/install-dependencies.sh desktop-file-utils lintian debootstrap
desktop-file-validate packaging/plotsmith-wizard.desktop
# shellcheck disable=SC2086  # a list of files
lintian --allow-root --fail-on error $packages

[ "$(id -u)" -eq 0 ] || skip "only root can use chroot"
suite=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
address=$(mirror "$suite" | head -n 1)
[ -n "$address" ] || skip "apt's sources name no mirror of $suite"

work=$(mktemp -d)
root=$work/root
trap 'rm -rf "$work"' EXIT
tar=build/clean-root.tar
if [ ! -f "$tar" ]; then
  echo "Making a clean root of $suite:"
  debootstrap --variant=minbase "$suite" "$root" "$address" >"$work/log" 2>&1 ||
    skip "debootstrap failed: $(tail -n 1 "$work/log")"
  # apt in the root gets the same index from the same mirror, and keeps it in the archive
  chroot "$root" apt-get update -qq >"$work/log" 2>&1 || skip "apt-get update failed: $(tail -n 1 "$work/log")"
  tar -C "$root" -cf "$tar.new" .
  mv "$tar.new" "$tar"
  rm -rf "$root"
fi
mkdir "$root"
tar -C "$root" -xf "$tar"
chroot "$root" true 2>"$work/log" || skip "chroot failed: $(tail -n 1 "$work/log")"

# Lists the files of the root, without those in which apt, dpkg and the caches of other packages store their state.
files() {
  (cd "$root" && find . -path ./proc -prune -o -path ./var/cache -prune -o -path ./var/lib/apt -prune \
    -o -path ./var/lib/dpkg -prune -o -path ./var/log -prune -o -path ./tmp -prune -o -print | LC_ALL=C sort)
}

# Runs a command in the root, and shows its output if it fails.
inside() {
  chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/tmp DEBIAN_FRONTEND=noninteractive "$@" \
    >"$work/out" 2>&1 || { echo "failed: $*" >&2; cat "$work/out" >&2; exit 1; }
}

# Ends the test unless the last command printed this: TEXT.
expect() {
  [ "$(cat "$work/out")" = "$1" ] || { echo "\"$1\" was expected, not:" >&2; cat "$work/out" >&2; exit 1; }
}

version=$(sed -n 's/^project(plotsmith VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
files >"$work/before"
mkdir "$root/tmp/packages"
# shellcheck disable=SC2086  # a list of files
cp $packages "$root/tmp/packages"
cp examples/bicycle-sales.xlsx "$root/tmp/book.xlsx"

echo "Installing and running the packages."
inside sh -c 'apt-get install -y --no-install-recommends /tmp/packages/plotsmith_*.deb'
inside plotsmith --version
expect "plotsmith $version"
inside plotsmith refresh /tmp/book.xlsx -o /tmp/out.xlsx
expect ""
inside plotsmith render /tmp/out.xlsx -o /tmp/charts.pdf
expect ""
inside test -s /tmp/charts.pdf
inside sh -c 'plotsmith wizard /tmp/book.xlsx; [ $? -eq 2 ]'
expect "plotsmith: the wizard's window is the program plotsmith-wizard, which isn't installed; without it, --script FILE runs a script on the wizard's pages, and the verbs new, modify, copy and delete operate the pages."

inside sh -c 'apt-get install -y --no-install-recommends /tmp/packages/plotsmith-wizard_*.deb'
inside plotsmith-wizard --version
expect "plotsmith-wizard $version"
inside sh -c 'plotsmith wizard /tmp/book.xlsx; [ $? -eq 2 ]'
expect "plotsmith-wizard: there is no screen for the window; \"plotsmith new\" and its other verbs make and change charts without one."
# The window stays open until a signal ends it. The program prints an error if it can't open the workbook.
inside sh -c 'QT_QPA_PLATFORM=offscreen timeout 4 plotsmith wizard /tmp/book.xlsx; [ $? -eq 124 ]'
if grep -q '^plotsmith' "$work/out"; then
  cat "$work/out" >&2
  exit 1
fi
cmp examples/bicycle-sales.xlsx "$root/tmp/book.xlsx"

inside apt-get purge -y --auto-remove plotsmith-wizard plotsmith
files >"$work/after"
diff "$work/before" "$work/after" >&2 || { echo "these files are left over or missing after the removal" >&2; exit 1; }
echo "The packages can be installed and run, and their removal leaves no files."
