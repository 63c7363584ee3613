#!/bin/sh
# Tests the component with COM clients in Wine's script hosts: arguments, guards, hostile hosts, lifetime.
cd "$(dirname "$0")/../.."
. tests/windows/lib.sh

new_prefix
register "$windows/Plotsmith.dll" "$windows/PlotsmithTestHost.dll" "$windows/PlotsmithTestBoxes.dll"
# Usage: tests/windows/run-server.sh [SCRIPT]...
for script in ${*:-tests/windows/server/*.js}; do
  script_checks "$script" "$(windows_path "$work")" "$(windows_path "$root/examples")"
done
finish
