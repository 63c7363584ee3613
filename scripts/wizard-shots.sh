#!/bin/sh
# Takes the pictures of the wizard's pages again, light and dark, at scales 1 and 2.
# Usage: scripts/wizard-shots.sh [BUILD [FOLDER]]; the default FOLDER is docs/images/wizard.
set -eu
cd "$(dirname "$0")/.."
build=${1:-build}
folder=${2:-docs/images/wizard}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$folder"

# a workbook with some charts
book=$work/orders.xlsx
"$build/plotsmith" new examples/data/orders.xlsx -o "$book" --table Data1 --type column --title "Amount by region" \
  --categories Region --series Product --values Amount --new-sheet "Amounts"
"$build/plotsmith" new "$book" --table Data1 --type pie --title "Units by product" --categories Product --values Units \
  --new-sheet "Units"
"$build/plotsmith" new "$book" --table Data1 --type bubble --title "Cost and amount" --categories Region \
  --series Product --values Amount --x-values Cost --sizes Units --new-sheet "Costs"

# a screen that is large enough for all pages at scale 2
cat > "$work/screen.json" <<'END'
{"screens": [{"name": "one", "x": 0, "y": 0, "width": 2732, "height": 1536, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]}
END

cat > "$work/script" <<'END'
select grdCharts "Amount by region"
shot frmPSSelectAction
press cmdNew
select grdTables Data1
choose optType(1)
shot frmPSSelectTable
press cmdNext
type txtTitle "Amount by region"
choose cboCategories Region
choose optSeries(1)
choose cboSeries Product
choose cboValues Amount
check chkStacked
shot frmPSLayoutABC
press cmdBack
choose optType(3)
press cmdNext
type txtTitle "Units by product"
select lstCategories Product
choose cboValues Units
shot frmPSLayoutPie
press cmdBack
choose optType(4)
press cmdNext
type txtTitle "Cost and amount"
choose cboCategories Region
choose cboSeries Product
select lstYValues Amount
choose cboXValues Cost
choose cboSizes Units
shot frmPSLayoutBubble
press cmdBack
choose optType(5)
press cmdNext
type txtTitle "Targets and orders"
shot frmPSLayoutStrBuck
press cmdBack
choose optType(1)
press cmdNext
press cmdNext
shot frmPSChartLocation
press cmdFinish
page none
END

for look in light dark; do
  for scale in 1 2; do
    suffix=-$look
    [ "$scale" = 1 ] || suffix=$suffix@2x
    [ "$suffix" != -light ] || suffix=
    QT_QPA_PLATFORM=offscreen:configfile="$work/screen.json" QT_SCALE_FACTOR=$scale \
      "$build/plotsmith_wizard_shots" "$book" "$folder" "$suffix" $look < "$work/script"
  done
done
