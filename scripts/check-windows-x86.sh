#!/bin/sh
# Runs the tests of the component under Wine with the DLLs of 32 bits, in a root of i386, as Wine here runs no programs
# of 32 bits. Making the root takes minutes and 1.6 GB; it is kept in build/root-i386. With --ci, a machine that can't
# make such a root, or has none and no PLOTSMITH_X86=1, skips the tests and says so; otherwise that is a failure.
set -eu
cd "$(dirname "$0")/.."
mode=${1:-}
root=$PWD/build/root-i386

# Ends the test where the machine can't do it: SENTENCE.
skip() {
  echo "SKIPPED: the component of 32 bits was not run: $1" >&2
  [ "$mode" = --ci ] && exit 0
  exit 1
}

# The address of the machine's own Debian mirror, as apt knows it, and the suite: one line.
mirror() {
  apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian' |
    sed -n "s/^\([^ ]*\) $1 main$/\1/p" | head -n 1
}

make_root() {
  suite=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
  address=$(mirror "$suite")
  [ -n "$address" ] || skip "apt knows no mirror of $suite (apt-get update would fetch its lists)"
  echo "Making a root of i386:"
  rm -rf "$root.new"
  debootstrap --arch=i386 --variant=minbase --include=wine,wine32,libwine "$suite" "$root.new" "$address" \
    >build/root-i386.log 2>&1 || skip "debootstrap failed: $(tail -n 1 build/root-i386.log)"
  mv "$root.new" "$root"
}

[ "$mode" != --ci ] || [ -d "$root" ] || [ "${PLOTSMITH_X86:-}" = 1 ] ||
  skip "there is no root of i386 yet, and PLOTSMITH_X86=1 isn't set"
[ "$(id -u)" -eq 0 ] || skip "only root can use chroot"
scripts/install-dependencies.sh debootstrap libwine-dev
scripts/windows-libraries.sh x86
cmake --preset windows-x86 >/dev/null
cmake --build build-windows-x86 --target Plotsmith tests/windows/all
[ -d "$root" ] || make_root

unshare --mount true 2>/dev/null || skip "this machine allows no mounts of its own"
# In the root the repository is where it is here, and Wine needs /proc. Both mounts go with the program that made them.
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
