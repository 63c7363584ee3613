#include "tests/windows/contract/PortContract.h"

namespace plotsmith::contract {

TEST_P(PortContract, Charts) {
  SAYS(Sheet()->ChartObjects()->Count(), "1");
  SAYS(Sheet()->ChartObjects()->Item("chart 1")->Name(), R"("Chart 1")");
  SAYS(Sheet()->ChartObjects()->Item("Nowhere"),
       "error 1004: Unable to get the ChartObjects property of the Worksheet class");
  SAYS(Sheet()->ChartObjects()->Add(1, 2, 30, 40)->Name(), R"("Chart 2")");
  const auto chart = Chart();
  SAYS(chart->Application(), "an object");
  SAYS(chart->ChartType(), "51");
  SAYS(chart->SetChartType(excel::xlBarClustered), "done");
  SAYS(chart->ChartType(), "57");
  SAYS(chart->SetChartType(12345), "error 1004: Unable to set the ChartType property of the Chart class");
  SAYS(chart->SeriesCollection()->Count(), "1");
  SAYS(chart->SeriesCollection()->Item(2), "error 1004: Method 'Item' of object 'SeriesCollection' failed");
  SAYS(chart->SeriesCollection()->NewSeries()->Name(), R"("Series2")");
  SAYS(chart->ChartGroups(1)->SetGapWidth(20), "done");
  SAYS(chart->ChartGroups(1)->SetGapWidth(501),
       "error 1004: Unable to set the GapWidth property of the ChartGroup class");
  SAYS(chart->ChartGroups(2), "error 1004: Method 'ChartGroups' of object '_Chart' failed");
  SAYS(chart->HasTitle(), "False");
  SAYS(chart->SetHasTitle(true), "done");
  SAYS(chart->HasTitle(), "True");
  SAYS(chart->ChartTitle()->SetText("Früchte\nin Kilo"), "done");
  SAYS(chart->ChartTitle()->Text(), R"("Früchte" & vbLf & "in Kilo")");
  SAYS(chart->SetHasTitle(false), "done");
  SAYS(chart->ChartTitle(), "error 1004: Unable to get the ChartTitle property of the Chart class");
  SAYS(chart->HasAxis(excel::xlCategory), "True");
  SAYS(chart->SetHasAxis(excel::xlCategory, false), "done");
  SAYS(chart->HasAxis(excel::xlCategory), "False");
  SAYS(chart->HasAxis(excel::xlValue), "True");
  SAYS(chart->ChartArea()->Width(), "400");
  SAYS(chart->ChartArea()->SetAutoScaleFont(false), "done");
  SAYS(chart->ChartArea()->Border()->SetLineStyle(excel::xlNone), "done");
  SAYS(chart->PlotArea()->SetWidth(200), "done");
  SAYS(chart->PlotArea()->Width(), "200");
  SAYS(chart->PlotArea()->SetWidth(0), "error 1004: Unable to set the Width property of the PlotArea class");
  SAYS(chart->PlotArea()->Height() > 0, "True");
  SAYS(chart->PlotArea()->Left() > 0, "True");
  SAYS(chart->PlotArea()->Top() > 0, "True");
  SAYS(chart->PlotArea()->Border()->SetWeight(excel::xlThin), "done");
  SAYS(chart->PlotArea()->Border()->SetColor(255), "done");
  SAYS(chart->PlotArea()->Border()->SetColor(-1),
       "error 1004: Unable to set the Color property of the Border class");
}

TEST_P(PortContract, Fills) {
  const auto interior = Chart()->PlotArea()->Interior();
  SAYS(interior->SetColor(0x0000FF), "done");
  SAYS(interior->Color(), "255");
  SAYS(interior->ColorIndex(), "3");
  SAYS(interior->SetColorIndex(5), "done");
  SAYS(interior->Color(), "16711680");
  SAYS(interior->SetColorIndex(99), "error 9: Subscript out of range");
  SAYS(interior->SetPattern(9), "done");
  SAYS(interior->Pattern(), "9");
  SAYS(interior->SetPatternColor(0x00FF00), "done");
  SAYS(interior->PatternColor(), "65280");
  SAYS(interior->SetPatternColorIndex(6), "done");
  SAYS(interior->PatternColorIndex(), "6");
  const auto fill = Chart()->ChartArea()->Fill();
  SAYS(fill->Patterned(excel::msoPatternLightUpwardDiagonal), "done");
  SAYS(fill->Patterned(0), "error 1004: The specified value is out of range.");
  SAYS(fill->ForeColor()->SetSchemeColor(15), "done");
  SAYS(fill->BackColor()->SetSchemeColor(9), "done");
  SAYS(fill->BackColor()->SetSchemeColor(99), "error 9: Subscript out of range");
  SAYS(fill->SetVisible(false), "done");
  SAYS(Chart()->ChartArea()->Interior()->ColorIndex(), "-4142");
  SAYS(fill->SetVisible(true), "done");
}

TEST_P(PortContract, Series) {
  const auto series = Series();
  SAYS(series->Name(), R"("Kilos")");
  SAYS(series->SetName("Ein Name"), "done");
  SAYS(series->Name(), R"("Ein Name")");
  SAYS(series->Formula(), R"x("=SERIES(,Sheet1!$A$2:$A$4,Sheet1!$B$2:$B$4,1)")x");
  SAYS(series->SetValues("=Sheet1!R2C3:R4C3"), "done");
  SAYS(series->Values(), "4.5, 8.25, 1");
  SAYS(series->SetXValues("=Sheet1!$A$2:$A$3"), "done");
  SAYS(series->SetValues("nonsense"), "error 1004: Unable to set the Values property of the Series class");
  SAYS(series->SetBubbleSizes("=Sheet1!R2C2:R4C2"), "done");
  SAYS(series->Formula(), R"x("=SERIES(,Sheet1!$A$2:$A$3,Sheet1!$C$2:$C$4,1)")x");
  SAYS(series->ChartType(), "51");
  SAYS(series->SetChartType(excel::xlLineMarkers), "done");
  SAYS(series->ChartType(), "65");
  SAYS(series->SetMarkerForegroundColor(255), "done");
  SAYS(series->SetMarkerBackgroundColor(65280), "done");
  SAYS(series->SetMarkerStyle(excel::xlMarkerStyleDash), "done");
  SAYS(series->SetMarkerSize(7), "done");
  SAYS(series->SetMarkerSize(1), "error 1004: Unable to set the MarkerSize property of the Series class");
  SAYS(series->Border()->SetColor(255), "done");
  SAYS(series->SetChartType(excel::xlColumnClustered), "done");
  SAYS(series->Interior()->SetColor(0x808080), "done");
  SAYS(series->Delete(), "done");
  SAYS(series->Name(), "error 1004: Method of object 'Series' failed");
}

TEST_P(PortContract, DataLabels) {
  const auto series = Series();
  SAYS(series->HasDataLabels(), "False");
  SAYS(series->DataLabels(), "Nothing");
  SAYS(series->SetHasDataLabels(true), "done");
  SAYS(series->HasDataLabels(), "True");
  SAYS(series->ApplyDataLabels(excel::xlDataLabelsShowValue), "done");
  SAYS(series->ApplyDataLabels(77), "error 1004: ApplyDataLabels method of Series class failed");
  const auto labels = series->DataLabels();
  SAYS(labels->Count(), "3");
  SAYS(labels->Item(4), "error 1004: Method 'Item' of object 'DataLabels' failed");
  SAYS(labels->Item(2)->SetText("the second"), "done");
  SAYS(labels->Type(), "2");
  SAYS(labels->SetPosition(excel::xlLabelPositionCenter), "done");
  SAYS(labels->SetPosition(excel::xlLabelPositionBestFit),
       "error 1004: Unable to set the Position property of the DataLabels class");
  SAYS(labels->SetHorizontalAlignment(excel::xlCenter), "done");
  SAYS(labels->SetVerticalAlignment(excel::xlCenter), "done");
  SAYS(labels->SetOrientation(45), "done");
  SAYS(labels->SetOrientation(91),
       "error 1004: Unable to set the Orientation property of the DataLabels class");
  SAYS(labels->AutoScaleFont(), "True");
  SAYS(labels->SetAutoScaleFont(false), "done");
  const auto font = labels->Font();
  SAYS(font->SetName("Arial"), "done");
  SAYS(font->Name(), R"("Arial")");
  SAYS(font->SetName(""), "error 1004: Unable to set the Name property of the Font class");
  SAYS(font->SetSize("12"), "done");
  SAYS(font->Size(), "12");
  SAYS(font->SetSize(runtime::kNull), "error 94: Invalid use of Null");
  SAYS(font->SetFontStyle("Bold Italic"), "done");
  SAYS(font->FontStyle(), R"("Bold Italic")");
  SAYS(font->SetBold(false), "done");
  SAYS(font->FontStyle(), R"("Italic")");
  SAYS(font->SetColor("255"), "done");
  SAYS(font->Color(), "255");
  SAYS(font->SetColor("red"), "error 13: Type mismatch");
  SAYS(font->SetBackground(excel::xlBackgroundTransparent), "done");
  SAYS(font->Background(), "-4105");
}

TEST_P(PortContract, Axes) {
  SAYS(Chart()->Axes(excel::xlCategory, 2), "error 1004: Method 'Axes' of object '_Chart' failed");
  const auto axis = Chart()->Axes(excel::xlValue, excel::xlPrimary);
  SAYS(axis->HasTitle(), "False");
  SAYS(axis->AxisTitle(), "error 1004: Unable to get the AxisTitle property of the Axis class");
  SAYS(axis->SetHasTitle(true), "done");
  SAYS(axis->AxisTitle()->Text(), R"("Axis Title")");
  SAYS(axis->AxisTitle()->SetText("Kilo & Pfund"), "done");
  SAYS(axis->AxisTitle()->Text(), R"("Kilo & Pfund")");
  SAYS(axis->AxisTitle()->SetOrientation(excel::xlUpward), "done");
  SAYS(axis->AxisTitle()->SetOrientation(-91),
       "error 1004: Unable to set the Orientation property of the AxisTitle class");
  SAYS(axis->AxisTitle()->Font()->SetSize(11), "done");
  SAYS(axis->AxisTitle()->AutoScaleFont(), "True");
  SAYS(axis->AxisTitle()->SetAutoScaleFont(true), "done");
  SAYS(axis->MinimumScale(), "0");
  SAYS(axis->MaximumScale(), "6");
  SAYS(axis->SetMinimumScale(-2.5), "done");
  SAYS(axis->SetMaximumScale(10), "done");
  SAYS(axis->MinimumScale(), "-2.5");
  SAYS(axis->MaximumScale(), "10");
  SAYS(axis->SetMajorUnit(2.5), "done");
  SAYS(axis->SetMajorUnit(0), "error 1004: Unable to set the MajorUnit property of the Axis class");
  SAYS(axis->SetMajorUnitIsAuto(true), "done");
  SAYS(axis->SetScaleType(excel::xlLinear), "done");
  SAYS(axis->SetScaleType(1), "error 1004: Unable to set the ScaleType property of the Axis class");
  SAYS(axis->SetDisplayUnit(excel::xlNone), "done");
  SAYS(axis->SetCrosses(excel::xlAutomatic), "done");
  SAYS(axis->SetReversePlotOrder(true), "done");
  SAYS(axis->SetTickLabelPosition(excel::xlTickLabelPositionLow), "done");
  SAYS(axis->SetHasMajorGridlines(false), "done");
  SAYS(axis->SetHasMinorGridlines(true), "done");
  SAYS(axis->Border()->SetLineStyle(excel::xlNone), "done");
  SAYS(axis->TickLabels()->NumberFormat(), R"("General")");
  SAYS(axis->TickLabels()->NumberFormatLinked(), "True");
  SAYS(axis->TickLabels()->SetNumberFormatLinked(false), "done");
  SAYS(axis->TickLabels()->NumberFormatLinked(), "False");
  SAYS(Chart()->Axes(excel::xlCategory, excel::xlPrimary)->MinimumScale(),
       "error 1004: Unable to get the MinimumScale property of the Axis class");
}

TEST_P(PortContract, Legends) {
  SAYS(Chart()->HasLegend(), "False");
  SAYS(Chart()->Legend(), "error 1004: Unable to get the Legend property of the Chart class");
  SAYS(Chart()->SetHasLegend(true), "done");
  const auto legend = Chart()->Legend();
  SAYS(legend->Position(), "-4152");
  SAYS(legend->SetPosition(-4107), "done");
  SAYS(legend->Position(), "-4107");
  SAYS(legend->SetPosition(3), "error 1004: Unable to set the Position property of the Legend class");
  SAYS(legend->SetLeft(20.5), "done");
  SAYS(legend->SetTop(30), "done");
  SAYS(legend->Left(), "20.5");
  SAYS(legend->Top(), "30");
  SAYS(legend->SetLeft(-1000), "error 1004: Unable to set the Left property of the Legend class");
  SAYS(legend->Font()->SetSize(9), "done");
  SAYS(legend->AutoScaleFont(), "True");
  SAYS(legend->SetAutoScaleFont(false), "done");
  SAYS(legend->LegendEntries()->Count(), "1");
  SAYS(legend->LegendEntries()->Item(2), "error 1004: Method 'Item' of object 'LegendEntries' failed");
  SAYS(legend->LegendEntries()->Item(1)->Delete(), "done");
  SAYS(legend->LegendEntries()->Count(), "0");
}

}  // namespace plotsmith::contract
