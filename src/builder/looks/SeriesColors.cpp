#include "builder/looks/SeriesColors.h"

#include "builder/state/BuilderVariables.h"
#include "common/ErrorBlocks.h"
#include "common/Values.h"
#include "runtime/Collection.h"
#include "runtime/Ref.h"
#include "runtime/Variant.h"

namespace plotsmith {

using runtime::CLng;

const std::array<void (*)(excel::Series& oSeries, CPSColor& oFill), 5> kFillReads = {
    [](excel::Series& oSeries, CPSColor& oFill) { oFill.SetColor(oSeries.Interior()->Color()); },
    [](excel::Series& oSeries, CPSColor& oFill) { oFill.SetColorIndex(oSeries.Interior()->ColorIndex()); },
    [](excel::Series& oSeries, CPSColor& oFill) { oFill.SetPattern(oSeries.Interior()->Pattern()); },
    [](excel::Series& oSeries, CPSColor& oFill) {
      oFill.SetPatternColor(oSeries.Interior()->PatternColor());
    },
    [](excel::Series& oSeries, CPSColor& oFill) {
      oFill.SetPatternColorIndex(oSeries.Interior()->PatternColorIndex());
    },
};

SeriesColors::SeriesColors() {
  mSeriesColors = runtime::MakeRef<runtime::Collection<runtime::Ref<CPSColor>>>();
}

bool SeriesColors::Take(runtime::Ref<CPSColor> oFill, const std::string& sName) {
  aFills_.push_back(std::move(oFill));
  if (CollectionHasKey(sName, mSeriesColors)) return false;
  ++lNames_;
  mSeriesColors->Add(aFills_[lNames_ - 1], sName);
  return true;
}

void SeriesColors::Paint(const runtime::Ref<excel::Series>& oSeries) {
  IgnoreErrors([&] { oCurrent_ = mSeriesColors->Item(oSeries->Name()); },
               [&] { oSeries->Interior()->SetPattern(CLng(oCurrent_->Pattern())); },
               [&] { oSeries->Interior()->SetPatternColorIndex(CLng(oCurrent_->PatternColorIndex())); },
               [&] { oSeries->Interior()->SetPatternColor(CLng(oCurrent_->PatternColor())); },
               [&] { oSeries->Interior()->SetColorIndex(CLng(oCurrent_->ColorIndex())); },
               [&] { oSeries->Interior()->SetColor(CLng(oCurrent_->Color())); });
}

}  // namespace plotsmith
