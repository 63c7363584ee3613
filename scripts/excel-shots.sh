#!/bin/sh
# Takes the pictures of the installer and of the dialogs inside Excel again, under Wine, at 100 and 200 %.
# Usage: scripts/excel-shots.sh [FOLDER]; the default FOLDER is docs/images/excel.
# Build the target plotsmith_view_tests of build-windows-x64 first, and run scripts/installer.sh.
set -eu
cd "$(dirname "$0")/.."
folder=${1:-docs/images/excel}
work=$(mktemp -d)
scripts/install-dependencies.sh wine wine64 xvfb imagemagick

# The script uses its own Wine prefix, in which windows don't wait for a window manager, and a screen that is large
# enough for all pages.
export WINEPREFIX="$work/wine" WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml= LC_ALL=C.UTF-8
Xvfb -displayfd 3 -screen 0 2200x1600x24 >/dev/null 2>&1 3>"$work/display" &
screen=$!
trap 'wineserver -k; kill "$screen"; rm -rf "$work"' EXIT
while [ ! -s "$work/display" ]; do sleep 0.1; done
DISPLAY=:$(cat "$work/display")
export DISPLAY
wineboot --init >/dev/null 2>&1
wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1
# Fonts are smooth, as on Windows. Otherwise Wine measures small texts too small.
wine reg add 'HKCU\Control Panel\Desktop' /v FontSmoothing /d 2 /f >/dev/null 2>&1
wine reg add 'HKCU\Control Panel\Desktop' /v FontSmoothingType /t REG_DWORD /d 2 /f >/dev/null 2>&1

# Saves a picture of the installer's first page, which is alone on the screen: FILE.
shoot_setup() {
  wine build/PlotsmithSetup.exe >/dev/null 2>&1 &
  for _ in 1 2 3 4 5 6 7 8 9 10; do
    sleep 3
    import -window root "$work/screen.png"
    convert "$work/screen.png" -trim +repage -colors 256 "$1" 2>/dev/null  # convert prints a warning as long as the
                                                                           # screen is empty
    [ "$(identify -format %w "$1")" -lt 400 ] || break
  done
  wineserver -k
  wineserver -w
}

mkdir -p "$folder"
for scale in 1 2; do
  suffix=
  [ "$scale" = 1 ] || suffix=@2x
  wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d $((96 * scale)) /f >/dev/null 2>&1
  wineserver -w
  PLOTSMITH_SHOTS=$(winepath -w "$work" 2>/dev/null) wine build-windows-x64/plotsmith_view_tests.exe \
    --gtest_filter='ShotsTest.*' >"$work/tests.txt" 2>/dev/null || { cat "$work/tests.txt" >&2; exit 1; }
  for shot in "$work"/*.bmp; do
    convert "$shot" -alpha off -colors 256 -define png:compression-level=9 "$folder/$(basename "$shot" .bmp)$suffix.png"
    rm "$shot"
  done
  shoot_setup "$folder/setup$suffix.png"
done
