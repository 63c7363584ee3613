#include "xlsx/sheet/SheetScanner.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "runtime/Ascii.h"
#include "xlsx/base/Limits.h"
#include "xlsx/package/AheadStream.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/package/XString.h"
#include "xlsx/package/Xml.h"
#include "xlsx/package/XmlStream.h"
#include "xlsx/sheet/IsoDate.h"

namespace plotsmith::xlsx {
namespace {

using ascii::IsDigit;
using ascii::IsSpace;

/// Converts a number of a sheet. Common numbers, with few digits and no exponent, are quotients of two whole
/// numbers below 2^53, which a double holds exactly. The library converts the others.
std::optional<double> CellNumber(std::string_view text) {
  constexpr int kExactDigits = 15;
  static constexpr double kPowers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                       1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  const char* p = text.data();
  const char* const end = p + text.size();
  const bool minus = p != end && *p == '-';
  if (minus) ++p;
  std::uint64_t digits = 0;
  int count = 0, decimals = 0;
  for (; p != end && IsDigit(*p); ++p, ++count) digits = digits * 10 + static_cast<std::uint64_t>(*p - '0');
  if (p != end && *p == '.') {
    for (++p; p != end && IsDigit(*p); ++p, ++count, ++decimals) {
      digits = digits * 10 + static_cast<std::uint64_t>(*p - '0');
    }
  }
  if (p == end && count > 0 && count <= kExactDigits) {
    const double value = static_cast<double>(digits) / kPowers[decimals];
    return minus ? -value : value;
  }
  return xml::ParseDouble(text);
}

/// Reads the rows and cells. Cells are read directly from the window. If a cell isn't completely in the
/// window, the window moves and the cell is read again from its beginning. Therefore the inner loops only
/// check the next byte. The zero byte after the window ends each of these loops.
///
/// Nearly all cells that programs write have one of two forms, and most rows have a common form. They are
/// read by comparing whole pieces of text (TakePlainCell, TakePlainRow). Therefore reading a large sheet
/// takes little longer than decompressing it. The general code reads cells of other forms, with the same
/// results.
class SheetScanner : public XmlStream {
 public:
  SheetScanner(Archive::Stream& source, DateSystem dates) : XmlStream(source), dates_(dates) {}

  SheetContents Scan() {
    if (ReadHead()) ReadRows();
    ReadDrawing(ReadMergedCells());
    Drain();
    if (used_.row2 > 0) contents_.used = used_;
    return std::move(contents_);
  }

 private:
  /// The result of reading a piece of the row's content.
  enum class Piece { kTaken, kCut, kEnd };
  /// The start tag of a cell.
  struct CellTag {
    std::int32_t column = 0;
    std::uint32_t style = 0;
    std::string_view type;
    bool open = false;  ///< Whether the cell isn't an empty element.
  };

  bool ReadHead();
  void ReadRows();
  Tag ReadMergedCells();
  void ReadDrawing(Tag tag);
  /// Reads the cell, or the row's start tag, at `p`, and returns the position after it. Returns null and
  /// reads nothing if it doesn't have the plain form or isn't completely in the window.
  const char* TakePlainCell(const char* p);
  const char* TakePlainRow(const char* p);
  Piece ReadPiece();
  /// Reads a cell. `p` is after the name in its start tag.
  Piece ReadCell(const char* p);
  /// Reads the rest of a cell's start tag. Returns the position after it, or null if the window ends first.
  const char* ReadCellTag(const char* p, CellTag& tag) const;
  static void SetCellAttribute(char name, std::string_view value, CellTag& tag);
  Piece ReadRareCell(const char* p, const CellTag& tag, std::string_view value, bool formula);
  /// Moves from an element's text to the last character of its end tag. Stops before it at the zero byte if
  /// the window ends first, or at the "<" of character data, a comment or a child, which only ReadRareCell
  /// reads.
  static const char* PassEndTag(const char* p);
  /// Moves from a formula's start tag, after its name, to the last character of the formula. Stops before it
  /// as PassEndTag does.
  static const char* PassFormula(const char* p);
  void ReadRow(std::string_view attributes);
  /// Stores a cell. `value` is the text as written, or decoded if `decoded` is true; a null view for an empty
  /// cell.
  void Store(const CellTag& tag, std::string_view value, bool decoded = false);

