#!/bin/sh
# Operates the wizard's window like a user: on a real X display with a window manager, by mouse and keyboard events. The
# saved workbook must be the same as the one that the command saves for the same input.
# BUILD is the folder of the programs.
set -eu
cd "$(dirname "$0")/.."
build=$PWD/${1:-build}
scripts/install-dependencies.sh xvfb openbox xdotool
work=$(mktemp -d)
clean() {
  [ -z "${wizard:-}" ] || kill "$wizard" 2>/dev/null || true
  [ -z "${manager:-}" ] || kill "$manager" 2>/dev/null || true
  [ -z "${display:-}" ] || kill "$display" 2>/dev/null || true
  rm -rf "$work"
}
trap clean EXIT

Xvfb -displayfd 3 -screen 0 1366x768x24 3>"$work/display" 2>/dev/null &
display=$!
while [ ! -s "$work/display" ]; do sleep 0.1; done
DISPLAY=:$(cat "$work/display")
export DISPLAY
unset QT_QPA_PLATFORM
# A window that appears while the window manager starts is never shown. So the script waits for the manager before it
# opens the first window.
openbox --startup "touch $work/managed" 2>/dev/null &
manager=$!
for _ in $(seq 200); do
  [ ! -e "$work/managed" ] || break
  sleep 0.1
done

passed=0
failed=0
expect() { # DESCRIPTION, then a command that must succeed
  what=$1
  shift
  if "$@"; then
    passed=$((passed + 1))
  else
    failed=$((failed + 1))
    echo "failed: $what" >&2
  fi
}

# Waits until a window with this title is visible, and prints its ID: TITLE. One search walks the tree of windows,
# and it ends with an X error when a window of that tree closes meanwhile. So each attempt is a search of its own.
visible() {
  for _ in $(seq 200); do
    window=$(timeout 5 xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -1)
    [ -z "$window" ] || { echo "$window"; return; }
    sleep 0.1
  done
  echo "failed: no window with the title $1 appeared" >&2
  return 1
}

# Waits until the window with this title is active, and sends it keys: TITLE KEY...
keys() {
  title=$1
  shift
  window=$(visible "$title") || exit 1
  timeout 5 xdotool windowactivate --sync "$window" 2>/dev/null || true
  sleep 0.5 # the keyboard focus follows the window after a moment
  for key in "$@"; do
    case $key in
      text:*) xdotool type --delay 5 "${key#text:}" ;;
      *) xdotool key --delay 30 "$key" ;;
    esac
  done
}

start() { # starts the program: ARGUMENT...
  "$build/plotsmith-wizard" "$@" 2>"$work/err" &
  wizard=$!
}
ended() { # waits for the program's exit: CODE
  code=0
  (sleep 20 && kill -9 "$wizard") 2>/dev/null &
  watchdog=$!
  wait "$wizard" || code=$?
  kill "$watchdog" 2>/dev/null || true
  wizard=
  [ "$code" -eq "$1" ]
}

# Make a chart with the keyboard only, and save it.
fresh=examples/data/orders.xlsx
cp "$fresh" "$work/orders.xlsx"
start "$work/orders.xlsx"
keys "Source Table and Chart Type" Home Tab Down space alt+n
keys "Chart Layout" "text:By hand" alt+n
keys "Chart Location" Return
keys "orders.xlsx - Plotsmith" Return
sleep 1
keys "orders.xlsx - Plotsmith" Return
expect "the program ends" ended 0
cat > "$work/script" <<'END'
select grdTables #1
choose optType(1)
press cmdNext
type txtTitle "By hand"
press cmdNext
press cmdFinish
END
"$build/plotsmith" wizard "$fresh" --script "$work/script" -o "$work/command.xlsx"
expect "the window and the command save the same workbook" cmp "$work/orders.xlsx" "$work/command.xlsx"

# Close the window on the first page: nothing is saved.
cp "$fresh" "$work/orders.xlsx"
start "$work/orders.xlsx"
keys "Source Table and Chart Type" alt+F4
expect "closing ends the program" ended 0
expect "nothing is saved" cmp "$work/orders.xlsx" "$fresh"

# Open a workbook that another program has open.
: > "$work/.~lock.orders.xlsx#"
start "$work/orders.xlsx"
keys "^Brindle Plotsmith$" Return
expect "a locked workbook is refused" ended 3
rm "$work/.~lock.orders.xlsx#"

echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
