#!/bin/sh
# Builds the libraries for Windows from the sources of the Debian packages that the Linux build uses, into
# build/windows-libraries/<triple>. Does nothing if the libraries of these versions exist already.
# Usage: scripts/windows-libraries.sh [x64|x86]...
set -eu
cd "$(dirname "$0")/.."
root=$PWD
folder=$root/build/windows-libraries

scripts/install-dependencies.sh $(cat scripts/windows-packages.txt)

sources="pugixml expat utf8proc libzip libisal"  # names of source packages
headers="libcli11-dev nlohmann-json3-dev"        # packages that contain only headers

# Runs an apt command with its own list of sources and its own folders; the system's are not changed.
apt() {
  program=$1
  shift
  "apt-$program" -qq -o Dir::Etc::SourceList="$folder/apt/sources.list" -o Dir::Etc::SourceParts=/dev/null \
    -o Dir::State::Lists="$folder/apt/lists" -o Dir::Cache="$folder/apt/cache" -o APT::Sandbox::User=root "$@"
}

fetch_index() {
  mkdir -p "$folder/apt/lists/partial" "$folder/apt/cache"
  apt-get indextargets --format 'deb-src [signed-by=KEYS] $(REPO_URI) $(RELEASE) $(COMPONENT)' \
    'Created-By: Packages' 'Origin: Debian' |
    sed 's|KEYS|/usr/share/keyrings/debian-archive-keyring.gpg|' | sort -u >"$folder/apt/sources.list"
  [ -s "$folder/apt/sources.list" ] || {
    echo "windows-libraries.sh: apt has no package lists of Debian; apt-get update fetches them" >&2
    exit 1
  }
  apt get update
}

# Unpacks a source package in the newest version that is available: NAME. A mirror may lack the newest.
fetch_source() {
  for version in $(apt cache madison "$1" | sed -n 's/^[^|]*| *\([^ ]*\) |.*Sources$/\1/p'); do
    apt get source --download-only --only-source "$1=$version" 2>"$folder/apt/error.log" || continue
    dpkg-source --no-check -x "$1_${version#*:}.dsc" "$1" >/dev/null
    return
  done
  cat "$folder/apt/error.log" >&2
  return 1
}

fetch_sources() {
  [ "$(cat "$folder/source/versions.txt" 2>/dev/null)" = "$versions" ] && return
  rm -rf "$folder/source"
  mkdir -p "$folder/source"
  fetch_index
  for name in $sources; do (cd "$folder/source" && fetch_source "$name"); done
  # Debian's later patches need values for these, which only the configure script sets
  sed -i 's/^#cmakedefine XML_DTD$/#define XML_DTD 1/' "$folder/source/expat/expat/expat_config.h.cmake"
  echo "$versions" >"$folder/source/versions.txt"
}

# Runs a command and prints its output only if it fails: LOG COMMAND...
logged() {
  log=$1
  shift
  "$@" >>"$log" 2>&1 || { tail -n 30 "$log" >&2; exit 1; }
}

# Builds and installs a library with CMake: SOURCE NAME OPTION...
build_with_cmake() {
  source=$1 name=$2
  shift 2
  logged "$work/$name.log" cmake -G Ninja -S "$source" -B "$work/$name" -DCMAKE_TOOLCHAIN_FILE="$root/cmake/windows-$word.cmake" \
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefix" -DCMAKE_INSTALL_LIBDIR=lib -DBUILD_SHARED_LIBS=OFF \
    -Wno-dev "$@"
  logged "$work/$name.log" cmake --build "$work/$name" --target install
}

# Writes pkg-config's file for a static library: NAME VERSION LIBRARIES [DEFINITION].
describe() {
  mkdir -p "$prefix/lib/pkgconfig"
  printf 'Name: %s\nDescription: %s\nVersion: %s\nLibs: -L%s %s\nCflags: -I%s %s\n' "$1" "$1" "$2" "$prefix/lib" "$3" \
    "$prefix/include" "${4:-}" >"$prefix/lib/pkgconfig/$1.pc"
}

