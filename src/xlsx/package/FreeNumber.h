#pragma once

#include <iterator>
#include <set>

namespace plotsmith::xlsx {

/// A number for a new thing beside those that have `taken`: the one above the highest, as Excel counts, and
/// where that is beyond `last`, the lowest that is free. What is taken outside of the range is ignored.
inline long long FreeNumber(const std::set<long long>& taken, long long first, long long last) {
  const auto behind = taken.upper_bound(last);
  if (behind == taken.begin() || *std::prev(behind) < first) return first;
  if (*std::prev(behind) < last) return *std::prev(behind) + 1;
  long long free = first;
  for (auto it = taken.lower_bound(first); it != taken.end() && *it == free; ++it) ++free;
  return free;
}

}  // namespace plotsmith::xlsx
