#include "xlsx/CellStore.h"

#include <algorithm>

namespace plotsmith::xlsx {

void CellStore::Column::Append(std::int32_t row, PackedValue value, std::uint32_t style) {
  if (row <= lastRow_) {
    strays_[row] = {value, style};
    return;
  }
  if (runs_.empty() || row - lastRow_ > kFilledGap + 1) {
    runs_.push_back({row, static_cast<std::uint32_t>(values_.size())});
  } else {
    for (std::int32_t gap = lastRow_ + 1; gap < row; ++gap) values_.emplace_back();
  }
  // rows in a gap have no cell, and so no style
  if (row > lastRow_ + 1 && !styles_.empty() && styles_.back().style != 0)
    styles_.push_back({lastRow_ + 1, 0});
  if (style != (styles_.empty() ? 0 : styles_.back().style)) styles_.push_back({row, style});
  values_.push_back(value);
  lastRow_ = row;
}

const CellStore::Column::Run* CellStore::Column::FindRun(std::int32_t row) const {
  if (row > lastRow_ || runs_.empty()) return nullptr;
  const auto holds = [&](std::size_t i) {
    return runs_[i].firstRow <= row && (i + 1 == runs_.size() || runs_[i + 1].firstRow > row);
  };
  if (!holds(recentRun_)) {
    const auto next = std::upper_bound(runs_.begin(), runs_.end(), row,
                                       [](std::int32_t r, const Run& run) { return r < run.firstRow; });
    if (next == runs_.begin()) return nullptr;
    recentRun_ = static_cast<std::size_t>(next - runs_.begin()) - 1;
  }
  return &runs_[recentRun_];
}

PackedValue CellStore::Column::ValueAt(std::int32_t row) const {
  if (!strays_.empty()) {
    if (const auto stray = strays_.find(row); stray != strays_.end()) return stray->second.value;
  }
  const Run* run = FindRun(row);
  if (run == nullptr) return {};
  const std::size_t index = run->firstValue + static_cast<std::size_t>(row - run->firstRow);
  const bool last = run == &runs_.back();
  const std::size_t end = last ? values_.size() : (run + 1)->firstValue;
  return index < end ? values_[index] : PackedValue();
}

std::uint32_t CellStore::Column::StyleAt(std::int32_t row) const {
  if (!strays_.empty()) {
    if (const auto stray = strays_.find(row); stray != strays_.end()) return stray->second.style;
  }
  if (row > lastRow_ || styles_.empty() || row < styles_.front().firstRow) return 0;
  const auto holds = [&](std::size_t i) {
    return styles_[i].firstRow <= row && (i + 1 == styles_.size() || styles_[i + 1].firstRow > row);
  };
  if (!holds(recentStyle_)) {
    const auto next = std::upper_bound(styles_.begin(), styles_.end(), row,
                                       [](std::int32_t r, const StyleRun& run) { return r < run.firstRow; });
    recentStyle_ = static_cast<std::size_t>(next - styles_.begin()) - 1;
  }
  return styles_[recentStyle_].style;
}

std::int32_t CellStore::Column::LastRow() const {
  std::int32_t last = lastRow_;
  for (const auto& [row, stray] : strays_) last = std::max(last, row);
  return last;
}

}  // namespace plotsmith::xlsx
