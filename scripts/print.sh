#!/bin/sh
# Makes a PDF of a workbook with LibreOffice, each sheet on a page of its own size.
# Usage: scripts/print.sh BOOK FOLDER
set -eu
# LibreOffice gets its own profile, because an open LibreOffice locks the user's
if ! log=$(soffice "-env:UserInstallation=file://$(cd "$(dirname "$0")/.." && pwd)/build/soffice-profile" --headless \
  --convert-to 'pdf:calc_pdf_Export:{"SinglePageSheets":{"type":"boolean","value":"true"}}' --outdir "$2" "$1" 2>&1); then
  echo "LibreOffice can't print $1:" >&2
  echo "$log" >&2
  exit 1
fi
