#include "xlsx/sheet/SheetFormulas.h"

#include <array>
#include <map>

#include "xlsx/package/Xml.h"
#include "xlsx/package/XmlStream.h"
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

/// The attributes of a shared formula without those that share it.
std::string Unshared(std::string_view attributes) {
  std::string kept;
  while (!attributes.empty()) {
    const auto equals = attributes.find('=');
    const auto open = attributes.find_first_of("\"'", equals);
    const auto close = open == std::string_view::npos ? open : attributes.find(attributes[open], open + 1);
    if (close == std::string_view::npos) break;
    const std::string_view attribute = attributes.substr(0, close + 1);
    const auto begin = attribute.find_first_not_of(" \t\r\n");
    const std::string_view name = attribute.substr(begin, attribute.find_first_of(" \t\r\n=", begin) - begin);
    if (name != "t" && name != "ref" && name != "si") kept += attribute;
    attributes.remove_prefix(close + 1);
  }
  return kept;
}

/// The formula that a group of cells shares, and the cell that has it in full.
struct SharedFormula {
  std::int32_t row = 0, column = 0;
  std::string formula;
};

class FormulaShifter {
 public:
  FormulaShifter(const std::string& part, std::string_view home, const RowShifts& shifts)
      : part_(part), home_(home), shifts_(shifts) {}

  bool Run() {
    for (std::size_t at = part_.find('<'); at != std::string::npos; at = part_.find('<', at)) {
      const auto nameEnd = part_.find_first_of(" \t\r\n/>", at + 1);
      const auto close = part_.find('>', at);
      if (nameEnd == std::string::npos || close == std::string::npos) break;
      const std::string_view local = xml::LocalName(std::string_view(part_).substr(at + 1, nameEnd - at - 1));
      const std::string_view attributes(part_.data() + nameEnd, close - nameEnd);
      if (local == "c") {
        const auto cell = ParseA1(AttributeIn(attributes, "r"));
        row_ = cell ? cell->row1 : 0;
        column_ = cell ? cell->column1 : 0;
      }
      at = HoldsFormula(local) ? TakeFormula(at, nameEnd, close) : close + 1;
    }
    return copied_ > 0;
  }

  std::string Finish() {
    out_.append(part_, copied_);
    return std::move(out_);
  }

 private:
  /// From the "<" of a formula's element to behind the element.
  std::size_t TakeFormula(std::size_t open, std::size_t nameEnd, std::size_t close) {
    const bool empty = part_[close - 1] == '/';
    const std::string_view attributes(part_.data() + nameEnd, close - nameEnd - (empty ? 1 : 0));
    const auto end = empty ? close + 1 : part_.find('<', close);
    if (end == std::string::npos) return part_.size();
    std::string formula =
        empty ? std::string() : xml::Decode(std::string_view(part_).substr(close + 1, end - close - 1));
    if (AttributeIn(attributes, "t") == "shared") {
      const std::string group = AttributeIn(attributes, "si");
      if (!formula.empty()) {
        shared_.erase(group);  // numbers of groups are used again
        if (shifts_.MayConcern(formula)) shared_[group] = {row_, column_, formula};
      } else if (const auto found = shared_.find(group); found != shared_.end()) {
        const SharedFormula& full = found->second;
        formula = OffsetFormula(full.formula, row_ - full.row, column_ - full.column);
      }
      if (!shared_.contains(group)) return end;
      PutAlone(open, ElementEnd(empty, close, end), part_.substr(open + 1, nameEnd - open - 1), attributes,
               shifts_.Follow(formula, home_, 0).value_or(formula));
    } else if (const auto moved = formula.empty() ? std::nullopt : shifts_.Follow(formula, home_, 0)) {
      Replace(close + 1, end, *moved);
    }
    return end;
  }

  std::size_t ElementEnd(bool empty, std::size_t close, std::size_t end) const {
    return empty ? close + 1 : part_.find('>', end) + 1;
  }

  /// Another text in the place of a stretch of the part.
  void Replace(std::size_t begin, std::size_t end, const std::string& formula) {
    out_.append(part_, copied_, begin - copied_).append(xml::EncodeText(formula));
    copied_ = end;
  }
  /// A formula of its own in the place of a whole element.
  void PutAlone(std::size_t begin, std::size_t end, const std::string& name, std::string_view attributes,
                const std::string& formula) {
    out_.append(part_, copied_, begin - copied_);
    out_.append("<" + name + Unshared(attributes) + ">" + xml::EncodeText(formula) + "</" + name + ">");
    copied_ = end;
  }

  const std::string& part_;
  std::string_view home_;
  const RowShifts& shifts_;
  std::map<std::string, SharedFormula> shared_;  ///< those concerned, by their `si`
  std::int32_t row_ = 0, column_ = 0;
  std::string out_;
  std::size_t copied_ = 0;
};

}  // namespace

bool ShiftSheetFormulas(std::string& part, std::string_view home, const RowShifts& shifts) {
  FormulaShifter shifter(part, home, shifts);
  if (!shifter.Run()) return false;
  part = shifter.Finish();
  return true;
}

}  // namespace plotsmith::xlsx
