#include "xlsx/sheet/SheetFormulas.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>

#include "runtime/Strings.h"
#include "xlsx/base/Limits.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/package/Xml.h"
#include "xlsx/package/XmlStream.h"
#include "xlsx/package/XmlTags.h"
#include "xlsx/sheet/Formula.h"

namespace plotsmith::xlsx {
namespace {

constexpr std::array<std::string_view, 4> kFormulaElements = {"f", "formula", "formula1", "formula2"};

bool HoldsFormula(std::string_view local) {
  for (const std::string_view name : kFormulaElements) {
    if (name == local) return true;
  }
  return false;
}

/// Returns the attributes of a shared formula without those that make it shared.
std::string Unshared(std::string_view attributes) {
  std::string kept;
  while (const auto attribute = TakeAttribute(attributes)) {
    const std::string_view name = attribute->name;
    if (name != "t" && name != "ref" && name != "si") kept += attribute->all;
  }
  return kept;
}

/// A formula shared by a group of cells, and the cell that contains its text.
struct SharedFormula {
  std::int32_t row, column;
  std::string formula;
};

class FormulaShifter {
 public:
  FormulaShifter(const std::string& part, std::string_view home, const RowShifts& shifts,
                 std::size_t followed)
      : part_(part), home_(home), shifts_(shifts), followed_(followed) {}

  bool Run() {
    std::size_t at = 0;
    while (const auto tag = NextTag(part_, at)) {
      at = tag->span.end;
      if (tag->kind == XmlTag::Kind::kEnd) continue;
      const std::string_view local = xml::LocalName(tag->name);
      // A row or cell without a reference is the one after the previous row or cell.
      if (local == "row") {
        const auto row = xml::ParseInteger(AttributeIn(tag->attributes, "r"));
        row_ = row ? static_cast<std::int32_t>(std::clamp<long long>(*row, 0, limits::kRows)) : row_ + 1;
        column_ = 0;
      } else if (local == "c") {
        const auto cell = ParseA1(AttributeIn(tag->attributes, "r"));
        if (cell) row_ = cell->row1;
        column_ = cell ? cell->column1 : column_ + 1;
      } else if (HoldsFormula(local)) {
        at = TakeFormula(*tag);
      }
    }
    return copied_ > 0;
  }

  std::string Finish() {
    out_.append(part_, copied_);
    return std::move(out_);
  }

 private:
  /// Handles the element that begins with the tag. Returns the position of its end.
  std::size_t TakeFormula(const XmlTag& tag) {
    TextSpan text{tag.span.end, tag.span.end};
    std::size_t end = tag.span.end;
    if (tag.kind == XmlTag::Kind::kStart) {
      const auto closing = NextTag(part_, end);
      if (!closing) return part_.size();
      // A data validation in the extension list has its formula in another element.
      if (closing->kind != XmlTag::Kind::kEnd) return end;
      text.end = closing->span.begin;
      end = closing->span.end;
    }
    std::string formula = TextBetween(std::string_view(part_).substr(text.begin, text.end - text.begin));
    if (AttributeIn(tag.attributes, "t") == "shared") {
      const std::string group = AttributeIn(tag.attributes, "si");
      if (!formula.empty()) {
        shared_.erase(group);  // Group numbers are reused.
        const bool sound = runtime::Len(formula) <= limits::kFormula;
        if (sound && shifts_.MayConcern(formula)) shared_[group] = {row_, column_, formula};
      } else if (const auto found = shared_.find(group); found != shared_.end()) {
        const SharedFormula& full = found->second;
        formula = OffsetFormula(full.formula, row_ - full.row, column_ - full.column);
      }
      if (!shared_.contains(group)) return end;
      const std::string name(tag.name);
      Replace({tag.span.begin, end}, "<" + name + Unshared(tag.attributes) + ">" +
                                         xml::EncodeText(Moved(formula).value_or(formula)) + "</" + name +
                                         ">");
    } else if (const auto moved = formula.empty() ? std::nullopt : Moved(formula)) {
      Replace(text, xml::EncodeText(*moved));
    }
    return end;
  }

  std::optional<std::string> Moved(const std::string& formula) const {
    return shifts_.Follow(formula, home_, followed_);
  }

  /// Replaces a span of the part by another text.
  void Replace(const TextSpan& stretch, const std::string& by) {
    out_.append(part_, copied_, stretch.begin - copied_).append(by);
    copied_ = stretch.end;
    if (out_.size() > limits::kHeldPart) {
      throw PackageError("its formulas take more than " + std::to_string(limits::kHeldPart) +
                         " bytes, more than any valid workbook needs");
    }
  }

  const std::string& part_;
  std::string_view home_;
  const RowShifts& shifts_;
  std::size_t followed_;
  std::map<std::string, SharedFormula> shared_;  ///< the formulas that change, by their `si`
  std::int32_t row_ = 0, column_ = 0;
  std::string out_;
  std::size_t copied_ = 0;
};

}  // namespace

bool ShiftSheetFormulas(std::string& part, std::string_view home, const RowShifts& shifts,
                        std::size_t followed) {
  FormulaShifter shifter(part, home, shifts, followed);
  if (!shifter.Run()) return false;
  part = shifter.Finish();
  return true;
}

}  // namespace plotsmith::xlsx
