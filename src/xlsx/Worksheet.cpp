#include "xlsx/Worksheet.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <numeric>
#include <vector>

#include "runtime/RuntimeError.h"
#include "xlsx/Application.h"
#include "xlsx/Range.h"
#include "xlsx/SheetDrawing.h"
#include "xlsx/SheetShape.h"
#include "xlsx/base/Errors.h"
#include "xlsx/base/Limits.h"
#include "xlsx/package/Namespaces.h"
#include "xlsx/package/Xml.h"
#include "xlsx/sheet/DrawingLink.h"
#include "xlsx/sheet/EnteredValue.h"
#include "xlsx/sheet/ErrorValues.h"
#include "xlsx/sheet/SheetFormulas.h"
#include "xlsx/sheet/SheetSplice.h"

namespace plotsmith::xlsx {

using excel::CellValue;
using excel::Ref;
using runtime::RuntimeError;
using runtime::Variant;

namespace {

void CheckCell(std::int32_t row, std::int32_t column) {
  if (row < 1 || row > limits::kRows || column < 1 || column > limits::kColumns) {
    throw RuntimeError(runtime::error::kApplication);
  }
}

/// Returns true if a part mentions a sheet on which rows have moved. A large part is read in pieces.
bool PartMentions(const Package& package, const std::string& part, const RowShifts& shifts) {
  constexpr std::size_t kWindow = 256 * 1024,
                        kOverlap = 256;  // bytes; longer than a sheet's name in any encoding
  const auto stream = package.Stream(part);
  std::string window(kWindow, '\0');
  std::size_t kept = 0;
  while (const std::size_t count = stream->Read(window.data() + kept, kWindow - kept)) {
    const std::string_view text(window.data(), kept + count);
    if (kept == 0 && xml::NeedsConversion(text)) return shifts.MayConcern(xml::ToUtf8(package.Read(part)));
    if (shifts.MayConcern(text)) return true;
    kept = std::min(kOverlap, text.size());
    std::memmove(window.data(), text.data() + text.size() - kept, kept);
  }
  return false;
}

/// Returns the number of cells that a CellGrid needs for a sheet. Each row has cells up to its last one.
std::size_t RoomOf(const CellStore& cells) {
  std::vector<std::int32_t> ends;
  for (std::int32_t column = 1; column <= cells.ColumnCount(); ++column) {
    for (std::int32_t row = 0; (row = cells.NextRow(row, column)) != 0;) {
      const bool blank = cells.ValueAt(row, column).GetKind() == PackedValue::Kind::kEmpty;
      if (blank && cells.StyleAt(row, column) == 0) continue;
      if (row > static_cast<std::int32_t>(ends.size())) ends.resize(static_cast<std::size_t>(row));
      ends[static_cast<std::size_t>(row) - 1] = column;
    }
  }
  return std::accumulate(ends.begin(), ends.end(), std::size_t{0});
}

bool MentionsChart(std::string_view drawing) {
  return drawing.find("graphicFrame") != std::string_view::npos;
}

/// Returns a version that no sheet of this process has had.
std::uint64_t NewVersion() {
  static std::atomic<std::uint64_t> last = 0;
  return ++last;
}

/// Returns kDate for a number with a date format if the number is between the first and the last day of the
/// date system; otherwise kNumber.
CellValue::Kind NumberKind(Workbook& book, std::uint32_t style, double number) {
  const bool date =
      number >= 0 && number < kLastSerial + 1 - SerialOffset(book.Dates()) && book.Styles().IsDate(style);
  return date ? CellValue::Kind::kDate : CellValue::Kind::kNumber;
}

}  // namespace

Worksheet::Worksheet(Workbook& book, std::weak_ptr<SheetEntry> entry, bool isNew)
    : SheetMembers(book, std::move(entry)), isNew_(isNew), version_(NewVersion()) {}

Worksheet::~Worksheet() = default;

const SheetContents& Worksheet::Read() {
  contents_ = book_.Guarded([&] {
    const auto stream = book_.Package().Stream(Entry().part);
    return InPart(Entry().part, [&] { return ScanSheet(*stream, book_.Dates()); });
  });
  return *contents_;
}

CellGrid& Worksheet::Grid() {
  version_ = NewVersion();
  if (grid_) {
    gridChanged_ = true;
    return *grid_;
  }
  const SheetContents& contents = Contents();
  if (!isNew_ && contents.formulas) {
    throw Refusal("The sheet \"" + SheetName() +
                  "\" has formulas, and a sheet with formulas can't be written.");
  }
  if (contents.used && contents.used->CellCount() > std::int64_t{limits::kGridCells}) {
    CellGrid::CheckSize(RoomOf(contents.cells));
  }
  CellGrid grid;
  for (std::int32_t column = 1; column <= contents.cells.ColumnCount(); ++column) {
    for (std::int32_t row = 0; (row = contents.cells.NextRow(row, column)) != 0;) {
      const std::uint32_t style = contents.cells.StyleAt(row, column);
      const CellValue value = Unpack(contents.cells.ValueAt(row, column), style);
      if (value.kind == CellValue::Kind::kEmpty && style == 0) continue;
      grid.At(row, column) = {value.kind, value.number, std::string(value.text), style};
    }
  }
  grid_ = std::move(grid);
  gridChanged_ = true;
  return *grid_;
}

CellValue Worksheet::Unpack(PackedValue value, std::uint32_t style) {
  using Kind = PackedValue::Kind;
  switch (value.GetKind()) {
    case Kind::kEmpty:
      return {};
    case Kind::kNumber:
      return {NumberKind(book_, style, value.Number()), value.Number(), {}};
    case Kind::kBoolean:
      return {CellValue::Kind::kBoolean, static_cast<double>(value.Index()), {}};
    case Kind::kSharedText:
      return {CellValue::Kind::kText, 0, SharedText(value.Index())};
    case Kind::kOwnText:
      return {CellValue::Kind::kText, 0, contents_->cells.texts.At(value.Index())};
    case Kind::kError: {
      const std::string_view text = contents_->cells.texts.At(value.Index());
      return {CellValue::Kind::kError, static_cast<double>(ErrorNumber(text)), text};
    }
  }
  return {};
}

std::uint32_t Worksheet::StyleAt(std::int32_t row, std::int32_t column) {
  if (!grid_) return Contents().cells.StyleAt(row, column);
  const GridCell* cell = grid_->Find(row, column);
  return cell == nullptr ? 0 : cell->style;
}

CellValue Worksheet::CellValueAt(std::int32_t row, std::int32_t column) {
  CellValue value = Stored(row, column);
  // The port counts days in the 1900 date system only.
  if (value.kind == CellValue::Kind::kDate) value.number += SerialOffset(book_.Dates());
  return value;
}

std::int32_t Worksheet::NextRowAt(std::int32_t row, std::int32_t column) {
  CheckCell(row, column);
  if (!grid_) return Contents().cells.NextRow(row, column);
  while (++row <= grid_->RowCount()) {
    if (grid_->Find(row, column) != nullptr) return row;
  }
  return 0;
}

std::int32_t Worksheet::NextRowShowing(std::int32_t row, std::int32_t column, std::string_view text) {
  CheckCell(row, column);
  if (!grid_) return row + 1;
  if (!keys_ || keys_->Column() != column) MakeKeys(column);
  return keys_->NextRow(row, ColumnKeys::KeyOf(text));
}

std::uint32_t Worksheet::KeyOf(const GridCell* cell) const {
  const bool isPlainText = cell != nullptr && cell->kind == CellValue::Kind::kText && !cell->text.empty() &&
                           book_.Styles().IsGeneral(cell->style);
  return isPlainText ? ColumnKeys::KeyOf(cell->text) : ColumnKeys::kUnknown;
}

void Worksheet::MakeKeys(std::int32_t column) {
  keys_.emplace(column);
  for (std::int32_t row = 1; row <= grid_->RowCount(); ++row)
    keys_->Set(row, KeyOf(grid_->Find(row, column)));
}

void Worksheet::ForgetKeys(const CellRange& range) {
  if (keys_ && range.column1 <= keys_->Column() && keys_->Column() <= range.column2) keys_.reset();
}

CellValue Worksheet::Stored(std::int32_t row, std::int32_t column) {
  CheckCell(row, column);
  if (!grid_) {
    const CellStore& cells = Contents().cells;
    const PackedValue value = cells.ValueAt(row, column);
    // Only a number needs its style, which says whether it is a date.
    return Unpack(value, value.GetKind() == PackedValue::Kind::kNumber ? cells.StyleAt(row, column) : 0);
  }
  const GridCell* cell = grid_->Find(row, column);
  if (cell == nullptr) return {};
  const bool number = cell->kind == CellValue::Kind::kNumber || cell->kind == CellValue::Kind::kDate;
  return {number ? NumberKind(book_, cell->style, cell->number) : cell->kind, cell->number, cell->text};
}

std::string_view Worksheet::CellTextAt(std::int32_t row, std::int32_t column, std::string& scratch) {
  const CellValue value = Stored(row, column);
  switch (value.kind) {
    case CellValue::Kind::kEmpty:
      return {};
    case CellValue::Kind::kError:
      return value.text;
    default:
      break;
  }
  const std::uint32_t style = StyleAt(row, column);
  if (value.kind == CellValue::Kind::kText && book_.Styles().IsGeneral(style)) return value.text;
  const NumberFormat& format = book_.Styles().Format(style);
  scratch.clear();
  if (value.kind == CellValue::Kind::kText) {
    format.AppendText(scratch, value.text);
  } else if (value.kind == CellValue::Kind::kBoolean) {
    format.AppendBoolean(scratch, value.number != 0);
  } else {
    format.AppendNumber(scratch, value.number, book_.Dates());
  }
  return scratch;
}

void Worksheet::SetCellValueAt(std::int32_t row, std::int32_t column, const Variant& value) {
  CheckCell(row, column);
  book_.Journal().Put([&] { return Path()(); },
                      "Cells(" + std::to_string(row) + ", " + std::to_string(column) + ")", value);
  GridCell entered;
  EnterValue(entered, value, book_.Dates());
  GridCell& cell = Grid().At(row, column);
  entered.style = cell.style;
  cell = std::move(entered);
  if (keys_ && keys_->Column() == column) keys_->Set(row, KeyOf(&cell));
}

void Worksheet::ClearCells(const CellRange& range) {
  ForgetKeys(range);
  for (std::int32_t row = range.row1; row <= range.row2; ++row) {
    for (std::int32_t column = range.column1; column <= range.column2; ++column) Grid().At(row, column) = {};
  }
}

void Worksheet::SetNumberFormat(const CellRange& range, std::string_view code) {
  if (!NumberFormat::Parse(code)) {
    throw CantSet("NumberFormat", "Range");
  }
  ForgetKeys(range);
  for (std::int32_t row = range.row1; row <= range.row2; ++row) {
    for (std::int32_t column = range.column1; column <= range.column2; ++column) {
      GridCell& cell = Grid().At(row, column);
      cell.style = book_.Styles().WithFormat(cell.style, code);
    }
  }
}

std::string Worksheet::NumberFormatAt(std::int32_t row, std::int32_t column) {
  return book_.Styles().FormatCode(StyleAt(row, column));
}

CellRange Worksheet::UsedCells() {
  const auto used = grid_ ? grid_->Used() : Contents().used;
  return used.value_or(CellRange{});
}

void Worksheet::InsertRow(std::int32_t row) {
  CheckCell(row, 1);
  Grid().InsertRow(row);
  if (keys_) keys_->InsertRow(row);
  book_.Shifts().Add(Entry().name, row, 1);
}

void Worksheet::DeleteRow(std::int32_t row) {
  CheckCell(row, 1);
  Grid().DeleteRow(row);
  if (keys_) keys_->DeleteRow(row);
  book_.Shifts().Add(Entry().name, row, -1);
}

void Worksheet::SortCells(const CellRange& range, const SortOptions& options) {
  CellGrid& grid = Grid();
  if (!MergedCells().empty()) {
    throw Refusal("To do this, all the merged cells need to be the same size.");
  }
  ForgetKeys(range);
  SortRows(grid, range, options);
}

const SheetGeometry& Worksheet::Geometry() {
  if (!geometry_) {
    const SheetContents& contents = Contents();
    geometry_ = ReadGeometry(contents.head, contents.rowHeights, book_.Styles());
  }
  return *geometry_;
}

SheetView Worksheet::View() {
  SheetView view = book_.Guarded([&] {
    return InPart(Entry().part, [&] { return ReadSheetView(*book_.Package().Stream(Entry().part)); });
  });
  if (activeCell_) view.activeCell = *activeCell_;
  return view;
}

void Worksheet::ActivateCell(const CellPlace& cell) {
  activeCell_ = cell;
  book_.Tabs().CountActivation();
}

Ref<excel::Range> Worksheet::Cells(std::int32_t row, std::int32_t column) {
  CheckCell(row, column);
  return MakeRange(shared_from_this(), {row, column, row, column});
}

Ref<excel::Range> Worksheet::Range(std::string_view cell1, std::string_view cell2) {
  const auto first = ParseA1(cell1), second = ParseA1(cell2);
  if (!first || !second) {
    throw MethodFailed("Range", "_Worksheet");
  }
  return MakeRange(shared_from_this(),
                   {std::min(first->row1, second->row1), std::min(first->column1, second->column1),
                    std::max(first->row2, second->row2), std::max(first->column2, second->column2)});
}

Ref<excel::Range> Worksheet::Rows(std::int32_t row) {
  CheckCell(row, 1);
  return MakeRange(shared_from_this(), {row, 1, row, limits::kColumns});
}

Ref<excel::Range> Worksheet::UsedRange() { return MakeRange(shared_from_this(), UsedCells()); }

Ref<excel::Shapes> Worksheet::Shapes() { return MakeShapes(*this); }

Ref<excel::ChartObjects> Worksheet::ChartObjects() { return MakeChartObjects(*this); }

SheetDrawing* Worksheet::FindDrawing() {
  if (!drawingSought_) {
    book_.Guarded([&] {
      const auto& package = book_.Package();
      const auto link = FindDrawingLink(package, Entry().part);
      if (!link) return;
      try {
        drawing_ = std::make_unique<SheetDrawing>(*this, link->target);
        drawingId_ = link->id;
      } catch (const PackageError& e) {
        // A drawing that can't be read raises an error only if it may contain a chart. Without the error, the
        // system would treat a chart that it doesn't find as deleted.
        if (package.Has(link->target) && MentionsChart(xml::ToUtf8(package.Read(link->target)))) throw;
        drawingDamage_ = e.what();
      }
    });
    drawingSought_ = true;
  }
  return drawing_.get();
}

SheetDrawing& Worksheet::EnsureDrawing() {
  if (FindDrawing() == nullptr) MakeDrawing();
  LinkDrawing();
  return *drawing_;
}

void Worksheet::MakeDrawing() {
  if (drawingDamage_) {
    throw Refusal("The drawing can't be read: " + *drawingDamage_ + ".");
  }
  auto& package = book_.Package();
  const std::string part = package.FreeName(book_.Folder() + "drawings/drawing", ".xml");
  package.Add(part, content_type::kDrawing, EmptyDrawing(book_.IsStrict()));
  drawingId_ = package.AddRelationship(Entry().part, book_.Vocabulary().RelationshipType("drawing"), part);
  drawing_ = std::make_unique<SheetDrawing>(*this, part);
}

void Worksheet::LinkDrawing() {
  if (Contents().drawing == drawingId_) return;
  ChangePart([&](std::string& text) {
    SetDrawingLink(text, book_.Vocabulary().relationships, drawingId_);
    return true;
  });
  contents_->drawing = drawingId_;
}

void Worksheet::SetView(const ViewSetting& setting, bool value) {
  ChangePart([&](std::string& text) { return SetViewSetting(text, setting, value); });
}

void Worksheet::ChangePart(const std::function<bool(std::string& text)>& change) {
  book_.Guarded([&] {
    auto& package = book_.Package();
    std::string text = xml::ToUtf8(package.Read(Entry().part));
    if (InPart(Entry().part, [&] { return change(text); })) package.Replace(Entry().part, std::move(text));
  });
}

void Worksheet::FollowShifts(std::size_t followed) {
  const RowShifts& shifts = book_.Shifts();
  auto& package = book_.Package();
  if (isNew_ || grid_ || !PartMentions(package, Entry().part, shifts)) return;
  std::string text = xml::ToUtf8(package.Read(Entry().part));
  const bool shifted =
      InPart(Entry().part, [&] { return ShiftSheetFormulas(text, Entry().name, shifts, followed); });
  if (shifted) package.Replace(Entry().part, std::move(text));
}

bool Worksheet::NeedsWriting() const { return gridChanged_ || (drawing_ && drawing_->Changed()); }

void Worksheet::Write() {
  if (gridChanged_) {
    auto& package = book_.Package();
    std::string text = xml::ToUtf8(package.Read(Entry().part));
    ReplaceSheetData(
        text, [&](const std::string& prefix) { return grid_->SheetData(prefix); }, UsedCells());
    package.Replace(Entry().part, std::move(text));
    gridChanged_ = false;
  }
  if (drawing_) drawing_->Write();
}

}  // namespace plotsmith::xlsx
