#include "builder/looks/SeriesColors.h"

#include "common/ErrorBlocks.h"
#include "runtime/Collection.h"
#include "runtime/Ref.h"
#include "runtime/Variant.h"

namespace plotsmith {

using runtime::CLng;

SeriesColors::SeriesColors() {
  mSeriesColors = runtime::MakeRef<runtime::Collection<runtime::Ref<CPSColor>>>();
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
