#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "builder/state/CPSMapInstruction.h"
#include "dom/Dom.h"
#include "runtime/Dictionary.h"
#include "runtime/Variant.h"

/// Module PSChartBuilder: the steps that the map builders of all chart types share.
namespace plotsmith {

/// What each map builder compares its counts with, in a way of its own: a host draws no more series.
inline constexpr std::int32_t kSeriesLimit = 254;
void ShowLimitMessage(const dom::IXMLDOMElement& oChartElement);
/// What a map builder says of a map from which nothing can come.
inline constexpr const char* kEmptyMapComplaint = "Failed to populate a data definition collection";
/// Takes the counts from the dictionaries; False if the map is empty in one of its dimensions.
bool FinishMap();

/// The rows of the source table that hold data, by sheet row.
struct DataRows {
  std::int32_t lFirst;
  std::int32_t lCount;

  explicit DataRows(const dom::IXMLDOMElement& oChartElement);
  std::int32_t Last() const { return lFirst + lCount - 1; }
};

/// The sheet column of the first `column` of a group; error 91 if it has none.
std::int32_t FirstColumn(const dom::IXMLDOMElement& oGroup);
/// The same of a group of the chart, or `lNone` for a chart without the group.
std::int32_t FirstColumnOf(const dom::IXMLDOMElement& oChartElement, const char* sGroup, std::int32_t lNone);

/// A rule that adds up the numbers of one sheet column.
CPSMapInstruction ColumnSumRule(std::int32_t lColumn);
/// Adds the rule of a series that the system made up: to the row that the text in `lRowColumn` names goes
/// what stands in `lColumn` or, if that is negative, the constant. `lDataColumn` is the series' column on the
/// data sheet.
void AddPseudoSeriesRule(std::int32_t lRowColumn, std::int32_t lDataColumn, std::int32_t lCellValueType,
                         std::int32_t lColumn, const runtime::Variant& vConstant);

/// A position as the dictionaries hold it: Empty, which a read of an unknown key leaves behind, counts as 0.
std::int32_t PositionOf(const runtime::Variant& vPosition);

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

/// One dimension of the rectangle while its headings are numbered, in order of first appearance.
class Numbering {
 public:
  Numbering(runtime::Dictionary& oPositions, runtime::Dictionary& oNames)
      : oPositions_(oPositions), oNames_(oNames) {}

  std::int32_t Count() const { return lCount_; }

  /// A listed heading: one that is there already, ignoring case, is an error.
  std::int32_t Add(const std::string& sName);
  /// A heading of the system's own, which keeps its spelling as key.
  void AddPseudo(const std::string& sName);
  /// Gives the name the next number, whatever it had before.
  std::int32_t Put(const std::string& sKey, const std::string& sName);

  /// Whether a heading found in a row has no number yet; its key is in the dictionary from then on.
  /// `sScratch` is where its text lies if the sheet doesn't hold it.
  bool IsNew(std::string_view sText, const std::string& sScratch) {
    return oKnown_.Find(sText, sScratch) < 1 && IsNewKey(sText, sScratch);
  }
  /// The upper-cased text that IsNew was asked for last.
  std::string_view Key() const { return sKey_; }
  /// Gives that text the next number.
  void Number(std::string_view sName);
  /// Both, under the text as it is.
  void NumberIfNew(std::string_view sText, const std::string& sScratch) {
    if (IsNew(sText, sScratch)) Number(sText);
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
