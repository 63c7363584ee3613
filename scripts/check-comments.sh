#!/bin/sh
# Names the public members of all headers in src/ that have no comment. `make docs` calls this script after it has built
# the reference, because the reference shows only some of the rooms.
set -eu
cd "$(dirname "$0")/.."
{
  cat build/docs/Doxyfile
  echo "INPUT = src"
  echo "GENERATE_HTML = NO"
  echo "GENERATE_TAGFILE = build/docs/members.tag"
} | doxygen -
