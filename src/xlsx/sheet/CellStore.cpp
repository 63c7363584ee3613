#include "xlsx/sheet/CellStore.h"

#include <algorithm>

namespace plotsmith::xlsx {
namespace {

/// Returns the last run that begins at or before the row; the number of runs if there is none. The runs are
/// sorted by first row.
template <class Runs>
std::size_t RunBefore(const Runs& runs, std::int32_t row) {
  const auto next = std::upper_bound(runs.begin(), runs.end(), row,
                                     [](std::int32_t r, const auto& run) { return r < run.firstRow; });
  return next == runs.begin() ? runs.size() : static_cast<std::size_t>(next - runs.begin()) - 1;
}

}  // namespace

void CellStore::Column::AppendElsewhere(std::int32_t row, PackedValue value, std::uint32_t style) {
  const std::int32_t last = runs_.empty() ? 0 : runs_.back().lastRow;
  if (row <= last) {
    unordered_[row] = {value, style};
    return;
  }
  if (runs_.empty() || row - last > kFilledGap + 1) {
    runs_.push_back({row, row, static_cast<std::uint32_t>(values_.size())});
  } else {
    for (std::int32_t gap = last + 1; gap < row; ++gap) values_.emplace_back();
  }
  // Rows without cells have no style.
  if (row > last + 1 && lastStyle_ != 0) styles_.push_back({last + 1, lastStyle_ = 0});
  if (style != lastStyle_) styles_.push_back({row, lastStyle_ = style});
  values_.push_back(value);
  runs_.back().lastRow = row;
}

PackedValue CellStore::Column::FindValue(std::int32_t row) const {
  if (!unordered_.empty()) {
    if (const auto cell = unordered_.find(row); cell != unordered_.end()) return cell->second.value;
  }
  const std::size_t found = RunBefore(runs_, row);
  if (found == runs_.size() || row > runs_[found].lastRow) return {};
  recentRun_ = found;
  return values_[runs_[found].firstValue + static_cast<std::size_t>(row - runs_[found].firstRow)];
}

std::uint32_t CellStore::Column::StyleAt(std::int32_t row) const {
  if (!unordered_.empty()) {
    if (const auto cell = unordered_.find(row); cell != unordered_.end()) return cell->second.style;
  }
  if (styles_.empty() || row < styles_.front().firstRow || row > runs_.back().lastRow) return 0;
  const auto holds = [&](std::size_t i) {
    return styles_[i].firstRow <= row && (i + 1 == styles_.size() || styles_[i + 1].firstRow > row);
  };
  if (!holds(recentStyle_)) recentStyle_ = RunBefore(styles_, row);
  return styles_[recentStyle_].style;
}

std::int32_t CellStore::Column::NextRow(std::int32_t row) const {
  const auto run = std::upper_bound(runs_.begin(), runs_.end(), row,
                                    [](std::int32_t r, const Run& other) { return r < other.lastRow; });
  const auto cell = unordered_.upper_bound(row);
  const std::int32_t next = run == runs_.end() ? 0 : std::max(row + 1, run->firstRow);
  return cell == unordered_.end() || (next != 0 && next < cell->first) ? next : cell->first;
}

}  // namespace plotsmith::xlsx
