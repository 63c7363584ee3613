#include "render/sheet/MergedCells.h"

#include <algorithm>

namespace plotsmith::render {

using xlsx::CellRange;

MergedCells::MergedCells(std::vector<CellRange> ranges) : ranges_(std::move(ranges)) {
  std::sort(ranges_.begin(), ranges_.end(),
            [](const CellRange& a, const CellRange& b) { return a.row1 < b.row1; });
}

bool MergedCells::AreAt(std::int32_t row, std::int32_t column) {
  if (row != row_) GoTo(row);
  const auto behind =
      std::upper_bound(columns_.begin(), columns_.end(), column,
                       [](std::int32_t wanted, const auto& span) { return wanted < span.first; });
  return behind != columns_.begin() && column <= std::prev(behind)->second;
}

void MergedCells::GoTo(std::int32_t row) {
  if (row < row_) {
    next_ = 0;
    open_.clear();
    columns_.clear();
  }
  row_ = row;
  const std::size_t ended = std::erase_if(open_, [&](const CellRange& range) { return range.row2 < row; });
  const std::size_t before = open_.size();
  for (; next_ < ranges_.size() && ranges_[next_].row1 <= row; ++next_) {
    if (ranges_[next_].row2 >= row) open_.push_back(ranges_[next_]);
  }
  if (ended == 0 && open_.size() == before) return;
  std::sort(open_.begin(), open_.end(),
            [](const CellRange& a, const CellRange& b) { return a.column1 < b.column1; });
  columns_.clear();
  for (const CellRange& range : open_) {
    if (!columns_.empty() && range.column1 <= columns_.back().second) {
      columns_.back().second = std::max(columns_.back().second, range.column2);
    } else {
      columns_.emplace_back(range.column1, range.column2);
    }
  }
}

}  // namespace plotsmith::render
