#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "dom/Dom.h"
#include "runtime/Dictionary.h"

/// Module PSChartBuilder: the rules that carry a table into the rectangle of categories and series. The map
/// holds no data; it is made once a build and run for each row of the table.
namespace plotsmith {

/// Fills the map's variables from the definition and the table; False, after a message, if nothing can come
/// of it.
bool BuildPivotMap(const dom::IXMLDOMElement& oChartElement);

/// The rows of the source table that hold data, by sheet row.
struct DataRows {
  std::int32_t lFirst;
  std::int32_t lCount;

  explicit DataRows(const dom::IXMLDOMElement& oChartElement);
  std::int32_t Last() const { return lFirst + lCount - 1; }
};

/// Remembers the position of a text by where the text lies: the texts that a sheet hands out stay where they
/// are while it is read, and a column of a large table shows few of them over and over. So most lookups need
/// neither the upper case of the text nor its hash. A text that was made up for the occasion has no place of
/// its own and isn't remembered.
class PositionCache {
 public:
  /// 0 if it isn't known. `sScratch` is where made-up texts lie.
  std::int32_t Find(std::string_view sText, const std::string& sScratch) const {
    if (sText.data() == sScratch.data()) return 0;
    const Entry& oEntry = aEntries_[Slot(sText)];
    return oEntry.pText == sText.data() && oEntry.lLength == sText.size() ? oEntry.lPosition : 0;
  }
  void Remember(std::string_view sText, const std::string& sScratch, std::int32_t lPosition) {
    if (sText.data() != sScratch.data()) aEntries_[Slot(sText)] = {sText.data(), sText.size(), lPosition};
  }

 private:
  struct Entry {
    const char* pText = nullptr;
    std::size_t lLength = 0;
    std::int32_t lPosition = 0;
  };
  static constexpr std::size_t kSlots = 1024;
  static std::size_t Slot(std::string_view sText) {
    const auto lPlace = reinterpret_cast<std::uintptr_t>(sText.data());
    return (lPlace ^ lPlace >> 10) % kSlots;
  }

  std::vector<Entry> aEntries_ = std::vector<Entry>(kSlots);
};

/// A position as the dictionaries hold it: Empty, which a read of an unknown key leaves behind, counts as 0.
std::int32_t PositionOf(const runtime::Variant& vPosition);

}  // namespace plotsmith