build_isal() {
  rm -rf "$work/libisal"
  cp -r "$folder/source/libisal" "$work/libisal"
  # the assembler files are for x64 only
  [ "$word" = x64 ] && kind="arch=mingw host_cpu=x86_64 AS=nasm" || kind="arch=noarch host_cpu=base_aliases"
  # the sources define byte swaps for all compilers but this one
  swaps="isal_bswap16=__builtin_bswap16 isal_bswap32=__builtin_bswap32 isal_bswap64=__builtin_bswap64"
  # shellcheck disable=SC2086  # words
  logged "$work/libisal.log" make -C "$work/libisal" -f Makefile.unx -j"$(nproc)" $kind D="$swaps" \
    CC="$triple-gcc-posix" AR="$triple-ar" lib
  cp "$(find "$work/libisal/bin" -name '*.a')" "$prefix/lib/libisal.a"
  mkdir -p "$prefix/include/isa-l"
  cp "$work"/libisal/include/*.h "$prefix/include/isa-l/"
}

# Copies the headers and CMake files of a Debian package: PACKAGE.
copy_headers() {
  dpkg -L "$1" | grep -E '^/usr/(include|share/cmake|lib/cmake|share/pkgconfig)/' | while read -r file; do
    [ -f "$file" ] || continue
    mkdir -p "$prefix/$(dirname "${file#/usr/}")"
    cp "$file" "$prefix/${file#/usr/}"
  done
}

# Sets the variables of an architecture: x64 or x86.
choose() {
  word=$1
  case $word in
    x64) triple=x86_64-w64-mingw32 ;;
    x86) triple=i686-w64-mingw32 ;;
    *) echo "windows-libraries.sh: there is no \"$word\", only x64 and x86" >&2; exit 2 ;;
  esac
  prefix=$folder/$triple
  work=$folder/work/$triple
}

build() {
  rm -rf "$prefix" "$work"
  mkdir -p "$prefix/lib" "$work"
  build_with_cmake "$folder/source/pugixml" pugixml
  build_with_cmake "$folder/source/expat/expat" expat -DCMAKE_C_FLAGS=-DXML_GE=1 -DEXPAT_BUILD_TESTS=OFF -DEXPAT_BUILD_TOOLS=OFF \
    -DEXPAT_BUILD_EXAMPLES=OFF -DEXPAT_BUILD_DOCS=OFF -DEXPAT_SHARED_LIBS=OFF
  build_with_cmake "$folder/source/utf8proc" utf8proc
  build_with_cmake "$folder/source/libzip" libzip -DENABLE_COMMONCRYPTO=OFF -DENABLE_GNUTLS=OFF -DENABLE_MBEDTLS=OFF \
    -DENABLE_OPENSSL=OFF -DENABLE_WINDOWS_CRYPTO=OFF -DENABLE_BZIP2=OFF -DENABLE_LZMA=OFF -DENABLE_ZSTD=OFF \
    -DBUILD_TOOLS=OFF -DBUILD_REGRESS=OFF -DBUILD_EXAMPLES=OFF -DBUILD_DOC=OFF
  build_with_cmake /usr/src/googletest googletest -DBUILD_GMOCK=OFF
  build_isal
  # its own folder also contains the import library of zlib1.dll, which CMake would prefer
  cp "/usr/$triple/lib/libz.a" "$prefix/lib/"
  describe pugixml 1 -lpugixml
  describe expat 1 -lexpat -DXML_STATIC
  describe libutf8proc 1 -lutf8proc -DUTF8PROC_STATIC
  describe libzip 1 "-lzip -lz" -DZIP_STATIC
  describe libisal 1 -lisal
  for package in $headers; do copy_headers "$package"; done
  echo "$versions" >"$prefix/versions.txt"
}

# the inputs of the libraries: these packages, and this script
# shellcheck disable=SC2086  # a list of words
versions=$(dpkg-query -W -f='${Package} ${Version}\n' libpugixml-dev libexpat1-dev libutf8proc-dev libzip-dev libisal-dev \
  $headers googletest libz-mingw-w64-dev g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix &&
  cat scripts/windows-libraries.sh cmake/windows*.cmake | md5sum)
missing=
for word in ${*:-x64 x86}; do
  choose "$word"
  [ "$(cat "$prefix/versions.txt" 2>/dev/null)" = "$versions" ] || missing="$missing $word"
done
[ -n "$missing" ] || exit 0
fetch_sources
# all architectures are built at the same time, because configuration takes most of the time and uses one processor each
builders=
for word in $missing; do
  (choose "$word" && build) &
  builders="$builders $!"
done
for builder in $builders; do wait "$builder"; done