  void Put(std::int32_t column, PackedValue value, std::uint32_t style) {
    if (contents_.cells.CellCount() >= limits::kCells)
      throw PackageError("it has more cells than Plotsmith supports");
    if (row_ == 0) row_ = 1;  // a cell outside of any row
    column_ = column;
    // In Excel, an empty cell without a style doesn't extend the used range.
    if (value.GetKind() != PackedValue::Kind::kEmpty || style != 0) Use(column);
    contents_.cells.Append(row_, column, value, style);
  }

  /// Counts a formula of the last cell. It counts even if its result is missing.
  void TakeFormula(bool hasResult) {
    contents_.formulas = true;
    if (!hasResult) contents_.formulasWithoutResult.push_back({row_, column_});
    Use(column_);
  }

  void Use(std::int32_t column) {
    used_.row1 = std::min(used_.row1, row_);
    used_.row2 = std::max(used_.row2, row_);
    used_.column1 = std::min(used_.column1, column);
    used_.column2 = std::max(used_.column2, column);
  }

  /// Returns true if the element at `p`, which is after "<" or "</", has this name; `p` then moves to the end
  /// of the name.
  bool At(const char*& p, std::string_view name) const;

  DateSystem dates_;
  SheetContents contents_;
  std::string prefix_;  ///< of the part's elements, including the colon
  std::int32_t row_ = 0;
  std::int32_t column_ = 0;
  CellRange used_{limits::kRows, limits::kColumns, 0, 0};
  std::string text_, piece_;  // the text of a rare cell, and a piece of it
};

/// Reads up to and including the start tag of sheetData; returns false if there is none, or if the element is
/// empty.
bool SheetScanner::ReadHead() {
  for (;;) {
    if (contents_.head.size() > limits::kXmlToken) throw PackageError("it has no element for its cells");
    const char* open = position_;
    const auto find = [&] {
      return static_cast<const char*>(std::memchr(open, '<', static_cast<std::size_t>(end_ - open)));
    };
    open = find();
    if (open == nullptr) {
      contents_.head.append(position_, end_);
      position_ = end_;
      if (!Fill()) return false;
      continue;
    }
    contents_.head.append(position_, open);
    position_ = open;
    // The name can be compared only if the whole tag is in the window.
    const char* close = nullptr;
    for (;;) {
      const std::string_view unread(position_, static_cast<std::size_t>(end_ - position_));
      const auto at = unread.starts_with("<!--") ? unread.find("-->", 4) : unread.find('>');
      if (at != std::string_view::npos) {
        close = position_ + at + (unread[at] == '-' ? 2 : 0);
        break;
      }
      if (!Fill()) Damaged();
    }
    const std::string_view tag(position_ + 1, static_cast<std::size_t>(close - position_ - 1));
    if (tag.starts_with("!D")) throw PackageError(xml::kHasDocumentType);
    std::size_t length = 0;
    while (length < tag.size() && !IsSpace(tag[length]) && tag[length] != '/') ++length;
    if (xml::LocalName(tag.substr(0, length)) == "sheetData") {
      prefix_ = xml::Prefix(tag.substr(0, length));
      position_ = close + 1;
      return !tag.ends_with('/');
    }
    contents_.head.append(position_, close + 1);
    position_ = close + 1;
  }
}

void SheetScanner::ReadRows() {
  for (;;) {
    for (const char* next = position_; next != nullptr;) {
      position_ = next;
      next = TakePlainCell(position_);
      if (next == nullptr) next = TakePlainRow(position_);
    }
    switch (ReadPiece()) {
      case Piece::kTaken:
        break;
      case Piece::kEnd:
        return;
      case Piece::kCut:
        if (!Fill()) Damaged();
        break;
    }
  }
}

/// Reads from the end of the cells up to the first element that follows `mergeCells` in the schema
/// (CT_Worksheet). Returns the first tag after the merged cells.
SheetScanner::Tag SheetScanner::ReadMergedCells() {
  static constexpr std::array<std::string_view, 10> kUpToMergedCells = {
      "sheetCalcPr", "sheetProtection", "protectedRanges",  "scenarios",  "autoFilter",
      "sortState",   "dataConsolidate", "customSheetViews", "mergeCells", "mergeCell"};
  for (;;) {
    const Tag tag = Next();
    if (tag.kind == Kind::kEnd && tag.name == "mergeCells") return Next();
    if (tag.kind == Kind::kEnd) continue;
    if (std::find(kUpToMergedCells.begin(), kUpToMergedCells.end(), tag.name) == kUpToMergedCells.end())
      return tag;
    if (tag.name == "mergeCell") {
      if (const auto range = ParseA1(AttributeIn(tag.attributes, "ref")))
        contents_.mergedCells.push_back(*range);
    } else if (tag.name != "mergeCells" && tag.kind == Kind::kStart) {
      SkipElement();
    }
  }
}

/// Reads from `tag` on up to the drawing.
void SheetScanner::ReadDrawing(Tag tag) {
  while (tag.kind != Kind::kEndOfInput && tag.name != "drawing") tag = Next();
  if (tag.kind != Kind::kEndOfInput) contents_.drawing = RelationshipIdIn(tag.attributes);
}

bool SheetScanner::At(const char*& p, std::string_view name) const {
  const char* q = p;
  if (!prefix_.empty()) {
    if (std::strncmp(q, prefix_.data(), prefix_.size()) != 0) return false;
    q += prefix_.size();
  }
  for (const char c : name) {
    if (*q++ != c) return false;
  }
  if (*q != '>' && *q != '/' && !IsSpace(*q)) return false;
  p = q;
  return true;
}

SheetScanner::Piece SheetScanner::ReadPiece() {
  const auto* open =
      static_cast<const char*>(std::memchr(position_, '<', static_cast<std::size_t>(end_ - position_)));
  if (open == nullptr) {
    position_ = end_;
    return Piece::kCut;
  }
  position_ = open;
  // The name can be recognized only with "<", the prefix, "c" and the character after it.
  if (end_ - position_ < static_cast<std::ptrdiff_t>(prefix_.size()) + 3 && Fill()) return Piece::kTaken;
  const char* p = position_ + 1;
  if (At(p, "c")) return ReadCell(p);
  const Tag tag = Next();  // Other elements occur at most once per row.
  if (tag.kind == Kind::kEndOfInput) Damaged();
  if (tag.name == "row" && tag.kind != Kind::kEnd) ReadRow(tag.attributes);
  return tag.kind == Kind::kEnd && tag.name == "sheetData" ? Piece::kEnd : Piece::kTaken;
}

void SheetScanner::ReadRow(std::string_view attributes) {
  const auto number = xml::ParseInteger(AttributeIn(attributes, "r"));
  const long long row = number.value_or(row_ + 1);
  if (row < 1 || row > limits::kRows) throw PackageError("it has a row outside of any sheet");
  row_ = static_cast<std::int32_t>(row);
  column_ = 0;
  if (BooleanIn(attributes, "hidden")) {
    contents_.rowHeights.emplace_back(row_, 0);
  } else if (const auto height = xml::ParseDouble(AttributeIn(attributes, "ht"))) {
    contents_.rowHeights.emplace_back(row_, *height);
  }
}

/// Reads `<c r="AB12" s="3" t="s"><v>123</v></c>`, which is a number or a shared text, or the same cell
/// without a value; `s` and `t` may be missing.
const char* SheetScanner::TakePlainCell(const char* p) {
  // The length is known at compile time, so the comparison takes one or two instructions.
  const auto skip = [&]<std::size_t N>(const char(&text)[N]) {
    if (std::memcmp(p, text, N - 1) != 0) return false;
    p += N - 1;
    return true;
  };
  if (!skip("<c r=\"")) return nullptr;
  std::int32_t column = 0;
  for (; *p >= 'A' && *p <= 'Z' && column <= limits::kColumns; ++p) column = column * 26 + (*p - 'A' + 1);
  while (IsDigit(*p)) ++p;
  if (column == 0 || column > limits::kColumns || !skip("\"")) return nullptr;
  std::uint32_t style = 0;
  if (skip(" s=\"")) {
    for (; IsDigit(*p); ++p) style = style * 10 + static_cast<std::uint32_t>(*p - '0');
    if (!skip("\"")) return nullptr;
  }
  const bool shared = skip(" t=\"s\"");
  if (!skip("><v>")) {
    if (!skip("/>")) return nullptr;
    Put(column, {}, style);
    return p;
  }
  const char* const first = p;
  while (*p != '<' && *p != '\0') ++p;
  const std::string_view text(first, static_cast<std::size_t>(p - first));
  if (!skip("</v></c>")) return nullptr;
  if (shared) {
    std::uint64_t index = 0;
    for (const char c : text) {
      if (!IsDigit(c) || index > 0xFFFFFFFF) return nullptr;
      index = index * 10 + static_cast<std::uint64_t>(c - '0');
    }
    if (text.empty() || index > 0xFFFFFFFF) return nullptr;
    Put(column, {PackedValue::Kind::kSharedText, static_cast<std::uint32_t>(index)}, style);
  } else {
    const auto number = CellNumber(text);
    if (!number) return nullptr;
    Put(column, PackedValue(*number), style);
  }
  return p;
}

/// Reads `</row>`, or a row's start tag that begins with the row's number and has no height.
const char* SheetScanner::TakePlainRow(const char* p) {
  constexpr std::string_view kEnd = "</row>", kStart = "<row r=\"";
  if (std::memcmp(p, kEnd.data(), kEnd.size()) == 0) return p + kEnd.size();
  if (std::memcmp(p, kStart.data(), kStart.size()) != 0) return nullptr;
  p += kStart.size();
  std::int32_t row = 0;
  for (; IsDigit(*p) && row <= limits::kRows; ++p) row = row * 10 + (*p - '0');
  if (*p != '"' || row < 1 || row > limits::kRows) return nullptr;
  for (++p; *p != '>'; ++p) {
    // " ht=" or " hidden=", or the end of the window, mean that the row isn't plain
    if (*p == '\0' || *p == '/' || (p[1] == 'h' && IsSpace(*p))) return nullptr;
  }
  row_ = row;
  column_ = 0;
  return p + 1;
}

/// Reads a cell. `p` is after the cell's name.
SheetScanner::Piece SheetScanner::ReadCell(const char* p) {
  CellTag tag;
  tag.column = column_ + 1;
  p = ReadCellTag(p, tag);
  if (p == nullptr) return Piece::kCut;
  std::string_view text;
  bool formula = false;
  while (tag.open) {  // the children of the cell
    while (*p != '<' && *p != '\0') ++p;
    if (*p == '\0') return Piece::kCut;
    const char* inner = p + 1;
    if (*inner == '/') {
      while (*inner != '>' && *inner != '\0') ++inner;
      if (*inner == '\0') return Piece::kCut;
      p = inner + 1;
      tag.open = false;
    } else if (At(inner, "v") && *inner == '>') {
      const char* from = ++inner;
      while (*inner != '<' && *inner != '\0') ++inner;
      text = {from, static_cast<std::size_t>(inner - from)};
      inner = PassEndTag(inner);
      if (*inner == '<') return ReadRareCell(p, tag, {}, formula);
      if (*inner == '\0') return Piece::kCut;
      p = inner + 1;
    } else if (At(inner, "f")) {
      inner = PassFormula(inner);
      if (*inner == '<') return ReadRareCell(p, tag, text, formula);
      if (*inner == '\0') return Piece::kCut;
      formula = true;
      p = inner + 1;
    } else {
      return ReadRareCell(p, tag, text, formula);
    }
  }
  Store(tag, text);
  // A result of the type "str" may be the empty text.
  if (formula) TakeFormula(!text.empty() || tag.type == "str");
  position_ = p;
  return Piece::kTaken;
}

const char* SheetScanner::ReadCellTag(const char* p, CellTag& tag) const {
  for (;;) {
    while (IsSpace(*p)) ++p;
    if (*p == '>') {
      tag.open = true;
      return p + 1;
    }
    if (*p == '/') return p + 2 <= end_ ? p + 2 : nullptr;
    const char* name = p;
    while (*p != '=' && *p != '\0' && !IsSpace(*p)) ++p;
    const auto nameLength = p - name;
    while (IsSpace(*p)) ++p;
    if (*p == '=') ++p;
    while (IsSpace(*p)) ++p;
    const char quote = *p;
    if (quote == '\0') return nullptr;
    if (quote != '"' && quote != '\'') Damaged();
    const char* value = ++p;
    while (*p != quote && *p != '\0') ++p;
    if (*p == '\0') return nullptr;
    if (nameLength == 1) SetCellAttribute(*name, {value, static_cast<std::size_t>(p - value)}, tag);
    ++p;
  }
}

void SheetScanner::SetCellAttribute(char name, std::string_view value, CellTag& tag) {
  if (name == 'r') {
    std::int32_t letters = 0;
    for (const char c : value) {
      const char upper = static_cast<char>(c & ~0x20);
      if (upper < 'A' || upper > 'Z' || letters > limits::kColumns) break;
      letters = letters * 26 + (upper - 'A' + 1);
    }
    if (letters > 0) tag.column = letters;
  } else if (name == 's') {
    for (const char c : value) {
      if (!IsDigit(c)) break;
      tag.style = tag.style * 10 + static_cast<std::uint32_t>(c - '0');
    }
  } else if (name == 't') {
    tag.type = value;
  }
}

const char* SheetScanner::PassEndTag(const char* p) {
  while (*p != '<' && *p != '\0') ++p;
  if (p[0] == '<' && p[1] != '/' && p[1] != '\0') return p;
  while (*p != '>' && *p != '\0') ++p;
  return p;
}

const char* SheetScanner::PassFormula(const char* p) {
  while (*p != '>' && *p != '\0') ++p;
  return *p == '\0' || p[-1] == '/' ? p : PassEndTag(p);
}

/// Reads a cell with an inline string, character data or an extension. It uses the general reader from `p`
/// on, which is the "<" of a child of the cell. This may move the window, so the views are copied first.
/// `value` and `formula` come from the children before that one.
SheetScanner::Piece SheetScanner::ReadRareCell(const char* p, const CellTag& tag, std::string_view value,
                                               bool formula) {
  const std::string type(tag.type);
  text_ = xml::Decode(value);
  bool hasText = value.data() != nullptr;
  bool inlineText = false;
  position_ = p;
  for (int depth = 1; depth > 0;) {
    const Tag child = Next();
    if (child.kind == Kind::kEndOfInput) Damaged();
    if (child.kind == Kind::kEnd) --depth;
    if (child.kind != Kind::kStart) continue;
    if (child.name == "v" || child.name == "t") {
      inlineText |= child.name == "t";
      piece_.clear();
      const bool runOfText = child.name == "t";
      ReadText(piece_);
      text_ += runOfText ? DecodeXString(piece_) : piece_;
      hasText = true;
    } else if (child.name == "rPh" || child.name == "f" || child.name == "extLst") {
      formula |= child.name == "f";
      SkipElement();
    } else {
      ++depth;
    }
  }
  Store({tag.column, tag.style, inlineText ? "inlineStr" : type}, hasText ? text_ : std::string_view(), true);
  if (formula) TakeFormula(!text_.empty() || type == "str");
  return Piece::kTaken;
}

void SheetScanner::Store(const CellTag& tag, std::string_view value, bool decoded) {
  using Packed = PackedValue::Kind;
  if (tag.column > limits::kColumns) throw PackageError("it has a cell outside of any sheet");
  auto& texts = contents_.cells.texts;
  const auto put = [&](PackedValue packed) { Put(tag.column, packed, tag.style); };
  const auto plain = [&] { return decoded ? std::string(value) : xml::Decode(value); };
  if (value.data() == nullptr) return put({});
  switch (tag.type.empty() ? 'n' : tag.type[0]) {
    case 's':
      if (tag.type.size() == 1) {
        const auto index = xml::ParseInteger(value);
        return put(index && *index >= 0 && *index <= 0xFFFFFFFF
                       ? PackedValue(Packed::kSharedText, static_cast<std::uint32_t>(*index))
                       : PackedValue());
      }
      return put({Packed::kOwnText, texts.Add(DecodeXString(plain()))});  // "str", a formula's result
    case 'i':
      return put({Packed::kOwnText, texts.Add(value)});
    case 'b':
      return put({Packed::kBoolean, xml::ParseBoolean(value).value_or(false) ? 1U : 0U});
    case 'e':
      return put({Packed::kError, texts.Add(plain())});
    case 'd':
      if (const auto serial = ParseIsoDate(value, dates_)) return put(PackedValue(*serial));
      return put({Packed::kOwnText, texts.Add(plain())});
    default: {
      const auto number = CellNumber(value);
      return put(number ? PackedValue(*number) : PackedValue());
    }
  }
}

}  // namespace

SheetContents ScanSheet(Archive::Stream& source, DateSystem dates) {
  AheadStream ahead(source);
  return SheetScanner(ahead, dates).Scan();
}

}  // namespace plotsmith::xlsx
