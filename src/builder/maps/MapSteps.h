#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "builder/state/CPSMapInstruction.h"
#include "dom/Dom.h"
#include "runtime/Dictionary.h"
#include "runtime/Variant.h"

/// Module PSChartBuilder: common steps of the map builders of all chart types.
namespace plotsmith {

/// The number of series that a host can draw. The map builders compare it with their counts in different
/// ways.
inline constexpr std::int32_t kSeriesLimit = 254;
/// Shows the message that the chart has more than kSeriesLimit series.
void ShowLimitMessage(const dom::IXMLDOMElement& oChartElement);
/// The message about an empty map.
inline constexpr const char* kEmptyMapComplaint = "Failed to populate a data definition collection";
/// Sets the counts from the dictionaries. Returns False if the map has no category or no series.
bool FinishMap();

/// The data rows of the source table, by sheet rows from 1.
struct DataRows {
  std::int32_t lFirst;  ///< The first data row.
  std::int32_t lCount;  ///< The number of data rows.

  /// Reads the rows from `table-top-row`, `table-height` and `header-row-count` of the definition.
  explicit DataRows(const dom::IXMLDOMElement& oChartElement);
  /// The last data row, by sheet rows from 1.
  std::int32_t Last() const { return lFirst + lCount - 1; }
};

/// The sheet column of the first `column` of a group, from 1. Raises error 91 if the group has none.
std::int32_t FirstColumn(const dom::IXMLDOMElement& oGroup);
/// The sheet column of the first `column` of the group with the name `sGroup`; `lNone` for a chart without
/// the group.
std::int32_t FirstColumnOf(const dom::IXMLDOMElement& oChartElement, const char* sGroup, std::int32_t lNone);

/// Returns an instruction that adds up the numbers of one sheet column.
CPSMapInstruction ColumnSumRule(std::int32_t lColumn);
/// Adds the instruction for a series that the system needs in addition to those of the definition. The text
/// in column `lRowColumn` determines the row. The value comes from column `lColumn`, or is the constant if
/// `lColumn` is negative. `lDataColumn` is the series' column on the data sheet.
void AddPseudoSeriesRule(std::int32_t lRowColumn, std::int32_t lDataColumn, std::int32_t lCellValueType,
                         std::int32_t lColumn, const runtime::Variant& vConstant);

/// Converts a position from the dictionaries. An unknown key has the position Empty, which counts as 0.
std::int32_t PositionOf(const runtime::Variant& vPosition);

/// A cache of the positions of texts, by their addresses in memory. The texts of a sheet stay at their
/// addresses while it is read, and a column of a large table repeats few texts. Therefore most lookups need
/// neither the upper case of the text nor its hash. A text in a scratch buffer has no lasting address and
/// isn't cached.
class PositionCache {
 public:
  /// Returns the position; 0 if it isn't known. `sScratch` is the scratch buffer.
  std::int32_t Find(std::string_view sText, const std::string& sScratch) const {
    if (sText.data() == sScratch.data()) return 0;
    const Entry& oEntry = aEntries_[Slot(sText)];
    return oEntry.pText == sText.data() && oEntry.lLength == sText.size() ? oEntry.lPosition : 0;
  }
  /// Stores the position of a text, unless the text is in the scratch buffer.
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

/// Numbers the headings of one dimension of the rectangle, in the order of their first appearance.
class Numbering {
 public:
  /// Numbers headings into these dictionaries, which must outlive the object. Their keys are upper-cased.
  Numbering(runtime::Dictionary& oPositions, runtime::Dictionary& oNames)
      : oPositions_(oPositions), oNames_(oNames) {}

  /// The number of headings so far.
  std::int32_t Count() const { return lCount_; }

  /// Numbers a listed heading. Raises an error if the heading already has a number, ignoring case.
  std::int32_t Add(const std::string& sName);
  /// Numbers a heading that the system itself adds. Its key isn't upper-cased.
  void AddPseudo(const std::string& sName);
  /// Gives a name the next number, even if it has one.
  std::int32_t Put(const std::string& sKey, const std::string& sName);

  /// Adds the key of a heading that was found in a row to the dictionary. Returns True if the heading has no
  /// number yet. `sScratch` is the scratch buffer of the text.
  bool AddIfNew(std::string_view sText, const std::string& sScratch) {
    return oKnown_.Find(sText, sScratch) < 1 && IsNewKey(sText, sScratch);
  }
  /// The upper-cased text of the last call to AddIfNew.
  std::string_view Key() const { return sKey_; }
  /// Gives that text the next number, under this name.
  void Number(std::string_view sName);
  /// Gives a text the next number if it is new.
  void NumberIfNew(std::string_view sText, const std::string& sScratch) {
    if (AddIfNew(sText, sScratch)) Number(sText);
  }

 private:
  bool IsNewKey(std::string_view sText, const std::string& sScratch);

  runtime::Dictionary& oPositions_;
  runtime::Dictionary& oNames_;
  std::int32_t lCount_ = 0;
  std::string sUpper_;
  std::string_view sKey_;
  runtime::Variant* vPosition_ = nullptr;
  PositionCache oKnown_;
};

}  // namespace plotsmith
