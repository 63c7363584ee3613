#pragma once

#include <iterator>
#include <set>

namespace plotsmith::xlsx {

/// Returns a number for a new item: the number above the highest taken one, as Excel counts. If that is
/// greater than `last`, it is the lowest free number. Taken numbers outside `first` to `last` are ignored.
inline long long FreeNumber(const std::set<long long>& taken, long long first, long long last) {
  const auto behind = taken.upper_bound(last);
  if (behind == taken.begin() || *std::prev(behind) < first) return first;
  if (*std::prev(behind) < last) return *std::prev(behind) + 1;
  long long free = first;
  for (auto it = taken.lower_bound(first); it != taken.end() && *it == free; ++it) ++free;
  return free;
}

}  // namespace plotsmith::xlsx
