#!/bin/sh
# Tests the 32-bit component under Wine. It runs in an i386 root, because Wine on amd64 alone runs no 32-bit programs.
# Making the root takes minutes and 1.6 GB; it is kept in build/root-i386.
# With --ci, the script skips the tests with a message if the machine can't make such a root, or if there is none and
# PLOTSMITH_X86=1 isn't set. Without --ci that is a failure.
set -eu
cd "$(dirname "$0")/.."
mode=${1:-}
root=$PWD/build/root-i386

# Ends the test if the machine can't run it: REASON.
skip() {
  echo "SKIPPED: the 32-bit component was not tested: $1" >&2
  [ "$mode" = --ci ] && exit 0
  exit 1
}

# Prints the address of the Debian mirror that apt is configured to use for a suite: SUITE.
mirror() {
  apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian' |
    sed -n "s/^\([^ ]*\) $1 main$/\1/p" | head -n 1
}

make_root() {
  suite=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
  address=$(mirror "$suite")
  [ -n "$address" ] || skip "apt has no package lists of $suite; apt-get update fetches them"
  echo "Making an i386 root:"
  rm -rf "$root.new"
  debootstrap --arch=i386 --variant=minbase --include=wine,wine32,libwine "$suite" "$root.new" "$address" \
    >build/root-i386.log 2>&1 || skip "debootstrap failed: $(tail -n 1 build/root-i386.log)"
  mv "$root.new" "$root"
}

[ "$mode" != --ci ] || [ -d "$root" ] || [ "${PLOTSMITH_X86:-}" = 1 ] ||
  skip "there is no i386 root yet, and PLOTSMITH_X86=1 isn't set"
[ "$(id -u)" -eq 0 ] || skip "only root can use chroot"
scripts/install-dependencies.sh debootstrap libwine-dev
scripts/windows-libraries.sh x86
cmake --preset windows-x86 >/dev/null
cmake --build build-windows-x86 --target Plotsmith tests/windows/all
[ -d "$root" ] || make_root

unshare --mount true 2>/dev/null || skip "this machine doesn't allow private mounts"
# The repository is mounted at its own path in the root, and Wine needs /proc. Both mounts end with the program that
# made them.
mkdir -p "$root$PWD"
for name in port registration server; do
  unshare --mount sh -ec '
    root=$1 repository=$2
    shift 2
    mount --rbind /proc "$root/proc"
    mount --bind "$repository" "$root$repository"
    exec chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root "$@"
  ' sh "$root" "$PWD" PLOTSMITH_WINDOWS="$PWD/build-windows-x86" "$PWD/tests/windows/run-$name.sh"
done
